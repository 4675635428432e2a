#include "system_page.h"

#include <iconv.h>

namespace norvane {
namespace {

class Converter {
 public:
  explicit Converter(int page)
      : converter_(iconv_open("UTF-8", ("CP" + std::to_string(page)).c_str())) {}
  ~Converter() {
    if (Known()) iconv_close(converter_);
  }
  Converter(const Converter&) = delete;
  Converter& operator=(const Converter&) = delete;

  bool Known() const { return converter_ != reinterpret_cast<iconv_t>(-1); }
  iconv_t Raw() const { return converter_; }

 private:
  iconv_t converter_;
};

}  // namespace

bool SystemPage::Known() const { return Converter(number_).Known(); }

std::optional<std::string> SystemPage::Letter(const std::string& byte) const {
  const Converter converter(number_);
  std::string in = byte;
  std::string out(8, '\0');
  char* from = in.data();
  char* to = out.data();
  std::size_t left = in.size();
  std::size_t room = out.size();
  if (iconv(converter.Raw(), &from, &left, &to, &room) == static_cast<std::size_t>(-1)) {
    return std::nullopt;
  }
  // A letter that an accent could still join is held back until here.
  iconv(converter.Raw(), nullptr, nullptr, &to, &room);
  return out.substr(0, out.size() - room);
}

}  // namespace norvane
