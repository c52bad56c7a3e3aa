#pragma once

#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace veldox {

class CheckBox;
class Command;
class Control;
class Screen;
struct ProgramContext;

/// Keeps the results of screens up to date: while the switch at the foot of a screen's window is
/// on, the screen's last command runs again after every entry. It is tried dry first, twice in a
/// row. Only a command that changes nothing the second time runs: one that writes what it reads
/// would add up. It must bring nothing into sight either, ask nothing and say nothing: a report or
/// a graph may be shown anew where it is in sight already. Else the switch says why it rests; and
/// where the command cannot, it says why. Results that an entry was not followed by are marked as
/// out of date.
class KeepCurrent {
 public:
  /// The control name of the switch; it belongs to no frame of its screen.
  static constexpr std::string_view kSwitchName = "KeepUpToDate";
  /// A command whose trial takes longer runs when nothing was entered for a while.
  static constexpr std::chrono::milliseconds kLongestTrial{16};
  static constexpr std::chrono::milliseconds kRest{300};
  /// A command that takes longer than this is not run by itself.
  static constexpr std::chrono::milliseconds kLongestRun{2000};

  explicit KeepCurrent(ProgramContext& context);
  KeepCurrent(const KeepCurrent&) = delete;
  KeepCurrent& operator=(const KeepCurrent&) = delete;
  ~KeepCurrent();

  /// The switch of a screen, whose help sentence tells how things stand; null for a screen
  /// without a command that works something out.
  CheckBox* SwitchOf(Screen& screen);
  bool IsOn(const Screen& screen) const;
  /// The forms whose switches are on.
  const std::set<std::string>& forms() const { return on_; }
  /// Turns the switches of these forms on, as they were at another time.
  void TurnOn(std::set<std::string> forms) { on_ = std::move(forms); }
  /// What is done when the user has turned a switch.
  void SetListener(std::function<void()> listener) { listener_ = std::move(listener); }

  /// Who calls Run when the present event is over, after a rest of this length. Without one
  /// whoever makes the entries calls Run.
  void SetScheduler(std::function<void(std::chrono::milliseconds)> scheduler) {
    scheduler_ = std::move(scheduler);
  }
  /// The user has typed into a control, turned or picked something. Nothing while all is off.
  void Entered(Control& control);
  /// A command was clicked and has done its work.
  void Ran(const Command& command);
  /// Other values have come as a whole: steps undone or done again, a file that was read, "Clear".
  void PutBack();
  /// Does what entries have left to be done.
  /// @param rested  nothing was entered for a while
  void Run(bool rested);
  /// A command runs by itself: the keyboard and the windows stay where they are.
  bool isRunning() const { return entered_ != nullptr; }
  /// The control whose entry a command follows now: what the user types is left as it is.
  bool IsEntered(const Control& control) const;

 private:
  struct Switch {
    std::unique_ptr<CheckBox> box;
    std::vector<Control*> results;  ///< of the last run
  };
  /// What a trial has found.
  struct Trial {
    std::string whyNot;  ///< empty where the command may run
    bool ranOutOfTime = false;
    std::chrono::steady_clock::duration took{};
  };

  void Turned(Screen& screen);
  /// False where it has to wait until nothing more is entered.
  bool Follow(Control& entered, bool rested);
  Trial Try(Command& command, Control& entered, std::chrono::milliseconds limit);
  void RunInPlace(Command& command, Control& entered);
  void MarkOutdated(Screen& screen, const Control& entered);
  /// Says how things stand.
  void Tell(Screen& screen, std::string sentence);
  void TellReady(Screen& screen);

  ProgramContext& context_;
  std::set<std::string> on_;
  std::map<Screen*, Switch> switches_;
  std::vector<Control*> due_;      ///< the last one entered of each screen
  std::set<const Command*> slow_;  ///< those that wait for a rest
  Control* entered_ = nullptr;
  std::function<void()> listener_;
  std::function<void(std::chrono::milliseconds)> scheduler_;
};

}  // namespace veldox
