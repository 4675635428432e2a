#pragma once

#include <QHeaderView>

namespace norvane {

/// The captions of a table. It tells of each click, but not of a drag that makes a column wider.
class CaptionRow : public QHeaderView {
  Q_OBJECT

 public:
  explicit CaptionRow(QWidget* parent);

 signals:
  /// A button of the mouse, whichever, was let go over the captions.
  void Clicked();

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  bool resized_ = false;  ///< a column since the mouse was pressed
};

}  // namespace norvane
