#include "ui/window_place.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <algorithm>

#include "ui/screen_window.h"

namespace veldox {
namespace {

/// Where somebody takes hold of a window, from its corner.
constexpr QPoint kHandle(40, 10);

}  // namespace

WindowPlace PlaceOf(const QWidget& window, bool sizedByUser) {
  const bool maximized = window.isMaximized();
  const QRect normal = maximized ? window.normalGeometry() : window.geometry();
  const QPoint corner = maximized ? normal.topLeft() : window.pos();
  const bool keepsSize = sizedByUser && !maximized;
  return {corner.x(), corner.y(), keepsSize ? normal.width() : 0, keepsSize ? normal.height() : 0,
          maximized};
}

void PutInPlace(QWidget& window, const WindowPlace& place) {
  if (place.width > 0 && place.height > 0) {
    window.resize(FittingSize(window, QSize(place.width, place.height)));
  }
  const QPoint corner(place.x, place.y);
  for (const QScreen* screen : QGuiApplication::screens()) {
    const QRect room = screen->availableGeometry();
    if (!room.contains(corner + kHandle)) continue;
    window.move(std::clamp(corner.x(), room.left(),
                           std::max(room.left(), room.right() + 1 - window.width())),
                std::clamp(corner.y(), room.top(),
                           std::max(room.top(), room.bottom() + 1 - window.height())));
  }
  if (place.maximized) window.setWindowState(window.windowState() | Qt::WindowMaximized);
}

}  // namespace veldox
