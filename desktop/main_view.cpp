#include "desktop/main_view.h"

#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/card.h"
#include "desktop/colours.h"
#include "desktop/desktop.h"
#include "desktop/number_edit.h"
#include "desktop/object_picture.h"
#include "desktop/spin_arrows.h"
#include "desktop/tool_button.h"

namespace norvane {
namespace {

constexpr int kMargin = 14;
constexpr int kRowHeight = 27;
constexpr int kHeadingWidth = 300;
constexpr int kResultColumns = 5;  // letter, heading, percentage, value, unit
constexpr int kValueWidth = 92;
constexpr int kUnitWidth = 64;
constexpr int kConversionWidth = 62;
constexpr int kBandHeight = 26;

QLabel* Right_Aligned_Label() {
  auto* label = new QLabel;
  label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  return label;
}

}  // namespace

MainView::MainView(Desktop& desktop, Warmt& warmt) : FormView(desktop, warmt), warmt_(warmt) {
  auto* page = new QVBoxLayout(this);
  page->setContentsMargins(0, 6, 0, 0);
  page->setSpacing(10);
  page->addLayout(Make_Menu());
  page->addWidget(Make_Toolbar());
  auto* upper = new QHBoxLayout;
  upper->setContentsMargins(kMargin, 0, kMargin, 0);
  upper->setSpacing(kMargin);
  upper->addWidget(Make_Inputs(), 1);
  upper->addWidget(Make_Object());
  page->addLayout(upper);
  auto* lower = new QHBoxLayout;
  lower->setContentsMargins(kMargin, 0, kMargin, 0);
  lower->addWidget(Make_Results());
  page->addLayout(lower);
  page->addStretch();
  page->addWidget(Make_Foot());
  Make_Tooltip();
}

QLayout* MainView::Make_Menu() {
  auto* menu = new QHBoxLayout;
  menu->setContentsMargins(kMargin, 0, kMargin, 0);
  // The first menu label has neither text nor action.
  for (int entry = 1; entry <= 3; ++entry) {
    auto* button = new QPushButton;
    button->setFlat(true);
    menu->addWidget(button);
    Bind<CaptionButtonBinder>(warmt_.lblMenu(entry), *button);
  }
  menu->addStretch();
  auto* language = new QLabel;
  menu->addWidget(language);
  Bind<CaptionBinder>(warmt_.Label10, *language);
  return menu;
}

QWidget* MainView::Make_Toolbar() {
  auto* strip = new QFrame;
  strip->setFrameShape(QFrame::NoFrame);
  auto* row = new QHBoxLayout(strip);
  row->setContentsMargins(kMargin, 0, kMargin, 0);
  row->setSpacing(2);
  const auto gap = [row] { row->addSpacing(14); };
  Add_Tool(*row, warmt_.cmdToolBar0(0), ToolSign::kTotal);
  gap();
  Add_Tool(*row, warmt_.cmdToolBar1(0), ToolSign::kSteelPipe);
  Add_Tool(*row, warmt_.cmdToolBar1(1), ToolSign::kCopperTube);
  Add_Tool(*row, warmt_.cmdToolBar1(2), ToolSign::kMetricPipe);
  Add_Tool(*row, warmt_.cmdToolBar1(3), ToolSign::kSheet);
  gap();
  Add_Tool(*row, warmt_.cmdToolBarT, ToolSign::kHeatLoss);
  Add_Tool(*row, warmt_.cmdToolBarC, ToolSign::kCondensation);
  gap();
  Add_Tool(*row, warmt_.cmdToolBar3(0), ToolSign::kAlpha);
  gap();
  Add_Tool(*row, warmt_.cmdToolBar4(0), ToolSign::kNewLambda);
  Add_Tool(*row, warmt_.cmdToolBar4(1), ToolSign::kLambda038);
  Add_Tool(*row, warmt_.cmdToolBar4(2), ToolSign::kLambda040);
  gap();
  Add_Tool(*row, warmt_.cmdToolBar5(0), ToolSign::kSaving);
  row->addStretch();
  Bind<PictureBinder>(warmt_.picToolbar, *strip);
  return strip;
}

ToolButton& MainView::Add_Tool(QLayout& strip, Button& field, ToolSign sign) {
  auto* button = new ToolButton(sign);
  // Hidden buttons keep their place, so that the others don't move.
  QSizePolicy policy = button->sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  button->setSizePolicy(policy);
  strip.addWidget(button);
  Bind<ButtonBinder>(field, *button);
  tools_.emplace_back(&field, button);
  connect(button, &ToolButton::Reached, this, [this, button, &field] {
    reached_ = button;
    Play(UserAction::kHover, field);
  });
  return *button;
}

void MainView::Make_Tooltip() {
  tooltip_ = new QFrame(this);
  tooltip_->setFrameShape(QFrame::Box);
  tooltip_->setAutoFillBackground(true);
  tooltip_->setBackgroundRole(QPalette::ToolTipBase);
  auto* row = new QHBoxLayout(tooltip_);
  row->setContentsMargins(0, 0, 0, 0);
  auto* text = new QPushButton;
  text->setFlat(true);
  text->setFocusPolicy(Qt::NoFocus);
  row->addWidget(text);
  tooltip_->hide();
  Bind<PictureBinder>(warmt_.picToolTip, *tooltip_);
  Bind<CaptionButtonBinder>(warmt_.LblTooltip, *text);
}

QWidget* MainView::Make_Inputs() {
  auto* card = new Card;
  auto* grid = new QGridLayout(card);
  grid->setColumnStretch(0, 1);
  grid->setHorizontalSpacing(6);
  grid->setVerticalSpacing(6);
  // From top to bottom of the screen; the index of a row isn't its place.
  int row = 0;
  for (const int index : {0, 1, 3, 2, 4}) Add_Input_Row(*grid, row++, index);
  Add_Length_Row(*grid, row++);
  grid->setRowStretch(row, 1);
  // The tallest of the eight states has all rows; none of them moves what lies below.
  card->setFixedHeight(6 * (kRowHeight + 6) + 30);
  return card;
}

void MainView::Add_Input_Row(QGridLayout& grid, int row, int index) {
  auto* heading = new QLabel;
  grid.addWidget(heading, row, 0);
  Bind<CaptionBinder>(warmt_.Label1(index), *heading);

  SpinPair& pair = warmt_.SpinButton1(index);
  for (auto* F : {&warmt_.txtT, &warmt_.txtC}) {
    if (index > F->UBound()) continue;
    auto* edit = new NumberEdit;
    edit->setMinimumHeight(kRowHeight);
    grid.addWidget(edit, row, 1);
    Bind<TextBinder>((*F)(index), *edit, &pair);
  }
  auto* arrows = new SpinArrows;
  grid.addWidget(arrows, row, 2);
  Bind<SpinBinder>(pair, *arrows);

  auto* unit = new QLabel;
  grid.addWidget(unit, row, 3);
  Bind<CaptionBinder>(warmt_.Label7(index), *unit);

  if (index > warmt_.Text2.UBound()) return;
  auto* conversion = Right_Aligned_Label();
  conversion->setMargin(4);
  conversion->setMinimumWidth(kConversionWidth);
  grid.addWidget(conversion, row, 4);
  Bind<CaptionBinder>(warmt_.Text2(index), *conversion);
  auto* conversion_unit = new QLabel;
  conversion_unit->setMinimumWidth(kUnitWidth / 2);
  grid.addWidget(conversion_unit, row, 5);
  Bind<CaptionBinder>(warmt_.Label8(index), *conversion_unit);
}

void MainView::Add_Length_Row(QGridLayout& grid, int row) {
  auto* heading = new QLabel;
  grid.addWidget(heading, row, 0);
  Bind<CaptionBinder>(warmt_.Label1(5), *heading);
  auto* edit = new NumberEdit;
  edit->setMinimumHeight(kRowHeight);
  grid.addWidget(edit, row, 1);
  Bind<TextBinder>(warmt_.txtmtrs, *edit, &warmt_.SpinButton1(5));
  auto* arrows = new SpinArrows;
  grid.addWidget(arrows, row, 2);
  Bind<SpinBinder>(warmt_.SpinButton1(5), *arrows);
}

QWidget* MainView::Make_Object() {
  auto* card = new Card;
  auto* column = new QVBoxLayout(card);
  auto* kind = new QLabel;
  kind->setAlignment(Qt::AlignCenter);
  column->addWidget(kind);
  Bind<CaptionBinder>(warmt_.Label0, *kind);
  auto* picture = new ObjectPicture;
  column->addWidget(picture, 0, Qt::AlignCenter);
  Bind<PictureBinder>(warmt_.Picture2, *picture,
                      [picture](int number) { picture->Set_Number(number); });
  auto* products = new QComboBox;
  column->addWidget(products);
  Bind<ComboBinder>(warmt_.Combo1, *products);
  column->addStretch();

  auto* saving = new QHBoxLayout;
  auto* add = new QPushButton;
  saving->addWidget(add, 1);
  Bind<ButtonBinder>(warmt_.cmdAdd, *add);
  auto* total = new ToolButton(ToolSign::kTotal);
  total->setCheckable(false);
  saving->addWidget(total);
  Bind<PictureBinder>(warmt_.picTotal, *total);
  for (QWidget* widget : {static_cast<QWidget*>(add), static_cast<QWidget*>(total)}) {
    QSizePolicy policy = widget->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget->setSizePolicy(policy);
  }
  column->addLayout(saving);
  return card;
}

QWidget* MainView::Make_Results() {
  auto* card = new Card;
  auto* grid = new QGridLayout(card);
  // The columns stand still when rows come and go with the mode.
  grid->setColumnMinimumWidth(1, kHeadingWidth);
  grid->setColumnMinimumWidth(2, kValueWidth / 2);
  grid->setColumnMinimumWidth(3, kValueWidth);
  grid->setColumnMinimumWidth(4, kUnitWidth);
  grid->setColumnStretch(kResultColumns, 1);
  grid->setHorizontalSpacing(10);
  grid->setVerticalSpacing(0);
  for (const int row : {0, 1}) {
    auto* letter = new QLabel;
    grid->addWidget(letter, row, 0);
    Bind<CaptionBinder>(warmt_.Label2(row), *letter);
  }
  for (int row = 0; row <= 4; ++row) Add_Result_Row(*grid, row, row, row);

  constexpr int kLineRow = 5;
  constexpr int kHeadingRow = 6;
  auto* line = saving_line_ = new QFrame;
  line->setFrameShape(QFrame::HLine);
  line->setFrameShadow(QFrame::Plain);
  line->setForegroundRole(QPalette::Mid);
  grid->addWidget(line, kLineRow, 0, 1, kResultColumns + 1);
  auto* heading = new QLabel;
  heading->setMinimumHeight(kRowHeight);
  grid->addWidget(heading, kHeadingRow, 0, 1, kResultColumns + 1);
  Bind<CaptionBinder>(warmt_.Label6, *heading);

  // The saving has its percentage in a column of its own; from there on the values run one ahead.
  auto* percent = Right_Aligned_Label();
  grid->addWidget(percent, kHeadingRow + 1, 2);
  Bind<CaptionBinder>(warmt_.Label4(5), *percent);
  for (int row = 5; row <= 8; ++row) Add_Result_Row(*grid, kHeadingRow + row - 4, row, row + 1);
  grid->setRowStretch(kHeadingRow + 5, 1);
  card->setFixedHeight(10 * kRowHeight + 32);
  return card;
}

void MainView::Add_Result_Row(QGridLayout& grid, int row, int heading, int value) {
  auto* name = new QLabel;
  name->setMinimumHeight(kRowHeight);
  grid.addWidget(name, row, 1);
  Bind<CaptionBinder>(warmt_.Label3(heading), *name);
  auto* number = Right_Aligned_Label();
  number->setMargin(4);
  grid.addWidget(number, row, 3);
  Bind<CaptionBinder>(warmt_.Label4(value), *number);
  auto* unit = new QLabel;
  grid.addWidget(unit, row, 4);
  Bind<CaptionBinder>(warmt_.Label9(heading), *unit);
}

QWidget* MainView::Make_Foot() {
  auto* band = new QLabel;
  band->setFixedHeight(kBandHeight);
  Bind<CaptionBinder>(warmt_.Label5, *band);
  return band;
}

void MainView::showEvent(QShowEvent* event) {
  FormView::showEvent(event);
  if (focusWidget() == nullptr) Widget_Of(warmt_.txtT(0))->setFocus(Qt::OtherFocusReason);
}

void MainView::Arrange() {
  saving_line_->setVisible(warmt_.Label6.Visible());
  Name_Fields();
  if (warmt_.picToolTip.Visible()) Place_Tooltip();
}

void MainView::Place_Tooltip() {
  if (reached_ == nullptr) return;
  tooltip_->adjustSize();
  const QPoint under = reached_->mapTo(this, QPoint(10, reached_->height() - 5));
  tooltip_->move(std::max(0, std::min(under.x(), width() - tooltip_->width())), under.y());
  tooltip_->raise();
}

void MainView::Name_Fields() {
  const auto name = [this](const Field& field, const CaptionField& heading) {
    if (QWidget* widget = Widget_Of(field)) {
      widget->setAccessibleName(desktop().Text(heading.Caption()));
    }
  };
  for (int index = 0; index <= 4; ++index) {
    if (index <= warmt_.txtT.UBound()) name(warmt_.txtT(index), warmt_.Label1(index));
    name(warmt_.txtC(index), warmt_.Label1(index));
  }
  name(warmt_.txtmtrs, warmt_.Label1(5));
  name(warmt_.Combo1, warmt_.Label0);
  for (const auto& [field, button] : tools_) {
    const std::string& text = desktop().program().State().Text(field->tooltip_text);
    button->setAccessibleName(desktop().Text(text));
  }
}

}  // namespace norvane
