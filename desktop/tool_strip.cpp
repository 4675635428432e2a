#include "desktop/tool_strip.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <algorithm>

#include "desktop/accessible.h"
#include "desktop/columns.h"
#include "desktop/desktop.h"
#include "desktop/form_view.h"
#include "desktop/kept_room.h"
#include "screen/warmt.h"

namespace norvane {

ToolStrip::ToolStrip(FormView& view, Warmt& warmt)
    : view_(view), warmt_(warmt), tooltip_(new QFrame(&view)) {
  setFrameShape(QFrame::NoFrame);
  setMouseTracking(true);
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
  for (const auto& [field, sign] : group) Add_Button(row, *field, sign);
}

void ToolStrip::Add_Button(QBoxLayout& row, Button& field, ToolSign sign) {
  auto* button = new ToolButton(sign);
  Keep_Room(*button);
  row.addWidget(button);
  view_.Bind<ButtonBinder>(field, *button);
  buttons_.emplace_back(&field, button);
  connect(button, &ToolButton::Reached, this, [this, button, &field] {
    reached_ = button;
    view_.Play(UserAction::kHover, field);
  });
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
  tooltip_->adjustSize();
  const QPoint under = reached_->mapTo(&view_, QPoint(10, reached_->height() - 5));
  tooltip_->move(std::clamp(under.x(), 0, std::max(0, view_.width() - tooltip_->width())),
                 under.y());
  tooltip_->raise();
}

void ToolStrip::Name_Buttons() {
  for (const auto& [field, button] : buttons_) {
    const std::string& text = view_.desktop().program().State().Text(field->tooltip_text);
    Tell(*button, view_.desktop().Text(text));
  }
}

}  // namespace norvane
