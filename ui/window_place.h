#pragma once

#include "core/settings.h"

class QWidget;

namespace veldox {

/// Where a window stands.
/// @param sizedByUser  it has another size than it takes itself
WindowPlace PlaceOf(const QWidget& window, bool sizedByUser);

/// Puts a window where it stood, as far as the desktop still has that place.
void PutInPlace(QWidget& window, const WindowPlace& place);

}  // namespace veldox
