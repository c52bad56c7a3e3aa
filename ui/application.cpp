#include "ui/application.h"

#include <QIcon>
#include <QMessageBox>
#include <exception>

namespace veldox {

Application::Application(int& argc, char** argv) : QApplication(argc, argv) {
  setApplicationName(QStringLiteral("veldox"));
  setApplicationDisplayName(QString());
  // The desktop finds the program's entry, and its icon, by this name.
  setWindowIcon(QIcon::fromTheme(QStringLiteral("veldox")));
  setDesktopFileName(QStringLiteral("veldox"));
}

bool Application::notify(QObject* receiver, QEvent* event) {
  QString reason;
  try {
    return QApplication::notify(receiver, event);
  } catch (const std::exception& error) {
    reason = QString::fromUtf8(error.what());
  } catch (...) {
    reason = QStringLiteral("unknown failure");
  }
  QMessageBox::critical(activeWindow(), QStringLiteral("VELDOX-Math-Formula-Calculator"),
                        QStringLiteral("The last action could not be finished: ") + reason);
  return true;
}

}  // namespace veldox
