#include "core/dry_run.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "core/differing_lines.h"

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

bool DryRun::ChangesValues() {
  context_.journal.TakeBlockInto(recording_);
  return context_.journal.Differs(recording_);
}

bool DryRun::ChangesAgain(const std::function<bool()>& again) {
  Journal& journal = context_.journal;
  journal.TakeBlockInto(recording_);
  Recording second(Recording::Scope::DryRun);
  journal.Record(&second);
  const bool done = again();
  journal.TakeBlockInto(second);
  const bool changes = journal.Differs(second);
  journal.Swap(second);
  journal.Record(&recording_);
  return !done || changes;
}

Preview PreviewOf(Command& command, std::optional<std::chrono::microseconds> limit) {
  Preview preview;
  if (!command.isBuilt() || !command.enabled()) {
    preview.error = "This command cannot be used now.";
    return preview;
  }
  DryRun run(command.screen().context());
  if (limit) run.SetLimit(*limit);
  const auto start = std::chrono::steady_clock::now();
  // A field that keeps the keyboard keeps the click as well.
  const bool done = (!command.Reachable() || command.screen().MoveFocus(&command)) && command.Run();
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
    if (preview.changes.empty()) preview.unshown = run.ChangesValues();
    const bool saysNothing = preview.changes.empty() && preview.notes.empty() && !preview.report &&
                             !preview.graph && !preview.unshown;
    if (saysNothing && !run.log().sentence.empty()) preview.notes.push_back(run.log().sentence);
  }
  return preview;
}

namespace {

/// How large a change is beside the number it changes; texts that are no numbers come last.
double SizeOf(const ControlChange& change) {
  const DecimalMark mark = change.control->screen().mark();
  if (!IsNumber(change.after, mark)) return -1;
  if (!IsNumber(change.before, mark)) return std::numeric_limits<double>::infinity();
  const double before = ParseNumber(change.before, mark);
  const double after = ParseNumber(change.after, mark);
  if (before == after) return 0;
  return before == 0 ? std::numeric_limits<double>::infinity()
                     : std::abs((after - before) / before);
}

std::string TellChange(const ControlChange& change) {
  const Control& control = *change.control;
  const auto told = [](const std::string& text) {
    return text.find_first_not_of(' ') == std::string::npos ? std::string("blank")
                                                            : text.substr(0, text.find('\r'));
  };
  // Of what shows its caption, that is what changes.
  const bool isCaption =
      control.kind() == ControlKind::Label || control.kind() == ControlKind::Command;
  std::string line = isCaption ? std::string{} : control.PlainCaption();
  if (!line.empty()) line += ' ';
  const auto [before, after] = DifferingLines(change.before, change.after);
  line += told(before) + " to " + told(after);
  if (control.kind() == ControlKind::Field) {
    const auto& field = static_cast<const Field&>(control);
    const std::string_view unit = UnitSign(field.unit(), field.screen().metric());
    if (!unit.empty() && IsNumber(change.after, field.screen().mark())) {
      line += ' ';
      line += unit;
    }
  }
  return line;
}

}  // namespace

std::string TellPreview(const Preview& preview,
                        const std::function<bool(const std::string&)>& fits) {
  if (!preview.error.empty()) return preview.error.substr(0, preview.error.find('\r'));
  if (preview.ranOutOfTime) return "It takes too long to be told before.";
  std::vector<const ControlChange*> changes;
  for (const ControlChange& change : preview.changes) changes.push_back(&change);
  std::stable_sort(
      changes.begin(), changes.end(),
      [](const ControlChange* a, const ControlChange* b) { return SizeOf(*a) > SizeOf(*b); });
  std::vector<std::string> pieces;
  if (preview.report) pieces.emplace_back("report");
  if (preview.graph) pieces.emplace_back("graph");
  for (const ControlChange* change : changes) pieces.push_back(TellChange(*change));
  for (const std::string& note : preview.notes) {
    pieces.push_back("note: " + note.substr(0, note.find('\r')));
  }
  if (pieces.empty() && preview.unshown) return "It changes values that no field shows.";
  if (pieces.empty()) return "It changes nothing.";
  std::string line;
  for (std::size_t i = 0; i < pieces.size(); ++i) {
    const std::string longer = line + (i == 0 ? "" : ", ") + pieces[i];
    const std::size_t left = pieces.size() - i - 1;
    const bool hasRoom =
        fits(left == 0 ? longer : longer + ", and " + std::to_string(left) + " more");
    if (!hasRoom && i > 0) return line + ", and " + std::to_string(left + 1) + " more";
    line = longer;
  }
  return line;
}

}  // namespace veldox
