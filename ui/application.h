#pragma once

#include <QApplication>

namespace veldox {

/// The application: no failure crosses its event loop.
class Application : public QApplication {
 public:
  Application(int& argc, char** argv);

  bool notify(QObject* receiver, QEvent* event) override;
};

}  // namespace veldox
