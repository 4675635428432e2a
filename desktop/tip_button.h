#pragma once

#include <QPushButton>

namespace norvane {

/// The words of a tip, and behind them the key that does the same.
class TipButton : public QPushButton {
  Q_OBJECT

 public:
  using QPushButton::QPushButton;

  void Show_Key(const QString& key);

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  int Room_For_Key() const;

  QString key_;
};

}  // namespace norvane
