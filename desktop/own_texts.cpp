#include "desktop/own_texts.h"

#include "desktop/desktop.h"

namespace norvane {
namespace {

const char* In_English(TextId text) {
  switch (text) {
    case TextId::kChooseValue:
      return "Choose a value";
    case TextId::kDewPoint:
      return "Dew point";
    case TextId::kNextSize:
      return "Next size";
    case TextId::kChart:
      return "Chart";
    case TextId::kAboveDewPoint:
      return "Above the dew point";
    case TextId::kNoSaving:
      return "No saving";
    default:
      return "";
  }
}

}  // namespace

QString Own_Text(const Desktop& desktop, TextId text) {
  const QString translated = desktop.Text(text);
  return translated.isEmpty() ? QString(In_English(text)) : translated;
}

}  // namespace norvane
