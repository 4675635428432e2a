#include "desktop/settings_view.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QTabBar>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>

#include "desktop/accessible.h"
#include "desktop/card.h"
#include "desktop/desktop.h"
#include "desktop/number_edit.h"
#include "desktop/spin_arrows.h"
#include "screen/warmt.h"

namespace norvane {

SettingsView::SettingsView(Desktop& desktop, Settings& settings)
    : FormView(desktop, settings), settings_(settings) {
  setWindowFlags(Qt::Dialog);
  auto* column = new QVBoxLayout(this);
  auto* bar = new QTabBar;
  bar->setExpanding(false);
  column->addWidget(bar);
  Bind<TabsBinder>(settings.SSTab1, *bar);

  auto* page = new Card;
  page->setMinimumHeight(120);
  auto* grid = new QGridLayout(page);
  grid->setColumnStretch(3, 1);
  auto* expressed = new QLabel;
  grid->addWidget(expressed, 0, 0, 1, 3);
  Bind<CaptionBinder>(settings.Label7, *expressed);
  Add_Saving_Row(*grid, 1, settings.Label6(0), settings.Text2(0), settings.UpDown1_0);
  Add_Saving_Row(*grid, 2, settings.Label6(1), settings.Text2(1), settings.UpDown1_1);

  auto* lambda = new NumberEdit;
  grid->addWidget(lambda, 3, 0, 1, 2, Qt::AlignLeft);
  Bind<TextBinder>(settings.Text1, *lambda);

  auto* question = new QLabel;
  grid->addWidget(question, 4, 0, 1, 3);
  Bind<CaptionBinder>(settings.Label2, *question);
  auto* heading = new QLabel;
  grid->addWidget(heading, 5, 0);
  Bind<CaptionBinder>(settings.Label1(0), *heading);
  auto* alpha = new NumberEdit;
  grid->addWidget(alpha, 5, 1);
  Bind<TextBinder>(settings.Text3, *alpha);
  grid->setRowStretch(6, 1);
  column->addWidget(page, 1);

  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  for (Button* field : {&settings.Command1, &settings.Command2}) {
    auto* button = new QPushButton;
    // Enter presses the button that has the focus; elsewhere it is OK.
    button->setAutoDefault(true);
    buttons->addWidget(button);
    Bind<ButtonBinder>(*field, *button);
  }
  column->addLayout(buttons);
  const auto turn = [this](const QKeySequence& key, int by) {
    new QShortcut(key, this, [this, by] { Turn_Tabs(by); });
  };
  turn(Qt::CTRL | Qt::Key_Tab, 1);
  turn(Qt::CTRL | Qt::SHIFT | Qt::Key_Backtab, -1);
  turn(Qt::CTRL | Qt::Key_PageDown, 1);
  turn(Qt::CTRL | Qt::Key_PageUp, -1);
  Give_Letters({&settings.Label6(0), &settings.Label6(1), &settings.Command1, &settings.Command2});
}

void SettingsView::Turn_Tabs(int by) {
  const int tabs = settings_.SSTab1.Count();
  Send(UserAction::kPickTab, settings_.SSTab1, (settings_.SSTab1.Tab() + by + tabs) % tabs);
}

void SettingsView::Add_Saving_Row(QGridLayout& grid, int row, CaptionField& heading,
                                  TextField& field, Stepper& stepper) {
  auto* label = new QLabel;
  grid.addWidget(label, row, 0);
  Bind<CaptionBinder>(heading, *label);
  auto* edit = new NumberEdit;
  grid.addWidget(edit, row, 1);
  label->setBuddy(edit);
  Bind<TextBinder>(field, *edit, &stepper);
  const NumberSteps steps{static_cast<double>(stepper.Least()), static_cast<double>(stepper.Most()),
                          1};
  edit->Give_Steps([steps] { return steps; });
  connect(edit, &NumberEdit::Value_Asked_For, this, [this, steps, &field](double value) {
    Send_Text(field, QString::number(std::lround(std::clamp(value, steps.least, steps.most))));
  });
  auto* arrows = new SpinArrows;
  grid.addWidget(arrows, row, 2);
  Bind<SpinBinder>(stepper, *arrows);
}

void SettingsView::Arrange() {
  const auto name = [this](const Field& field, const std::string& caption) {
    Tell(*Widget_Of(field), desktop().Text(caption));
  };
  const auto name_stepped = [&](const TextField& field, const Stepper& stepper,
                                const CaptionField& heading) {
    name(field, heading.Caption());
    dynamic_cast<SpinArrows*>(Widget_Of(stepper))->Name_After(desktop().Text(heading.Caption()));
  };
  name_stepped(settings_.Text2(0), settings_.UpDown1_0, settings_.Label6(0));
  name_stepped(settings_.Text2(1), settings_.UpDown1_1, settings_.Label6(1));
  name(settings_.Text1, settings_.SSTab1.TabCaption(Settings::kLambdaTab));
  name(settings_.Text3, settings_.Label2.Caption());
}

QPoint SettingsView::Wished_Place(const QSize& size) const {
  // The form names no place: over the main screen, where the user looks.
  const QRect main_window = desktop().Main_Window_Frame();
  if (main_window.isEmpty()) return FormView::Wished_Place(size);
  QRect outside({}, size.grownBy(Frame()));
  outside.moveCenter(main_window.center());
  return outside.topLeft();
}

void SettingsView::showEvent(QShowEvent* event) {
  FormView::showEvent(event);
  // A number can be typed at once.
  for (const TextField* field : {&settings_.Text2(0), &settings_.Text1, &settings_.Text3}) {
    auto* edit = dynamic_cast<QLineEdit*>(Widget_Of(*field));
    if (!edit->isVisibleTo(this)) continue;
    edit->setFocus(Qt::OtherFocusReason);
    edit->selectAll();
  }
}

void SettingsView::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      Send(UserAction::kClick, settings_.Command1);
      return;
    case Qt::Key_Escape:
      Send(UserAction::kClick, settings_.Command2);
      return;
    default:
      FormView::keyPressEvent(event);
  }
}

}  // namespace norvane
