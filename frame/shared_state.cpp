#include "frame/shared_state.h"

#include "catalogue/address_form.h"
#include "catalogue/products.h"
#include "catalogue/settings_form.h"
#include "data/runtime_error.h"
#include "frame/about_form.h"
#include "frame/lang_form.h"
#include "screen/warmt.h"
#include "totals/total_form.h"

namespace norvane {
namespace {

template <class T>
std::function<std::unique_ptr<Form>()> Maker(Module1& module1) {
  return [&module1] { return std::make_unique<T>(module1); };
}

}  // namespace

Forms::Forms(Module1& module1)
    : about(module1.desk, Maker<About>(module1)),
      warmt(module1.desk, Maker<Warmt>(module1)),
      settings(module1.desk, Maker<Settings>(module1)),
      lang(module1.desk, Maker<Lang>(module1)),
      address(module1.desk, Maker<Address>(module1)),
      total(module1.desk, Maker<Total>(module1)) {}

Module1::Module1(Platform& the_platform)
    : platform(the_platform), desk(the_platform.display()), forms(*this) {}

Module1::~Module1() = default;

int Module1::Font_Charset(int slot) const {
  const auto& charset = languages.Lang_Charset[static_cast<std::size_t>(slot)];
  return charset ? To_Int16(To_Number(*charset, Locale())) : 0;
}

int Module1::Text_Charset(int slot) const {
  try {
    return Font_Charset(slot);
  } catch (const RuntimeError&) {
    return 0;
  }
}

int Module1::Text_Charset(const Field& field) const {
  return field.Font().charset.value_or(Text_Charset());
}

MessageAnswer Module1::Message(const std::string& title, const std::string& text, MessageIcon icon,
                               MessageButtons buttons) {
  return platform.display().Message({title, text, icon, buttons, Text_Charset()});
}

}  // namespace norvane
