#include "shown_texts.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QFontMetricsF>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QStyle>
#include <QStyleOption>
#include <QTabBar>
#include <QTableView>

#include "desktop/chart_view.h"

namespace norvane {
namespace {

/// The margins that a line edit and a combo box keep free inside of the room that the style gives.
constexpr int kEditMargin = 2;
constexpr int kComboMargin = 1;

QSizeF Size_Of(const QString& text, const QWidget& widget, int flags = 0) {
  return QFontMetricsF(widget.font(), &widget).size(flags, text);
}

ShownText Of_Label(const QLabel& label) {
  const int margin = label.margin();
  QRect room = label.contentsRect().adjusted(margin, margin, -margin, -margin);
  const int letter = label.fontMetrics().horizontalAdvance('x');
  const int indent =
      label.indent() >= 0 || label.frameWidth() == 0 ? label.indent() : letter / 2 - margin;
  if (indent > 0 && label.alignment().testFlag(Qt::AlignRight)) room.adjust(0, 0, -indent, 0);
  if (indent > 0 && label.alignment().testFlag(Qt::AlignLeft)) room.adjust(indent, 0, 0, 0);
  // An "&" marks a mnemonic only where it leads somewhere.
  const int mnemonic = label.buddy() != nullptr ? Qt::TextShowMnemonic : 0;
  QSizeF needed = Size_Of(label.text(), label, mnemonic);
  if (label.wordWrap()) {
    const QRectF unlimited(0, 0, room.width(), QWIDGETSIZE_MAX);
    needed = QFontMetricsF(label.font(), &label)
                 .boundingRect(unlimited, mnemonic | Qt::TextWordWrap | Qt::AlignLeft, label.text())
                 .size();
  }
  return {&label, label.text(), needed, room};
}

ShownText Of_Button(const QAbstractButton& button) {
  QRect room = button.contentsRect();
  if (const auto* push = qobject_cast<const QPushButton*>(&button)) {
    QStyleOptionButton option;
    option.initFrom(push);
    option.text = push->text();
    option.icon = push->icon();
    option.iconSize = push->iconSize();
    if (push->isFlat()) option.features |= QStyleOptionButton::Flat;
    if (push->isDefault()) option.features |= QStyleOptionButton::DefaultButton;
    if (push->autoDefault()) option.features |= QStyleOptionButton::AutoDefaultButton;
    room = push->style()->subElementRect(QStyle::SE_PushButtonContents, &option, push);
  }
  constexpr int kBehindIcon = 4;
  if (!button.icon().isNull()) room.adjust(button.iconSize().width() + kBehindIcon, 0, 0, 0);
  return {&button, button.text(), Size_Of(button.text(), button, Qt::TextShowMnemonic), room};
}

ShownText Of_Edit(const QLineEdit& edit) {
  QStyleOptionFrame option;
  option.initFrom(&edit);
  option.lineWidth = edit.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, &edit);
  const QRect room = edit.style()
                         ->subElementRect(QStyle::SE_LineEditContents, &option, &edit)
                         .marginsRemoved(edit.textMargins())
                         .adjusted(kEditMargin, 0, -kEditMargin, 0);
  return {&edit, edit.text(), Size_Of(edit.text(), edit), room};
}

ShownText Of_Combo(const QComboBox& combo) {
  QStyleOptionComboBox option;
  option.initFrom(&combo);
  option.editable = combo.isEditable();
  option.frame = combo.hasFrame();
  option.subControls = QStyle::SC_All;
  const QRect room =
      combo.style()
          ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &combo)
          .adjusted(kComboMargin, 0, -kComboMargin, 0);
  ShownText shown{&combo, combo.currentText(), Size_Of(combo.currentText(), combo), room};
  for (int i = 0; i < combo.count(); ++i) {
    const QSizeF needed = Size_Of(combo.itemText(i), combo);
    if (needed.width() > shown.needed.width()) shown = {&combo, combo.itemText(i), needed, room};
  }
  return shown;
}

void Add_Tabs(const QTabBar& bar, std::vector<ShownText>& texts) {
  for (int i = 0; i < bar.count(); ++i) {
    QStyleOptionTab option;
    option.initFrom(&bar);
    option.rect = bar.tabRect(i);
    option.shape = bar.shape();
    option.text = bar.tabText(i);
    option.iconSize = bar.iconSize();
    if (i == bar.currentIndex()) option.state |= QStyle::State_Selected;
    // Where the tabs have no room they scroll: a tab in the part that is out of sight has none.
    const QRect room =
        bar.style()->subElementRect(QStyle::SE_TabBarTabText, &option, &bar) & bar.rect();
    texts.push_back(
        {&bar, bar.tabText(i), Size_Of(bar.tabText(i), bar, Qt::TextShowMnemonic), room});
  }
}

