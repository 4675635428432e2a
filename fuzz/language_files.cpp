// Two language files and a settings file of any bytes: the program starts, or ends in its own
// words, and every language can be chosen.
//
// Input: "," for a comma locale or another letter; the files language.len, language.lde and
// norvane.ini with a record separator between them. One that is missing isn't in the folder.

#include <algorithm>

#include "data/text.h"
#include "frame/lang_form.h"
#include "input.h"
#include "require.h"
#include "run_program.h"
#include "screen/warmt.h"

namespace norvane {
namespace {

/// Texts are cut out of their files, trimmed, and hold no line end.
void Require_Texts(const LanguageTables& tables, const std::vector<std::string>& files) {
  for (const auto& texts : tables.Lang_Text) {
    for (const std::string& text : texts) {
      if (text.empty()) continue;
      Require(std::any_of(files.begin(), files.end(),
                          [&](const std::string& file) { return file.find(text) != file.npos; }),
              "a text is a part of its file");
      Require(Trim(text) == text, "a text has no blanks at its ends");
      Require(text.find_first_of("\r\n") == text.npos, "a text is one line");
    }
  }
}

void Require_Captions(RunningProgram& run) {
  const Module1& module1 = run.State();
  Warmt& warmt = *run.forms().warmt;
  Require(module1.Lang_Index >= 0 && module1.Lang_Index < LanguageTables::kSlots,
          "there is a current language");
  Require(warmt.Label1(0).Caption() == module1.Text(TextId::kMediumTemperature),
          "the first heading is its text");
  Require(warmt.lblMenu(3).Caption() == module1.Text(TextId::kMenuExit), "the way out is its text");
  Require(module1.Calc_List.size() == 2 && module1.Calc_List[1].empty(),
          "a language begins an empty list");
}

}  // namespace
}  // namespace norvane

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace norvane;
  Input input(data, size);
  RunningProgram run(input.Byte() == ',' ? ',' : '.');
  const auto files = input.Parts(kBetweenFiles);
  const char* const names[] = {"language.len", "language.lde", "norvane.ini"};
  for (std::size_t i = 0; i < std::min(files.size(), std::size(names)); ++i) {
    run.platform.folder.Write(names[i], files[i]);
  }
  run.platform.on_message = [&] { run.Wait(); };
  run.Start();
  Require_Texts(run.State().languages, files);
  if (!run.Ended()) {
    Require_Captions(run);
    run.Click(run.forms().warmt->lblMenu(1));
    for (const int slot : {1, 0}) run.Click(run.forms().lang->Label2(slot));
    run.Click(run.forms().lang->OK);
  }
  if (!run.Ended()) Require_Captions(run);
  run.Require_Order();
  return 0;
}
