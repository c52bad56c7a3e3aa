#include "ui/file_drop.h"

#include <QDropEvent>
#include <QFile>
#include <QMimeData>
#include <QUrl>
#include <QWidget>
#include <filesystem>
#include <optional>

#include "core/file_taker.h"

namespace veldox {
namespace {

/// The file that is dragged; nothing for several ones, or for one that is elsewhere.
std::optional<std::filesystem::path> DraggedFile(const QMimeData& data) {
  const QList<QUrl> urls = data.urls();
  if (urls.size() != 1 || !urls.front().isLocalFile()) return std::nullopt;
  return std::filesystem::path(QFile::encodeName(urls.front().toLocalFile()).toStdString());
}

/// Watches a window, which owns it.
class DropFilter : public QObject {
 public:
  DropFilter(QWidget& window, FileTaker& taker) : QObject(&window), taker_(taker) {
    window.setAcceptDrops(true);
    window.installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    switch (event->type()) {
      case QEvent::DragEnter:
      case QEvent::DragMove: {
        auto& drag = static_cast<QDragMoveEvent&>(*event);
        if (!DraggedFile(*drag.mimeData())) return false;
        drag.setDropAction(Qt::CopyAction);
        drag.accept();
        return true;
      }
      case QEvent::Drop: {
        auto& drop = static_cast<QDropEvent&>(*event);
        const auto file = DraggedFile(*drop.mimeData());
        if (!file) return false;
        drop.setDropAction(Qt::CopyAction);
        drop.accept();
        // Whoever dragged it is not kept waiting for the boxes that follow.
        QMetaObject::invokeMethod(
            this, [this, file = *file] { taker_.OpenFile(file); }, Qt::QueuedConnection);
        return true;
      }
      default: return QObject::eventFilter(watched, event);
    }
  }

 private:
  FileTaker& taker_;
};

}  // namespace

void AcceptFiles(QWidget& window, FileTaker& taker) {
  new DropFilter(window, taker);
}

bool HoldsFiles(const QMimeData& data) {
  return data.hasUrls();
}

}  // namespace veldox
