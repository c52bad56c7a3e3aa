#pragma once

#include <QGroupBox>
#include <functional>
#include <string_view>
#include <vector>

#include "core/shell.h"
#include "ui/window_look.h"

class QGridLayout;

namespace veldox {

/// The screens by subject: a framed group a subject, a button a screen.
class Launcher : public QWidget {
 public:
  using Chooser = std::function<void(const MenuItem&)>;

  Launcher(Shell& shell, const Chooser& choose, const WindowLook& look, QWidget* parent);

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  QGroupBox* AddGroup(std::string_view subject);
  void Arrange(int columns);

  QGridLayout* grid_;
  std::vector<QGroupBox*> groups_;
  int columns_ = 0;
};

}  // namespace veldox
