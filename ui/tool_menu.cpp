#include "ui/tool_menu.h"

#include <QMenu>
#include <utility>

#include "ui/qt_text.h"

namespace veldox {

bool AddTools(QMenu& menu, Control& control) {
  const auto& toolsOf = control.screen().context().toolsOf;
  if (!toolsOf) return false;
  std::vector<ControlTool> tools = toolsOf(control);
  if (tools.empty()) return false;
  if (!menu.isEmpty()) menu.addSeparator();
  for (ControlTool& tool : tools) {
    menu.addAction(ToQt(tool.caption), [open = std::move(tool.open)] { open(); });
  }
  return true;
}

bool ShowToolMenu(Control& control, const QPoint& place) {
  QMenu menu;
  if (!AddTools(menu, control)) return false;
  menu.exec(place);
  return true;
}

}  // namespace veldox
