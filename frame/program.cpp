#include "frame/program.h"

#include <exception>
#include <new>

#include "data/runtime_error.h"
#include "frame/about_form.h"
#include "screen/model/carry_out.h"
#include "screen/warmt.h"

namespace norvane {
namespace {

constexpr std::size_t kMemoryForTheEnd = 8U << 20;

/// The mouse may pass over a form that lies behind, and a window manager may move it.
bool Brings_To_Front(UserAction action) {
  return action != UserAction::kHover && action != UserAction::kMove;
}

}  // namespace

// It isn't touched, so that it costs addresses alone.
Program::Program(Platform& platform)
    : module1_(platform),
      memory_for_the_end_(std::make_unique_for_overwrite<char[]>(kMemoryForTheEnd)) {}

void Program::Main() {
  Run([this] {
    module1_.forms.about->Tag = kTimers;
    Show_Splash(module1_);
    module1_.desk.Let_Events_Run();
    module1_.forms.warmt->Hide();
  });
}

std::optional<std::string> Program::Dispatch(const UserEvent& event) {
  if (auto reason = Reason_To_Refuse(module1_.desk, event)) return reason;
  std::optional<std::string> reason;
  Run([&] {
    // As a mouse does, an event brings its form to the front first; that may change the form.
    if (Brings_To_Front(event.action)) event.form.Show();
    if (event.action == UserAction::kActivate) return;
    reason = Reason_To_Refuse(module1_.desk, event);
    if (!reason) Carry_Out(module1_.desk, event);
  });
  return reason;
}

void Program::Tick(TickTimer& timer) {
  // A message box of the start may stand open for longer than the splash is to be seen.
  if (!timer.Enabled() || Ended() || depth_ > 0) return;
  Run([&] { timer.On_Tick(); });
}

void Program::Run(const std::function<void()>& procedure) {
  ++depth_;
  try {
    procedure();
  } catch (const ProgramEnd&) {
    // Ended in order.
  } catch (const RuntimeError& error) {
    Fail(error);
  } catch (const std::bad_alloc&) {
    memory_for_the_end_.reset();
    Fail(RuntimeError(RuntimeError::kOutOfMemory));
  } catch (const std::exception&) {
    Fail(RuntimeError(RuntimeError::kInternalError));
  }
  if (--depth_ == 0) module1_.desk.Forget_Unloaded();
}

void Program::Fail(const RuntimeError& error) {
  module1_.desk.End();
  failed_ = true;
  module1_.platform.display().Runtime_Error(error.number(), error.what());
}

}  // namespace norvane
