#pragma once

#include <memory>
#include <vector>

#include "cam/cam_files.h"
#include "cam/cam_tools.h"
#include "core/about_screen.h"
#include "core/shell.h"
#include "graph/grapher_screen.h"
#include "vehicle/file_tools.h"

namespace veldox {

class TorqueTablePanel;

/// The whole program but for its windows: makes all screens and wires them to the shell.
/// Nothing else knows all screens.
class Program {
 public:
  explicit Program(Host& host);

  ProgramContext& context() { return *context_; }
  Shell& shell() { return *shell_; }
  Form8& grapher() { return *grapher_; }

  /// Runs the start-up order.
  void Start();

 private:
  template <class S, class... Arguments>
  S& AddScreen(Arguments&&... arguments);
  /// The screens that work on the others, and where windows offer them.
  void AddTools();

  std::unique_ptr<ProgramContext> context_;
  std::unique_ptr<Shell> shell_;
  std::unique_ptr<CamFiles> camFiles_;
  std::unique_ptr<CamTools> camTools_;
  std::unique_ptr<FileTools> fileTools_;
  std::vector<std::unique_ptr<Screen>> screens_;
  Form8* grapher_ = nullptr;
  Form15* about_ = nullptr;
  TorqueTablePanel* torques_ = nullptr;
};

}  // namespace veldox
