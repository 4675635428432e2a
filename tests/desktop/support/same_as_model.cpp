#include "same_as_model.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QTabBar>
#include <QTableView>
#include <optional>

#include "desktop/desktop.h"
#include "desktop/form_view.h"
#include "host/code_page.h"
#include "screen/model/grid.h"

namespace norvane {
namespace {

std::string Name_Of(const Field& field) {
  return field.Index() == Field::kNoIndex
             ? field.Name()
             : field.Name() + "(" + std::to_string(field.Index()) + ")";
}

/// One window and its form.
class Comparison {
 public:
  explicit Comparison(const FormView& view) : view_(view), form_(*view.form()) {}

  void Compare(const Field& field) const;

 private:
  std::string Decoded(const Field& field, const std::string& bytes) const;
  bool Has_Content(const Field& field) const;

  void Compare_Visibility(const Field& field, const QWidget& widget) const;
  void Compare_Font(const Field& field, const QWidget& widget) const;
  void Compare_Text(const TextField& field, const QWidget& widget) const;
  void Compare_Caption(const CaptionField& field, const QWidget& widget) const;
  void Compare_Button(const Button& field, const QWidget& widget) const;
  void Compare_List(const ListField& field, const QWidget& widget) const;
  void Compare_Tabs(const Tabs& field, const QWidget& widget) const;
  void Compare_Grid(const Grid& field, const QWidget& widget) const;

