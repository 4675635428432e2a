#include "whole_workbook.h"

#include <expat.h>
#include <minizip/unzip.h>

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>

namespace norvane {
namespace {

using Archive = std::unique_ptr<void, decltype(&unzClose)>;
using Parser = std::unique_ptr<std::remove_pointer_t<XML_Parser>, decltype(&XML_ParserFree)>;

constexpr std::string_view kSheet = "xl/worksheets/sheet1.xml";

/// The values of cells that a part has, and nothing when it isn't well-formed.
class PartReader {
 public:
  PartReader() : parser_(XML_ParserCreate(nullptr), XML_ParserFree) {
    XML_SetUserData(parser_.get(), this);
    XML_SetStartElementHandler(parser_.get(), Begin);
  }

  void Read(const char* bytes, int size, bool last) {
    well_formed_ = well_formed_ && XML_Parse(parser_.get(), bytes, size, last) == XML_STATUS_OK;
  }
  std::optional<std::size_t> Values() const {
    return well_formed_ ? std::optional(values_) : std::nullopt;
  }

 private:
  static void Begin(void* reader, const XML_Char* element, const XML_Char**) {
    if (std::string_view(element) == "v") ++static_cast<PartReader*>(reader)->values_;
  }

  Parser parser_;
  bool well_formed_ = true;
  std::size_t values_ = 0;
};

/// The same of the part that the archive stands at.
std::optional<std::size_t> Values_Of_Part(const Archive& archive) {
  if (unzOpenCurrentFile(archive.get()) != UNZ_OK) return std::nullopt;
  PartReader reader;
  std::array<char, 16384> piece;
  int size = 0;
  while ((size = unzReadCurrentFile(archive.get(), piece.data(), piece.size())) > 0) {
    reader.Read(piece.data(), size, false);
  }
  reader.Read(nullptr, 0, true);
  // It is here that the part is compared with its sum.
  return unzCloseCurrentFile(archive.get()) == UNZ_OK && size == 0 ? reader.Values() : std::nullopt;
}

std::string Name_Of_Part(const Archive& archive) {
  std::array<char, 256> name{};
  unzGetCurrentFileInfo64(archive.get(), nullptr, name.data(), name.size() - 1, nullptr, 0, nullptr,
                          0);
  return name.data();
}

}  // namespace

bool Is_Whole_Workbook(const std::filesystem::path& file, std::size_t cells) {
  const Archive archive(unzOpen64(file.c_str()), unzClose);
  if (!archive) return false;
  std::optional<std::size_t> found;
  int at = unzGoToFirstFile(archive.get());
  for (; at == UNZ_OK; at = unzGoToNextFile(archive.get())) {
    const auto values = Values_Of_Part(archive);
    if (!values) return false;
    if (Name_Of_Part(archive) == kSheet) found = values;
  }
  return at == UNZ_END_OF_LIST_OF_FILE && found == cells;
}

}  // namespace norvane
