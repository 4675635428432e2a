#pragma once

#include <string>
#include <vector>

namespace norvane {

/// A line of a script that can't be understood.
struct ScriptError {};

/// One part of a dotted name: an identifier and the numbers in parentheses behind it.
struct NamePart {
  std::string word;
  std::vector<int> numbers;
};

/// Takes a name such as `Total.grdResult.Cell(1,5)` apart. Throws `ScriptError` for anything else.
std::vector<NamePart> Parse_Name(const std::string& name);

/// A whole number. Throws `ScriptError`.
int Parse_Number(const std::string& text);

}  // namespace norvane
