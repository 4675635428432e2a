#include "desktop/tool_strip.h"

#include <QHBoxLayout>
#include <QShortcut>
#include <algorithm>
#include <iterator>

#include "desktop/accessible.h"
#include "desktop/columns.h"
#include "desktop/desktop.h"
#include "desktop/form_view.h"
#include "desktop/kept_room.h"
#include "desktop/letters.h"
#include "desktop/tip_button.h"
#include "screen/choices.h"
#include "screen/warmt.h"

namespace norvane {
namespace {

/// The buttons are counted from the left, from 0: the digits, as they stand on a keyboard, and on.
QKeySequence Key_Of(std::size_t place) {
  constexpr Qt::Key kKeys[] = {Qt::Key_1, Qt::Key_2, Qt::Key_3,   Qt::Key_4,
                               Qt::Key_5, Qt::Key_6, Qt::Key_7,   Qt::Key_8,
                               Qt::Key_9, Qt::Key_0, Qt::Key_F11, Qt::Key_F12};
  return {Qt::CTRL | kKeys[place]};
}

}  // namespace

ToolStrip::ToolStrip(FormView& view, Warmt& warmt)
    : view_(view), warmt_(warmt), tooltip_(new QFrame(&view)) {
  setFrameShape(QFrame::NoFrame);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(kMargin, 0, kMargin, 0);
  row->setSpacing(2);
  Add_Group(*row, {{&warmt.cmdToolBar0(0), ToolSign::kTotal}});
  Add_Group(*row, {{&warmt.cmdToolBar1(0), ToolSign::kSteelPipe},
                   {&warmt.cmdToolBar1(1), ToolSign::kCopperTube},
                   {&warmt.cmdToolBar1(2), ToolSign::kMetricPipe},
                   {&warmt.cmdToolBar1(3), ToolSign::kSheet}});
  Add_Group(*row, {{&warmt.cmdToolBarT, ToolSign::kHeatLoss},
                   {&warmt.cmdToolBarC, ToolSign::kCondensation}});
  Add_Group(*row, {{&warmt.cmdToolBar3(0), ToolSign::kAlpha}});
  Add_Group(*row, {{&warmt.cmdToolBar4(0), ToolSign::kNewLambda},
                   {&warmt.cmdToolBar4(1), ToolSign::kLambda038},
                   {&warmt.cmdToolBar4(2), ToolSign::kLambda040}});
  Add_Group(*row, {{&warmt.cmdToolBar5(0), ToolSign::kSaving}});
  row->addStretch();
  view.Bind<PictureBinder>(warmt.picToolbar, *this);
  Make_Tooltip();
}

void ToolStrip::Add_Group(QBoxLayout& row, const std::vector<std::pair<Button*, ToolSign>>& group) {
  constexpr int kBetweenGroups = 14;
  if (row.count() > 0) row.addSpacing(kBetweenGroups);
  for (const auto& [field, sign] : group) Add_Button(row, *field, sign, group.size() > 1);
}

void ToolStrip::Add_Button(QBoxLayout& row, Button& field, ToolSign sign, bool choice) {
  auto* button = new ToolButton(sign);
  button->setCheckable(choice);
  Keep_Room(*button);
  row.addWidget(button);
  view_.Bind<ButtonBinder>(field, *button);
  const QKeySequence key = Key_Of(tools_.size());
  tools_.push_back({&field, button, key.toString(QKeySequence::NativeText)});
  connect(new QShortcut(key, this), &QShortcut::activated, this,
          [this, &field] { Press_By_Key(field); });
  connect(button, &ToolButton::Moved_Over, this, [this, button, &field] { Reach(*button, field); });
  connect(button, &ToolButton::Focus_Came, this, [this, button, &field] {
    Reach(*button, field);
    brought_by_focus_ = true;
  });
  connect(button, &ToolButton::Focus_Went, this, [this] {
    if (brought_by_focus_) view_.Send(UserAction::kHover);
  });
}

void ToolStrip::Press_By_Key(Button& field) {
  if (!field.Visible()) return;
  const QWidget* at = view_.focusWidget();
  const auto here = std::ranges::find_if(kInputRows, [&](const InputRow& row) {
    return view_.Widget_Of(Field_Of(warmt_, row)) == at;
  });
  view_.Send(UserAction::kClick, field);
  if (view_.form() == nullptr || here == std::end(kInputRows)) return;
  const auto there = std::ranges::find_if(kInputRows, [&](const InputRow& row) {
    return row.index == here->index && Field_Of(warmt_, row).Visible();
  });
  if (there == std::end(kInputRows)) return;
  view_.Widget_Of(Field_Of(warmt_, *there))->setFocus(Qt::ShortcutFocusReason);
}

void ToolStrip::Reach(ToolButton& button, Button& field) {
  reached_ = &button;
  brought_by_focus_ = false;
  view_.Send(UserAction::kHover, field);
}

void ToolStrip::Make_Tooltip() {
  tooltip_->setFrameShape(QFrame::Box);
  tooltip_->setAutoFillBackground(true);
  tooltip_->setBackgroundRole(QPalette::ToolTipBase);
  auto* row = new QHBoxLayout(tooltip_);
  row->setContentsMargins(0, 0, 0, 0);
  tip_ = new TipButton;
  tip_->setFlat(true);
  tip_->setFocusPolicy(Qt::NoFocus);
  row->addWidget(tip_);
  tooltip_->hide();
  view_.Bind<PictureBinder>(warmt_.picToolTip, *tooltip_);
  view_.Bind<CaptionButtonBinder>(warmt_.LblTooltip, *tip_);
}

void ToolStrip::Place_Tooltip() {
  if (reached_ == nullptr || !warmt_.picToolTip.Visible()) return;
  if (!tooltip_sized_) Size_Tooltip();
  tip_->Show_Key(std::ranges::find(tools_, reached_, &Tool::button)->key);
  // A language may have a wider font.
  if (tip_->sizeHint().width() > tip_->width()) tip_->setFixedWidth(tip_->sizeHint().width());
  const QPoint under = reached_->mapTo(&view_, QPoint(10, reached_->height() - 5));
  tooltip_->move(std::clamp(under.x(), 0, std::max(0, view_.width() - tooltip_->width())),
                 under.y());
  tooltip_->raise();
}

void ToolStrip::Size_Tooltip() {
  tooltip_sized_ = true;
  const QString shown = tip_->text();
  QSize longest;
  for (const Tool& tool : tools_) {
    tip_->Show_Key(tool.key);
    for (const QString& tip : view_.desktop().In_All_Languages(warmt_.Tooltip_Of(*tool.field))) {
      tip_->setText(With_Letter(tip, {}));
      longest = longest.expandedTo(tip_->sizeHint());
    }
  }
  tip_->setText(shown);
  tip_->setFixedSize(longest);
  tooltip_->adjustSize();
}

void ToolStrip::Name_Buttons() {
  for (const Tool& tool : tools_) {
    Tell(*tool.button, view_.desktop().Text(warmt_.Tooltip_Of(*tool.field)), tool.key);
  }
}

}  // namespace norvane
