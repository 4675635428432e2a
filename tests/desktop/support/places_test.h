#pragma once

#include <QScreen>
#include <QScrollArea>
#include <QTest>
#include <QWindow>

#include "desktop/twips.h"
#include "window_test.h"

namespace norvane {

/// Where the windows lie, on whatever screen the test is run on.
class PlacesTest : public WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    const QWindow& window = *Main_View().windowHandle();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !window.frameMargins().isNull(); }, 5000));
    Expect_Inside(Screen());
  }

  Lang& Languages() { return *State().forms.lang; }
  Address& Addresses() { return *State().forms.address; }
  Total& Totals() { return *State().forms.total; }

  QRect Frame_Of(const Form& form) { return View(form).windowHandle()->frameGeometry(); }
  QRect Area() { return Main_View().screen()->availableGeometry(); }

  /// As the window manager moves a window that is dragged by its title.
  void Move(const Form& form, const QPoint& place) {
    View(form).move(place);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Frame_Of(form).topLeft() == place; }, 5000));
    Expect_Told(form);
  }
  void Expect_Told(const Form& form) {
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return To_Pixels(form.Place().left) == Frame_Of(form).x(); }, 5000))
        << form.Name() << ": " << form.Place().left << ", not " << Frame_Of(form).x() * 15;
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return To_Pixels(form.Place().top) == Frame_Of(form).y(); }, 5000))
        << form.Name() << ": " << form.Place().top << ", not " << Frame_Of(form).y() * 15;
  }
  void Expect_Centred(const Form& form) {
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
          const QPoint off = Frame_Of(form).center() - Area().center();
          return off.manhattanLength() <= 2;
        },
        2000))
        << form.Name();
  }
  void Expect_Inside(const Form& form) {
    EXPECT_TRUE(QTest::qWaitFor([&] { return Area().contains(Frame_Of(form)); }, 5000))
        << form.Name() << " lies outside the screen";
    // It stays there once the frame is known.
    Settle();
    EXPECT_TRUE(Area().contains(Frame_Of(form))) << form.Name();
    Expect_Told(form);
  }
  void Open(const Field& entry, const Form& form) {
    Bring_Into_View(entry);
    Click(entry);
    Wait_Until_Active(form);
  }
  /// As a user does who can't see all of a window.
  void Bring_Into_View(const Field& field) {
    auto* area = View(field.form()).findChild<QScrollArea*>();
    if (area != nullptr) area->ensureWidgetVisible(&Widget(field));
  }
  void Open_Totals() {
    Bring_Into_View(Screen().cmdAdd);
    Click(Screen().cmdAdd);
    Open(Screen().picTotal, Totals());
  }
};

}  // namespace norvane
