// Plays random events of a user in the real windows, very many in one process, and looks whether
// the process grows. What ends the program, such as an overflow, is played seldom; behind an end a
// new program starts in the same process.

#include <QApplication>
#include <QElapsedTimer>
#include <QFont>
#include <cstdio>
#include <exception>
#include <filesystem>

#include "chance.h"
#include "desktop/desktop.h"
#include "desktop/form_view.h"
#include "frame/about_form.h"
#include "frame/shared_state.h"
#include "frame/version.h"
#include "hasty_spreadsheet.h"
#include "random_user.h"
#include "samples.h"
#include "screen/warmt.h"

namespace {

using norvane::Desktop;

constexpr int kUsage = 2;
constexpr int kBetweenLooks = 100;

class Soak {
 public:
  Soak(std::filesystem::path folder, int events, unsigned seed)
      : folder_(std::move(folder)),
        events_(events),
        chance_(seed),
        user_(chance_),
        samples_(static_cast<std::size_t>(events / kBetweenLooks)) {}

  /// Whether the process stayed as it was.
  bool Run();

 private:
  void Play_One_Program();
  bool Had_Enough(const Desktop& desktop, const QWidget& window);
  static bool Click_Ends(Desktop& desktop, const QWidget& widget);
  bool Print_End() const;

  std::filesystem::path folder_;
  int events_;
  int played_ = 0;
  int programs_ = 0;
  int failed_ = 0;
  norvane::Chance chance_;
  norvane::RandomUser user_;
  norvane::Samples samples_;
  QElapsedTimer clock_;
};

bool Soak::Run() {
  clock_.start();
  while (played_ < events_) Play_One_Program();
  return Print_End();
}

void Soak::Play_One_Program() {
  // A number that can't be kept would end every start from here on.
  std::filesystem::remove(folder_ / "norvane.ini");
  ++programs_;
  Desktop desktop(folder_, [this](const auto&, auto& waiting) {
    return std::make_unique<norvane::HastySpreadsheet>(waiting, chance_, user_);
  });
  desktop.Start();
  norvane::Module1& state = desktop.program().State();
  while (state.forms.about->Timer1.Enabled()) desktop.Tick(state.forms.about->Timer1);
  norvane::FormView& window = *desktop.View_Of(*state.forms.warmt);
  user_.main_window = &window;
  user_.had_enough = [&] { return Had_Enough(desktop, window); };
  user_.click_ends = [&](const QWidget& widget) { return Click_Ends(desktop, widget); };
  user_.Begin();
  QApplication::exec();
  user_.End();
  if (desktop.program().Failed()) ++failed_;
}

bool Soak::Had_Enough(const Desktop& desktop, const QWidget& window) {
  if (played_ == events_) return true;
  ++played_;
  const int warm_up = events_ / 10;
  const bool alive = !const_cast<Desktop&>(desktop).program().Ended();
  if (played_ % kBetweenLooks == 0 && played_ > warm_up && alive) samples_.Look(played_, window);
  return false;
}

bool Soak::Click_Ends(Desktop& desktop, const QWidget& widget) {
  norvane::Module1& state = desktop.program().State();
  if (desktop.program().Ended()) return false;
  norvane::Warmt& screen = *state.forms.warmt;
  const norvane::FormView& window = *desktop.View_Of(screen);
  if (&widget == window.Widget_Of(screen.lblMenu(3))) return true;
  // The line of a sheet ends the program when the totals are opened.
  constexpr int kSheet = 3;
  return state.Sel_Size == kSheet && &widget == window.Widget_Of(screen.cmdAdd);
}

bool Soak::Print_End() const {
  constexpr int kFullRun = 500'000;
  constexpr double kFlat = 0.01;
  // A short run is over before all languages, letters and sizes of windows have been seen: it tells
  // of crashes and of handles, and not of memory.
  constexpr double kStillFilling = 9;
  const bool flat = samples_.Print_Flat(events_ >= kFullRun ? kFlat : kStillFilling);
  std::printf("\n%d events in %.0f s; %d programs, %d of them ended by a runtime error\n", played_,
              static_cast<double>(clock_.elapsed()) / 1000, programs_, failed_);
  std::puts(flat ? "the process stays as it is" : "the process grows");
  return flat;
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setApplicationName(norvane::kTitle);
  QApplication::setQuitOnLastWindowClosed(false);
  QFont::insertSubstitutions("Arial", {"Liberation Sans", "Arimo", "Nimbus Sans", "Helvetica"});
  const QStringList arguments = QApplication::arguments();
  const int events = arguments.value(2).toInt();
  if (arguments.size() != 4 || events < 1000) {
    std::fputs("usage: norvane-soak FOLDER EVENTS SEED, with 1000 events at least\n", stderr);
    return kUsage;
  }
  try {
    // Files without a folder in their names belong there, too.
    std::filesystem::current_path(arguments[1].toStdString());
    Soak soak(std::filesystem::current_path(), events, arguments[3].toUInt());
    return soak.Run() ? 0 : 1;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
  }
}
