#pragma once

#include "core/screen.h"

class QWidget;

namespace veldox {

/// Makes the widget that a screen shows beside its frames; null for a screen that needs
/// no face of its own.
QWidget* MakeOwnFace(Screen& screen, QWidget* parent);

}  // namespace veldox
