#include "batch/rows.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

#include "data/utf8.h"

namespace norvane {
namespace {

/// Whether no byte has its highest bit set, eight at a time.
bool Is_Ascii(std::string_view bytes) {
  constexpr std::uint64_t kHighest = 0x8080808080808080;
  std::uint64_t all = 0;
  std::size_t at = 0;
  for (; at + sizeof(all) <= bytes.size(); at += sizeof(all)) {
    std::uint64_t eight;
    std::memcpy(&eight, bytes.data() + at, sizeof(eight));
    all |= eight;
  }
  for (; at < bytes.size(); ++at) all |= static_cast<unsigned char>(bytes[at]);
  return (all & kHighest) == 0;
}

/// Whether the row itself is broken, not what stands in one of its fields.
bool Is_Of_The_Row(Reason::Code code) {
  return code == Reason::kFieldCount || code == Reason::kNotUtf8 || code == Reason::kQuoteLeftOpen;
}

}  // namespace

void Report::Add(const Report& behind) {
  sums.Add(behind.sums);
  if (first_bad_line == 0) first_bad_line = behind.first_bad_line;
}

Report Rows::Calculate(const Block& block, std::string& out) {
  Report report;
  std::string_view rest = block.rows;
  std::size_t line = block.first_line;
  while (!rest.empty()) {
    const std::size_t length = std::min(Length_Of_Row(rest, job_.Dialect().separator), rest.size());
    std::string_view row = rest.substr(0, length);
    rest.remove_prefix(length);
    const std::size_t first_line = line;
    line += static_cast<std::size_t>(std::count(row.begin(), row.end(), '\n'));
    if (row.ends_with('\n')) row.remove_suffix(1);
    if (row.ends_with('\r')) row.remove_suffix(1);
    if (!row.empty()) One_Row(row, first_line, report, out);
  }
  return report;
}

std::optional<Reason> Rows::Read(std::string_view row, Object& object) {
  if (!Is_Ascii(row) && !Is_Utf8(row)) return Reason{Reason::kNotUtf8, {}};
  if (Is_Left_Open(fields_.back())) return Reason{Reason::kQuoteLeftOpen, {}};
  return job_.Reader().Read(fields_, object);
}

void Rows::One_Row(std::string_view row, std::size_t line, Report& report, std::string& out) {
  Split_Row(row, job_.Dialect().separator, fields_);
  Object object;
  const auto reason = Read(row, object);
  if (reason) {
    Set_Reason(*reason, job_.Results().Columns().size(), results_);
    report.sums.Add_Without_Result();
  } else {
    job_.Results().Rows(object, results_, report.sums);
  }
  // A row of another number of fields is written with as many as the header has.
  const bool sound = !reason || !Is_Of_The_Row(reason->code);
  fields_.resize(job_.Names().size());
  for (const ResultRow& result : results_) {
    if (result.failed && report.first_bad_line == 0) report.first_bad_line = line;
    writer_.Row({row, fields_, sound}, result, out);
  }
}

}  // namespace norvane
