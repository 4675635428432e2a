#include "desktop/spoken/announcement.h"

#include <QTimer>
#include <utility>

namespace norvane {

Announcement::Announcement(QWidget* parent) : QWidget(parent) { resize(0, 0); }

void Announcement::Say(const QString& text) {
  if (std::exchange(text_, text) != text) QTimer::singleShot(0, this, &Announcement::Speak);
}

void Announcement::Speak() {
  if (std::exchange(said_, text_) == text_ || text_.isEmpty() || !isVisible()) return;
  // Screen readers say what a notification is about when one comes, and this one comes anew.
  QAccessibleEvent comes(this, QAccessible::ObjectShow);
  QAccessible::updateAccessibility(&comes);
}

QString SpokenAnnouncement::text(QAccessible::Text part) const {
  if (part != QAccessible::Name) return QAccessibleWidget::text(part);
  return static_cast<Announcement*>(widget())->Said();
}

}  // namespace norvane
