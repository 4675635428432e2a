#pragma once

#include <QString>
#include <QWidget>
#include <functional>

#include "screen/model/field_model.h"
#include "screen/model/user_event.h"

class QAbstractButton;
class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QTabBar;
class QTimer;

namespace norvane {

class FormView;
class NumberEdit;
class NumberLabel;
class SpinArrows;

/// Keeps the widget of one field up to date, and tells the program what the user does with it.
/// There is one binder for each kind of field.
class Binder {
 public:
  Binder(FormView& view, Field& field, QWidget& widget);
  virtual ~Binder() = default;
  Binder(const Binder&) = delete;
  Binder& operator=(const Binder&) = delete;

  Field& BoundField() const { return field_; }
  QWidget* Widget() const { return &widget_; }

  /// Notes that the field has changed; false when that was noted already.
  bool Mark_Changed();
  /// Shows the field as it is now.
  void Update();
  /// The caption of a field that has one, as the user reads it.
  virtual QString Caption() const { return {}; }
  /// The field goes, before its widget does.
  virtual void Let_Go() {}

 protected:
  virtual void Show_Field() = 0;
  /// Whether there is anything to see; a widget that shows nothing takes no room.
  virtual bool Has_Content() const { return true; }

  FormView& form_view() const { return view_; }
  /// A text of the field as the user reads it: by the character set of its font.
  QString Shown(const std::string& bytes) const;
  void Show_Font();
  void Send(UserAction action, int first = 0, int last = 0);

 private:
  FormView& view_;
  Field& field_;
  QWidget& widget_;
  bool changed_ = false;
};

/// A text field as a line edit. The arrow keys are clicks on the spin pair beside it. A text comes
/// by the keys, or as a whole by other ways, such as a screen reader's.
class TextBinder : public Binder {
 public:
  TextBinder(FormView& view, TextField& field, NumberEdit& edit, Field* spin_pair = nullptr);

 protected:
  void Show_Field() override;

 private:
  void Tell(const QString& text);
  void Tell_By_Keys(const QString& text);
  void Tell_By_Other_Ways(const QString& text);

  TextField& field_;
  NumberEdit& edit_;
  bool showing_ = false;  ///< the text changes by what the program holds
  bool told_ = false;     ///< by what the program has been told already
};

/// A caption field as a label.
class CaptionBinder : public Binder {
 public:
  CaptionBinder(FormView& view, CaptionField& field, QLabel& label);

  QString Caption() const override { return Shown(field_.Caption()); }

 protected:
  void Show_Field() override;
  bool Has_Content() const override;
  virtual void Show_Caption(const QString& caption);

 private:
  CaptionField& field_;
  QLabel& label_;
};

/// A letter in a symbol font, which shows Greek ones in the places of the Latin.
class SymbolBinder : public Binder {
 public:
  SymbolBinder(FormView& view, CaptionField& field, QLabel& label);

 protected:
  void Show_Field() override;

 private:
  CaptionField& field_;
  QLabel& label_;
};

/// A caption field that holds a computed number.
class NumberBinder : public CaptionBinder {
 public:
  NumberBinder(FormView& view, CaptionField& field, NumberLabel& label);

 protected:
  void Show_Caption(const QString& caption) override;

 private:
  NumberLabel& label_;
};

/// A caption field that the user clicks, as a button.
class CaptionButtonBinder : public Binder {
 public:
  CaptionButtonBinder(FormView& view, CaptionField& field, QAbstractButton& button);

  QString Caption() const override { return Shown(field_.Caption()); }

 protected:
  void Show_Field() override;

 private:
  CaptionField& field_;
  QAbstractButton& button_;
};

class ButtonBinder : public Binder {
 public:
  ButtonBinder(FormView& view, Button& field, QAbstractButton& button);

  QString Caption() const override { return Shown(field_.Caption()); }

 protected:
  void Show_Field() override;

 private:
  bool Is_Chosen() const;

  Button& field_;
  QAbstractButton& button_;
};

/// A picture or panel; `show_picture` takes the picture's number, where the widget draws one.
class PictureBinder : public Binder {
 public:
  PictureBinder(FormView& view, PictureField& field, QWidget& widget,
                std::function<void(int number)> show_picture = {});

 protected:
  void Show_Field() override;

 private:
  PictureField& field_;
  std::function<void(int)> show_picture_;
};

/// A list field that shows its chosen item and drops down.
class ComboBinder : public Binder {
 public:
  ComboBinder(FormView& view, ListField& field, QComboBox& combo);

 protected:
  void Show_Field() override;

 private:
  ListField& field_;
  QComboBox& combo_;
};

/// A list field that shows all its items, to be read only.
class ListBinder : public Binder {
 public:
  ListBinder(FormView& view, ListField& field, QListWidget& list);

 protected:
  void Show_Field() override;

 private:
  ListField& field_;
  QListWidget& list_;
};

/// A spin pair or a stepper.
class SpinBinder : public Binder {
 public:
  SpinBinder(FormView& view, Field& field, SpinArrows& arrows);

 protected:
  void Show_Field() override;
};

/// A row of tabs; the binders of the fields on them show and hide with the tab in front.
class TabsBinder : public Binder {
 public:
  TabsBinder(FormView& view, Tabs& field, QTabBar& bar);

 protected:
  void Show_Field() override;

 private:
  Tabs& field_;
  QTabBar& bar_;
};

/// A timer of the program; the widget is the form's window. A tick that had to wait comes at once,
/// and the next one a whole interval later.
class TimerBinder : public Binder {
 public:
  TimerBinder(FormView& view, TickTimer& field, QTimer& timer);

  void Let_Go() override;

 protected:
  void Show_Field() override;

 private:
  TickTimer& field_;
  QTimer& timer_;
};

/// Where the caret goes when a handler has rewritten the text that the user edited: in front of
/// the letters that stood behind it, if they still end the text.
int Caret_After_Rewrite(const QString& edited, int caret, const QString& rewritten);

}  // namespace norvane
