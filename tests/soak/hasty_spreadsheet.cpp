#include "hasty_spreadsheet.h"

namespace norvane {

void HastySpreadsheet::Do() {
  constexpr int kFailing = 100;
  constexpr int kLongList = 5000;
  if (chance_.One_In(kFailing)) throw SpreadsheetFailure();
  user_.Wait_For([this] { waiting_.Progress(chance_.Below(kLongList), kLongList); });
}

}  // namespace norvane
