#include "desktop/own_fonts.h"

#include <QFontDatabase>
#include <algorithm>

namespace norvane {
namespace {

bool Has_Fonts() {
  // These three are listed even where nothing stands behind them.
  const QStringList stand_ins{"Monospace", "Sans Serif", "Serif"};
  const QStringList families = QFontDatabase::families();
  return std::any_of(families.begin(), families.end(),
                     [&](const QString& family) { return !stand_ins.contains(family); });
}

}  // namespace

void Use_Own_Fonts_At_Need(const QDir& program_folder) {
  const QDir fonts(program_folder.filePath("fonts"));
  if (!fonts.exists() || Has_Fonts()) return;
  for (const QString& name : fonts.entryList({"*.ttf"}, QDir::Files)) {
    QFontDatabase::addApplicationFont(fonts.filePath(name));
  }
}

}  // namespace norvane
