#pragma once

#include <QWidget>
#include <cstddef>
#include <vector>

struct _XDisplay;

namespace norvane {

/// What the process holds.
struct Sample {
  double memory = 0;   ///< KiB in memory (PSS), without the pictures of windows
  double heap = 0;     ///< KiB that are allocated
  double handles = 0;  ///< open files, sockets and the like
  double widgets = 0;
  double x_resources = 0;  ///< windows, pictures and so on that the display keeps for it
};

/// Looks at this process, and tells whether it grows.
class Samples {
 public:
  /// `looks` is how many are going to be taken.
  explicit Samples(std::size_t looks);
  ~Samples();
  Samples(const Samples&) = delete;
  Samples& operator=(const Samples&) = delete;

  /// Takes a sample, and prints the mean of some now and then, since windows come and go. `window`
  /// is any window of the process that was shown.
  void Look(int event, const QWidget& window);

  /// Compares the last quarter of the samples with the second one, prints both, and tells whether
  /// they are the same. What comes and goes with windows may differ by `tolerance`, a fraction.
  [[nodiscard]] bool Print_Flat(double tolerance) const;

 private:
  Sample Now(const QWidget& window) const;

  _XDisplay* display_;
  std::size_t printed_together_;
  std::vector<Sample> all_;
};

}  // namespace norvane
