#include "desktop/dew_rows.h"

#include "desktop/columns.h"
#include "desktop/desktop.h"
#include "desktop/number_label.h"
#include "desktop/own_texts.h"
#include "desktop/wall_section.h"
#include "screen/answer.h"

namespace norvane {
namespace {

void Set_Text(QLabel& label, const QString& text) {
  if (label.text() != text) label.setText(text);
}

}  // namespace

void DewRows::Row::Show(const QString& name, const QString& number,
                        const QString& unit_text) const {
  Set_Text(*heading, name);
  if (value->text() != number) value->Show_Number(number);
  Set_Text(*unit, unit_text);
}

void DewRows::Row::Set_Visible(bool visible) const {
  for (QWidget* widget : {static_cast<QWidget*>(heading), static_cast<QWidget*>(value),
                          static_cast<QWidget*>(unit)}) {
    widget->setVisible(visible);
  }
}

DewRows::DewRows(QGridLayout& grid, int place) : section_(new WallSection) {
  for (Row& row : rows_) {
    row = {new QLabel, new NumberLabel(grid, place, kNumberColumn), new QLabel};
    row.heading->setMinimumHeight(kRowHeight);
    grid.addWidget(row.heading, place, kHeadingColumn);
    grid.addWidget(row.unit, place, kUnitColumn);
    row.Set_Visible(false);
    ++place;
  }
  rows_[0].value->setObjectName("dew_point");
  rows_[1].value->setObjectName("above_dew_point");
  grid.addWidget(section_, place, 0, 1, kSecondNumberColumn + 1);
  section_->hide();
}

void DewRows::Follow(Desktop& desktop, Warmt& warmt, const QFont& font) {
  const Module1& state = desktop.program().State();
  const auto told = Dew_Point_On_Screen(state, warmt);
  const QString celsius = desktop.Text(TextId::kCelsius);
  const auto number = [&](float degrees) {
    return QString::fromStdString(Format(degrees, "##0.0", state.Locale()));
  };
  for (const Row& row : rows_) {
    for (QLabel* label : {row.heading, static_cast<QLabel*>(row.value), row.unit}) {
      if (label->font() != font) label->setFont(font);
    }
  }
  if (told) {
    rows_[0].Show(Own_Text(desktop, TextId::kDewPoint), number(told->T_dew), celsius);
    if (told->surface_above) {
      rows_[1].Show(Own_Text(desktop, TextId::kAboveDewPoint), number(*told->surface_above),
                    celsius);
    }
    section_->setFont(font);
    section_->Set_Temperatures(*told, state.Locale(), celsius);
  }
  rows_[0].Set_Visible(told.has_value());
  rows_[1].Set_Visible(told && told->surface_above);
  section_->setVisible(told.has_value());
}

}  // namespace norvane
