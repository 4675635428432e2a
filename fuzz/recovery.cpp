// A file of kept changes of any bytes, as a crash or another program may leave it: it is no such
// file, or what it keeps is kept again as it is.
//
// Input: the file.

#include "schedule/recovery.h"

#include "input.h"
#include "require.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace norvane;
  Input input(data, size);
  const auto kept = Kept_In(input.Bytes(size));
  if (!kept) return 0;
  const auto again = Kept_In(Bytes_To_Keep(kept->file, kept->place));
  Require(again.has_value(), "what was kept is found");
  Require(again->file.header == kept->file.header, "with its header");
  Require(again->file.rows == kept->file.rows, "with its rows");
  Require(again->place.has_value() == kept->place.has_value(), "with its place, if it has one");
  if (!kept->place) return 0;
  Require(again->place->path == kept->place->path, "with the file that it belongs to");
  Require(again->place->fingerprint == kept->place->fingerprint, "as that was when it was read");
  return 0;
}
