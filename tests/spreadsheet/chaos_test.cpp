#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include "office_program.h"
#include "spreadsheet/chosen_spreadsheet.h"
#include "spreadsheet/office_plug_in.h"
#include "spreadsheet/office_spreadsheet.h"
#include "spreadsheet/plug_in.h"
#include "spreadsheet/xlsx_spreadsheet.h"

namespace norvane {
namespace {

namespace fs = std::filesystem;

// The gate is called on the thread of the office.
std::atomic<int> calls_left = -1;
std::atomic<void (*)()> happening = nullptr;

void Gate() {
  if (calls_left-- == 0) happening.load()();
}

/// What may happen to an office. Each finds the processes by itself, so that none is another's.
void Kill_It() {
  for (const pid_t process : UserOffice::Running()) kill(process, SIGKILL);
}
void Stop_It() {
  for (const pid_t process : UserOffice::Running()) kill(process, SIGSTOP);
}
void Tell_It_To_End() {
  for (const pid_t process : UserOffice::Running()) kill(process, SIGTERM);
}
/// Its book's window is asked to close, which it answers with a question.
void Make_It_Ask() {
  [[maybe_unused]] const int status = std::system(
      "timeout 2 xdotool search --onlyvisible --name total windowfocus key alt+F4 >/dev/null 2>&1");
}

constexpr void (*kHappenings[])() = {Kill_It, Stop_It, Tell_It_To_End, Make_It_Ask};

int Wanted(const char* name, int otherwise) {
  const char* text = std::getenv(name);
  return text != nullptr ? std::atoi(text) : otherwise;
}

class Chaos : public testing::Test {
 protected:
  std::unique_ptr<Spreadsheet> Make(const fs::path& folder, std::chrono::seconds patience) {
    fs::create_symlink(GATED_PLUG_IN, folder / "norvane_office.so");
    const auto plug_in = std::make_shared<OfficePlugIn>(folder);
    OfficeMeans means;
    means.make_office = [plug_in] { return plug_in->Make_Office(); };
    means.call = [](const auto& arguments) { return Start_Program(*Find_Office(), arguments); };
    means.patience = patience;
    std::vector<ChosenSpreadsheet::Candidate> candidates;
    candidates.push_back({[plug_in] { return plug_in->Load(); },
                          std::make_unique<OfficeSpreadsheet>(folder, waiting_, std::move(means))});
    candidates.push_back({[] { return true; },
                          std::make_unique<XlsxSpreadsheet>(folder, waiting_, [](const auto& file) {
                            fs::remove_all(file.parent_path());
                          })});
    return std::make_unique<ChosenSpreadsheet>(std::move(candidates));
  }

  void Set_Gate() {
    auto* gate = static_cast<void (**)()>(
        Function_Of_Plug_In(program_.folder / "norvane_office.so", "norvane_office_gate"));
    ASSERT_NE(gate, nullptr);
    *gate = Gate;
  }

  TestWaiting waiting_;
  UserOffice office_;
  // The one waits in vain for each office that was stopped, the other for any that starts slowly.
  OfficeProgram program_{OfficeProgram::PlugIn::kMissing, [this](const auto& folder) {
                           return Make(folder, std::chrono::seconds(4));
                         }};
  OfficeProgram undisturbed_{OfficeProgram::PlugIn::kMissing, [this](const auto& folder) {
                               return Make(folder, std::chrono::seconds(60));
                             }};
};

TEST_F(Chaos, LeavesTheProgramAliveWithAllItsLines) {
  const int exports = Wanted("CHAOS_EXPORTS", 8);
  for (const char* thickness : {"20", "30", "40"}) program_.Add_Pipe(thickness);
  program_.spreadsheet().GetObject();  // loads the plug-in
  program_.spreadsheet().Release();
  Set_Gate();
  const auto lines = program_.State().Calc_List;
  std::mt19937 chance(static_cast<unsigned>(Wanted("CHAOS_SEED", 1)));
  int happened = 0;
  for (int i = 0; i < exports; ++i) {
    happening = kHappenings[static_cast<std::size_t>(i) % std::size(kHappenings)];
    std::thread other;
    if (chance() % 3 == 0) {
      // At any moment, which may be one in the middle of a call.
      calls_left = -1;
      const std::chrono::milliseconds moment(chance() % 1500);
      other = std::thread([moment] {
        std::this_thread::sleep_for(moment);
        happening.load()();
      });
      ++happened;
    } else {
      calls_left = static_cast<int>(chance() % 24);
    }
    program_.Export();
    if (other.joinable()) {
      other.join();
    } else {
      happened += calls_left < 0 ? 1 : 0;
    }
    calls_left = -1;
    ASSERT_FALSE(program_.program().Ended()) << "export " << i;
    ASSERT_EQ(program_.State().Calc_List, lines) << "export " << i;
    ASSERT_EQ(program_.Printed(), "") << "export " << i;
    office_.Kill();
  }
  EXPECT_GT(happened, exports / 3);
  std::printf("%d exports, in %d of them something happened\n", exports, happened);
  undisturbed_.Add_Pipe("20");
  undisturbed_.Export();
  EXPECT_EQ(office_.Cells("total.xls", "A1:Z20"), undisturbed_.Expected_Cells());
}

}  // namespace
}  // namespace norvane
