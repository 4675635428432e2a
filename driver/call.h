#pragma once

#include <optional>
#include <string>
#include <vector>

namespace norvane {

struct Module1;
struct Procedure;

/// A call of a procedure that no event reaches, or of a function alone, with its arguments: one
/// text, or numbers.
struct ProcedureCall {
  const Procedure* procedure;
  std::string text;
  std::vector<double> numbers;
};

/// Takes a text such as "Inch 21 0" apart. Throws `ScriptError` for an unknown procedure or
/// arguments that don't fit.
ProcedureCall Parse_Call(const std::string& text);

/// Runs the procedure, and returns its printed result, where it has one.
std::optional<std::string> Run_Call(Module1& module1, const ProcedureCall& call);

}  // namespace norvane
