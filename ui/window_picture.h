#pragma once

#include "core/screen.h"

class QWidget;

namespace veldox {

/// Gives a window the keys Alt+J, which save its picture as JPEG in the program's folder
/// and tell the file's name in the help place.
void AddPictureKeys(QWidget& window, Screen& screen);

}  // namespace veldox
