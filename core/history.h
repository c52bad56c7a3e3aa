#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "core/journal.h"

namespace veldox {

struct ProgramContext;

/// A control that shows something else than before.
struct ControlChange {
  Control* control = nullptr;
  std::string before;
  std::string after;
};

/// What a control shows: a text, a caption, "on" or "off", the chosen index or row.
std::string ShownText(const Control& control);

/// The controls that show something else than a recording keeps, screen by screen in reading
/// order. Fields that are shown a second time and help sentences are left out.
/// @param first  the screen that comes first
std::vector<ControlChange> ChangesSince(Recording& recording, const Screen* first);

/// What is to be told of a dry run's or a step's changes beyond controls.
struct ShownSince {
  bool report = false;
  bool graph = false;
};
ShownSince ShownIn(const Recording& recording);

/// The steps that the user has taken, to be undone and done again. A step is an entry (all typing
/// into one field until it is left or a command runs), a click with all that it wrote, a pick, a
/// file that is read, and what else changes the data. Opening and closing screens is none: what
/// they change goes with the step before.
class History {
 public:
  enum class Kind {
    None,     ///< changes data, but is no step: opening and closing
    Entry,    ///< typing, which goes on until the field is left
    Command,  ///< a click
    Other,    ///< what is told by its caption alone
  };

  /// What the steps may take, in bytes; the oldest go where they take more.
  static constexpr std::size_t kMostBytes = 8U << 20;

  /// A step lasts as long as this lives. Within another one it is a part of that.
  class Step {
   public:
    /// A control is worked; nothing for one of a tool.
    Step(Control& control, Kind kind);
    /// @param title  what it is called
    Step(ProgramContext& context, Kind kind, std::string title = {});
    Step(const Step&) = delete;
    Step& operator=(const Step&) = delete;
    ~Step();

   private:
    History* history_;  ///< null where it is a part of another step
  };

  explicit History(ProgramContext& context) : context_(context) {}
  History(const History&) = delete;
  History& operator=(const History&) = delete;

  /// Steps count from now on.
  void Begin();
  /// What is done when a step was taken, and (told so) when steps were undone or done again.
  void SetListener(std::function<void(bool putBack)> listener) { listener_ = std::move(listener); }
  /// Gives the step that is being taken another title.
  void SetTitle(std::string title);
  /// The field that is typed into was left.
  void EndEntry();
  /// The data were saved: every other state than the present one counts as changed.
  void Saved();

  /// Take the last step back, or take it again; nothing where there is none.
  void Undo();
  void Redo();
  /// Undoes or redoes until so many steps are done.
  void GoTo(std::size_t done);
  /// A field is typed into and has not been left since.
  bool IsTyping(const Control& control) const {
    return open_ && open_->kind == Kind::Entry && open_->control == &control;
  }
  /// Something that is no typing is going on: it may wait for an answer.
  bool isInStep() const { return open_ && open_->kind != Kind::Entry; }
  /// How many steps are done now.
  std::size_t done();
  /// All steps in words, those that were undone behind.
  std::vector<std::string> Told();
  std::size_t Bytes() const;

 private:
  friend class DryRun;
  struct TakenStep {
    Recording recording;
    std::string title;
    bool dirtyAfter;
  };
  struct OpenStep {
    Recording units;  ///< a change of the units that the values are held in, before it
    Recording recording;
    Kind kind;
    std::string title;
    Control* control;
    bool saves;  ///< the data are saved in it
  };

  bool Open(Kind kind, std::string title, Control* control);
  void Close();
  /// Ends what is going on so that steps can be undone; false while something is half done.
  bool LeaveOpen();
  /// What has changed since the last step goes with that.
  void Settle();
  /// What the shared values have changed by since goes into what is recorded now.
  void TakeBlock();
  void Exchange(TakenStep& step);
  std::string TitleOf(OpenStep& step) const;
  void Shorten();
  bool dirty() const;

  ProgramContext& context_;
  std::function<void(bool)> listener_;
  std::vector<TakenStep> steps_;
  std::size_t done_ = 0;
  bool dirtyAtStart_ = false;
  bool begun_ = false;
  Recording between_{Recording::Scope::Between};
  std::optional<OpenStep> open_;
};

}  // namespace veldox
