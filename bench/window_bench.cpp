#include <benchmark/benchmark.h>

#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <filesystem>

#include "desktop/desktop.h"
#include "desktop/form_view.h"

namespace {

norvane::Desktop* desktop;

/// From the key event to the window repainted: every painted widget, and nothing left to do.
void Keystroke_Through_The_Window(benchmark::State& state) {
  auto* window = desktop->View_Of(desktop->program().State().forms.warmt.Get());
  auto* edit = window->findChild<QLineEdit*>("txtT(0)");
  edit->setFocus();
  bool odd = false;
  for (auto _ : state) {
    edit->setSelection(1, 1);
    QTest::keyClick(edit, (odd = !odd) ? Qt::Key_1 : Qt::Key_2);
    QCoreApplication::processEvents();
  }
}
BENCHMARK(Keystroke_Through_The_Window)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  if (argc != 2) return 2;  // the program's folder
  norvane::Desktop the_desktop(argv[1]);
  desktop = &the_desktop;
  the_desktop.Start();
  constexpr int kLongestSplash = 10000;  // milliseconds
  auto& warmt = the_desktop.program().State().forms.warmt;
  if (!QTest::qWaitFor([&] { return warmt.Loaded() && warmt.Get().Shown(); }, kLongestSplash)) {
    return 1;
  }
  QTest::qWait(200);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
