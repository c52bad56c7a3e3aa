#pragma once

#include "core/screen.h"

class QMenu;
class QPoint;

namespace veldox {

/// Adds what can be done with a control beside its own work to its context menu.
/// False where there is nothing.
bool AddTools(QMenu& menu, Control& control);

/// Shows a context menu of these alone. False where there is nothing.
bool ShowToolMenu(Control& control, const QPoint& place);

}  // namespace veldox