ShownText Of_Caption(const QHeaderView& header, int section, const QString& text) {
  QStyleOptionHeader option;
  option.initFrom(&header);
  option.text = text;
  option.orientation = header.orientation();
  option.rect = QRect(header.sectionViewportPosition(section), 0, header.sectionSize(section),
                      header.viewport()->height());
  const QRect room = header.style()->subElementRect(QStyle::SE_HeaderLabel, &option, &header);

  const QVariant alignment =
      header.model()->headerData(section, header.orientation(), Qt::TextAlignmentRole);
  const int flags = alignment.isValid() ? alignment.toInt() : int(header.defaultAlignment());
  // The captions of the columns that the selection touches are bold.
  QFont font = header.font();
  if (header.highlightSections()) font.setBold(true);
  const QRectF limits(0, 0, room.width(), QWIDGETSIZE_MAX);
  const QSizeF needed =
      QFontMetricsF(font, &header).boundingRect(limits, flags & Qt::TextWordWrap, text).size();
  return {header.viewport(), text, needed, room};
}

void Add_Captions(const QHeaderView& header, std::vector<ShownText>& texts) {
  if (!header.isVisible()) return;
  for (int i = 0; i < header.count(); ++i) {
    const QString text = header.model()->headerData(i, header.orientation()).toString();
    if (!header.isSectionHidden(i)) texts.push_back(Of_Caption(header, i, text));
  }
}

/// The cells of a list or table; what lies outside the viewport is reached by scrolling.
void Add_Cells(const QAbstractItemView& view, std::vector<ShownText>& texts) {
  const QAbstractItemModel& model = *view.model();
  const int margin = view.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &view) + 1;
  for (int row = 0; row < model.rowCount(); ++row) {
    for (int column = 0; column < model.columnCount(); ++column) {
      const QModelIndex cell = model.index(row, column);
      const QString text = cell.data().toString();
      if (text.isEmpty()) continue;
      const QRect room = view.visualRect(cell).adjusted(margin, 0, -margin, 0);
      texts.push_back({view.viewport(), text, Size_Of(text, view), room});
    }
  }
}

void Add_Texts_Of_Chart(const ChartView& chart, std::vector<ShownText>& texts) {
  // A text outside the chart has no room at all.
  const QRectF all(chart.rect());
  const ChartLayout layout = chart.Laid_Out();
  for (const ChartText& text : layout.Texts()) {
    const QRectF room = all.contains(text.room) ? text.room : QRectF();
    texts.push_back({&chart, text.text, Size_Of(text.text, chart), room.toAlignedRect()});
  }
}

void Add_Texts(const QWidget& widget, std::vector<ShownText>& texts) {
  if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
    texts.push_back(Of_Label(*label));
  } else if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
    texts.push_back(Of_Button(*button));
  } else if (const auto* edit = qobject_cast<const QLineEdit*>(&widget)) {
    texts.push_back(Of_Edit(*edit));
  } else if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) {
    texts.push_back(Of_Combo(*combo));
  } else if (const auto* bar = qobject_cast<const QTabBar*>(&widget)) {
    Add_Tabs(*bar, texts);
  } else if (const auto* table = qobject_cast<const QTableView*>(&widget)) {
    // One inside another shows cells of that once more, in their places.
    if (qobject_cast<const QTableView*>(table->parentWidget()) != nullptr) return;
    Add_Captions(*table->horizontalHeader(), texts);
    Add_Cells(*table, texts);
  } else if (const auto* list = qobject_cast<const QListWidget*>(&widget)) {
    Add_Cells(*list, texts);
  } else if (const auto* chart = qobject_cast<const ChartView*>(&widget)) {
    Add_Texts_Of_Chart(*chart, texts);
  }
}

}  // namespace

std::vector<ShownText> Shown_Texts(const QWidget& part) {
  std::vector<ShownText> texts;
  for (const QWidget* widget : part.findChildren<QWidget*>()) {
    if (widget->window() == part.window() && widget->isVisible()) Add_Texts(*widget, texts);
  }
  std::erase_if(texts, [](const ShownText& shown) { return shown.text.trimmed().isEmpty(); });
  return texts;
}

std::string Name_Of(const QWidget& widget) {
  // A viewport has a name that says nothing; the view around it is a field of the program.
  for (const QWidget* named = &widget; named != nullptr; named = named->parentWidget()) {
    const QString& name = named->objectName();
    if (!name.isEmpty() && !name.startsWith("qt_")) return name.toStdString();
    if (named->isWindow()) break;
  }
  return widget.metaObject()->className();
}

}  // namespace norvane
