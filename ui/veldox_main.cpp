#include "program/program.h"
#include "ui/application.h"
#include "ui/qt_host.h"
#include "ui/theme.h"
#include "ui/window_manager.h"

int main(int argc, char** argv) {
  veldox::Application app(argc, argv);
  veldox::ApplyTheme(app, veldox::Theme::System);
  veldox::QtHost host;
  veldox::Program program(host);
  veldox::WindowManager windows(program.shell());
  program.Start();
  return program.shell().ended() ? 0 : veldox::Application::exec();
}
