#include "desktop/tool_strip.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <algorithm>

#include "desktop/accessible.h"
#include "desktop/columns.h"
#include "desktop/desktop.h"
#include "desktop/form_view.h"
#include "desktop/kept_room.h"
#include "desktop/letters.h"
#include "screen/warmt.h"

namespace norvane {

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
  buttons_.emplace_back(&field, button);
  connect(button, &ToolButton::Moved_Over, this, [this, button, &field] { Reach(*button, field); });
  connect(button, &ToolButton::Focus_Came, this, [this, button, &field] {
    Reach(*button, field);
    brought_by_focus_ = true;
  });
  connect(button, &ToolButton::Focus_Went, this, [this] {
    if (brought_by_focus_) view_.Send(UserAction::kHover);
  });
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
  auto* text = new QPushButton;
  text->setFlat(true);
  text->setFocusPolicy(Qt::NoFocus);
  row->addWidget(text);
  tooltip_->hide();
  view_.Bind<PictureBinder>(warmt_.picToolTip, *tooltip_);
  view_.Bind<CaptionButtonBinder>(warmt_.LblTooltip, *text);
}

void ToolStrip::Place_Tooltip() {
  if (reached_ == nullptr || !warmt_.picToolTip.Visible()) return;
  if (!tooltip_sized_) Size_Tooltip();
  auto& text = *view_.Widget_Of(warmt_.LblTooltip);
  // A language may have a wider font.
  if (text.sizeHint().width() > text.width()) text.setFixedWidth(text.sizeHint().width());
  const QPoint under = reached_->mapTo(&view_, QPoint(10, reached_->height() - 5));
  tooltip_->move(std::clamp(under.x(), 0, std::max(0, view_.width() - tooltip_->width())),
                 under.y());
  tooltip_->raise();
}

void ToolStrip::Size_Tooltip() {
  tooltip_sized_ = true;
  auto& text = dynamic_cast<QAbstractButton&>(*view_.Widget_Of(warmt_.LblTooltip));
  const QString shown = text.text();
  QSize longest;
  for (const auto& [field, button] : buttons_) {
    for (const QString& tip : view_.desktop().In_All_Languages(warmt_.Tooltip_Of(*field))) {
      text.setText(With_Letter(tip, {}));
      longest = longest.expandedTo(text.sizeHint());
    }
  }
  text.setText(shown);
  text.setFixedSize(longest);
  tooltip_->adjustSize();
}

void ToolStrip::Name_Buttons() {
  for (const auto& [field, button] : buttons_) {
    Tell(*button, view_.desktop().Text(warmt_.Tooltip_Of(*field)));
  }
}

}  // namespace norvane
