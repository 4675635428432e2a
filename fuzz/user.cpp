#include "user.h"

#include <array>

#include "driver/form_names.h"
#include "driver/script_line.h"
#include "driver/text.h"
#include "host/code_page.h"
#include "require.h"
#include "screen/model/carry_out.h"
#include "screen/model/grid.h"
#include "screen/warmt.h"
#include "screen_rules.h"

namespace norvane {
namespace {

constexpr const char* kTexts[] = {
    "80",    "13",      "0",       "1",     "10",      "21",      "",      "5.99",
    "6",     "2.5",     "100",     "100.5", "-1",      "-50",     "-60",   "115",
    "116",   "10000",   "10001",   "32767", "1E5",     "24",      "1e999", "-1e99",
    "1e-40", "0,038",   "0.038",   "0.04",  "0.015",   "0.06",    "12,5",  "12.5",
    "abc",   "12abc",   "-",       ".",     "1E+20",   "32767.5", "914",   "0.5",
    "1 2",   "7654321", "\xE9\t~", "\x80",  "3.4E+38", "0.0001",  "-32769"};
constexpr char kLetters[] = "0123456789.,-+eE \tx~%";
constexpr const char* kSettings[] = {
    "", "[Setting]\r\nHr_Day=0\r\nDays=0\r\n", "[Setting]\r\nHr_Day=32767\r\nDays=-32768\r\n",
    "[Setting]\r\nDays=99999\r\n", "[Init]\r\nA1=99\r\nA4=-3\r\nLanguage=de\r\n"};

constexpr UserAction kWithField[] = {
    UserAction::kSetText, UserAction::kClick,  UserAction::kDown,    UserAction::kUp,
    UserAction::kHover,   UserAction::kChoose, UserAction::kPickTab, UserAction::kPickRows};

}  // namespace

void Tell(const std::string& line) {
  static const bool wanted = std::getenv("NORVANE_FUZZ_SCRIPT") != nullptr;
  if (!wanted) return;
  std::puts(line.c_str());
  std::fflush(stdout);
}

User::User(Input& input, RunningProgram& run) : input_(input), run_(run) {}

void User::Act() {
  constexpr UserAction kUsual[] = {
      UserAction::kSetText, UserAction::kSetText, UserAction::kSetText, UserAction::kClick,
      UserAction::kClick,   UserAction::kClick,   UserAction::kClick,   UserAction::kClick,
      UserAction::kDown,    UserAction::kDown,    UserAction::kUp,      UserAction::kUp,
      UserAction::kHover,   UserAction::kChoose,  UserAction::kPickTab, UserAction::kPickRows};
  const std::size_t step = input_.Below(std::size(kUsual) + 5);
  if (step < std::size(kUsual)) {
    Act_On_Field(kUsual[step]);
    return;
  }
  switch (step - std::size(kUsual)) {
    case 0:
      Act_On_Form();
      break;
    case 1:
      Act_Wildly();
      break;
    case 2:
      Answer();
      break;
    case 3:
      Let_Others_Write();
      break;
    default:
      Tell("tick");
      run_.Tick();
  }
}

void User::Act_In(Form& form) {
  Require_State();
  while (form.Shown() && !run_.Ended() && !input_.At_End()) Act();
  if (form.Shown()) run_.Close(form);
  Require(!form.Shown() || run_.Ended(), "its box closes a modal form");
}

void User::Act_Meanwhile() {
  constexpr int kDeepest = 3;
  if (yields_ == kDeepest) return;
  ++yields_;
  for (std::size_t steps = input_.Below(4); steps > 0 && !run_.Ended(); --steps) {
    Tell("# while the display reports what is pending:");
    Act();
  }
  --yields_;
}

void User::Act_On_Field(UserAction action) {
  Form* form = Form_In_Front();
  if (form == nullptr) return;
  Field* field = Choose_Field(*form, action);
  if (field == nullptr) return;
  UserEvent event{action, *form, field};
  Give_Details(event);
  Try(event);
}

void User::Act_On_Form() {
  constexpr double kNumbers[] = {0, 1619, 1620, 9000, 12000, 1e9, -5};
  constexpr UserAction kActions[] = {UserAction::kActivate, UserAction::kActivate,
                                     UserAction::kResize,   UserAction::kCloseBox,
                                     UserAction::kHover,    UserAction::kMove};
  Form* form = Any_Form();
  if (form == nullptr) return;
  UserEvent event{kActions[input_.Below(std::size(kActions))], *form};
  const auto any_number = [&] { return kNumbers[input_.Below(std::size(kNumbers))]; };
  if (event.action == UserAction::kResize) {
    event.width = any_number();
    event.height = any_number();
  }
  if (event.action == UserAction::kMove) {
    event.left = any_number();
    event.top = any_number();
  }
  Try(event);
}

void User::Act_Wildly() {
  Form* form = Any_Form();
  if (form == nullptr) return;
  UserEvent event{kWithField[input_.Below(std::size(kWithField))], *form};
  event.field = form->Fields()[input_.Below(form->Fields().size())];
  event.first = static_cast<int>(input_.Below(40)) - 2;
  event.last = static_cast<int>(input_.Below(40)) - 2;
  event.text = input_.Bytes(input_.Below(32));
  Try(event);
}

void User::Answer() {
  const bool yes = input_.Below(2) == 1;
  Tell(yes ? "answer yes" : "answer no");
  run_.platform.answers.push_back(yes ? MessageAnswer::kYes : MessageAnswer::kNo);
}

void User::Let_Others_Write() {
  Tell("# another program writes norvane.ini");
  run_.platform.folder.Write("norvane.ini", kSettings[input_.Below(std::size(kSettings))]);
}

Form* User::Form_In_Front() { return run_.State().desk.Active(); }

Form* User::Any_Form() {
  std::vector<Form*> loaded;
  for (const NamedForm& named : kNamedForms) {
    FormReference& form = named.of(run_.State().forms);
    if (form.Loaded()) loaded.push_back(&form.Get());
  }
  return loaded.empty() ? nullptr : loaded[input_.Below(loaded.size())];
}

bool User::Can_Act(UserAction action, const Field& field) {
  if (action == UserAction::kClick && !field.On_Click) return false;
  if (action == UserAction::kHover && !field.On_Hover) return false;
  UserEvent event{action, field.form(), const_cast<Field*>(&field)};
  if (action == UserAction::kPickRows) event.first = event.last = 1;
  return !Reason_To_Refuse(run_.State().desk, event);
}

Field* User::Choose_Field(const Form& form, UserAction action) {
  std::vector<Field*> fields;
  for (Field* field : form.Fields()) {
    if (Can_Act(action, *field)) fields.push_back(field);
  }
  return fields.empty() ? nullptr : fields[input_.Below(fields.size())];
}

void User::Give_Details(UserEvent& event) {
  if (const auto* text = dynamic_cast<const TextField*>(event.field)) event.text = Text_For(*text);
  if (const auto* list = dynamic_cast<const ListField*>(event.field)) {
    event.first = static_cast<int>(input_.Below(list->Items().size() + 1));
  }
  if (const auto* tabs = dynamic_cast<const Tabs*>(event.field)) {
    event.first = static_cast<int>(input_.Below(static_cast<std::size_t>(tabs->Count()) + 1));
  }
  if (const auto* grid = dynamic_cast<const Grid*>(event.field)) {
    const auto rows = static_cast<std::size_t>(grid->Rows()) + 1;
    event.first = static_cast<int>(input_.Below(rows));
    event.last = static_cast<int>(input_.Below(rows));
  }
}

/// A text of the list, a letter more, a letter less, the same again, or any bytes.
std::string User::Text_For(const TextField& field) {
  constexpr std::size_t kLettersUsed = std::size(kLetters) - 1;
  const std::size_t choice = input_.Below(std::size(kTexts) + 2 * kLettersUsed + 8);
  if (choice < std::size(kTexts)) return kTexts[choice];
  if (choice < std::size(kTexts) + 2 * kLettersUsed) {
    return field.Text() + kLetters[(choice - std::size(kTexts)) % kLettersUsed];
  }
  if (choice % 4 == 0) return field.Text();
  if (choice % 4 == 1) return input_.Bytes(input_.Below(16));
  return field.Text().substr(0, field.Text().empty() ? 0 : field.Text().size() - 1);
}

void User::Try(const UserEvent& event) {
  Desk& desk = run_.State().desk;
  Tell(Line_Of(event, event.field ? run_.State().Text_Charset(*event.field) : 0));

  const auto* text = dynamic_cast<const TextField*>(event.field);
  const bool in_front = desk.Active() == &event.form;
  const bool same = in_front && event.action == UserAction::kSetText && text != nullptr &&
                    text->Text() == event.text;
  const bool refused = Reason_To_Refuse(desk, event).has_value();
  const std::string before = refused || same ? Digest(run_.State()) : std::string();
  const int raised = change_rule_.raised;
  const auto reason = run_.program.Dispatch(event);
  Require(!refused || reason, "what a user can't do is refused");
  if (refused || same) {
    Require(Digest(run_.State()) == before, "a refusal or the same text changes nothing");
    Require(change_rule_.raised == raised, "a refusal or the same text raises nothing");
  }
  Require_State();
}

void User::Require_State() {
  if (run_.Ended()) return;
  Module1& module1 = run_.State();
  if (module1.forms.warmt.Loaded()) {
    change_rule_.Require_Told(*module1.forms.warmt);
    // A handler that yields to the event loop has not come to its end.
    if (yields_ > 0) return;
    Require(!module1.forms.warmt->Calc_Busy, "the flag is clear when the program waits");
  }
  Require_Rules(module1);
}

}  // namespace norvane
