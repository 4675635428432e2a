#include "desktop/schedule/schedule_texts.h"

#include <QStringList>
#include <array>

#include "calc/conversions.h"
#include "desktop/desktop.h"
#include "desktop/own_texts.h"
#include "frame/text_id.h"

namespace norvane {
namespace {

/// A heading and its unit, in that language or as a sign that all languages share.
struct Heading {
  std::string_view column;
  TextId text;
  TextId unit = TextId::kLanguageName;  // for none
  const char* sign = "";
};

constexpr std::array<Heading, 12> kHeadings = {{
    {"name", TextId::kName},
    {"kind", TextId::kObjectColumn},
    {"medium_C", TextId::kMediumTemperature, TextId::kCelsius},
    {"ambient_C", TextId::kAmbientTemperature, TextId::kCelsius},
    {"thickness_mm", TextId::kInsulationThickness, TextId::kMillimetre},
    {"diameter_mm", TextId::kPipeDiameter, TextId::kMillimetre},
    {"lambda_W_mK", TextId::kLambdaColumn, TextId::kConductivityUnit},
    {"alpha_W_m2K", TextId::kAlphaColumn, TextId::kTransferUnit},
    {"length_m", TextId::kNumberOfMetres, TextId::kLanguageName, "m"},
    {"area_m2", TextId::kSheet, TextId::kLanguageName, "m\xC2\xB2"},
    {"hours_per_day", TextId::kHoursPerDay},
    {"days", TextId::kNumberOfDays},
}};

constexpr const char* kFlow = "W/m, W/m\xC2\xB2";

constexpr std::array<Heading, kHeatLossColumns.size()> kResultHeadings = {{
    {"lambda_mean_W_mK", TextId::kConductivity, TextId::kConductivityUnit},
    {"alpha_used_W_m2K", TextId::kTransferCoefficient, TextId::kTransferUnit},
    {"surface_C", TextId::kSurfaceTemperature, TextId::kCelsius},
    {"bare_W_per_m_or_m2", TextId::kBareHeatFlow, TextId::kLanguageName, kFlow},
    {"insulated_W_per_m_or_m2", TextId::kInsulatedHeatFlow, TextId::kLanguageName, kFlow},
    {"saving_percent", TextId::kSaving, TextId::kLanguageName, "%"},
    {"saving_W_per_m_or_m2", TextId::kSaving, TextId::kLanguageName, kFlow},
    {"gas_m3", TextId::kGasSaving, TextId::kGasUnit},
    {"oil_l", TextId::kOilSaving, TextId::kOilUnit},
    {"electricity_kWh", TextId::kElectricitySaving, TextId::kElectricityUnit},
}};

QString Words_Of(const Desktop& desktop, const Heading& heading, QChar between) {
  QString words = Own_Text(desktop, heading.text);
  const QString unit = heading.unit == TextId::kLanguageName ? QString::fromUtf8(heading.sign)
                                                             : desktop.Text(heading.unit);
  if (!unit.isEmpty()) words += between + unit;
  return words;
}

QString Words_Of(const Desktop& desktop, std::string_view column, QChar between) {
  for (const Heading& heading : kHeadings) {
    if (heading.column == column) return Words_Of(desktop, heading, between);
  }
  return QString::fromUtf8(column.data(), static_cast<qsizetype>(column.size()));
}

QString Words_Of(const Desktop& desktop, const Reason& reason) {
  const QString heading = Words_Of(desktop, reason.column, ' ');
  const auto limit = [&] {
    const Locale locale{desktop.Decimal_Separator()};
    return QString::fromStdString(Text_Of_Single(static_cast<float>(reason.limit), locale));
  };
  switch (reason.code) {
    case Reason::kMissing:
      return heading + ": \u2013";
    case Reason::kNoNumber:
    case Reason::kUnknownKind:
      return heading + ": ?";
    case Reason::kTooSmall:
      return heading + " < " + limit();
    case Reason::kTooLarge:
      return heading + " > " + limit();
    case Reason::kBeyondRange:
      return QStringLiteral("\u221E");
    case Reason::kNoDewPoint:
    case Reason::kFieldCount:
    case Reason::kNotUtf8:
    case Reason::kQuoteLeftOpen:
      break;
  }
  // About the bytes of the file, in the words that `norvane-batch` has for them.
  return QString::fromStdString(Words(reason));
}

}  // namespace

QString Heading_Of(const Desktop& desktop, const Column& column) {
  return Words_Of(desktop, column.name, '\n');
}

QString Heading_Of_Result(const Desktop& desktop, std::size_t place) {
  return Words_Of(desktop, kResultHeadings[place], '\n');
}

QString Remark_Heading(const Desktop& desktop) { return Own_Text(desktop, TextId::kRemark); }

QString Kind_Word(const Desktop& desktop, std::int16_t kind) {
  return desktop.Text(Kind_Name_Text(kind));
}

QString Remark_On(const Desktop& desktop, const ScheduleRow& row) {
  if (const auto* reason = std::get_if<Reason>(&row)) return Words_Of(desktop, *reason);
  if (std::get<ShownHeatLoss>(row).saves) return {};
  return Own_Text(desktop, TextId::kNoSaving);
}

QString Words_For(const Desktop& desktop, const ScheduleSums& sums) {
  constexpr int kDecimals = 2;
  const char sign = desktop.Decimal_Separator();
  const auto sum = [&](TextId heading, const ShownSum& of) {
    return desktop.Text(heading) + ' ' + QString::fromStdString(of.Text(kDecimals, sign));
  };
  const QStringList parts{
      QString("%1 (%2)").arg(desktop.Text(TextId::kTotal)).arg(sums.rows - sums.without_result),
      sum(TextId::kGasSum, sums.gas), sum(TextId::kOilSum, sums.oil),
      sum(TextId::kElectricitySum, sums.electricity)};
  return parts.join("    ");
}

}  // namespace norvane
