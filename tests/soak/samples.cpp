#include "samples.h"

#include <malloc.h>

#include <QApplication>
#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <span>
#include <stdexcept>
#include <string>

// Its macros clash with names of Qt.
#include <X11/Xlib.h>
#include <X11/extensions/XRes.h>

namespace norvane {
namespace {

constexpr double kBytesOfKib = 1024;
constexpr std::size_t kLines = 100;  // of figures

/// KiB of its own and of its part in what is shared, without the pictures of its windows, which are
/// as large as the windows happen to be.
double Memory() {
  // What the allocator keeps from the largest moment so far is free, and would be counted.
  malloc_trim(0);
  std::ifstream file("/proc/self/smaps_rollup");
  std::map<std::string, double> figures;
  for (std::string word; file >> word;) {
    if (double kib = 0; word.starts_with("Pss") && file >> kib) figures[word] = kib;
  }
  if (!figures.contains("Pss:") || !figures.contains("Pss_Shmem:")) {
    throw std::runtime_error("/proc/self/smaps_rollup doesn't tell the memory");
  }
  return figures["Pss:"] - figures["Pss_Shmem:"];
}

double Heap() {
  const struct mallinfo2 info = mallinfo2();
  return static_cast<double>(info.uordblks + info.hblkhd) / kBytesOfKib;
}

double Handles() {
  namespace fs = std::filesystem;
  const fs::directory_iterator open("/proc/self/fd");
  return static_cast<double>(std::distance(fs::begin(open), fs::end(open)));
}

struct Figure {
  const char* name;
  double Sample::*value;
  /// Whether it comes and goes with windows, so that it is never quite the same.
  bool varies;
  /// So many may come for good.
  double once;
};

constexpr std::array<Figure, 5> kFigures{
    {{"memory KiB", &Sample::memory, true, 0},
     {"heap KiB", &Sample::heap, true, 0},
     {"handles", &Sample::handles, false, 0},
     {"widgets", &Sample::widgets, true, 0},
     // The display makes a shape of the mouse when it is first shown, and one may come late.
     {"X resources", &Sample::x_resources, true, 1}}};

Sample Mean(std::span<const Sample> samples) {
  Sample mean;
  for (const Figure& figure : kFigures) {
    double& sum = mean.*figure.value;
    for (const Sample& sample : samples) sum += sample.*figure.value;
    sum /= static_cast<double>(samples.size());
  }
  return mean;
}

/// Quarters count from 0.
Sample Mean_Of_Quarter(std::span<const Sample> samples, std::size_t quarter) {
  const std::size_t begin = samples.size() * quarter / 4;
  return Mean(samples.subspan(begin, samples.size() * (quarter + 1) / 4 - begin));
}

}  // namespace

Samples::Samples(std::size_t looks)
    : display_(XOpenDisplay(nullptr)), printed_together_(std::max<std::size_t>(looks / kLines, 1)) {
  // Memory that this here takes later would be found as a growth.
  all_.reserve(looks);
  int event = 0;
  int error = 0;
  if (display_ == nullptr || !XResQueryExtension(display_, &event, &error)) {
    throw std::runtime_error("no X display that tells its resources");
  }
  std::printf("%9s", "events");
  for (const Figure& figure : kFigures) std::printf("%16s", figure.name);
  std::puts("");
}

Samples::~Samples() { XCloseDisplay(display_); }

Sample Samples::Now(const QWidget& window) const {
  Sample sample;
  sample.memory = Memory();
  sample.heap = Heap();
  sample.handles = Handles();
  sample.widgets = static_cast<double>(QApplication::allWidgets().size());
  const XID one_of_its_own = window.winId();
  int count = 0;
  XResType* types = nullptr;
  XResQueryClientResources(display_, one_of_its_own, &count, &types);
  for (int i = 0; i < count; ++i) sample.x_resources += types[i].count;
  XFree(types);
  return sample;
}

void Samples::Look(int event, const QWidget& window) {
  all_.push_back(Now(window));
  if (all_.size() % printed_together_ != 0) return;
  const Sample mean = Mean(std::span(all_).last(printed_together_));
  std::printf("%9d", event);
  for (const Figure& figure : kFigures) std::printf("%16.1f", mean.*figure.value);
  std::puts("");
  std::fflush(stdout);
}

bool Samples::Print_Flat(double tolerance) const {
  std::printf("\n%-15s %14s %14s %9s %9s\n", "mean of", "second quarter", "last quarter", "growth",
              "allowed");
  const Sample second = Mean_Of_Quarter(all_, 1);
  const Sample last = Mean_Of_Quarter(all_, 3);
  bool flat = true;
  for (const Figure& figure : kFigures) {
    const double before = second.*figure.value;
    // Of the heap under a sanitizer nothing is known.
    const double scale = before > 0 ? before : 1;
    const double growth = (last.*figure.value - before) / scale;
    const double allowed = (figure.varies ? tolerance : 0) + figure.once / scale;
    std::printf("%-15s %14.1f %14.1f %8.2f%% %8.2f%%%s\n", figure.name, before, last.*figure.value,
                100 * growth, 100 * allowed, growth <= allowed ? "" : "  too much");
    flat = flat && growth <= allowed;
  }
  return flat;
}

}  // namespace norvane
