#pragma once

#include <QWidget>
#include <cstddef>
#include <vector>

struct _XDisplay;

namespace norvane {

/// What the process holds.
struct Sample {
  double memory = 0;   ///< KiB of its own and of its part in what is shared (PSS)
  double heap = 0;     ///< KiB that are allocated
  double handles = 0;  ///< open files, sockets and the like
  double widgets = 0;
  double x_resources = 0;    ///< windows, pictures and so on that the display keeps for it
  double x_picture_kib = 0;  ///< KiB of pictures that the display keeps for it
};

/// Looks at this process, and tells whether it grows.
class Samples {
 public:
  Samples();
  ~Samples();
  Samples(const Samples&) = delete;
  Samples& operator=(const Samples&) = delete;

  /// A sample is the mean of ten looks, since windows come and go. `window` is any window of the
  /// process that was shown.
  void Look(int event, const QWidget& window);

  /// Compares the last quarter of the samples with the second one, prints both, and tells whether
  /// they are the same. Memory may differ by `tolerance`, a fraction; so may what comes and goes
  /// with windows.
  [[nodiscard]] bool Print_Flat(double tolerance) const;

 private:
  Sample Now(const QWidget& window) const;

  _XDisplay* display_;
  std::vector<Sample> looks_;  ///< behind the last sample
  std::vector<Sample> all_;
};

}  // namespace norvane
