#include <exception>
#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

#include "driver/headless_platform.h"
#include "driver/script.h"
#include "host/failed_writes.h"
#include "host/folder.h"
#include "host/program_start.h"

namespace {

constexpr int kUsage = 2;
constexpr int kFailed = 1;

/// The decimal sign that the arguments behind the folder ask for, or 0 when they aren't understood.
char Decimal_Separator(const std::vector<std::string>& arguments) {
  if (arguments.size() == 1) return '.';
  if (arguments.size() != 3 || arguments[1] != "--locale") return 0;
  if (arguments[2] == "point") return '.';
  return arguments[2] == "comma" ? ',' : '\0';
}

int Play(int argc, char** argv) {
  const std::vector<std::string> arguments = norvane::Arguments(argc, argv);
  const char decimal_separator = arguments.empty() ? '\0' : Decimal_Separator(arguments);
  if (decimal_separator == 0 || !std::filesystem::is_directory(norvane::To_Path(arguments[0]))) {
    std::cerr << "usage: norvane-driver FOLDER [--locale point|comma] < script > output\n";
    return kUsage;
  }
  norvane::HeadlessPlatform platform(norvane::To_Path(arguments[0]), decimal_separator, std::cout);
  norvane::Script script(platform, std::cin, std::cout, std::cerr);
  return static_cast<int>(script.Run());
}

}  // namespace

int main(int argc, char** argv) {
  norvane::Let_Writes_Fail();
  norvane::Let_Streams_Be_Bytes();
  try {
    return Play(argc, argv);
  } catch (const std::exception& problem) {
    // The program tells of its own failures; this one is the driver's.
    std::cerr << "norvane-driver: error: " << problem.what() << '\n';
    return kFailed;
  }
}
