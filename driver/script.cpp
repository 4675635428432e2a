#include "driver/script.h"

#include <algorithm>
#include <istream>
#include <ostream>
#include <tuple>

#include "driver/call.h"
#include "driver/form_names.h"
#include "driver/text.h"
#include "driver/values.h"
#include "frame/about_form.h"
#include "host/code_page.h"

namespace norvane {
namespace {

/// Thrown out of a modal form when the script has no more lines.
struct ScriptEnd {};

constexpr int kTicksOfTheSplash = 3;

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

int Number_Or(const std::string& text, int otherwise) {
  return text.empty() ? otherwise : Parse_Number(text);
}

std::optional<UserAction> Action_Of(const std::string& verb) {
  static const std::pair<const char*, UserAction> actions[] = {
      {"set", UserAction::kSetText},       {"type", UserAction::kSetText},
      {"erase", UserAction::kSetText},     {"click", UserAction::kClick},
      {"down", UserAction::kDown},         {"up", UserAction::kUp},
      {"hover", UserAction::kHover},       {"choose", UserAction::kChoose},
      {"tab", UserAction::kPickTab},       {"rows", UserAction::kPickRows},
      {"activate", UserAction::kActivate}, {"resize", UserAction::kResize},
      {"close", UserAction::kCloseBox},
  };
  for (const auto& [name, action] : actions) {
    if (verb == name) return action;
  }
  return std::nullopt;
}

}  // namespace

Script::Script(HeadlessPlatform& platform, std::istream& in, std::ostream& out,
               std::ostream& errors)
    : platform_(platform), in_(in), out_(out), errors_(errors), program_(platform) {
  platform_.module1 = &program_.State();
  platform_.play_modal = [this](Form& form) {
    Play_Lines([&] { return form.Shown() && !program_.Ended(); });
    if (form.Shown() && !program_.Ended()) throw ScriptEnd{};
  };
}

ScriptOutcome Script::Play() {
  try {
    Play_Lines([] { return true; });
  } catch (const ScriptEnd&) {
    // The script ended with a modal form open.
  } catch (const ScriptError&) {
    errors_ << "line " << line_number_ << " is not understood: " << line_ << '\n';
    return ScriptOutcome::kNotUnderstood;
  }
  return program_.Failed() ? ScriptOutcome::kRuntimeError : ScriptOutcome::kEnded;
}

void Script::Play_Lines(const std::function<bool()>& goes_on) {
  while (goes_on() && std::getline(in_, line_)) {
    ++line_number_;
    if (!line_.empty() && line_.back() == '\r') line_.pop_back();
    if (line_.find_first_not_of(' ') == std::string::npos || line_.front() == '#') continue;
    Play_Line(line_);
    if (program_.Ended() && !end_told_) {
      end_told_ = true;
      out_ << "ended\n";
    }
  }
}

bool Script::Refuse_After_End() {
  if (!program_.Ended()) return false;
  out_ << "refused: the program has ended\n";
  return true;
}

void Script::Play_Line(const std::string& line) {
  const auto [verb, rest] = First_Word(line);
  if (Play_Set_Up(verb, rest) || Play_Clock(verb, rest)) return;
  if (verb == "get") {
    Get(rest);
  } else if (verb == "dump") {
    Dump(rest);
  } else if (verb == "call") {
    if (!Refuse_After_End())
      program_.Run([&, arguments = rest] {
        if (const auto result = Call(program_.State(), arguments)) out_ << "= " << *result << '\n';
      });
  } else {
    Play_Event(verb, rest);
  }
}

bool Script::Play_Set_Up(const std::string& verb, const std::string& rest) {
  if (verb == "answer") {
    if (rest == "yes") {
      platform_.answers.push_back(MessageAnswer::kYes);
    } else if (rest == "no") {
      platform_.answers.push_back(MessageAnswer::kNo);
    } else if (rest == "ok") {
      platform_.answers.push_back(MessageAnswer::kOk);
    } else {
      throw ScriptError();
    }
  } else if (verb == "fonts") {
    auto& fonts = platform_.fonts.emplace();
    for (std::size_t begin = 0; begin <= rest.size();) {
      const std::size_t end = std::min(rest.find(';', begin), rest.size());
      fonts.push_back(rest.substr(begin, end - begin));
      begin = end + 1;
    }
  } else if (verb == "spreadsheet") {
    if (rest != "none" && rest != "recording") throw ScriptError();
    platform_.Recorder().Set_Present(rest == "recording");
  } else {
    return false;
  }
  return true;
}

bool Script::Play_Clock(const std::string& verb, const std::string& rest) {
  if (verb == "main" || verb == "start") {
    if (Refuse_After_End()) return true;
    Start();
    if (verb == "start") Tick(kTicksOfTheSplash);
  } else if (verb == "tick") {
    const int ticks = Number_Or(rest, 1);
    if (!Refuse_After_End()) Tick(ticks);
  } else {
    return false;
  }
  return true;
}

void Script::Start() {
  if (started_) {
    out_ << "refused: the program is running\n";
    return;
  }
  started_ = true;
  program_.Main();
}

void Script::Tick(int ticks) {
  auto& about = program_.State().forms.about;
  for (int i = 0; i < ticks && about.Loaded() && !program_.Ended(); ++i) {
    program_.Tick(about->Timer1);
  }
}

void Script::Get(const std::string& name) {
  if (Refuse_After_End()) return;
  program_.Run([&] {
    const std::string value = Value_Of(program_.State(), name);
    out_ << name << " = " << value << '\n';
  });
}

void Script::Dump(const std::string& name) {
  FormReference* reference = Form_Named(program_.State(), name);
  if (reference == nullptr) throw ScriptError();
  if (Refuse_After_End()) return;
  program_.Run([&] {
    const Form& form = reference->Get();
    std::vector<Field*> fields = form.Fields();
    std::sort(fields.begin(), fields.end(), [](const Field* a, const Field* b) {
      return std::tuple(a->Name(), a->Index()) < std::tuple(b->Name(), b->Index());
    });
    for (const Field* field : fields) {
      const std::string text = Text_Of(program_.State(), *field).value_or("");
      if (form.Shows(*field) && !text.empty()) out_ << Name_Of(*field) << " = " << text << '\n';
    }
  });
}

void Script::Play_Event(const std::string& verb, const std::string& rest) {
  const auto action = Action_Of(verb);
  if (!action) throw ScriptError();
  const auto [name, behind] = First_Word(rest);
  const FormAndRest resolved = Resolve_Form(program_.State(), Parse_Name(name));
  if (resolved.rest.size() > 1) throw ScriptError();
  if (Refuse_After_End()) return;
  if (!resolved.form.Loaded()) {
    out_ << "refused: the form isn't loaded\n";
    return;
  }
  if (!resolved.rest.empty()) {
    Play_On_Field(verb, name, behind);
    return;
  }
  UserEvent event{*action, resolved.form.Get()};
  if (*action == UserAction::kResize) {
    const auto size = Words(behind);
    if (size.size() != 2) throw ScriptError();
    event.width = Parse_Number(size[0]);
    event.height = Parse_Number(size[1]);
  } else if (*action != UserAction::kActivate && *action != UserAction::kCloseBox &&
             *action != UserAction::kHover) {
    throw ScriptError();
  }
  Play_Event(event);
}

void Script::Play_On_Field(const std::string& verb, const std::string& name,
                           const std::string& rest) {
  const FormAndRest resolved = Resolve_Form(program_.State(), Parse_Name(name));
  Form& form = resolved.form.Get();
  Field& field = Resolve_Field(form, resolved.rest.front());
  UserEvent event{*Action_Of(verb), form, &field};
  const int charset = Charset_Of(program_.State(), field);
  if (verb == "type") {
    Type(event, From_Utf8(Unescape(rest), charset));
    return;
  }
  if (verb == "erase") {
    Erase(event, Number_Or(rest, 1));
    return;
  }
  if (event.action == UserAction::kSetText) {
    event.text = From_Utf8(Unescape(rest), charset);
  } else if (event.action == UserAction::kChoose || event.action == UserAction::kPickTab) {
    event.first = Parse_Number(rest);
  } else if (event.action == UserAction::kPickRows) {
    const auto rows = Words(rest);
    if (rows.size() != 2) throw ScriptError();
    event.first = Parse_Number(rows[0]);
    event.last = Parse_Number(rows[1]);
  } else if (event.action == UserAction::kActivate || event.action == UserAction::kResize ||
             event.action == UserAction::kCloseBox) {
    throw ScriptError();
  }
  Play_Event(event);
}

void Script::Type(const UserEvent& where, const std::string& letters) {
  for (const char letter : letters) {
    UserEvent event = where;
    const auto* field = dynamic_cast<const TextField*>(event.field);
    event.text = (field == nullptr ? std::string() : field->Text()) + letter;
    if (!Play_Event(event)) return;
  }
}

void Script::Erase(const UserEvent& where, int letters) {
  for (int i = 0; i < letters; ++i) {
    UserEvent event = where;
    const auto* field = dynamic_cast<const TextField*>(event.field);
    if (field != nullptr && !field->Text().empty()) {
      event.text = field->Text().substr(0, field->Text().size() - 1);
    }
    if (!Play_Event(event)) return;
  }
}

bool Script::Play_Event(const UserEvent& event) {
  if (const auto reason = program_.Play(event)) {
    out_ << "refused: " << *reason << '\n';
    return false;
  }
  return !program_.Ended();
}

}  // namespace norvane
