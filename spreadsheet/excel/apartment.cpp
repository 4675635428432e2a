#include "spreadsheet/excel/apartment.h"

#include <atomic>

#include "platform/spreadsheet.h"
#include "spreadsheet/excel/variant.h"

namespace norvane {
namespace {

constexpr DWORD kBetweenTries = 200;  // milliseconds; below 100 the system would try at once

/// Answers for the thread when a program that is called can't take the call just now.
class Patience : public IMessageFilter {
 public:
  explicit Patience(std::chrono::milliseconds patience)
      : patience_(static_cast<DWORD>(patience.count())) {}
  virtual ~Patience() = default;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
    *object = nullptr;
    if (id != IID_IUnknown && id != IID_IMessageFilter) return E_NOINTERFACE;
    AddRef();
    *object = this;
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }

  DWORD STDMETHODCALLTYPE HandleInComingCall(DWORD, HTASK, DWORD, LPINTERFACEINFO) override {
    return SERVERCALL_ISHANDLED;
  }
  DWORD STDMETHODCALLTYPE RetryRejectedCall(HTASK, DWORD waited, DWORD) override {
    return waited < patience_ ? kBetweenTries : static_cast<DWORD>(-1);
  }
  DWORD STDMETHODCALLTYPE MessagePending(HTASK, DWORD, DWORD) override {
    return PENDINGMSG_WAITDEFPROCESS;
  }

 private:
  DWORD patience_;
  std::atomic<ULONG> references_ = 1;
};

}  // namespace

Apartment::Apartment(std::chrono::milliseconds patience) : thread_(GetCurrentThreadId()) {
  if (FAILED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) throw SpreadsheetFailure();
  auto* filter = new Patience(patience);
  CoRegisterMessageFilter(filter, nullptr);
  filter->Release();
}

Apartment::~Apartment() {
  if (!Is_Here()) return;
  CoRegisterMessageFilter(nullptr, nullptr);
  CoUninitialize();
}

bool Apartment::Is_Here() const { return GetCurrentThreadId() == thread_; }

}  // namespace norvane
