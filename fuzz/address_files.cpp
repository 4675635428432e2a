// Address files of any bytes: they are read, and their list is shown.
//
// Input: "," for a comma locale or another letter; files with a record separator between them, the
// first line of each its number as it stands in the file's name.

#include <algorithm>

#include "catalogue/address_form.h"
#include "catalogue/addresses.h"
#include "input.h"
#include "require.h"
#include "run_program.h"

namespace norvane {
namespace {

/// The letters behind "Address", of which the first three are the number.
std::string Name_Of_File(const std::string& file) {
  constexpr std::size_t kLongest = 5;
  return "Address" + file.substr(0, std::min(file.find('\n'), kLongest)) + ".txt";
}

void Require_List(RunningProgram& run) {
  constexpr std::size_t kLinesOfAnAddress = 9;
  const Address& address = *run.forms().address;
  const auto& items = address.List1.Items();
  std::size_t addresses = 0;
  while (addresses < 20 &&
         !Address_Field(run.State(), static_cast<int>(addresses) + 1, 0).empty()) {
    ++addresses;
  }
  Require(items.size() <= addresses * kLinesOfAnAddress + 1, "an address has nine lines at most");
  Require(items.size() >= addresses * 5 + 1, "an address has five lines at least");
  Require(items.back() == "Website: " + Address_Field(run.State(), 1, 9), "the last is the site");
}

}  // namespace
}  // namespace norvane

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace norvane;
  Input input(data, size);
  RunningProgram run(input.Byte() == ',' ? ',' : '.');
  for (const std::string& file : input.Parts(kBetweenFiles)) {
    const std::size_t line_end = std::min(file.find('\n'), file.size());
    run.platform.folder.Write(Name_Of_File(file), file.substr(std::min(line_end + 1, file.size())));
  }
  run.program.Run([&] { run.forms().address.Get(); });
  Require(!run.Ended(), "no file ends the program");
  Require_List(run);
  run.Require_Order();
  return 0;
}
