#include "user_office.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <ostream>
#include <sstream>
#include <thread>

namespace norvane {
namespace {

namespace fs = std::filesystem;
using std::chrono::steady_clock;

constexpr std::chrono::seconds kLongest{20};

std::string Home() { return std::getenv("HOME"); }

/// Looks every now and then until it holds; false when it doesn't within some seconds.
template <class Condition>
bool Comes_To_Hold(const Condition& condition) {
  const auto end = steady_clock::now() + kLongest;
  while (!condition()) {
    if (steady_clock::now() > end) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
  }
  return true;
}

std::string Bytes_Of(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

/// Whether the process is one of the office, in this home.
bool Is_Ours(const fs::path& process) {
  std::error_code error;
  const fs::path program = fs::read_symlink(process / "exe", error);
  if (error || program.filename() != "soffice.bin") return false;
  const std::string environment = '\0' + Bytes_Of(process / "environ");
  return environment.find('\0' + ("HOME=" + Home()) + '\0') != std::string::npos;
}

/// The sockets that a process holds, by their numbers.
bool Holds_Socket(pid_t process, const std::string& number) {
  std::error_code error;
  for (const auto& file :
       fs::directory_iterator("/proc/" + std::to_string(process) + "/fd", error)) {
    if (fs::read_symlink(file.path(), error) == "socket:[" + number + "]") return true;
  }
  return false;
}

bool Takes_Calls(pid_t process) {
  std::ifstream sockets("/proc/net/unix");
  for (std::string line; std::getline(sockets, line);) {
    if (line.find("SingleOfficeIPC") == std::string::npos) continue;
    std::istringstream words(line);
    const std::vector<std::string> parts(std::istream_iterator<std::string>(words), {});
    if (parts.size() > 6 && Holds_Socket(process, parts[6])) return true;
  }
  return false;
}

std::vector<SeenCell> To_Cells(const std::vector<std::string>& lines) {
  std::vector<SeenCell> cells;
  for (const std::string& line : lines) {
    std::istringstream parts(line);
    SeenCell cell;
    std::string weight;
    std::getline(parts, cell.name, '\t');
    std::getline(parts, cell.type, '\t');
    std::getline(parts, weight, '\t');
    std::getline(parts, cell.shown);
    cells.push_back(cell);
  }
  return cells;
}

}  // namespace

UserOffice::UserOffice() {
  Kill();
  // At its first start it makes a profile and starts anew, as another process.
  static const int made = std::system("soffice --headless --terminate_after_init >/dev/null 2>&1");
  EXPECT_EQ(made, 0);
}

UserOffice::~UserOffice() { Kill(); }

void UserOffice::Start_Ordinarily() {
  const int status = std::system("setsid soffice --norestore --calc >/dev/null 2>&1 </dev/null &");
  ASSERT_EQ(status, 0);
  ASSERT_TRUE(Comes_To_Hold([&] {
    const auto processes = Processes();
    return !processes.empty() && Takes_Calls(processes.front());
  }));
}

void UserOffice::Close_Window(const std::string& title) const {
  // Under a locale that the display's library doesn't know it finds no names.
  const std::string tool = "LC_ALL=C.UTF-8 xdotool ";
  const std::string focus =
      tool + "search --sync --onlyvisible --name '" + title + "' windowfocus --sync";
  EXPECT_EQ(std::system((focus + " && " + tool + "key alt+F4").c_str()), 0);
}

std::vector<pid_t> UserOffice::Running() {
  std::vector<pid_t> found;
  std::error_code error;
  for (const auto& process : fs::directory_iterator("/proc", error)) {
    if (Is_Ours(process.path())) found.push_back(std::stoi(process.path().filename().string()));
  }
  return found;
}

void UserOffice::Kill() {
  const auto processes = Processes();
  for (const pid_t process : processes) kill(process, SIGKILL);
  // It listens a little longer than its program can be seen.
  EXPECT_TRUE(Comes_To_Hold([&] {
    return std::none_of(processes.begin(), processes.end(), [](pid_t process) {
      return fs::exists("/proc/" + std::to_string(process));
    });
  }));
}

bool UserOffice::Ends() const {
  return Comes_To_Hold([&] { return Processes().empty(); });
}

std::vector<std::string> UserOffice::Probe(const std::string& arguments) const {
  const std::string command = std::string(PROBE) + " " + arguments;
  FILE* output = popen(command.c_str(), "r");
  std::string printed;
  for (int letter = fgetc(output); letter != EOF; letter = fgetc(output)) {
    printed.push_back(static_cast<char>(letter));
  }
  EXPECT_EQ(pclose(output), 0) << command;
  std::istringstream lines(printed);
  std::vector<std::string> all;
  for (std::string line; std::getline(lines, line);) all.push_back(line);
  return all;
}

std::vector<SeenCell> UserOffice::Cells(const std::string& name, const std::string& range) const {
  return To_Cells(Probe("cells " + name + " " + range));
}

std::vector<SeenCell> UserOffice::Cells_Of_File(const std::string& path,
                                                const std::string& range) const {
  return To_Cells(Probe("cells-of-file '" + path + "' " + range));
}

double SeenCell::Number() const {
  double number = 0;
  std::from_chars(shown.data(), shown.data() + shown.size(), number);
  return number;
}

void PrintTo(const SeenCell& cell, std::ostream* out) {
  *out << cell.name << ' ' << cell.type << ' ' << cell.shown;
}

}  // namespace norvane
