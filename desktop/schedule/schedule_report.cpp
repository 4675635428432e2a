#include "desktop/schedule/schedule_report.h"

#include <vector>

#include "desktop/desktop.h"
#include "desktop/schedule/schedule_model.h"

namespace norvane {
namespace {

/// The columns to be reported.
std::vector<int> Used_Columns(const ScheduleModel& schedule) {
  std::vector<int> used;
  for (int column = 0; column < schedule.columnCount(); ++column) {
    for (int row = 0; row < schedule.rowCount(); ++row) {
      if (schedule.index(row, column).data().toString().isEmpty()) continue;
      used.push_back(column);
      break;
    }
  }
  return used;
}

/// A sum as its column shows it; empty for a column that isn't summed up.
QString Sum_Of(const Desktop& desktop, int result, const ScheduleSums& sums) {
  if (result < 0 || result >= static_cast<int>(kHeatLossColumns.size())) return {};
  const ResultColumn& column = kHeatLossColumns[static_cast<std::size_t>(result)];
  const auto text = [&](const ShownSum& sum) {
    return QString::fromStdString(sum.Text(column.decimals, desktop.Decimal_Separator()));
  };
  if (column.name == "gas_m3") return text(sums.gas);
  if (column.name == "oil_l") return text(sums.oil);
  return column.name == "electricity_kWh" ? text(sums.electricity) : QString();
}

}  // namespace

TableReport Report_Of(const Desktop& desktop, const QString& title, const ScheduleModel& schedule,
                      const ScheduleSums& sums) {
  TableReport report{title, {}, {}, {}};
  const std::vector<int> used = Used_Columns(schedule);
  for (const int column : used) {
    report.columns.append(
        {schedule.headerData(column, Qt::Horizontal).toString(), schedule.Holds_Words(column)});
    report.sums << Sum_Of(desktop, column - schedule.First_Result(), sums);
  }
  for (int row = 0; row < schedule.rowCount(); ++row) {
    QStringList& cells = report.rows.emplace_back();
    for (const int column : used) cells << schedule.index(row, column).data().toString();
  }
  if (!report.sums.isEmpty()) {
    report.sums.first() =
        QString("%1 (%2)").arg(desktop.Text(TextId::kTotal)).arg(sums.rows - sums.without_result);
  }
  return report;
}

}  // namespace norvane
