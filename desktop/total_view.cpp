#include "desktop/total_view.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/accessible.h"
#include "desktop/grid_binder.h"
#include "desktop/own_texts.h"
#include "desktop/row_table.h"
#include "desktop/tool_button.h"

namespace norvane {

TotalView::TotalView(Desktop& desktop, Total& total)
    : FormView(desktop, total), delete_(new QPushButton) {
  setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                 Qt::WindowSystemMenuHint | Qt::WindowMaximizeButtonHint |
                 Qt::WindowCloseButtonHint);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(8, 8, 8, 8);
  auto* tools = new QHBoxLayout;
  auto* to_excel = new ToolButton(ToolSign::kSpreadsheet);
  to_excel->setCheckable(false);
  // The workbook's name is the same in all languages.
  Tell(*to_excel, kTotalWorkbook);
  to_excel->setToolTip(kTotalWorkbook);
  tools->addWidget(to_excel);
  tools->addStretch();
  delete_->setAutoDefault(false);
  tools->addWidget(delete_);
  column->addLayout(tools);
  Bind<ButtonBinder>(total.Toolbar1, *to_excel);
  auto* table = new RowTable;
  column->addWidget(table, 1);
  Bind<GridBinder>(total.grdResult, *table);
  Close_By_Escape();
  connect(delete_, &QPushButton::clicked, table, &RowTable::Picked);
  auto* strip = new QWidget;
  auto* row = new QHBoxLayout(strip);
  row->setContentsMargins(4, 4, 4, 4);
  auto* sums = new QLabel;
  sums->setTextInteractionFlags(Qt::TextSelectableByMouse);
  row->addWidget(sums);
  column->addWidget(strip);
  Bind<PictureBinder>(total.picTotal, *strip);
  Bind<CaptionBinder>(total.Label1, *sums);
}

void TotalView::Arrange() { delete_->setText(Own_Text(desktop(), TextId::kDeleteMarkedLines)); }

}  // namespace norvane
