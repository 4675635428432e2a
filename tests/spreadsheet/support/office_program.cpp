#include "office_program.h"

#include <gtest/gtest.h>

#include <array>
#include <charconv>
#include <filesystem>

#include "frame/about_form.h"
#include "spreadsheet/make_spreadsheet.h"

namespace norvane {
namespace {

namespace fs = std::filesystem;

std::string Numbered_Language_File() {
  std::string file = "Norvane,Arial,0\r\n0,name=English-1\r\n";
  for (int number = 1; number <= 150; ++number) {
    file += std::to_string(number) + ",t" + std::to_string(number) + "\r\n";
  }
  return file;
}

/// The parts between separators, also the empty ones, of a text with at least one separator.
std::vector<std::string> Parts(const std::string& text, char separator) {
  std::vector<std::string> parts(1);
  for (const char letter : text) {
    if (letter == separator) {
      parts.emplace_back();
    } else {
      parts.back().push_back(letter);
    }
  }
  return parts;
}

std::string Name(int column, int row) {
  return std::string(1, static_cast<char>('A' + column)) + std::to_string(row);
}

void Add_Texts(std::vector<SeenCell>& cells, int row, const std::vector<std::string>& texts) {
  int column = 0;
  for (const std::string& text : texts) {
    if (!text.empty()) cells.push_back({Name(column, row), "TEXT", text});
    ++column;
  }
}

/// A number as the onlooker shows it: the fewest digits that read back the same.
std::string Number(double number) {
  std::array<char, 400> digits;
  const auto end =
      std::to_chars(digits.data(), digits.data() + digits.size(), number, std::chars_format::fixed);
  const std::string text(digits.data(), end.ptr);
  return text.find('.') == std::string::npos ? text + ".0" : text;
}

}  // namespace

OfficeProgram::OfficeProgram(PlugIn plug_in, const MakeSpreadsheetHere& make,
                             const std::string& language_file) {
  folder.Write("language.len", language_file.empty() ? Numbered_Language_File() : language_file);
  fs::copy(TEMPLATES "/total.xls", folder / "total.xls");
  fs::create_directory(folder / "xls");
  fs::copy(TEMPLATES "/xls/Empty.xls", folder / "xls/Empty.xls");
  if (plug_in == PlugIn::kThere) fs::create_symlink(OFFICE_PLUG_IN, folder / "norvane_office.so");
  fs::create_symlink(WORKBOOK_PLUG_IN, folder / "norvane_workbook.so");
  platform_ = std::make_unique<OfficePlatform>(folder.Path(), '.', out_);
  platform_->spreadsheet_ = make ? make(folder.Path()) : Make_Spreadsheet(folder.Path(), waiting);
  program_ = std::make_unique<Program>(*platform_);
  platform_->play_modal = [](Form& form) { form.Hide(); };
  program_->Main();
  for (int i = 0; i < 3; ++i) program_->Tick(State().forms.about->Timer1);
}

void OfficeProgram::Click(Field& field) {
  ASSERT_EQ(program_->Dispatch({UserAction::kClick, field.form(), &field}), std::nullopt);
}

void OfficeProgram::Add_Pipe(const std::string& thickness) {
  Warmt& warmt = Main_Screen();
  Click(warmt.cmdToolBar1(0));
  program_->Dispatch({UserAction::kSetText, warmt, &warmt.txtT(2), thickness});
  Click(warmt.cmdAdd);
}

void OfficeProgram::Add_Sheet(const std::string& thickness) {
  Warmt& warmt = Main_Screen();
  Click(warmt.cmdToolBar1(3));
  program_->Dispatch({UserAction::kSetText, warmt, &warmt.txtT(2), thickness});
  Click(warmt.cmdAdd);
}

void OfficeProgram::Fill_List(int lines) {
  Add_Pipe("20");
  auto& list = State().Calc_List;
  const std::string line = list[1];
  list.insert(list.end() - 1, static_cast<std::size_t>(lines - 1), line);
}

void OfficeProgram::Export() {
  Click(Main_Screen().picTotal);
  Click(Total_Screen().Toolbar1);
}

std::vector<SeenCell> OfficeProgram::Expected_Cells() {
  const auto& list = State().Calc_List;
  std::vector<SeenCell> cells;
  Add_Texts(cells, 1, Parts(list[0], '~'));
  const int lines = static_cast<int>(list.size()) - 2;
  int last_column = 0;
  for (int i = 1; i <= lines; ++i) {
    const auto fields = Parts(list[static_cast<std::size_t>(i)], '\t');
    Add_Texts(cells, i + 2, fields);
    last_column = static_cast<int>(fields.size()) - 1;
  }
  const int row = lines + 4;
  cells.push_back({Name(last_column - 3, row), "TEXT", "t97"});
  cells.push_back({Name(last_column - 2, row), "VALUE", Number(State().Total_Sum1)});
  cells.push_back({Name(last_column - 1, row), "VALUE", Number(State().Total_Sum2)});
  cells.push_back({Name(last_column, row), "VALUE", Number(State().Total_Sum3)});
  return cells;
}

std::string OfficeProgram::Printed() {
  std::string printed = out_.str();
  out_.str("");
  return printed;
}

}  // namespace norvane
