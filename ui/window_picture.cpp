#include "ui/window_picture.h"

#include <QShortcut>
#include <QWidget>
#include <algorithm>

#include "core/files.h"
#include "graph/image_export.h"

namespace veldox {
namespace {

/// True when a command of the screen has Alt+J for itself: it saves the picture then.
bool HasCommandWithTheKeys(const Screen& screen) {
  return std::any_of(screen.controls().begin(), screen.controls().end(),
                     [](const Control* control) {
                       return control->kind() == ControlKind::Command &&
                              control->caption().find("&J") != std::string::npos;
                     });
}

void SavePicture(Screen& screen) {
  screen.Perform([&] {
    const std::string& name = screen.tag().empty() ? screen.name() : screen.tag();
    const std::filesystem::path file = SaveWindowAsJpeg(screen, name);
    screen.ShowHelp("Saved as " + PathText(file.filename()));
  });
}

}  // namespace

void AddPictureKeys(QWidget& window, Screen& screen) {
  if (HasCommandWithTheKeys(screen)) return;
  auto* keys = new QShortcut(QKeySequence(Qt::ALT | Qt::Key_J), &window);
  QObject::connect(keys, &QShortcut::activated, &window, [&screen] { SavePicture(screen); });
}

}  // namespace veldox
