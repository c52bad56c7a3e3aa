#include "program/program.h"

#include "engine/form1.h"

namespace veldox {

template <class S>
S& Program::AddScreen() {
  auto screen = std::make_unique<S>(*context_);
  S& added = *screen;
  screens_.push_back(std::move(screen));
  shell_->Add(added);
  return added;
}

Program::Program(Host& host)
    : context_(std::make_unique<ProgramContext>(host)), shell_(std::make_unique<Shell>(*context_)) {
  AddScreen<Form1>();
  about_ = &AddScreen<Form15>();
}

void Program::Start() {
  shell_->Start();
  about_->SetLines(shell_->VersionLine(), shell_->DateLine());
}

}  // namespace veldox
