#pragma once

#include <cstdint>

#include "calc/heat_loss.h"

namespace norvane {

/// The numbered texts of a language file, by name; what each says is told in
/// `frame/language_texts.inc`.
enum class TextId : std::int16_t {
#define TEXT(name, number) name = (number),
#include "frame/language_texts.inc"
#undef TEXT
};

/// All texts that a language file has, in the order of their numbers.
inline constexpr TextId kLanguageTexts[] = {
#define TEXT(name, number) TextId::name,
#include "frame/language_texts.inc"
#undef TEXT
};

/// The text that names a kind of object.
/// @param kind a `Kind`
constexpr TextId Kind_Name_Text(std::int16_t kind) {
  switch (kind) {
    case kSteelPipe:
      return TextId::kSteelPipe;
    case kCopperTube:
      return TextId::kCopperTube;
    case kMetricPipe:
      return TextId::kMetricPipe;
    default:
      return TextId::kSheet;
  }
}

/// The text with the unit of its heat flow: per metre, of a sheet per square metre.
/// @param kind a `Kind`
constexpr TextId Heat_Flow_Unit_Text(std::int16_t kind) {
  return kind == kSheet ? TextId::kSheetHeatFlowUnit : TextId::kHeatFlowUnit;
}

}  // namespace norvane
