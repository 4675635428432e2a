// A plug-in that has no more memory in the middle of its file.

#include <fstream>
#include <new>

#include "spreadsheet/workbook.h"

extern "C" bool norvane_write_workbook_1(const norvane::Workbook& /*book*/,
                                         const std::filesystem::path& file) {
  std::ofstream(file) << "half a file";
  throw std::bad_alloc();
}
