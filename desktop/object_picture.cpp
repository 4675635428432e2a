#include "desktop/object_picture.h"

#include <QPainter>

#include "desktop/pipe_picture.h"
#include "desktop/sheet_picture.h"

namespace norvane {
namespace {

constexpr int kBareSheet = 19;

}  // namespace

ObjectPicture::ObjectPicture(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void ObjectPicture::Set_Number(int number) {
  if (number == number_) return;
  number_ = number;
  update();
}

void ObjectPicture::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  Draw_Object(painter, number_);
}

void Draw_Object(QPainter& painter, int number) {
  painter.setRenderHint(QPainter::Antialiasing);
  if (number >= kBareSheet && number <= ObjectPicture::kPictures) {
    Draw_Sheet(painter, number != kBareSheet);
  } else if (number >= 1 && number < kBareSheet) {
    Draw_Pipe(painter, (number - 1) % 3, (number - 1) / 3);
  }
}

}  // namespace norvane
