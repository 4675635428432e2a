#include "desktop/address_view.h"

#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

#include "desktop/flat_button.h"

namespace norvane {

AddressView::AddressView(Desktop& desktop, Address& address) : BareView(desktop, address) {
  auto* page = new QGridLayout(this);
  page->setContentsMargins(12, 8, 10, 12);
  page->setColumnStretch(0, 1);
  auto* heading = new QLabel;
  page->addWidget(heading, 0, 0);
  Bind<CaptionBinder>(address.Label1, *heading);
  auto* exit = new CloseCross;
  page->addWidget(exit, 0, 1, Qt::AlignRight);
  Bind<PictureBinder>(address.imgExit, *exit);
  auto* list = new QListWidget;
  list->setSelectionMode(QAbstractItemView::NoSelection);
  page->addWidget(list, 1, 0, 1, 2);
  Bind<ListBinder>(address.List1, *list);
  auto* ok = new QPushButton;
  ok->setDefault(true);
  page->addWidget(ok, 2, 1, Qt::AlignRight);
  Bind<ButtonBinder>(address.OK, *ok);
}

}  // namespace norvane
