#pragma once

#include <QAccessibleWidget>
#include <QWidget>

namespace norvane {

/// What a screen reader says without being asked. Nothing is to be seen of it.
class Announcement : public QWidget {
  Q_OBJECT

 public:
  explicit Announcement(QWidget* parent);

  /// Says a text, once, when all that is under way has come to its end, and by then the last one
  /// alone. What was said last is not new, and an empty text says nothing.
  void Say(const QString& text);
  const QString& Said() const { return said_; }

 private:
  void Speak();

  QString text_;
  QString said_;
};

class SpokenAnnouncement : public QAccessibleWidget {
 public:
  explicit SpokenAnnouncement(Announcement* announcement)
      : QAccessibleWidget(announcement, QAccessible::Notification) {}

  QString text(QAccessible::Text part) const override;
};

}  // namespace norvane
