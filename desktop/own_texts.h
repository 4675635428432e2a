#pragma once

#include <QString>

#include "frame/text_id.h"

namespace norvane {

class Desktop;

/// One of the front end's own texts in the current language, in English where the language's file
/// lacks it.
QString Own_Text(const Desktop& desktop, TextId text);

}  // namespace norvane
