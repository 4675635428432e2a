#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "driver/headless_platform.h"
#include "frame/about_form.h"
#include "frame/program.h"
#include "screen/warmt.h"

namespace norvane {
namespace {

/// A started program without a display, in a folder of its own.
class StartedProgram {
 public:
  StartedProgram()
      : folder_(std::filesystem::temp_directory_path() / "norvane-bench"),
        platform_((std::filesystem::create_directories(folder_), folder_), '.', out_),
        program_(platform_) {
    std::ofstream(folder_ / "language.len") << "Norvane,Arial,0\n0,name=English-3.1\n";
    program_.Main();
    for (int i = 0; i < 3; ++i) program_.Tick(program_.State().forms.about->Timer1);
  }
  ~StartedProgram() { std::filesystem::remove_all(folder_); }

  Warmt& Screen() { return *program_.State().forms.warmt; }
  void Type(TextField& field, const std::string& text) {
    program_.Dispatch({UserAction::kSetText, Screen(), &field, text});
  }
  void Click(Button& button) { program_.Dispatch({UserAction::kClick, Screen(), &button}); }

 private:
  std::filesystem::path folder_;
  std::ostringstream out_;
  HeadlessPlatform platform_;
  Program program_;
};

void Keystroke_In_Heat_Loss(benchmark::State& state) {
  StartedProgram program;
  program.Type(program.Screen().txtT(2), "13");
  bool odd = false;
  for (auto _ : state) program.Type(program.Screen().txtT(0), (odd = !odd) ? "81" : "80");
}
BENCHMARK(Keystroke_In_Heat_Loss);

void Keystroke_In_Condensation(benchmark::State& state) {
  StartedProgram program;
  program.Click(program.Screen().cmdToolBarC);
  bool odd = false;
  for (auto _ : state) program.Type(program.Screen().txtC(0), (odd = !odd) ? "9" : "10");
}
BENCHMARK(Keystroke_In_Condensation);

}  // namespace
}  // namespace norvane
