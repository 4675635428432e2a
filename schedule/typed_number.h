#pragma once

#include <string>
#include <string_view>

namespace norvane {

/// The text that stands in a schedule for a number as a person types it. A point is a decimal sign
/// everywhere; a comma is one where the locale or the schedule has it so. Signs between groups of
/// digits aren't understood. What is no number stays as it was typed.
/// @param typed UTF-8
/// @param locale_decimal the decimal sign of the user's locale
/// @param schedule_decimal that of the schedule's numbers
std::string Number_To_Keep(std::string_view typed, char locale_decimal, char schedule_decimal);

/// The other way round: a field as the user's locale writes it.
/// @param field a text of the schedule
/// @param schedule_decimal the decimal sign of the schedule's numbers
/// @param locale_decimal that of the user's locale
std::string Number_To_Show(std::string_view field, char schedule_decimal, char locale_decimal);

}  // namespace norvane
