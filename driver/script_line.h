#pragma once

#include <optional>
#include <string>
#include <vector>

#include "driver/call.h"
#include "driver/form_names.h"
#include "driver/name.h"
#include "platform/display.h"
#include "screen/model/user_event.h"

namespace norvane {

/// What a line asks for. A single event of the user is `kEvent`, whichever it is.
enum class Verb {
  kMain,
  kStart,
  kTick,
  kAnswer,
  kFonts,
  kScreen,
  kSpreadsheet,
  kGet,
  kDump,
  kCall,
  kEvent,
  kType,
  kErase,
};

/// A line of a script, understood by its words alone: whether its form is loaded, and whether its
/// field exists, is seen when it is played. What a verb doesn't take keeps its default.
struct ScriptLine {
  Verb verb = Verb::kMain;
  UserAction action = UserAction::kClick;  ///< of `kEvent`, `kType` and `kErase`
  const NamedForm* form = nullptr;         ///< of the same, and of `kDump`
  std::optional<NamePart> field;           ///< none where the form itself is meant
  std::vector<NamePart> name;              ///< of `kGet`
  std::string text;                        ///< UTF-8; of `kGet` the name as it was written
  std::vector<std::string> fonts;          ///< of `kFonts`
  int first = 1;  ///< a count, an item, a tab, a row, a width or left edge in twips
  int last = 0;   ///< a row, a height or upper edge in twips
  MessageAnswer answer = MessageAnswer::kOk;
  bool spreadsheet = false;  ///< whether there is a spreadsheet program
  DisplayArea screen;        ///< what is free of it
  std::optional<ProcedureCall> call;
};

/// Takes a line without its line end apart, the same under every locale of the process. Nothing for
/// a blank line or a comment. Throws `ScriptError` for a line that isn't understood.
std::optional<ScriptLine> Parse_Line(const std::string& line);

/// The line that plays an event whose text is read by a character set.
std::string Line_Of(const UserEvent& event, int charset);

}  // namespace norvane