  const FormView& view_;
  const Form& form_;
};

std::string Comparison::Decoded(const Field& field, const std::string& bytes) const {
  return To_Utf8(bytes, view_.desktop().program().State().Text_Charset(field));
}

QColor Colour(const BackColor& color) { return {color.red, color.green, color.blue}; }

bool Comparison::Has_Content(const Field& field) const {
  const auto* caption = dynamic_cast<const CaptionField*>(&field);
  if (caption == nullptr) return true;
  return caption->BackStyle() == BackStyle::kOpaque || !caption->Caption().empty();
}

void Comparison::Compare_Visibility(const Field& field, const QWidget& widget) const {
  if (!form_.Shows(field)) {
    EXPECT_FALSE(widget.isVisibleTo(&view_));
  } else if (Has_Content(field)) {
    EXPECT_TRUE(widget.isVisibleTo(&view_));
  }
}

void Comparison::Compare_Font(const Field& field, const QWidget& widget) const {
  EXPECT_EQ(widget.font().bold(), field.Font().bold);
  EXPECT_EQ(widget.font().family().toStdString(), field.Font().name);
  EXPECT_DOUBLE_EQ(widget.font().pointSizeF(), field.Font().size);
}

void Comparison::Compare_Text(const TextField& field, const QWidget& widget) const {
  const auto& edit = dynamic_cast<const QLineEdit&>(widget);
  EXPECT_EQ(edit.text().toStdString(), Decoded(field, field.Text()));
  EXPECT_EQ(edit.isReadOnly(), field.Locked());
  EXPECT_EQ(edit.palette().color(QPalette::Base), field.BackColor().system
                                                      ? QPalette().color(QPalette::Base)
                                                      : Colour(field.BackColor()));
  Compare_Font(field, widget);
}

void Comparison::Compare_Caption(const CaptionField& field, const QWidget& widget) const {
  if (const auto* button = dynamic_cast<const QAbstractButton*>(&widget)) {
    EXPECT_EQ(As_Read(button->text()).toStdString(), Decoded(field, field.Caption()));
    Compare_Font(field, widget);
    return;
  }
  const auto& label = dynamic_cast<const QLabel&>(widget);
  if (field.Font().name == "Symbol") {
    EXPECT_EQ(label.text(), field.Caption() == "l" ? QString(u'\u03BB') : QString(u'\u03B1'));
    return;
  }
  const QString shown = label.buddy() == nullptr ? label.text() : As_Read(label.text());
  EXPECT_EQ(shown.toStdString(), Decoded(field, field.Caption()));
  Compare_Font(field, widget);
  if (field.BackStyle() == BackStyle::kTransparent) {
    EXPECT_FALSE(label.autoFillBackground());
  } else {
    EXPECT_TRUE(label.autoFillBackground());
    EXPECT_EQ(label.palette().color(QPalette::Window), Colour(field.BackColor()));
  }
}

void Comparison::Compare_Button(const Button& field, const QWidget& widget) const {
  const auto& button = dynamic_cast<const QAbstractButton&>(widget);
  EXPECT_EQ(As_Read(button.text()).toStdString(), Decoded(field, field.Caption()));
  if (button.isCheckable()) {
    EXPECT_EQ(button.isChecked(), field.Picture() == ButtonPicture::kChosen);
  } else {
    EXPECT_EQ(field.Picture(), ButtonPicture::kPlain);
  }
}

void Comparison::Compare_List(const ListField& field, const QWidget& widget) const {
  QStringList shown;
  if (const auto* combo = dynamic_cast<const QComboBox*>(&widget)) {
    for (int i = 0; i < combo->count(); ++i) shown << combo->itemText(i);
    EXPECT_EQ(combo->currentIndex(), field.ListIndex());
  } else {
    const auto& list = dynamic_cast<const QListWidget&>(widget);
    for (int i = 0; i < list.count(); ++i) shown << list.item(i)->text();
  }
  QStringList held;
  for (const std::string& item : field.Items()) {
    held << QString::fromStdString(Decoded(field, item));
  }
  EXPECT_EQ(shown.join('\n').toStdString(), held.join('\n').toStdString());
  Compare_Font(field, widget);
}

void Comparison::Compare_Tabs(const Tabs& field, const QWidget& widget) const {
  const auto& bar = dynamic_cast<const QTabBar&>(widget);
  ASSERT_EQ(bar.count(), field.Count());
  EXPECT_EQ(bar.currentIndex(), field.Tab());
  for (int tab = 0; tab < field.Count(); ++tab) {
    EXPECT_EQ(bar.tabText(tab).replace("&&", "&").toStdString(),
              Decoded(field, field.TabCaption(tab)));
  }
}

void Comparison::Compare_Grid(const Grid& field, const QWidget& widget) const {
  const auto& model = *dynamic_cast<const QTableView&>(widget).model();
  ASSERT_EQ(model.rowCount() + 1, field.Rows());
  ASSERT_EQ(model.columnCount(), field.Cols());
  for (int column = 0; column < field.Cols(); ++column) {
    EXPECT_EQ(model.headerData(column, Qt::Horizontal).toString().toStdString(),
              Decoded(field, field.Cell(0, column)));
    for (int row = 1; row < field.Rows(); ++row) {
      EXPECT_EQ(model.index(row - 1, column).data().toString().toStdString(),
                Decoded(field, field.Cell(row, column)))
          << "row " << row << ", column " << column;
    }
  }
  Compare_Font(field, widget);
}

void Comparison::Compare(const Field& field) const {
  if (dynamic_cast<const TickTimer*>(&field) != nullptr) return;
  SCOPED_TRACE(form_.Name() + "." + Name_Of(field));
  const QWidget* widget = view_.Widget_Of(field);
  if (widget == nullptr) {
    EXPECT_FALSE(form_.Shows(field) && Has_Content(field)) << "nothing shows this field";
    return;
  }
  EXPECT_EQ(widget->objectName().toStdString(), Name_Of(field));
  Compare_Visibility(field, *widget);
  if (const auto* text = dynamic_cast<const TextField*>(&field)) Compare_Text(*text, *widget);
  if (const auto* text = dynamic_cast<const CaptionField*>(&field)) Compare_Caption(*text, *widget);
  if (const auto* button = dynamic_cast<const Button*>(&field)) Compare_Button(*button, *widget);
  if (const auto* list = dynamic_cast<const ListField*>(&field)) Compare_List(*list, *widget);
  if (const auto* tabs = dynamic_cast<const Tabs*>(&field)) Compare_Tabs(*tabs, *widget);
  if (const auto* grid = dynamic_cast<const Grid*>(&field)) Compare_Grid(*grid, *widget);
}

QRect Place_In_Window(const QWidget& widget) {
  return {widget.mapTo(widget.window(), QPoint(0, 0)), widget.size()};
}

/// Whether a widget needs room of its own: what lies in a panel has that of the panel, and the
/// tooltip lies over the others.
bool Takes_Room(const Field& field) {
  return field.Name() != "picToolTip" && field.panel == nullptr;
}

}  // namespace

QString As_Read(const QString& text) {
  QString read;
  for (qsizetype i = 0; i < text.size(); ++i) {
    if (text[i] == '&' && i + 1 < text.size()) ++i;
    read += text[i];
  }
  return read;
}

void Expect_Same_As_Model(const FormView& view) {
  const Comparison comparison(view);
  for (const Field* field : view.form()->Fields()) comparison.Compare(*field);
}

void Expect_Room_For_All(const FormView& view) {
  std::vector<std::pair<std::string, QRect>> places;
  for (const Field* field : view.form()->Fields()) {
    const QWidget* widget = view.Widget_Of(*field);
    if (widget == nullptr || widget == &view || !widget->isVisibleTo(&view)) continue;
    SCOPED_TRACE(Name_Of(*field));
    const QRect place = Place_In_Window(*widget);
    EXPECT_TRUE(view.rect().contains(place)) << "outside the window";
    if (qobject_cast<const QLabel*>(widget) != nullptr ||
        qobject_cast<const QAbstractButton*>(widget) != nullptr) {
      EXPECT_GE(place.width(), widget->minimumSizeHint().width()) << "too narrow";
      EXPECT_GE(place.height(), widget->minimumSizeHint().height()) << "too low";
    }
    if (!Takes_Room(*field)) continue;
    for (const auto& [name, other] : places) {
      EXPECT_FALSE(place.intersects(other)) << "lies over " << name;
    }
    places.emplace_back(Name_Of(*field), place);
  }
}

}  // namespace norvane
