#pragma once

#include <QTableView>

namespace norvane {

class CaptionRow;

/// A table whose rows are marked as wholes, by the left button and the keyboard. It tells what a
/// user does with them. It tells it at once: told later, it could come in the middle of the
/// question that the mouse opened when it was let go before.
///
/// The captions stay in place when it scrolls, and so do the columns at its left that hold words:
/// they are painted once more over the others, and the mouse reaches the table through them.
class RowTable : public QTableView {
  Q_OBJECT

 public:
  explicit RowTable(QWidget* parent = nullptr);

  void setModel(QAbstractItemModel* model) override;
  QRect visualRect(const QModelIndex& index) const override;
  QModelIndex indexAt(const QPoint& point) const override;
  void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;

 signals:
  /// A button of the mouse, whichever, was let go anywhere in the table, or Delete or a button was
  /// pressed.
  void Picked();
  void Copy_Asked();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void updateGeometries() override;

 private:
  bool Marks(const QMouseEvent& event) const;
  int Columns_That_Stay() const;
  int Width_That_Stays() const;
  void Keep_Width(int column, int width);
  void Keep_Height();

  QTableView* staying_cells_;
  CaptionRow* staying_captions_;
  int staying_ = 0;       ///< columns
  bool marking_ = false;  ///< the left button went down on a row and is still there
};

}  // namespace norvane
