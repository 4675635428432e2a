#include "workbook_reader.h"

#include <minizip/unzip.h>

#include <charconv>
#include <memory>
#include <stdexcept>
#include <vector>

#include "xml_reader.h"

namespace norvane {
namespace {

namespace fs = std::filesystem;
using Archive = std::unique_ptr<void, decltype(&unzClose)>;

std::string Part(const Archive& archive, const char* name) {
  constexpr int kWithCase = 1;
  if (unzLocateFile(archive.get(), name, kWithCase) != UNZ_OK ||
      unzOpenCurrentFile(archive.get()) != UNZ_OK) {
    throw std::runtime_error(std::string("no part ") + name);
  }
  std::string bytes;
  char piece[16384];
  int size = 0;
  while ((size = unzReadCurrentFile(archive.get(), piece, sizeof piece)) > 0) {
    bytes.append(piece, static_cast<std::size_t>(size));
  }
  if (size < 0 || unzCloseCurrentFile(archive.get()) != UNZ_OK) {
    throw std::runtime_error(std::string("a broken part ") + name);
  }
  return bytes;
}

double Number(const std::string& text) {
  double number = 0;
  const char* end = text.data() + text.size();
  const auto read = std::from_chars(text.data(), end, number);
  if (read.ec != std::errc() || read.ptr != end) throw std::runtime_error("no number: " + text);
  return number;
}

void Append_Utf8(std::string& text, unsigned letter) {
  if (letter < 0x80) {
    text.push_back(static_cast<char>(letter));
  } else if (letter < 0x800) {
    text.push_back(static_cast<char>(0xC0 | (letter >> 6)));
    text.push_back(static_cast<char>(0x80 | (letter & 0x3F)));
  } else {
    text.push_back(static_cast<char>(0xE0 | (letter >> 12)));
    text.push_back(static_cast<char>(0x80 | ((letter >> 6) & 0x3F)));
    text.push_back(static_cast<char>(0x80 | (letter & 0x3F)));
  }
}

/// The format spells letters that XML can't hold as "_x001F_".
std::string Unescaped(const std::string& text) {
  constexpr std::size_t kEscape = 7;
  std::string plain;
  for (std::size_t at = 0; at < text.size();) {
    unsigned letter = 0;
    const char* digits = text.data() + at + 2;
    const bool escape = text.size() - at >= kEscape && text.compare(at, 2, "_x") == 0 &&
                        digits[4] == '_' &&
                        std::from_chars(digits, digits + 4, letter, 16).ptr == digits + 4;
    if (escape) Append_Utf8(plain, letter);
    if (!escape) plain.push_back(text[at]);
    at += escape ? kEscape : 1;
  }
  return plain;
}

/// The texts that cells refer to by their number.
std::vector<std::string> Shared_Texts(const std::string& xml) {
  std::vector<std::string> texts;
  std::string text;
  bool inside = false;
  Read_Xml(xml, {[&](const std::string& element, const XmlEvents::Attributes&) {
                   if (element == "si") text.clear();
                   inside = element == "t";
                 },
                 [&](const std::string& element) {
                   if (element == "si") texts.push_back(Unescaped(text));
                   inside = false;
                 },
                 [&](const std::string& piece) {
                   if (inside) text += piece;
                 }});
  return texts;
}

/// Reads the cells of a sheet, and looks at the widths of its columns.
class SheetReader {
 public:
  explicit SheetReader(std::vector<std::string> texts) : texts_(std::move(texts)) {}

  std::map<std::string, CellValue> Read(const std::string& xml) {
    Read_Xml(xml, {[this](const auto& element, const auto& given) { Begin(element, given); },
                   [this](const auto& element) { End(element); },
                   [this](const auto& piece) { value_ += piece; }});
    return std::move(cells_);
  }

 private:
  void Begin(const std::string& element, const XmlEvents::Attributes& attributes) {
    value_.clear();
    if (element == "col") Number(attributes.at("width"));
    if (element != "c") return;
    place_ = attributes.at("r");
    const auto type = attributes.find("t");
    type_ = type == attributes.end() ? "n" : type->second;
  }

  void End(const std::string& element) {
    if (element != "v") return;
    if (type_ == "n") {
      cells_[place_] = Number(value_);
    } else if (type_ == "s") {
      cells_[place_] = texts_.at(static_cast<std::size_t>(Number(value_)));
    } else {
      throw std::runtime_error("a cell of type " + type_);
    }
  }

  std::vector<std::string> texts_;
  std::map<std::string, CellValue> cells_;
  std::string place_;
  std::string type_;
  std::string value_;
};

}  // namespace

std::map<std::string, CellValue> Cells_Of_Workbook(const fs::path& file) {
  const Archive archive(unzOpen64(file.c_str()), unzClose);
  if (!archive) throw std::runtime_error("no archive: " + file.string());
  // A sheet without texts has no part for them.
  constexpr int kWithCase = 1;
  const char* const texts = "xl/sharedStrings.xml";
  const bool has_texts = unzLocateFile(archive.get(), texts, kWithCase) == UNZ_OK;
  SheetReader reader(has_texts ? Shared_Texts(Part(archive, texts)) : std::vector<std::string>());
  return reader.Read(Part(archive, "xl/worksheets/sheet1.xml"));
}

}  // namespace norvane
