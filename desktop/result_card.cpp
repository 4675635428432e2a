#include "desktop/result_card.h"

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QPainter>
#include <algorithm>

#include "desktop/accessible.h"
#include "desktop/answer_line.h"
#include "desktop/colours.h"
#include "desktop/columns.h"
#include "desktop/desktop.h"
#include "desktop/dew_rows.h"
#include "desktop/form_view.h"
#include "desktop/number_label.h"
#include "desktop/screen_chart.h"
#include "desktop/spoken/announcement.h"
#include "screen/warmt.h"

namespace norvane {
namespace {

constexpr int kSurfaceRow = 2;
constexpr int kInsulatedRow = 4;
constexpr int kThickness = 2;  // among the fields of condensation
constexpr int kSavingRow = 5;  // the first of the savings, which has a percentage too
constexpr int kLastRow = 8;
constexpr int kChartColumn = kSecondUnitColumn + 1;

}  // namespace

ResultCard::ResultCard(FormView& view, Warmt& warmt)
    : view_(view), warmt_(warmt), answer_(new AnswerLine), chart_(new ScreenChart(view, warmt)) {
  setFocusPolicy(Qt::StrongFocus);
  auto* grid = new QGridLayout(this);
  Lay_Out_Columns(*grid);
  grid->setVerticalSpacing(0);
  int place = 0;
  grid->addWidget(answer_, place++, 0, 1, kSecondNumberColumn + 1);
  Add_Letters(*grid, place);
  for (int row = 0; row < kSavingRow; ++row) Add_Row(*grid, place++, row, row);
  Add_Savings_Heading(*grid, place);
  place += 2;
  // From the savings on the values run one ahead of the headings.
  for (int row = kSavingRow; row <= kLastRow; ++row) Add_Row(*grid, place++, row, row + 1);
  dew_point_ = std::make_unique<DewRows>(*grid, place);
  place += DewRows::kRows;
  grid->setRowStretch(place - 1, 1);
  announcement_ = new Announcement(this);
  Add_Chart(*grid, place);
  setMinimumHeight(AnswerLine::kHeight + (kLastRow + 2) * kRowHeight + 30);
}

void ResultCard::Add_Chart(QGridLayout& grid, int rows) {
  // No result has a second unit, so the chart begins where that would stand.
  grid.setColumnMinimumWidth(kSecondUnitColumn, 0);
  grid.setColumnStretch(kSecondUnitColumn, 0);
  grid.setColumnStretch(kChartColumn, 1);
  constexpr int kAround = 12;
  chart_->setContentsMargins(kAround, 4, 0, 4);
  grid.addWidget(chart_, 0, kChartColumn, rows, 1);
}

void ResultCard::Add_Letters(QGridLayout& grid, int place) {
  for (const int row : {0, 1}) {
    auto* letter = new QLabel;
    grid.addWidget(letter, place + row, kLetterColumn);
    view_.Bind<SymbolBinder>(warmt_.Label2(row), *letter);
  }
}

QLabel* ResultCard::Add_Label(QGridLayout& grid, int place, int column, CaptionField& field) {
  auto* label = new QLabel;
  grid.addWidget(label, place, column);
  view_.Bind<CaptionBinder>(field, *label);
  return label;
}

QLabel* ResultCard::Add_Number(QGridLayout& grid, int place, CardColumn column,
                               CaptionField& field) {
  auto* number = new NumberLabel(grid, place, column);
  view_.Bind<NumberBinder>(field, *number);
  return number;
}

void ResultCard::Add_Row(QGridLayout& grid, int place, int heading, int value) {
  Row row{};
  row.heading = Add_Label(grid, place, kHeadingColumn, warmt_.Label3(heading));
  row.heading->setMinimumHeight(kRowHeight);
  row.value = Add_Number(grid, place, kNumberColumn, warmt_.Label4(value));
  row.unit = Add_Label(grid, place, kUnitColumn, warmt_.Label9(heading));
  if (heading == kSavingRow) {
    row.percent = Add_Number(grid, place, kSecondNumberColumn, warmt_.Label4(kSavingRow));
  }
  rows_.push_back(row);
}

void ResultCard::Add_Savings_Heading(QGridLayout& grid, int place) {
  line_ = new CardRule;
  line_->setFixedHeight(1);
  grid.addWidget(line_, place, 0, 1, kSecondUnitColumn + 1);
  savings_heading_ = new QLabel;
  savings_heading_->setMinimumHeight(kRowHeight);
  grid.addWidget(savings_heading_, place + 1, 0, 1, kSecondUnitColumn + 1);
  view_.Bind<CaptionBinder>(warmt_.Label6, *savings_heading_);
}

void ResultCard::Follow_Mode() {
  line_->setVisible(warmt_.Label6.Visible());
  const QFont& font = rows_.front().heading->font();
  answer_->Follow(view_.desktop(), warmt_, font);
  dew_point_->Follow(view_.desktop(), warmt_, font);
  chart_->Follow();
}

ResultCard::~ResultCard() = default;

void ResultCard::Name_Values(const QString& mode) {
  for (const Row& row : rows_) {
    const QString told = row.value->text() + ' ' + row.unit->text();
    Tell(*row.value, row.heading->text() + ": " + told);
    if (row.percent != nullptr) {
      Tell(*row.percent, row.heading->text() + ": " + row.percent->text());
    }
  }
  Tell(*this, mode, As_Text());
  announcement_->Say(Main_Result());
}

QString ResultCard::Main_Result() const {
  if (rows_[kSurfaceRow].value->text().isEmpty()) return {};  // nothing to calculate
  if (warmt_.Calc_Mode == "T") return rows_[kInsulatedRow].value->accessibleName();
  const auto text = [this](const std::string& bytes) { return view_.desktop().Text(bytes); };
  return text(warmt_.Label1(kThickness).Caption()) + ": " + text(warmt_.txtC(kThickness).Text()) +
         ' ' + text(warmt_.Label7(kThickness).Caption());
}

QString ResultCard::As_Text() const {
  const auto widest = [this](QLabel* Row::*part) {
    qsizetype width = 0;
    for (const Row& row : rows_) {
      if (row.heading->isVisibleTo(this)) width = std::max(width, (row.*part)->text().size());
    }
    return width;
  };
  const qsizetype headings = widest(&Row::heading);
  const qsizetype values = widest(&Row::value);
  const qsizetype units = widest(&Row::unit);
  QStringList lines;
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    const Row& row = rows_[i];
    if (!row.heading->isVisibleTo(this)) continue;
    if (i == kSavingRow) lines << savings_heading_->text();
    QString line = row.heading->text().leftJustified(headings) + "  " +
                   row.value->text().rightJustified(values) + ' ' + row.unit->text();
    if (row.percent != nullptr) {
      line += QString(units - row.unit->text().size() + 2, ' ') + row.percent->text();
    }
    lines << line;
  }
  return lines.join('\n') + '\n';
}

void ResultCard::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Copy)) {
    QApplication::clipboard()->setText(As_Text());
  } else {
    Card::keyPressEvent(event);
  }
}

void ResultCard::paintEvent(QPaintEvent* event) {
  Card::paintEvent(event);
  if (!hasFocus()) return;
  constexpr qreal kRadius = 5;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(kAccent, 2));
  painter.drawRoundedRect(QRectF(rect()).adjusted(2, 2, -2, -2), kRadius, kRadius);
}

}  // namespace norvane
