#include "driver/call.h"

#include <charconv>
#include <functional>
#include <map>
#include <vector>

#include "calc/conversions.h"
#include "calc/dew_point.h"
#include "calc/sizes.h"
#include "driver/name.h"
#include "driver/text.h"
#include "driver/values.h"
#include "frame/shared_state.h"
#include "screen/warmt.h"
#include "totals/dew_point_export.h"
#include "totals/total_form.h"

namespace norvane {

using Numbers = std::vector<double>;
using Result = std::optional<std::string>;

/// A procedure that takes so many numbers, or, without a number of them, a text.
struct Procedure {
  std::optional<std::size_t> numbers;
  std::function<Result(Module1&, const ProcedureCall&)> run;
};

namespace {

const std::map<std::string, Procedure>& Procedures() {
  static const std::map<std::string, Procedure> procedures = {
      {"DauwPunt_export",
       {0,
        [](Module1& m, const ProcedureCall&) -> Result {
          DauwPunt_export(m);
          return std::nullopt;
        }}},
      {"Total.DetectExcel",
       {0,
        [](Module1& m, const ProcedureCall&) -> Result {
          m.forms.total->DetectExcel();
          return std::nullopt;
        }}},
      {"Color",
       {2,
        [](Module1& m, const ProcedureCall& call) -> Result {
          m.forms.warmt->Color(To_Single(call.numbers[0]), To_Int16(call.numbers[1]));
          return std::nullopt;
        }}},
      {"Inch",
       {2,
        [](Module1&, const ProcedureCall& call) -> Result {
          return Inch(To_Int16(call.numbers[0]), To_Int16(call.numbers[1]));
        }}},
      {"InchIso",
       {2,
        [](Module1&, const ProcedureCall& call) -> Result {
          return InchIso(To_Int16(call.numbers[0]), To_Int16(call.numbers[1]));
        }}},
      {"Trt_DauwPunt",
       {2,
        [](Module1&, const ProcedureCall& call) -> Result {
          return Printed(Trt_DauwPunt(To_Single(call.numbers[0]), To_Single(call.numbers[1])));
        }}},
      {"Fahr",
       {1,
        [](Module1& m, const ProcedureCall& call) -> Result {
          return Fahr(To_Int16(call.numbers[0]), m.Locale());
        }}},
      {"Val",
       {std::nullopt,
        [](Module1&, const ProcedureCall& call) -> Result { return Printed(Val(call.text)); }}},
  };
  return procedures;
}

Numbers Parse_Arguments(const std::string& list) {
  Numbers numbers;
  const char* at = list.data();
  const char* const end = at + list.size();
  while (at != end) {
    double number = 0;
    const auto read = std::from_chars(at, end, number);
    if (read.ec != std::errc() || (read.ptr != end && *read.ptr != ' ')) throw ScriptError();
    numbers.push_back(number);
    at = read.ptr == end ? end : read.ptr + 1;
  }
  return numbers;
}

}  // namespace

ProcedureCall Parse_Call(const std::string& text) {
  const std::size_t blank = text.find(' ');
  const std::string rest = blank == std::string::npos ? "" : text.substr(blank + 1);
  const auto named = Procedures().find(text.substr(0, blank));
  if (named == Procedures().end()) throw ScriptError();
  const Procedure& procedure = named->second;
  if (!procedure.numbers) return {&procedure, Unescape(rest), {}};
  ProcedureCall call{&procedure, "", Parse_Arguments(rest)};
  if (call.numbers.size() != procedure.numbers) throw ScriptError();
  return call;
}

std::optional<std::string> Run_Call(Module1& module1, const ProcedureCall& call) {
  return call.procedure->run(module1, call);
}

}  // namespace norvane
