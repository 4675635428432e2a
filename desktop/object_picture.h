#pragma once

#include <QWidget>

class QPainter;

namespace norvane {

/// The picture of the insulated object: 1 to 18 a pipe of family (n - 1) mod 3 in one of six
/// thickness classes, 19 the bare sheet, 20 the insulated one.
class ObjectPicture : public QWidget {
  Q_OBJECT

 public:
  static constexpr int kWidth = 258;
  static constexpr int kHeight = 98;
  static constexpr int kPictures = 20;

  explicit ObjectPicture(QWidget* parent = nullptr);

  void Set_Number(int number);

  QSize sizeHint() const override { return {kWidth, kHeight}; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  int number_ = 0;
};

/// Draws picture `number` into a field of `ObjectPicture::kWidth` by `kHeight`; nothing for a
/// number that no picture has.
void Draw_Object(QPainter& painter, int number);

}  // namespace norvane
