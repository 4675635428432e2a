#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "data/csv.h"
#include "study/object.h"
#include "study/reason.h"

namespace norvane {

/// A schedule as its file holds it: UTF-8, CSV with a header of column names, which any spreadsheet
/// program reads and writes. Fields stay texts, so that what isn't understood is kept too; columns
/// of other names are kept where they stand.
struct ScheduleFile {
  CsvDialect dialect;
  std::vector<std::string> header;
  std::vector<std::vector<std::string>> rows;
};

/// Why a file is no schedule, and in which line, from 1.
struct ScheduleFileProblem {
  std::size_t line = 0;
  std::string words;
};

/// An empty schedule with the columns of a question. Numbers are written with `decimal`, and with
/// semicolons between them when that is a comma.
/// @param question whose columns it has
/// @param decimal the decimal sign, '.' or ','
ScheduleFile New_Schedule(Question question, char decimal);

/// Reads a whole file. Rows may be shorter than the header or longer; lines without a field are
/// passed over. A header without the columns that are needed, and bytes that are no UTF-8, are
/// problems.
/// @param bytes of the file, a mark of UTF-8 in front of them or not
/// @param question whose columns are needed
std::variant<ScheduleFile, ScheduleFileProblem> Read_Schedule(std::string_view bytes,
                                                              Question question);

/// The bytes of the file; reading them gives the same schedule.
/// @param schedule whose dialect is kept
std::string Write_Schedule(const ScheduleFile& schedule);

/// The schedule without the columns of a heat loss's results, and the remark behind them, that a
/// run of `norvane-batch` has left in it. A remark that stands alone is the user's own.
/// @param schedule as its file has it
ScheduleFile Without_Results(ScheduleFile schedule);

/// The objects of its rows, or why they can't be read.
/// @param schedule with the columns of the question
/// @param question whose columns are read
std::vector<std::variant<Object, Reason>> Objects_Of(const ScheduleFile& schedule,
                                                     Question question);

}  // namespace norvane
