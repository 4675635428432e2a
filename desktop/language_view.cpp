#include "desktop/language_view.h"

#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/background.h"
#include "desktop/colours.h"
#include "desktop/flat_button.h"
#include "desktop/kept_room.h"

namespace norvane {
namespace {

constexpr int kEntryHeight = 27;
constexpr int kNameWidth = 104;

/// The mark beside a language. It is drawn, since not every font has such a sign.
class TickMark : public QWidget {
 public:
  QSize sizeHint() const override { return {kSize, kSize}; }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().color(QPalette::WindowText), 1.8, Qt::SolidLine, Qt::RoundCap,
                        Qt::RoundJoin));
    painter.translate((width() - kSize) / 2.0, (height() - kSize) / 2.0);
    painter.drawPolyline(QPolygonF{QPointF(2, 6.5), QPointF(5, 9.5), QPointF(10, 2.5)});
  }

 private:
  static constexpr int kSize = 12;
};

}  // namespace

LanguageView::LanguageView(Desktop& desktop, Lang& lang) : BareView(desktop, lang) {
  auto* page = new QVBoxLayout(this);
  page->setContentsMargins(18, 8, 10, 18);
  page->addWidget(Make_List(lang));
  page->addStretch();
  auto* ok = new QPushButton;
  ok->setDefault(true);
  page->addWidget(ok, 0, Qt::AlignRight);
  Bind<ButtonBinder>(lang.OK, *ok);
}

QWidget* LanguageView::Make_List(Lang& lang) {
  auto* list = new QWidget;
  // The ground is light under every theme of the desktop.
  list->setPalette(QPalette(kGround));
  auto* rows = new QGridLayout(list);
  rows->setContentsMargins(0, 0, 0, 0);
  auto* heading = new QLabel;
  rows->addWidget(heading, 0, 0);
  Bind<CaptionBinder>(lang.Label1, *heading);
  auto* exit = new CloseCross;
  rows->addWidget(exit, 0, 1, Qt::AlignRight);
  Bind<PictureBinder>(lang.imgExit, *exit);
  auto* entries = new QGridLayout;
  for (int i = 0; i <= lang.Label2.UBound() && !lang.Label2(i).out_of_reach; ++i) {
    entries->addWidget(Make_Entry(lang, i), i / 2, i % 2);
  }
  rows->addLayout(entries, 1, 0, 1, 2);
  return list;
}

QWidget* LanguageView::Make_Entry(Lang& lang, int index) {
  auto* entry = new QWidget;
  entry->setFixedHeight(kEntryHeight);
  auto* row = new QHBoxLayout(entry);
  row->setContentsMargins(0, 0, 0, 0);
  auto* mark = new TickMark;
  Keep_Room(*mark);
  row->addWidget(mark);
  Bind<PictureBinder>(lang.imgCheck(index), *mark);
  auto* name = new TextButton;
  name->setAutoDefault(true);
  name->setMinimumWidth(kNameWidth);
  row->addWidget(name);
  Bind<CaptionButtonBinder>(lang.Label2(index), *name);
  if (index <= lang.Label3.UBound()) {
    auto* version = new QLabel;
    row->addWidget(version);
    Bind<CaptionBinder>(lang.Label3(index), *version);
  }
  row->addStretch();
  return entry;
}

void LanguageView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  constexpr qreal kBehindNames = 0.12;
  Draw_Background(painter, size(), kBehindNames);
}

}  // namespace norvane
