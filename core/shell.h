#pragma once

#include <filesystem>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/parameter_file.h"
#include "core/screen.h"
#include "core/title_animation.h"

namespace veldox {

class Shell;

enum class MenuKind { Submenu, Separator, Screen, Action };

/// One item of the menu tree. The table lists the items in the order of the menus.
struct MenuItem {
  std::string_view name;
  std::string_view caption;
  std::string_view parent{};  ///< the submenu it stands in, empty for the bar
  MenuKind kind = MenuKind::Action;
  std::string_view screen{};  ///< the screen it opens
  void (Shell::*action)() = nullptr;
};

/// A button of the launcher in the main window's body.
struct LauncherItem {
  std::string_view subject;
  std::string_view menuItem;
  std::string_view text;
};

/// Told what happens to the main form as a whole.
class ShellFace {
 public:
  virtual ~ShellFace() = default;
  /// Captions or switches of menu items have changed.
  virtual void MenuChanged() = 0;
  /// Exit has run: all windows close and the program ends.
  virtual void Ended() = 0;
};

/// The main form: menu, opening and closing of screens, dirty flag, start-up and
/// shutdown order. It computes nothing itself.
class Shell : public Screen {
 public:
  /// Marks an Exit that the window's close box asked for.
  static constexpr std::int16_t kWindowCloseMarker = 12345;

  explicit Shell(ProgramContext& context);

  /// Adds a screen; all screens are added before Start.
  void Add(Screen& screen) { screens_.push_back(&screen); }
  const std::vector<Screen*>& screens() const { return screens_; }
  /// A screen by its form name, the main form among them; null when there is none.
  Screen* FindScreen(std::string_view name);
  /// A control by "Form1.Text3"; null when there is none.
  Control* FindControl(std::string_view qualifiedName);

  /// Runs the start-up order. Message boxes and the start-up file come from the host.
  void Start();
  bool ended() const { return ended_; }
  void SetShellFace(ShellFace* face) { shellFace_ = face; }

  static std::span<const MenuItem> Menu();
  static std::span<const LauncherItem> Launcher();
  static const MenuItem* FindMenuItem(std::string_view name);
  std::string MenuCaption(const MenuItem& item) const;
  /// False for items whose screen or panel is not there yet.
  bool MenuEnabled(const MenuItem& item);
  /// Chooses a menu item; nothing for one that is disabled.
  void Choose(const MenuItem& item);

  /// Opens a screen as its menu item does.
  void Open(Screen& screen);
  /// What else is done when the menu has opened a screen.
  void SetOpenListener(std::function<void(Screen&)> listener) { opened_ = std::move(listener); }
  /// The main window's close box.
  void CloseWindow();
  /// The main window was minimised.
  void Minimised() { block().OptionFieldActive = 0; }

  /// Runs the platform's font dialog. @throws CommandError (Cancelled)
  FontChoice PickFont();
  /// Runs the platform's colour dialog; the colour as decimal text.
  /// @throws CommandError (Cancelled)
  std::string PickColor();

  const std::string& VersionLine() const { return versionLine_; }
  const std::string& DateLine() const { return dateLine_; }
  ParameterFile& parameterFile() { return parameterFile_; }
  TitleAnimation& titleAnimation() { return titleAnimation_; }
  Control* HelpPlace() override { return &Label77; }
  void ClearFields() override;

  // Menu actions
  void Read();
  void Write();
  void Notes();
  void Clear();
  void Metric();
  void Print_CI();
  void ScrRes();
  void Exit();

 private:
  void DetectDecimalMark();
  void ConvertDefaultsToComma();
  void BuildVersionLines();
  void DetectScreenSize();
  void ProbeLargeScreenFile();
  void ProbeFullScreenFile();
  void InitParameterBlock();
  void ReadStartUpFile();
  void SaveNotes();
  void DropNotes();
  Button Question(const std::string& text, std::vector<Button> buttons);
  void Inform(const std::string& text, Icon icon = Icon::Information);
  std::filesystem::path AskParameterFile(FileDialog::Kind kind);
  void ShowFile(const std::filesystem::path& path, int records, const char* done);
  void TellMenuChanged();

  std::vector<Screen*> screens_;
  ShellFace* shellFace_ = nullptr;
  std::function<void(Screen&)> opened_;
  TitleAnimation titleAnimation_;
  ParameterFile parameterFile_;
  std::string versionLine_;
  std::string dateLine_;
  bool ended_ = false;
  int widthLimit_ = 0;   ///< pixels a screen may be scaled to
  int heightLimit_ = 0;  ///< pixels a screen may be scaled to

 public:
  // The title, its name line for the parameter file, and the help line
  Frame TitleFrame{*this, "TitleFrame", ""};
  Label Label1{TitleFrame, "Label1", "V"};
  Label Label2{TitleFrame, "Label2", "E"};
  Label Label3{TitleFrame, "Label3", "L"};
  Label Label4{TitleFrame, "Label4", "D"};
  Label Label5{TitleFrame, "Label5", "O"};
  Label Label6{TitleFrame, "Label6", "X"};
  Label Label21{TitleFrame, "Label21", "Math Formula Calculator"};
  Label Label22{TitleFrame, "Label22", "Siostek"};
  Label Label8{TitleFrame, "Label8", ""};
  Label Label77{TitleFrame, "Label77", ""};

  // Notes of the parameter file
  Frame Frame12{*this, "Frame12", "Edit Parameter File Notes"};
  TextArea Text22{Frame12, "Text22", "Notes"};
  Command Command11{Frame12, "Command11", "Exit / Save Notes",
                    "Keep the notes as they stand here and close this panel.", &Shell::SaveNotes};
  Command Command12{Frame12, "Command12", "Exit / Don't Save Notes",
                    "Close this panel and leave the notes as they were.", &Shell::DropNotes};

  // Columns of delimited files that the tools convert
  Frame Frame8{*this, "Frame8", "Fields of a Delimited File"};
  Field Text13{Frame8, "Text13", "Field for X Axis or RPM", "1", KeyRule::Digits};
  Field Text12{Frame8, "Text12", "Field for Y Axis / Torque / HP", "2", KeyRule::Digits};
  Field Text11{Frame8, "Text11", "Field Separator / Delimiter --  Use A CAPITAL T for a TAB", "",
               KeyRule::AnyText};
  Field Text15{Frame8, "Text15", "Field for Fuel lbs/hr", "3", KeyRule::Digits};
  Field Text16{Frame8, "Text16", "Field for BSFC", "4", KeyRule::Digits};
  Field Text17{Frame8, "Text17", "Field for Air / Fuel Ratio", "5", KeyRule::Digits};

  // Lists of the appearance options
  Frame OptionFrame{*this, "OptionFrame", "User Selectable Entry GUI Options"};
  ComboList Combo3{OptionFrame, "Combo3", "Alignment for Entry Text"};
  ComboList Combo4{OptionFrame, "Combo4", "Entry Text Box Border Style"};
  ComboList Combo5{OptionFrame, "Combo5", "Option/Check Box Border Style"};
  ComboList Combo6{OptionFrame, "Combo6", "Color"};
};

}  // namespace veldox
