#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace norvane {

/// Comma-separated values (RFC 4180): rows end at a line feed, with or without a carriage return;
/// a field that begins with a quote ends at the next single quote and may hold separators, line
/// ends and doubled quotes. A quote elsewhere is a letter, as in 2" pipe.
struct CsvDialect {
  char separator = ',';
  char decimal = '.';
};

/// What a header tells: with semicolons between its names, numbers have a comma, as spreadsheet
/// programs write them where the comma is the decimal sign; with commas or tabs, a point.
/// @param header the first row of a file
CsvDialect Dialect_Of_Header(std::string_view header);

/// How many bytes of `bytes` the first row takes, its line end included; npos when it doesn't end.
/// @param bytes of a file, from the beginning of a row
/// @param separator between fields
std::size_t Length_Of_Row(std::string_view bytes, char separator);

/// The fields of a row without its line end, as they stand, quotes included.
/// @param row without its line end
/// @param separator between fields
/// @param fields what the row holds; what it held is gone
void Split_Row(std::string_view row, char separator, std::vector<std::string_view>& fields);

/// Whether a field that begins with a quote has no other one at its end.
/// @param field as it stands, with its quotes
bool Is_Left_Open(std::string_view field);

/// The text that a field stands for.
/// @param field as it stands, with its quotes
std::string Field_Text(std::string_view field);

/// Appends a text as a field, in quotes where it needs them.
/// @param row what the field is added to
/// @param text what the field is to say
/// @param separator between fields
void Append_Field(std::string& row, std::string_view text, char separator);

/// The same for a name of the header: in quotes too where it has another sign that could stand
/// between columns, so that the header tells its own.
/// @param header what the name is added to
/// @param name of the column
void Append_Name(std::string& header, std::string_view name);

/// Reads a field, in quotes or not, that is a number and nothing else: blanks around it, a sign,
/// digits with the decimal sign, an exponent. False for anything else, `number` as it was then.
/// @param field as it stands, with its quotes
/// @param decimal the sign before the decimals
/// @param number what was read
bool Read_Number(std::string_view field, char decimal, double& number);

}  // namespace norvane
