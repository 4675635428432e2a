#pragma once

#include <QDir>

namespace norvane {

/// A system without any font gets those that lie in the program's folder, in `fonts`.
void Use_Own_Fonts_At_Need(const QDir& program_folder);

}  // namespace norvane
