#include "samples.h"

#include <malloc.h>

#include <QApplication>
#include <QPixmapCache>
#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <span>
#include <stdexcept>
#include <string>
#include <utility>

// Its macros clash with names of Qt.
#include <X11/Xlib.h>
#include <X11/extensions/XRes.h>

namespace norvane {
namespace {

constexpr double kBytesOfKib = 1024;

double Memory() {
  std::ifstream file("/proc/self/smaps_rollup");
  for (std::string word; file >> word;) {
    double kib = 0;
    if (word == "Pss:" && file >> kib) return kib;
  }
  throw std::runtime_error("/proc/self/smaps_rollup doesn't tell the memory");
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

using Figure = double Sample::*;

constexpr std::array<std::pair<const char*, Figure>, 6> kFigures{
    {{"memory KiB", &Sample::memory},
     {"heap KiB", &Sample::heap},
     {"handles", &Sample::handles},
     {"widgets", &Sample::widgets},
     {"X resources", &Sample::x_resources},
     {"X pictures KiB", &Sample::x_picture_kib}}};

Sample Mean(std::span<const Sample> samples) {
  Sample mean;
  for (const auto& [name, figure] : kFigures) {
    for (const Sample& sample : samples) mean.*figure += sample.*figure;
    mean.*figure /= static_cast<double>(samples.size());
  }
  return mean;
}

/// Quarters count from 0.
Sample Mean_Of_Quarter(std::span<const Sample> samples, std::size_t quarter) {
  const std::size_t begin = samples.size() * quarter / 4;
  return Mean(samples.subspan(begin, samples.size() * (quarter + 1) / 4 - begin));
}

}  // namespace

Samples::Samples() : display_(XOpenDisplay(nullptr)) {
  int event = 0;
  int error = 0;
  if (display_ == nullptr || !XResQueryExtension(display_, &event, &error)) {
    throw std::runtime_error("no X display that tells its resources");
  }
  std::printf("%9s", "events");
  for (const auto& [name, figure] : kFigures) std::printf("%16s", name);
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
  unsigned long bytes = 0;
  XResQueryClientPixmapBytes(display_, one_of_its_own, &bytes);
  sample.x_picture_kib = static_cast<double>(bytes) / kBytesOfKib;
  return sample;
}

void Samples::Look(int event, const QWidget& window) {
  constexpr std::size_t kLooks = 10;
  // Qt's store of painted parts fills for hours, with a part for each size of a button.
  QPixmapCache::clear();
  looks_.push_back(Now(window));
  if (looks_.size() < kLooks) return;
  all_.push_back(Mean(looks_));
  looks_.clear();
  std::printf("%9d", event);
  for (const auto& [name, figure] : kFigures) std::printf("%16.1f", all_.back().*figure);
  std::puts("");
  std::fflush(stdout);
}

bool Samples::Print_Flat(double tolerance) const {
  std::printf("\n%-15s %14s %14s %9s %9s\n", "mean of", "second quarter", "last quarter", "growth",
              "allowed");
  const Sample second = Mean_Of_Quarter(all_, 1);
  const Sample last = Mean_Of_Quarter(all_, 3);
  bool flat = true;
  for (const auto& [name, figure] : kFigures) {
    const double growth = last.*figure / second.*figure - 1;
    const double allowed = figure == &Sample::handles ? 0 : tolerance;
    std::printf("%-15s %14.1f %14.1f %8.2f%% %8.2f%%%s\n", name, second.*figure, last.*figure,
                100 * growth, 100 * allowed, growth <= allowed ? "" : "  too much");
    flat = flat && growth <= allowed;
  }
  return flat;
}

}  // namespace norvane
