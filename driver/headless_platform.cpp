#include "driver/headless_platform.h"

#include <algorithm>
#include <ostream>

#include "driver/text.h"

namespace norvane {
namespace {

const char* Name_Of(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::kInformation:
      return "information";
    case MessageIcon::kExclamation:
      return "exclamation";
    case MessageIcon::kQuestion:
      return "question";
    case MessageIcon::kNone:
      break;
  }
  return "none";
}

const char* Name_Of(MessageAnswer answer) {
  switch (answer) {
    case MessageAnswer::kYes:
      return "yes";
    case MessageAnswer::kNo:
      return "no";
    case MessageAnswer::kOk:
      break;
  }
  return "ok";
}

}  // namespace

HeadlessPlatform::HeadlessPlatform(const std::filesystem::path& folder, char decimal_separator,
                                   std::ostream& out)
    : files_(folder), decimal_separator_(decimal_separator), out_(out), spreadsheet_(files_, out) {}

MessageAnswer HeadlessPlatform::Take_Answer(MessageButtons buttons, bool& answered) {
  const bool yes_no = buttons == MessageButtons::kYesNo;
  const auto fitting = std::find_if(answers.begin(), answers.end(), [&](MessageAnswer answer) {
    return (answer != MessageAnswer::kOk) == yes_no;
  });
  answered = fitting != answers.end();
  if (!answered) return yes_no ? MessageAnswer::kNo : MessageAnswer::kOk;
  const MessageAnswer answer = *fitting;
  answers.erase(fitting);
  return answer;
}

MessageAnswer HeadlessPlatform::Message(const UserMessage& message) {
  bool answered = false;
  const MessageAnswer answer = Take_Answer(message.buttons, answered);
  const bool yes_no = message.buttons == MessageButtons::kYesNo;
  out_ << "message " << Shown(message.title, message.charset) << " | "
       << Shown(message.text, message.charset) << " | " << Name_Of(message.icon) << " | "
       << (yes_no ? "yes/no" : "ok") << " -> " << Name_Of(answer)
       << (yes_no && !answered ? " (unanswered)" : "") << '\n';
  return answer;
}

void HeadlessPlatform::Runtime_Error(int number, const std::string& words) {
  out_ << "runtime error " << number << ": " << words << '\n';
}

}  // namespace norvane
