#pragma once

#include <cstdint>

#include "screen/model/form.h"

namespace norvane {

struct Module1;

/// The tags of forms that steer the splash screen's timer: it runs until a form has the second one.
inline constexpr const char* kTimers = "timers";
inline constexpr const char* kNoTimers = "no timers";

/// The splash screen, whose third tick hands over to the main screen.
class About : public Form {
 public:
  explicit About(Module1& module1);

  void Load() override;

  CaptionField Label1{*this, "Label1"};  ///< title and version
  TickTimer Timer1{*this, "Timer1"};

  std::int16_t Tick_Count = 0;

 private:
  void Tick();

  Module1& module1_;
};

/// Shows the splash screen in the middle of the screen.
/// @param module1 of the program
void Show_Splash(Module1& module1);

}  // namespace norvane
