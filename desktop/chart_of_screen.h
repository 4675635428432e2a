#pragma once

#include "desktop/chart.h"

namespace norvane {

class Desktop;
class Warmt;

/// The chart of what the main screen calculates: in heat loss the heat flow and the surface
/// temperature over the thickness; in condensation the thickness that is needed, the surface
/// temperature and the dew point over the humidity. Without lines where its results are blank.
Chart Chart_Of_Screen(Desktop& desktop, Warmt& warmt);

}  // namespace norvane
