#include "desktop/main_view.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include "desktop/calculation_pages.h"
#include "desktop/chart_of_screen.h"
#include "desktop/columns.h"
#include "desktop/compare_window.h"
#include "desktop/desktop.h"
#include "desktop/input_card.h"
#include "desktop/object_card.h"
#include "desktop/own_commands.h"
#include "desktop/own_texts.h"
#include "desktop/report_window.h"
#include "desktop/result_card.h"
#include "desktop/schedule/schedule_window.h"
#include "desktop/tool_strip.h"
#include "report/calculation_report.h"

namespace norvane {

MainView::MainView(Desktop& desktop, Warmt& warmt)
    : FormView(desktop, warmt),
      warmt_(warmt),
      tools_(new ToolStrip(*this, warmt)),
      inputs_(new InputCard(*this, warmt)),
      results_(new ResultCard(*this, warmt)),
      object_(new ObjectCard(*this, warmt)),
      commands_(new OwnCommands(desktop)) {
  auto* page = new QVBoxLayout(this);
  page->setContentsMargins(0, 6, 0, 0);
  page->setSpacing(10);
  page->addLayout(Make_Menu());
  page->addWidget(tools_);
  page->addLayout(Make_Cards(), 1);
  page->addWidget(Make_Foot());

  std::vector<const Field*> lettered;
  for (int entry = 1; entry <= 3; ++entry) lettered.push_back(&warmt.lblMenu(entry));
  for (CaptionField& heading : warmt.Label1) lettered.push_back(&heading);
  lettered.push_back(&warmt.cmdAdd);
  Give_Letters(lettered);
  commands_->Add(TextId::kCompare, QKeySequence("Ctrl+T"), [this] { Compare(); });
  commands_->Add(TextId::kReport, QKeySequence("Ctrl+P"), [this] { Report(); });
  commands_->Add(TextId::kSchedule, Qt::CTRL | Qt::Key_L, [this] { Show_Schedule(); });
  desktop.Ask_Before_Leaving(
      [this] { return schedule_ == nullptr || schedule_->Let_Go_Of_Changes(); });
}

MainView::~MainView() { desktop().Ask_Before_Leaving({}); }

void MainView::Show_Schedule() {
  if (schedule_ == nullptr) {
    schedule_ = std::make_unique<ScheduleWindow>(desktop(), desktop().Folder());
  }
  schedule_->Come_Forward();
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

QLayout* MainView::Make_Cards() {
  auto* cards = new QGridLayout;
  cards->setContentsMargins(kMargin, 0, kMargin, 0);
  cards->setSpacing(10);
  cards->addWidget(inputs_, 0, 0);
  cards->addWidget(object_, 0, 1);
  cards->addWidget(results_, 1, 0, 1, 2);
  cards->setColumnStretch(0, 1);
  cards->setRowStretch(1, 1);
  return cards;
}

QWidget* MainView::Make_Foot() {
  constexpr int kBandHeight = 26;
  auto* band = new QLabel;
  band->setFixedHeight(kBandHeight);
  auto* row = new QHBoxLayout(band);
  row->setContentsMargins(kMargin, 0, kMargin, 0);
  row->addWidget(commands_);
  Bind<CaptionBinder>(warmt_.Label5, *band);
  return band;
}

void MainView::showEvent(QShowEvent* event) {
  FormView::showEvent(event);
  if (focusWidget() == nullptr) Widget_Of(warmt_.txtT(0))->setFocus(Qt::OtherFocusReason);
}

void MainView::hideEvent(QHideEvent* event) {
  FormView::hideEvent(event);
  if (form() != nullptr) return;
  if (compare_ != nullptr) compare_->hide();
  if (report_ != nullptr) report_->hide();
}

void MainView::Compare() {
  if (compare_ == nullptr) compare_ = new CompareWindow(*this, warmt_);
  compare_->Open();
}

void MainView::Report() {
  if (report_ == nullptr) {
    report_ = new ReportWindow(*this, desktop(), QPageLayout::Portrait,
                               [this](const ReportFrame& frame) { return Pages(frame); });
  }
  report_->Open();
}

std::unique_ptr<ReportPages> MainView::Pages(const ReportFrame& frame) {
  if (form() == nullptr) return nullptr;
  const auto wording = [this](TextId id) { return Own_Text(desktop(), id).toStdString(); };
  return std::make_unique<CalculationPages>(desktop(),
                                            Report_Of(desktop().program().State(), warmt_, wording),
                                            Chart_Of_Screen(desktop(), warmt_), frame);
}

void MainView::Arrange() {
  inputs_->Follow_Mode();
  results_->Follow_Mode();
  tools_->Place_Tooltip();
  inputs_->Name_Fields();
  object_->Name_Fields();
  tools_->Name_Buttons();
  commands_->Follow_Language();
  if (compare_ != nullptr) compare_->Follow();
  if (schedule_ != nullptr) schedule_->Follow_Language();
  if (report_ != nullptr) report_->Follow();
  const Button& mode = warmt_.Calc_Mode == "T" ? warmt_.cmdToolBarT : warmt_.cmdToolBarC;
  results_->Name_Values(desktop().Text(warmt_.Tooltip_Of(mode)));
}

}  // namespace norvane
