#include "desktop/binder.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QTabBar>
#include <QTimer>
#include <utility>

#include "desktop/desktop.h"
#include "desktop/form_view.h"
#include "desktop/letters.h"
#include "desktop/number_edit.h"
#include "desktop/number_label.h"
#include "desktop/spin_arrows.h"
#include "host/code_page.h"

namespace norvane {
namespace {

/// The ground of a field, or that of the desktop's theme when it has none of its own.
void Show_Ground(QWidget& widget, QPalette::ColorRole ground, QPalette::ColorRole text,
                 const BackColor& color, bool opaque) {
  QPalette palette;
  if (opaque && !color.system) {
    const QColor shown(color.red, color.green, color.blue);
    palette.setColor(ground, shown);
    palette.setColor(text, Qt::black);
  }
  if (widget.palette() != palette) widget.setPalette(palette);
}

/// Captions and pictures take no focus from the field that the user was at; the keyboard reaches
/// them all the same.
void Leave_Focus_When_Clicked(QAbstractButton& button) {
  if (button.focusPolicy() != Qt::NoFocus) button.setFocusPolicy(Qt::TabFocus);
}

}  // namespace

Binder::Binder(FormView& view, Field& field, QWidget& widget)
    : view_(view), field_(field), widget_(widget) {
  widget.setObjectName(
      QString::fromStdString(field.Name()) +
      (field.Index() == Field::kNoIndex ? QString() : QString("(%1)").arg(field.Index())));
}

bool Binder::Mark_Changed() { return !std::exchange(changed_, true); }

void Binder::Update() {
  changed_ = false;
  Show_Field();
  // A widget in a panel goes with its panel; one on a tab shows while the tab is in front.
  const bool visible =
      field_.Visible() && Has_Content() && (!field_.on_tab || field_.form().Shows(field_));
  if (&widget_ != &view_ && widget_.isHidden() == visible) widget_.setVisible(visible);
}

QString Binder::Shown(const std::string& bytes) const {
  const int charset = view_.desktop().program().State().Text_Charset(field_);
  return QString::fromStdString(To_Utf8(bytes, charset));
}

void Binder::Show_Font() {
  const Font& wanted = field_.Font();
  QFont font(QString::fromStdString(wanted.name));
  font.setPointSizeF(wanted.size);
  font.setBold(wanted.bold);
  if (widget_.font() != font) widget_.setFont(font);
}

void Binder::Send(UserAction action, int first, int last) {
  view_.Send(action, field_, first, last);
}

TextBinder::TextBinder(FormView& view, TextField& field, NumberEdit& edit, Field* spin_pair)
    : Binder(view, field, edit), field_(field), edit_(edit) {
  QObject::connect(&edit, &QLineEdit::textEdited, &edit,
                   [this](const QString& text) { Tell_By_Keys(text); });
  QObject::connect(&edit, &QLineEdit::textChanged, &edit,
                   [this](const QString& text) { Tell_By_Other_Ways(text); });
  if (spin_pair == nullptr) return;
  QObject::connect(&edit, &NumberEdit::Stepped, &edit, [this, spin_pair](int direction) {
    form_view().Send(direction < 0 ? UserAction::kDown : UserAction::kUp, *spin_pair);
  });
}

void TextBinder::Tell(const QString& text) {
  // Shown again in any case: what the program refuses or rewrites leaves no trace.
  form_view().Field_Changed(field_, Attribute::kText);
  form_view().Send_Text(field_, text);
}

void TextBinder::Tell_By_Keys(const QString& text) {
  Tell(text);
  told_ = true;  // the same change is reported a second time
}

void TextBinder::Tell_By_Other_Ways(const QString& text) {
  if (showing_ || std::exchange(told_, false)) return;
  // Later: whoever set the text waits for it to be set, and not for a message that it may cause.
  QMetaObject::invokeMethod(
      &edit_, [this, text] { Tell(text); }, Qt::QueuedConnection);
}

void TextBinder::Show_Field() {
  const QScopedValueRollback<bool> showing(showing_, true);
  Show_Font();
  edit_.setReadOnly(field_.Locked());
  Show_Ground(edit_, QPalette::Base, QPalette::Text, field_.BackColor(), true);
  const QString text = Shown(field_.Text());
  if (edit_.text() == text) return;
  const int caret = Caret_After_Rewrite(edit_.text(), edit_.cursorPosition(), text);
  edit_.setText(text);
  edit_.setCursorPosition(caret);
}

CaptionBinder::CaptionBinder(FormView& view, CaptionField& field, QLabel& label)
    : Binder(view, field, label), field_(field), label_(label) {
  label.setTextFormat(Qt::PlainText);
}

void CaptionBinder::Show_Field() {
  const bool opaque = field_.BackStyle() == BackStyle::kOpaque;
  label_.setAutoFillBackground(opaque);
  Show_Ground(label_, QPalette::Window, QPalette::WindowText, field_.BackColor(), opaque);
  Show_Font();
  // Only the heading of another widget can have a letter; elsewhere "&" is an ordinary sign.
  const bool heading = label_.buddy() != nullptr;
  Show_Caption(heading ? With_Letter(Caption(), form_view().Letter_Of(field_)) : Caption());
}

void CaptionBinder::Show_Caption(const QString& caption) { label_.setText(caption); }

bool CaptionBinder::Has_Content() const {
  return field_.BackStyle() == BackStyle::kOpaque || !field_.Caption().empty();
}

SymbolBinder::SymbolBinder(FormView& view, CaptionField& field, QLabel& label)
    : Binder(view, field, label), field_(field), label_(label) {
  label.setTextFormat(Qt::PlainText);
}

void SymbolBinder::Show_Field() {
  label_.setText(field_.Caption() == "l" ? QString(QChar(0x3BB)) : QString(QChar(0x3B1)));
}

NumberBinder::NumberBinder(FormView& view, CaptionField& field, NumberLabel& label)
    : CaptionBinder(view, field, label), label_(label) {}

void NumberBinder::Show_Caption(const QString& caption) { label_.Show_Number(caption); }

CaptionButtonBinder::CaptionButtonBinder(FormView& view, CaptionField& field,
                                         QAbstractButton& button)
    : Binder(view, field, button), field_(field), button_(button) {
  Leave_Focus_When_Clicked(button);
  QObject::connect(&button, &QAbstractButton::clicked, &button,
                   [this] { Send(UserAction::kClick); });
}

void CaptionButtonBinder::Show_Field() {
  Show_Font();
  button_.setText(With_Letter(Caption(), form_view().Letter_Of(field_)));
}

ButtonBinder::ButtonBinder(FormView& view, Button& field, QAbstractButton& button)
    : Binder(view, field, button), field_(field), button_(button) {
  QObject::connect(&button, &QAbstractButton::clicked, &button,
                   [this] { Send(UserAction::kClick); });
  // A screen reader toggles a button that can be checked, and means a click.
  QObject::connect(&button, &QAbstractButton::toggled, &button, [this](bool checked) {
    if (checked == Is_Chosen()) return;
    form_view().Field_Changed(field_, Attribute::kPicture);
    Send(UserAction::kClick);
  });
}

bool ButtonBinder::Is_Chosen() const { return field_.Picture() == ButtonPicture::kChosen; }

void ButtonBinder::Show_Field() {
  Show_Font();
  button_.setText(With_Letter(Caption(), form_view().Letter_Of(field_)));
  if (button_.isCheckable()) button_.setChecked(Is_Chosen());
}

PictureBinder::PictureBinder(FormView& view, PictureField& field, QWidget& widget,
                             std::function<void(int number)> show_picture)
    : Binder(view, field, widget), field_(field), show_picture_(std::move(show_picture)) {
  if (auto* button = qobject_cast<QAbstractButton*>(&widget)) {
    Leave_Focus_When_Clicked(*button);
    QObject::connect(button, &QAbstractButton::clicked, button,
                     [this] { Send(UserAction::kClick); });
  }
}

void PictureBinder::Show_Field() {
  if (show_picture_) show_picture_(field_.Picture());
}

ComboBinder::ComboBinder(FormView& view, ListField& field, QComboBox& combo)
    : Binder(view, field, combo), field_(field), combo_(combo) {
  QObject::connect(&combo, &QComboBox::activated, &combo, [this](int index) {
    form_view().Field_Changed(field_, Attribute::kListIndex);
    Send(UserAction::kChoose, index);
  });
}

void ComboBinder::Show_Field() {
  const QSignalBlocker silent(combo_);
  Show_Font();
  QStringList items;
  for (const std::string& item : field_.Items()) items << Shown(item);
  QStringList shown;
  for (int i = 0; i < combo_.count(); ++i) shown << combo_.itemText(i);
  if (items != shown) {
    combo_.clear();
    combo_.addItems(items);
  }
  combo_.setCurrentIndex(field_.ListIndex());
}

ListBinder::ListBinder(FormView& view, ListField& field, QListWidget& list)
    : Binder(view, field, list), field_(field), list_(list) {}

void ListBinder::Show_Field() {
  Show_Font();
  list_.clear();
  for (const std::string& item : field_.Items()) list_.addItem(Shown(item));
}

SpinBinder::SpinBinder(FormView& view, Field& field, SpinArrows& arrows)
    : Binder(view, field, arrows) {
  QObject::connect(&arrows, &SpinArrows::Stepped, &arrows, [this](int direction) {
    Send(direction < 0 ? UserAction::kDown : UserAction::kUp);
  });
}

void SpinBinder::Show_Field() {}

TabsBinder::TabsBinder(FormView& view, Tabs& field, QTabBar& bar)
    : Binder(view, field, bar), field_(field), bar_(bar) {
  QObject::connect(&bar, &QTabBar::currentChanged, &bar, [this](int tab) {
    form_view().Field_Changed(field_, Attribute::kTab);
    Send(UserAction::kPickTab, tab);
  });
  // The tab in front is picked as any other is, and takes the focus.
  QObject::connect(&bar, &QTabBar::tabBarClicked, &bar, [this](int tab) {
    if (tab == bar_.currentIndex()) Send(UserAction::kPickTab, tab);
  });
}

void TabsBinder::Show_Field() {
  const QSignalBlocker silent(bar_);
  Show_Font();
  while (bar_.count() < field_.Count()) bar_.addTab(QString());
  for (int tab = 0; tab < field_.Count(); ++tab) {
    bar_.setTabText(tab, With_Letter(Shown(field_.TabCaption(tab)), {}));
  }
  bar_.setCurrentIndex(field_.Tab());
}

TimerBinder::TimerBinder(FormView& view, TickTimer& field, QTimer& timer)
    : Binder(view, field, view), field_(field), timer_(timer) {
  timer.setInterval(TickTimer::kInterval);
  timer.setSingleShot(true);
  QObject::connect(&timer, &QTimer::timeout, &timer, [this] {
    timer_.start();
    form_view().desktop().Tick(field_);
  });
}

void TimerBinder::Let_Go() { timer_.stop(); }

void TimerBinder::Show_Field() {
  if (timer_.isActive() == field_.Enabled()) return;
  if (field_.Enabled()) {
    timer_.start();
  } else {
    timer_.stop();
  }
}

int Caret_After_Rewrite(const QString& edited, int caret, const QString& rewritten) {
  const QString behind = edited.mid(caret);
  const auto length = static_cast<int>(rewritten.size());
  if (rewritten.endsWith(behind)) return length - static_cast<int>(behind.size());
  return std::min(caret, length);
}

}  // namespace norvane
