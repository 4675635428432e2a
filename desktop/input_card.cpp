#include "desktop/input_card.h"

#include <QLabel>

#include "desktop/accessible.h"
#include "desktop/columns.h"
#include "desktop/desktop.h"
#include "desktop/form_view.h"
#include "desktop/number_edit.h"
#include "desktop/number_label.h"
#include "desktop/spin_arrows.h"
#include "screen/warmt.h"

namespace norvane {
namespace {

constexpr int kRowGap = 6;
constexpr int kThickness = 2;      // of condensation it is a result
constexpr int kLengthHeading = 5;  // the index of Label1 and SpinButton1 in the last row

}  // namespace

InputCard::InputCard(FormView& view, Warmt& warmt)
    : view_(view), warmt_(warmt), picker_(view, warmt) {
  auto* grid = new QGridLayout(this);
  Lay_Out_Columns(*grid);
  grid->setVerticalSpacing(kRowGap);
  // From top to bottom of the screen; the index of a row isn't its place.
  int row = 0;
  for (const int index : {0, 1, 3, 2, 4}) Add_Row(*grid, row++, index);
  Add_Length_Row(*grid, row++);
  grid->setRowStretch(row, 1);
  // Room for the state with all rows; none of the eight moves what lies below.
  setFixedHeight(6 * (kRowHeight + kRowGap) + 38);
}

QLabel& InputCard::Add_Heading(QGridLayout& grid, int row, int index) {
  auto* heading = new QLabel;
  grid.addWidget(heading, row, kLetterColumn, 1, 2);
  view_.Bind<CaptionBinder>(warmt_.Label1(index), *heading);
  return *heading;
}

void InputCard::Add_Row(QGridLayout& grid, int row, int index) {
  QLabel& heading = Add_Heading(grid, row, index);
  SpinPair& pair = warmt_.SpinButton1(index);
  for (auto* F : {&warmt_.txtC, &warmt_.txtT}) {
    if (index > F->UBound()) continue;
    auto* edit = new NumberEdit;
    edit->setMinimumHeight(kRowHeight);
    grid.addWidget(edit, row, kNumberColumn);
    heading.setBuddy(edit);
    view_.Bind<TextBinder>((*F)(index), *edit, &pair);
    const bool heat_loss = F == &warmt_.txtT;
    if (heat_loss || index != kThickness) picker_.Offer(*edit, {index, heat_loss});
  }
  auto* arrows = new SpinArrows;
  grid.addWidget(arrows, row, kArrowsColumn);
  view_.Bind<SpinBinder>(pair, *arrows);

  auto* unit = new QLabel;
  grid.addWidget(unit, row, kUnitColumn);
  view_.Bind<CaptionBinder>(warmt_.Label7(index), *unit);
  if (index <= warmt_.Text2.UBound()) Add_Conversion(grid, row, index);
}

void InputCard::Add_Conversion(QGridLayout& grid, int row, int index) {
  auto* conversion = new NumberLabel(grid, row, kSecondNumberColumn);
  view_.Bind<NumberBinder>(warmt_.Text2(index), *conversion);
  auto* unit = new QLabel;
  grid.addWidget(unit, row, kSecondUnitColumn);
  view_.Bind<CaptionBinder>(warmt_.Label8(index), *unit);
}

void InputCard::Add_Length_Row(QGridLayout& grid, int row) {
  QLabel& heading = Add_Heading(grid, row, kLengthHeading);
  SpinPair& pair = warmt_.SpinButton1(kLengthHeading);
  auto* edit = new NumberEdit;
  edit->setMinimumHeight(kRowHeight);
  grid.addWidget(edit, row, kNumberColumn);
  heading.setBuddy(edit);
  view_.Bind<TextBinder>(warmt_.txtmtrs, *edit, &pair);
  picker_.Offer(*edit, {InputRow::kLength, true});
  auto* arrows = new SpinArrows;
  grid.addWidget(arrows, row, kArrowsColumn);
  view_.Bind<SpinBinder>(pair, *arrows);
}

void InputCard::Follow_Mode() {
  for (int index = 0; index <= warmt_.txtC.UBound(); ++index) {
    const bool heat_loss = index <= warmt_.txtT.UBound() && warmt_.txtT(index).Visible();
    QWidget* field = view_.Widget_Of(heat_loss ? warmt_.txtT(index) : warmt_.txtC(index));
    auto* heading = dynamic_cast<QLabel*>(view_.Widget_Of(warmt_.Label1(index)));
    if (heading->buddy() != field) heading->setBuddy(field);
  }
}

void InputCard::Name_Fields() {
  const auto text = [this](const CaptionField& field) {
    return view_.desktop().Text(field.Caption());
  };
  for (int index = 0; index <= kLengthHeading; ++index) {
    auto* arrows = dynamic_cast<SpinArrows*>(view_.Widget_Of(warmt_.SpinButton1(index)));
    arrows->Name_After(text(warmt_.Label1(index)));
  }
  for (int index = 0; index <= warmt_.txtC.UBound(); ++index) {
    const QString name = text(warmt_.Label1(index));
    const QString unit = text(warmt_.Label7(index));
    if (index <= warmt_.txtT.UBound()) Tell(*view_.Widget_Of(warmt_.txtT(index)), name, unit);
    Tell(*view_.Widget_Of(warmt_.txtC(index)), name, unit);
    if (index > warmt_.Text2.UBound()) continue;
    auto* conversion = dynamic_cast<QLabel*>(view_.Widget_Of(warmt_.Text2(index)));
    Tell(*conversion, name + ": " + conversion->text() + ' ' + text(warmt_.Label8(index)));
  }
  Tell(*view_.Widget_Of(warmt_.txtmtrs), text(warmt_.Label1(kLengthHeading)));
  picker_.Name_Arrows();
}

}  // namespace norvane
