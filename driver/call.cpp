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
namespace {

using Numbers = std::vector<double>;
using Result = std::optional<std::string>;

struct Procedure {
  std::size_t arguments;
  std::function<Result(Module1&, const Numbers&)> run;
};

const std::map<std::string, Procedure>& Procedures() {
  static const std::map<std::string, Procedure> procedures = {
      {"DauwPunt_export",
       {0,
        [](Module1& m, const Numbers&) -> Result {
          DauwPunt_export(m);
          return std::nullopt;
        }}},
      {"Total.DetectExcel",
       {0,
        [](Module1& m, const Numbers&) -> Result {
          m.forms.total->DetectExcel();
          return std::nullopt;
        }}},
      {"Color",
       {2,
        [](Module1& m, const Numbers& n) -> Result {
          m.forms.warmt->Color(To_Single(n[0]), To_Int16(n[1]));
          return std::nullopt;
        }}},
      {"Inch",
       {2,
        [](Module1&, const Numbers& n) -> Result { return Inch(To_Int16(n[0]), To_Int16(n[1])); }}},
      {"InchIso",
       {2,
        [](Module1&, const Numbers& n) -> Result {
          return InchIso(To_Int16(n[0]), To_Int16(n[1]));
        }}},
      {"Trt_DauwPunt",
       {2,
        [](Module1&, const Numbers& n) -> Result {
          return Printed(Trt_DauwPunt(To_Single(n[0]), To_Single(n[1])));
        }}},
      {"Fahr",
       {1,
        [](Module1& m, const Numbers& n) -> Result { return Fahr(To_Int16(n[0]), m.Locale()); }}},
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

std::optional<std::string> Call(Module1& module1, const std::string& line) {
  const std::size_t blank = line.find(' ');
  const std::string name = line.substr(0, blank);
  const std::string rest = blank == std::string::npos ? "" : line.substr(blank + 1);
  if (name == "Val") return Printed(Val(Unescape(rest)));
  const auto procedure = Procedures().find(name);
  if (procedure == Procedures().end()) throw ScriptError();
  const Numbers arguments = Parse_Arguments(rest);
  if (arguments.size() != procedure->second.arguments) throw ScriptError();
  return procedure->second.run(module1, arguments);
}

}  // namespace norvane
