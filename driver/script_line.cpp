#include "driver/script_line.h"

#include <algorithm>
#include <iterator>

#include "driver/text.h"
#include "screen/model/field_model.h"
#include "screen/model/form.h"

namespace norvane {
namespace {

/// What an event may be about.
enum class On { kNothing, kField, kForm, kFieldOrForm };

/// What follows the verb and that name. Where nothing is asked for, what follows is passed over.
enum class With {
  kNothing,
  kText,
  kCount,  ///< 1 if left out
  kNumber,
  kTwoNumbers,
  kFourNumbers,
  kAnswer,
  kFonts,
  kSpreadsheet,
  kName,
  kForm,
  kCall,
};

struct VerbEntry {
  const char* word;
  Verb verb;
  UserAction action = UserAction::kClick;
  On on = On::kNothing;
  With with = With::kNothing;
};

using A = UserAction;

/// All verbs. The first entry of an action is the one that plays just this action.
constexpr VerbEntry kVerbs[] = {
    {"main", Verb::kMain},
    {"start", Verb::kStart},
    {"tick", Verb::kTick, {}, On::kNothing, With::kCount},
    {"answer", Verb::kAnswer, {}, On::kNothing, With::kAnswer},
    {"fonts", Verb::kFonts, {}, On::kNothing, With::kFonts},
    {"screen", Verb::kScreen, {}, On::kNothing, With::kFourNumbers},
    {"spreadsheet", Verb::kSpreadsheet, {}, On::kNothing, With::kSpreadsheet},
    {"get", Verb::kGet, {}, On::kNothing, With::kName},
    {"dump", Verb::kDump, {}, On::kNothing, With::kForm},
    {"call", Verb::kCall, {}, On::kNothing, With::kCall},
    {"set", Verb::kEvent, A::kSetText, On::kField, With::kText},
    {"type", Verb::kType, A::kSetText, On::kField, With::kText},
    {"erase", Verb::kErase, A::kSetText, On::kField, With::kCount},
    {"click", Verb::kEvent, A::kClick, On::kField},
    {"down", Verb::kEvent, A::kDown, On::kField},
    {"up", Verb::kEvent, A::kUp, On::kField},
    {"hover", Verb::kEvent, A::kHover, On::kFieldOrForm},
    {"choose", Verb::kEvent, A::kChoose, On::kField, With::kNumber},
    {"tab", Verb::kEvent, A::kPickTab, On::kField, With::kNumber},
    {"rows", Verb::kEvent, A::kPickRows, On::kField, With::kTwoNumbers},
    {"activate", Verb::kEvent, A::kActivate, On::kForm},
    {"resize", Verb::kEvent, A::kResize, On::kForm, With::kTwoNumbers},
    {"move", Verb::kEvent, A::kMove, On::kForm, With::kTwoNumbers},
    {"close", Verb::kEvent, A::kCloseBox, On::kForm},
};

/// The first word of a line, and what follows one blank behind it.
std::pair<std::string, std::string> First_Word(const std::string& line) {
  const std::size_t blank = line.find(' ');
  if (blank == std::string::npos) return {line, ""};
  return {line.substr(0, blank), line.substr(blank + 1)};
}

std::vector<std::string> Words(const std::string& line) {
  std::vector<std::string> words;
  std::string rest = line;
  while (!rest.empty()) {
    auto [word, behind] = First_Word(rest);
    if (!word.empty()) words.push_back(word);
    rest = behind;
  }
  return words;
}

MessageAnswer Parse_Answer(const std::string& word) {
  if (word == "yes") return MessageAnswer::kYes;
  if (word == "no") return MessageAnswer::kNo;
  if (word == "ok") return MessageAnswer::kOk;
  throw ScriptError();
}

std::vector<std::string> Parse_Fonts(const std::string& list) {
  std::vector<std::string> fonts;
  for (std::size_t begin = 0; begin <= list.size();) {
    const std::size_t end = std::min(list.find(';', begin), list.size());
    fonts.push_back(list.substr(begin, end - begin));
    begin = end + 1;
  }
  return fonts;
}

const NamedForm& Parse_Form(const std::string& name) {
  const NamedForm* form = Form_Named(name);
  if (form == nullptr) throw ScriptError();
  return *form;
}

const VerbEntry& Entry_Of(const std::string& word) {
  for (const VerbEntry& entry : kVerbs) {
    if (word == entry.word) return entry;
  }
  throw ScriptError();
}

/// The name of a field or form, at the beginning of `rest`; returns what follows it.
std::string Parse_Place(ScriptLine& line, On on, const std::string& rest) {
  const auto [name, behind] = First_Word(rest);
  FormAndRest place = Split_Form(Parse_Name(name));
  if (place.rest.size() > 1) throw ScriptError();
  const bool form_alone = place.rest.empty();
  if (on == (form_alone ? On::kField : On::kForm)) throw ScriptError();
  line.form = &place.form;
  if (!form_alone) line.field = std::move(place.rest.front());
  return behind;
}

std::vector<int> Parse_Numbers(std::size_t count, const std::string& rest) {
  std::vector<int> numbers;
  for (const std::string& word : Words(rest)) numbers.push_back(Parse_Number(word));
  if (numbers.size() != count) throw ScriptError();
  return numbers;
}

void Parse_Two_Numbers(ScriptLine& line, const std::string& rest) {
  const auto numbers = Parse_Numbers(2, rest);
  line.first = numbers[0];
  line.last = numbers[1];
}

void Parse_Screen(ScriptLine& line, const std::string& rest) {
  const auto numbers = Parse_Numbers(4, rest);
  line.screen = {static_cast<double>(numbers[0]), static_cast<double>(numbers[1]),
                 static_cast<double>(numbers[2]), static_cast<double>(numbers[3])};
}

void Parse_Arguments(ScriptLine& line, With with, const std::string& rest) {
  switch (with) {
    case With::kNothing:
      break;
    case With::kText:
      line.text = Unescape(rest);
      break;
    case With::kCount:
      if (!rest.empty()) line.first = Parse_Number(rest);
      break;
    case With::kNumber:
      line.first = Parse_Number(rest);
      break;
    case With::kTwoNumbers:
      Parse_Two_Numbers(line, rest);
      break;
    case With::kFourNumbers:
      Parse_Screen(line, rest);
      break;
    case With::kAnswer:
      line.answer = Parse_Answer(rest);
      break;
    case With::kFonts:
      line.fonts = Parse_Fonts(rest);
      break;
    case With::kSpreadsheet:
      if (rest != "none" && rest != "recording") throw ScriptError();
      line.spreadsheet = rest == "recording";
      break;
    case With::kName:
      line.name = Parse_Name(rest);
      line.text = rest;
      break;
    case With::kForm:
      line.form = &Parse_Form(rest);
      break;
    case With::kCall:
      line.call = Parse_Call(rest);
      break;
  }
}

/// What the two numbers of an event's line are.
std::pair<double, double> Numbers_Of(const UserEvent& event) {
  if (event.action == A::kResize) return {event.width, event.height};
  if (event.action == A::kMove) return {event.left, event.top};
  return {event.first, event.last};
}

}  // namespace

std::optional<ScriptLine> Parse_Line(const std::string& line) {
  if (line.find_first_not_of(' ') == std::string::npos || line.front() == '#') return std::nullopt;
  const auto [word, rest] = First_Word(line);
  const VerbEntry& entry = Entry_Of(word);
  ScriptLine parsed;
  parsed.verb = entry.verb;
  parsed.action = entry.action;
  const bool placed = entry.on != On::kNothing;
  Parse_Arguments(parsed, entry.with, placed ? Parse_Place(parsed, entry.on, rest) : rest);
  return parsed;
}

std::string Line_Of(const UserEvent& event, int charset) {
  const auto* const entry =
      std::find_if(std::begin(kVerbs), std::end(kVerbs), [&](const VerbEntry& verb) {
        return verb.verb == Verb::kEvent && verb.action == event.action;
      });
  std::string line = entry->word;
  line += ' ' + (event.field != nullptr ? Name_Of(*event.field) : event.form.Name());
  if (entry->with == With::kText) line += ' ' + Shown(event.text, charset);
  const auto [first, last] = Numbers_Of(event);
  const auto number = [](double value) { return ' ' + std::to_string(static_cast<int>(value)); };
  if (entry->with == With::kNumber || entry->with == With::kTwoNumbers) line += number(first);
  if (entry->with == With::kTwoNumbers) line += number(last);
  return line;
}

}  // namespace norvane
