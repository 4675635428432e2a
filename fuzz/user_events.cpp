// Whole sessions: the program is started in a folder of the input's making, and a user does
// whatever the bytes say.
//
// Input: which things the folder and the machine have, how many ticks the splash gets, texts of a
// language file, the steps of the user.

#include "require.h"
#include "user.h"

namespace norvane {
namespace {

enum SetUp : unsigned {
  kComma = 1,
  kReadOnly = 2,
  kNoSpreadsheet = 4,
  kNoTemplate = 8,
  kGerman = 16,
  kStrangeGerman = 32,
  kAddresses = 64,
  kUnreadable = 128,
};

std::string Strange_Language_File(Input& input) {
  return "German,Courier," + input.Block() + "\r\n0,name=Deutsch-1\r\n" + input.Block();
}

void Set_Up(RunningProgram& run, unsigned set_up, Input& input) {
  MemoryFiles& folder = run.platform.folder;
  folder.Write("language.len", Numbered_Language_File());
  if (set_up & kGerman) folder.Write("language.lde", Numbered_Language_File());
  if (set_up & kStrangeGerman) folder.Write("language.lde", Strange_Language_File(input));
  if (set_up & kAddresses) folder.Write("Address1.txt", "0,x\r\n1,\"a, b\"\r\n" + input.Block());
  if (set_up & kUnreadable) folder.unreadable.insert("language.lde");
  if (!(set_up & kNoTemplate)) folder.Write("total.xls", "");
  folder.read_only = (set_up & kReadOnly) != 0;
  run.platform.recorder.Set_Present(!(set_up & kNoSpreadsheet));
}

}  // namespace
}  // namespace norvane

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace norvane;
  Input input(data, size);
  const unsigned set_up = input.Byte();
  RunningProgram run(set_up & kComma ? ',' : '.');
  Set_Up(run, set_up, input);
  User user(input, run);
  run.platform.on_form_loaded = [&](Form& form) { user.Watch(form); };
  run.platform.on_pending_events = [&] { user.Act_Meanwhile(); };
  run.platform.on_message = [&] { run.Wait(); };
  run.platform.play_modal = [&](Form& form) { user.Act_In(form); };

  Tell(set_up & kComma ? "#: locale comma" : "#: locale point");
  Tell(set_up & kNoSpreadsheet ? "spreadsheet none" : "spreadsheet recording");
  Tell("start");
  run.Start();
  while (!input.At_End() && !run.Ended()) user.Act();
  run.Require_Order();
  return 0;
}
