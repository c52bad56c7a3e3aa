#include "core/dry_run.h"

#include <cfenv>
#include <utility>

namespace veldox {

DryRun::DryRun(ProgramContext& context) : context_(context), marks_(context.block) {
  context_.history.TakeBlock();
  before_ = context_.journal.Record(&recording_);
  context_.gate.SetLog(&log_);
}

DryRun::~DryRun() {
  PutBack();
  context_.gate.SetLog(nullptr);
  context_.journal.Record(before_);
}

void DryRun::PutBack() {
  context_.journal.TakeBlockInto(recording_);
  context_.journal.Swap(recording_);
  static_cast<ProgramMarks&>(context_.block) = marks_;
  // Emptied in its place: the journal records into it.
  recording_ = Recording(Recording::Scope::DryRun);
}

Preview PreviewOf(Command& command, std::optional<std::chrono::microseconds> limit) {
  Preview preview;
  if (!command.isBuilt() || !command.enabled()) {
    preview.error = "This command cannot be used now.";
    return preview;
  }
  std::fenv_t floats{};
  std::feholdexcept(&floats);
  {
    DryRun run(command.screen().context());
    if (limit) run.SetLimit(*limit);
    const auto start = std::chrono::steady_clock::now();
    const bool done = command.Run();
    preview.took = std::chrono::duration_cast<std::chrono::microseconds>(
        std::chrono::steady_clock::now() - start);
    preview.error = run.log().error;
    preview.notes = run.log().notes;
    preview.ranOutOfTime = run.log().ranOutOfTime;
    if (!done && preview.error.empty() && !preview.ranOutOfTime) {
      // It has told itself why it ends.
      preview.error = preview.notes.empty() ? "It has nothing to do." : preview.notes.back();
      if (!preview.notes.empty()) preview.notes.pop_back();
    }
    if (preview.error.empty() && !preview.ranOutOfTime) {
      preview.changes = ChangesSince(run.recording(), &command.screen());
      const ShownSince shown = ShownIn(run.recording());
      preview.report = shown.report;
      preview.graph = shown.graph;
    }
  }
  std::fesetenv(&floats);
  return preview;
}

}  // namespace veldox
