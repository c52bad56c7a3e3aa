#include <cstdio>
#include <string>
#include <vector>

#include "program/file_argument.h"
#include "program/program.h"
#include "ui/application.h"
#include "ui/desktop_portal.h"
#include "ui/qt_host.h"
#include "ui/theme.h"
#include "ui/window_manager.h"

int main(int argc, char** argv) {
  const veldox::FileArgument argument =
      veldox::ParseFileArgument(std::vector<std::string>(argv + 1, argv + argc));
  if (!argument.wrong.empty()) {
    std::fprintf(stderr, "veldox: %s\nusage: veldox [FILE]\n", argument.wrong.c_str());
    return 2;
  }
  // The toolkit has options of its own, which are none of the program's.
  int one = 1;
  veldox::Application app(one, argv);
  veldox::ApplyTheme(app, veldox::Theme::System);
  veldox::QtHost host;
  veldox::Program program(host);
  veldox::WindowManager windows(program.shell());
  if (veldox::HasSessionBus()) windows.theme().FollowDesktop(QDBusConnection::sessionBus());
  program.Start();
  if (!argument.file.empty()) program.shell().OpenFile(argument.file);
  return program.shell().ended() ? 0 : veldox::Application::exec();
}
