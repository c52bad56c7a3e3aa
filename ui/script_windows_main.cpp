#include <QString>
#include <cstdio>

#include "script/arguments.h"
#include "script/runner.h"
#include "ui/application.h"
#include "ui/theme.h"
#include "ui/window_driver.h"

namespace {

/// A script's output is its own: what the toolkit remarks about the platform is no part of it.
void DropRemarks(QtMsgType type, const QMessageLogContext&, const QString& text) {
  if (type != QtCriticalMsg && type != QtFatalMsg) return;
  std::fprintf(stderr, "veldox-script: %s\n", qPrintable(text));
}

/// Scripts run without a display as well, on windows that nobody sees.
void ChoosePlatform() {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") && qEnvironmentVariableIsEmpty("DISPLAY") &&
      qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
  }
}

}  // namespace

int main(int argc, char** argv) {
  std::string wrong;
  const auto arguments =
      veldox::ParseScriptArguments(std::vector<std::string>(argv + 1, argv + argc), wrong);
  if (!arguments) {
    std::fprintf(stderr, "veldox-script: %s\n%s\n", wrong.c_str(), veldox::kScriptUsage);
    return 2;
  }
  qInstallMessageHandler(DropRemarks);
  ChoosePlatform();
  veldox::Application app(argc, argv);
  veldox::ApplyTheme(app, veldox::Theme::System);
  // A script closes and opens windows as it likes; its last line ends the program.
  veldox::Application::setQuitOnLastWindowClosed(false);
  return veldox::RunScriptFile(*arguments, [](veldox::Program& program) {
    return std::make_unique<veldox::WindowDriver>(program.shell());
  });
}
