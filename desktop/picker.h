#pragma once

#include <QFrame>
#include <string>

#include "screen/choices.h"

class QLabel;
class QLineEdit;
class QTableWidget;

namespace norvane {

/// What a picker is opened for.
struct PickerSubject {
  Choices choices;
  Locale locale;
  QString name;  ///< of the field
  QString unit;
  QString inch_unit;
  QString text;  ///< that the field shows
};

/// A line to type a whole number into, and a list of usual ones below it. It lies over the rest of
/// its window until one is taken, or until the user turns to anything else. What is marked in the
/// list is what would be taken.
class Picker : public QFrame {
  Q_OBJECT

 public:
  explicit Picker(QWidget* parent);

  /// Shows the picker at a field of the screen.
  void Open_At(QWidget& field, const PickerSubject& subject);

  /// What is typed first, instead of the text that the field shows.
  void Begin_With(const QString& letter);

  bool eventFilter(QObject* object, QEvent* event) override;

 signals:
  /// The text that the field is to get; the picker has gone.
  void Taken(const std::string& text);
  /// The user goes on to the next field, or back to the one before; nothing or `Taken` came first.
  void Passed(bool forward);

 protected:
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  void Fill();
  void Place_At(const QWidget& field);
  bool Press(int key);
  void Find_Place();
  void Move(int rows);
  bool Take();
  void Close();

  PickerSubject subject_;
  QWidget* field_ = nullptr;
  QLineEdit* line_;
  QLabel* limits_;
  QTableWidget* list_;
};

}  // namespace norvane
