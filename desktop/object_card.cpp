#include "desktop/object_card.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/accessible.h"
#include "desktop/columns.h"
#include "desktop/desktop.h"
#include "desktop/form_view.h"
#include "desktop/kept_room.h"
#include "desktop/object_picture.h"
#include "desktop/tool_button.h"
#include "screen/warmt.h"
#include "totals/calculation_list.h"

namespace norvane {

ObjectCard::ObjectCard(FormView& view, Warmt& warmt)
    : view_(view), warmt_(warmt), total_(new ToolButton(ToolSign::kTotal)) {
  auto* column = new QVBoxLayout(this);
  auto* kind = new QLabel;
  kind->setAlignment(Qt::AlignCenter);
  kind->setMinimumHeight(kRowHeight);
  column->addWidget(kind);
  view.Bind<CaptionBinder>(warmt.Label0, *kind);
  auto* picture = new ObjectPicture;
  column->addWidget(picture, 0, Qt::AlignCenter);
  view.Bind<PictureBinder>(warmt.Picture2, *picture,
                           [picture](int number) { picture->Set_Number(number); });
  auto* products = new QComboBox;
  products->setMinimumHeight(kRowHeight);
  column->addWidget(products);
  view.Bind<ComboBinder>(warmt.Combo1, *products);
  column->addStretch();

  auto* saving = new QHBoxLayout;
  auto* add = new QPushButton;
  saving->addWidget(add, 1);
  view.Bind<ButtonBinder>(warmt.cmdAdd, *add);
  total_->setCheckable(false);
  saving->addWidget(total_);
  view.Bind<PictureBinder>(warmt.picTotal, *total_);
  for (QWidget* widget : {static_cast<QWidget*>(add), static_cast<QWidget*>(total_)}) {
    widget->setMinimumHeight(total_->sizeHint().height());
    Keep_Room(*widget);
  }
  column->addLayout(saving);
}

void ObjectCard::Name_Fields() {
  const Module1& module1 = view_.desktop().program().State();
  const QString kind = view_.desktop().Text(warmt_.Label0.Caption());
  Tell(*view_.Widget_Of(warmt_.Combo1), view_.desktop().Text(module1.Text(TextId::kProductColumn)));
  // Which of the twenty pictures it is, as a number: no language has words for them.
  Tell(*view_.Widget_Of(warmt_.Picture2),
       QString("%1 %2").arg(kind).arg(warmt_.Picture2.Picture()));
  const QString show_totals = view_.desktop().Text(warmt_.Tooltip_Of(warmt_.cmdToolBar0(0)));
  const QString waiting = QString("%1: %2").arg(show_totals).arg(Count_Saved_Lines(module1));
  Tell(*total_, waiting);
  if (total_->toolTip() != waiting) total_->setToolTip(waiting);
}

}  // namespace norvane
