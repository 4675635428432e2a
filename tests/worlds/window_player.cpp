// Linked to the program's own main, it plays a user of the real window, from a start to the exit:
// new hours, German, two saved lines, the totals, an export. It prints what comes of that, and
// presses "Copy saved lines" where a message offers it. PLAYED_LIMIT is what the machine has no
// more of from the export on: processes or memory.

#include <dlfcn.h>
#include <sys/resource.h>
#include <unistd.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <cstdio>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

namespace {

constexpr int kMoment = 5;          // milliseconds between two looks
constexpr int kPatience = 120'000;  // milliseconds for one step
constexpr int kStuck = 9;           // exit status

QWidget* Shown(const QString& name) {
  const QWidget* modal = QApplication::activeModalWidget();
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (!window->isVisible() || !window->windowHandle()->isExposed()) continue;
    if (modal != nullptr && window != modal) continue;
    auto* widget = window->objectName() == name ? window : window->findChild<QWidget*>(name);
    if (widget != nullptr && widget->isVisible()) return widget;
  }
  return nullptr;
}

/// Whether calls fail from here on: those of the program, and none of the player's.
void Let_Calls_Fail(bool let) {
  static const auto arm = reinterpret_cast<void (*)(bool)>(dlsym(RTLD_DEFAULT, "Let_Calls_Fail"));
  if (arm != nullptr) arm(let);
}

int clicks = 0;  // that the program still answers

void Click(QWidget& widget) {
  QWindow* window = widget.window()->windowHandle();
  const QPoint middle = widget.mapTo(widget.window(), widget.rect().center());
  ++clicks;
  Let_Calls_Fail(true);
  QTest::mouseClick(window, Qt::LeftButton, Qt::NoModifier, middle);
  Let_Calls_Fail(false);
  --clicks;
}

void Press(QWidget& widget, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
  QWindow* window = widget.window()->windowHandle();
  Let_Calls_Fail(true);
  QTest::keyClick(window, key, modifiers);
  Let_Calls_Fail(false);
}

bool Click(const QString& name) {
  QWidget* widget = Shown(name);
  if (widget != nullptr) Click(*widget);
  return widget != nullptr;
}

/// Where a language couldn't be read there is none to choose.
bool Choose_German_And_Close() {
  QWidget* close = Shown("OK");
  if (close == nullptr) return false;
  auto* german = close->window()->findChild<QWidget*>("Label2(1)");
  if (german != nullptr && german->isVisible()) Click(*german);
  return Click("OK");
}

bool Set_Hours() {
  QWidget* hours = Shown("Text2(0)");
  if (hours == nullptr || Shown("Command1") == nullptr) return false;
  Click(*hours);
  Press(*hours, Qt::Key_A, Qt::ControlModifier);
  Press(*hours, Qt::Key_7);
  return Click("Command1");
}

void Limit(int resource, rlim_t value) {
  const rlimit limit{value, value};
  setrlimit(resource, &limit);
}

/// What the process has of memory already, in bytes.
rlim_t Memory_Taken() {
  std::ifstream table("/proc/self/statm");
  rlim_t pages = 0;
  table >> pages;
  return pages * static_cast<rlim_t>(sysconf(_SC_PAGESIZE));
}

void Take_Away() {
  const QByteArray what = qgetenv("PLAYED_LIMIT");
  if (what == "processes") Limit(RLIMIT_NPROC, 1);
  if (what == "memory") Limit(RLIMIT_AS, Memory_Taken() + 200'000);
}

bool Export() {
  auto* rows = qobject_cast<QAbstractItemView*>(Shown("grdResult"));
  if (rows == nullptr || Shown("Toolbar1") == nullptr) return false;
  std::printf("rows %d\n", rows->model()->rowCount());
  Take_Away();
  Click("Toolbar1");
  std::puts("exported");
  return true;
}

/// Each is tried until it says that it could be done.
const std::vector<std::pair<const char*, std::function<bool()>>> kSteps = {
    {"settings", [] { return Click("cmdToolBar5(0)"); }},
    {"hours", Set_Hours},
    {"languages", [] { return Click("lblMenu(1)"); }},
    {"German", Choose_German_And_Close},
    {"a line", [] { return Click("cmdAdd"); }},
    {"another line", [] { return Click("cmdAdd"); }},
    {"totals", [] { return Click("picTotal"); }},
    {"export", Export},
    {"rows that are still there",
     [] {
       auto* rows = qobject_cast<QAbstractItemView*>(Shown("grdResult"));
       if (rows != nullptr) std::printf("rows afterwards %d\n", rows->model()->rowCount());
       return rows != nullptr;
     }},
    {"exit", [] { return Click("lblMenu(3)"); }},
};

class Player : public QObject {
 public:
  Player() : QObject(qApp) { Look_Again(); }

 private:
  void Look_Again() {
    // The timer of a look would wait for the end of whatever that look has opened.
    QTimer::singleShot(kMoment, this, [this] { Look(); });
  }

  void Look() {
    Let_Calls_Fail(false);
    Look_Again();
    Play();
    Let_Calls_Fail(true);
  }

  void Play() {
    // While the program waits for a spreadsheet a user's clicks don't come to it.
    if (clicks > 0 && QApplication::activeModalWidget() == nullptr) return;
    if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
      Answer(*box);
    } else if (step_ < kSteps.size()) {
      const auto step = step_++;
      if (kSteps[step].second()) {
        std::printf("done %s\n", kSteps[step].first);
        since_.restart();
      } else {
        step_ = step;
      }
    }
    if (since_.elapsed() > kPatience) {
      std::printf("stuck at %s\n", step_ < kSteps.size() ? kSteps[step_].first : "the end");
      std::fflush(stdout);
      _exit(kStuck);
    }
  }

  void Answer(QMessageBox& box) {
    since_.restart();
    for (QAbstractButton* button : box.buttons()) {
      if (button->text() != "Copy saved lines" || !button->isEnabled()) continue;
      Click(*button);
      const QString copied = QGuiApplication::clipboard()->text();
      std::printf("copied %d lines\n", static_cast<int>(copied.split('\n').size()) - 2);
      return;
    }
    std::printf("message %s\n", qPrintable(box.text().simplified()));
    auto* no = box.button(QMessageBox::No);
    Click(no != nullptr ? *no : *box.button(QMessageBox::Ok));
  }

  std::size_t step_ = 0;
  QElapsedTimer since_ = [] {
    QElapsedTimer now;
    now.start();
    return now;
  }();
};

/// When Qt has its display, and before the program begins.
void Begin() {
  std::setvbuf(stdout, nullptr, _IOLBF, BUFSIZ);
  new Player;
  Let_Calls_Fail(true);
}

}  // namespace

Q_COREAPP_STARTUP_FUNCTION(Begin)
