#include "driver/script.h"

#include <algorithm>
#include <istream>
#include <ostream>
#include <tuple>

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

}  // namespace

Script::Script(HeadlessPlatform& platform, std::istream& in, std::ostream& out,
               std::ostream& errors)
    : platform_(platform), in_(in), out_(out), errors_(errors), program_(platform) {
  platform_.play_modal = [this](Form& form) {
    Play_Lines([&] { return form.Shown() && !program_.Ended(); });
    if (form.Shown() && !program_.Ended()) throw ScriptEnd{};
  };
}

ScriptOutcome Script::Run() {
  try {
    Play_Lines([] { return true; });
  } catch (const ScriptEnd&) {
    // The script ended with a modal form open.
  } catch (const ScriptError&) {
    // As text, since a stream may group digits by its locale.
    errors_ << "line " << std::to_string(line_number_) << " is not understood: " << line_ << '\n';
    return ScriptOutcome::kNotUnderstood;
  }
  return program_.Failed() ? ScriptOutcome::kRuntimeError : ScriptOutcome::kEnded;
}

void Script::Play_Lines(const std::function<bool()>& goes_on) {
  while (goes_on() && std::getline(in_, line_)) {
    ++line_number_;
    if (!line_.empty() && line_.back() == '\r') line_.pop_back();
    const auto line = Parse_Line(line_);
    if (!line) continue;
    Carry_Out(*line);
    if (program_.Ended() && !end_told_) {
      end_told_ = true;
      out_ << "ended\n";
    }
  }
}

void Script::Carry_Out(const ScriptLine& line) {
  if (Set_Up(line)) return;
  if (program_.Ended()) {
    out_ << "refused: the program has ended\n";
    return;
  }
  switch (line.verb) {
    case Verb::kMain:
      Start();
      break;
    case Verb::kStart:
      Start();
      Tick(kTicksOfTheSplash);
      break;
    case Verb::kTick:
      Tick(line.first);
      break;
    case Verb::kGet:
      Get(line);
      break;
    case Verb::kDump:
      Dump(line);
      break;
    case Verb::kCall:
      Call(line);
      break;
    default:
      Act(line);
  }
}

/// What the world around the program is to be like; this needs no running program.
bool Script::Set_Up(const ScriptLine& line) {
  switch (line.verb) {
    case Verb::kAnswer:
      platform_.answers.push_back(line.answer);
      return true;
    case Verb::kFonts:
      platform_.fonts = line.fonts;
      return true;
    case Verb::kScreen:
      platform_.screen = line.screen;
      return true;
    case Verb::kSpreadsheet:
      platform_.Recorder().Set_Present(line.spreadsheet);
      return true;
    default:
      return false;
  }
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

void Script::Get(const ScriptLine& line) {
  program_.Run([&] {
    const std::string value = Value_Of(program_.State(), line.name);
    out_ << line.text << " = " << value << '\n';
  });
}

void Script::Dump(const ScriptLine& line) {
  program_.Run([&] {
    const Form& form = line.form->of(program_.State().forms).Get();
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

void Script::Call(const ScriptLine& line) {
  program_.Run([&] {
    if (const auto result = Run_Call(program_.State(), *line.call)) out_ << "= " << *result << '\n';
  });
}

void Script::Act(const ScriptLine& line) {
  FormReference& reference = line.form->of(program_.State().forms);
  if (!reference.Loaded()) {
    out_ << "refused: the form isn't loaded\n";
    return;
  }
  Form& form = reference.Get();
  UserEvent event{line.action, form};
  event.first = line.first;
  event.last = line.last;
  event.left = line.first;
  event.top = line.last;
  event.width = line.first;
  event.height = line.last;
  if (line.field) {
    event.field = &Resolve_Field(form, *line.field);
    event.text = From_Utf8(line.text, program_.State().Text_Charset(*event.field));
  }
  if (line.verb == Verb::kType) {
    Type(event, event.text);
  } else if (line.verb == Verb::kErase) {
    Erase(event, line.first);
  } else {
    Send(event);
  }
}

void Script::Type(const UserEvent& where, const std::string& letters) {
  for (const char letter : letters) {
    UserEvent event = where;
    const auto* field = dynamic_cast<const TextField*>(event.field);
    event.text = (field == nullptr ? std::string() : field->Text()) + letter;
    if (!Send(event)) return;
  }
}

void Script::Erase(const UserEvent& where, int letters) {
  for (int i = 0; i < letters; ++i) {
    UserEvent event = where;
    const auto* field = dynamic_cast<const TextField*>(event.field);
    if (field != nullptr && !field->Text().empty()) {
      event.text = field->Text().substr(0, field->Text().size() - 1);
    }
    if (!Send(event)) return;
  }
}

bool Script::Send(const UserEvent& event) {
  if (const auto reason = program_.Dispatch(event)) {
    out_ << "refused: " << *reason << '\n';
    return false;
  }
  return !program_.Ended();
}

}  // namespace norvane
