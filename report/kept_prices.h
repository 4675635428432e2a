#pragma once

#include <functional>

#include "study/prices.h"

namespace norvane {

class Files;

/// The prices of the program's folder as they are now; without the file, none.
/// @param files of the program's folder
Prices Kept_Prices(const Files& files);

/// Changes the prices in their file, as it is at that moment: another program's changes stay.
/// Silent where the folder can't be written to.
/// @param files of the program's folder
/// @param change what is to become of them
void Change_Prices(Files& files, const std::function<void(Prices&)>& change);

}  // namespace norvane
