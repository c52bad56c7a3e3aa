#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/appearance_panel.h"
#include "core/company_panel.h"
#include "core/delimited_columns_panel.h"
#include "core/file_comparison.h"
#include "core/file_taker.h"
#include "core/graph_options_panel.h"
#include "core/menu_table.h"
#include "core/notes_panel.h"
#include "core/parameter_file.h"
#include "core/screen.h"
#include "core/screen_printing.h"
#include "core/screen_scaling.h"
#include "core/settings.h"
#include "core/sheet_panel.h"
#include "core/steps_panel.h"
#include "core/title_animation.h"

namespace veldox {

/// Told what happens to the main form as a whole.
class ShellFace {
 public:
  virtual ~ShellFace() = default;
  /// Captions or switches of menu items have changed.
  virtual void MenuChanged() = 0;
  /// The fonts, colours or borders of all screens have changed.
  virtual void AppearanceChanged() = 0;
  /// Windows are to be light or dark otherwise.
  virtual void LookChanged() = 0;
  /// Another file is worked on, or its data were changed or saved.
  virtual void TitleChanged() = 0;
  /// Exit has run: all windows close and the program ends.
  virtual void Ended() = 0;
};

/// The main form: menu, opening and closing of screens, dirty flag, start-up and
/// shutdown order. It computes nothing itself.
class Shell : public Screen, public FileTaker {
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

  // The tables of core/menu_table.cpp
  static std::span<const MenuItem> Menu();
  static std::span<const LauncherItem> Launcher();
  /// An item by its control name; null when there is none.
  static const MenuItem* FindMenuItem(std::string_view name);
  std::string MenuCaption(const MenuItem& item) const;
  /// Whether an item shows a tick; nothing for one that never does.
  std::optional<bool> MenuTicked(const MenuItem& item) const;
  /// False for the place of a recent file that there is not.
  bool MenuVisible(const MenuItem& item) const;
  /// False for items whose screen or panel is not there yet.
  bool MenuEnabled(const MenuItem& item);
  /// Chooses a menu item; nothing for one that is disabled.
  void Choose(const MenuItem& item);

  /// Opens a screen as its menu item does.
  void Open(Screen& screen);
  /// The open screen that the user came to last, of those that tools can work on; null where none
  /// is open.
  Screen* FrontScreen() const;
  /// What else is done when the menu has opened a screen.
  void SetOpenListener(std::function<void(Screen&)> listener) { opened_ = std::move(listener); }
  /// What else is done when a parameter file was read, for what no field shows.
  void SetReadListener(std::function<void()> listener) { read_ = std::move(listener); }
  /// Reads a parameter file as the Read command does.
  void OpenFile(const std::filesystem::path& file) override;
  /// The given caption, the file that is worked on, and a mark while its data have changed.
  std::string WindowTitle() const;
  Settings& settings() { return settings_; }
  /// Shows a build sheet of screens in the main form, those that are not open as they would open.
  void ShowBuildSheet(const std::vector<Screen*>& screens);
  /// Compares the present values with those of a parameter file. Nothing is changed.
  /// @throws CommandError (File) for a file that cannot be read
  FileComparison CompareWith(const std::filesystem::path& file);
  /// Compares two parameter files. Nothing is changed.
  /// @throws CommandError (File) for a file that cannot be read
  FileComparison CompareTwo(const std::filesystem::path& here, const std::filesystem::path& there);
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
  bool UsesSharedValues() const override { return false; }
  void ClearFields() override;
  void Edited(const Control& control) override;

  void Hover(Control* control) override;

  /// The panels that take the launcher's place while they are shown.
  std::vector<ScreenPart*> Panels() {
    std::vector<ScreenPart*> panels{&notes,      &delimitedColumns, &graphOptions,
                                    &appearance, &company,          &companyPlace,
                                    &steps,      &sheetChoice,      &sheet};
    panels.insert(panels.end(), toolPanels_.begin(), toolPanels_.end());
    return panels;
  }
  /// Adds a panel of a tool that the shell has not itself; all are added before Start.
  void AddPanel(ScreenPart& panel) { toolPanels_.push_back(&panel); }
  /// Gives a menu item its work, where that is not the shell's own.
  void SetWork(std::string_view menuItem, Handler work) {
    works_.emplace(menuItem, std::move(work));
  }
  const ScreenScaling& scaling() const { return scaling_; }

  // Menu actions
  void Graph() { graphOptions.Open(); }
  void Read();
  void Write();
  void Notes() { notes.Open(); }
  void Undo() { context().history.Undo(); }
  void Redo() { context().history.Redo(); }
  void Steps() { steps.Open(); }
  void Build_Sheet() { sheetChoice.Open(); }
  void Compare_File();
  void Compare_Files();
  void Clear();
  void Metric();
  void Printer() { printing.SetUpPrinter(); }
  void Print_CI();
  void Fonts() { appearance.PickHelpFont(); }
  void BoxFColor() { appearance.PickHelpColor(); }
  void BoxColor() { appearance.PickHelpGround(); }
  void Classic_Lab() { appearance.UseClassicLabels(); }
  void Classic_Comm() { appearance.UseClassicCommands(); }
  void EntryFont() { appearance.PickEntryFont(); }
  void EntryAlig() { appearance.OpenAlignments(); }
  void T_B_Style() { appearance.OpenEntryBorders(); }
  void O_C_Style() { appearance.OpenOptionStyles(); }
  void LabelFont() { appearance.PickLabelFont(); }
  void LabelColor() { appearance.PickLabelColor(); }
  void CommandFont() { appearance.PickCommandFont(); }
  void FrameColor() { appearance.PickFrameGround(); }
  void QuitColor() { appearance.PickQuitGround(); }
  void Default_Look() { appearance.UseDefaultLook(); }
  void Co_Name() { company.Open(); }
  void Load_Co_Name() { company.Load(); }
  void Print_Head_Location() { companyPlace.Open(); }
  void Look_Light() { ChooseLook(LookChoice::Light); }
  void Look_Dark() { ChooseLook(LookChoice::Dark); }
  void Look_Desktop() { ChooseLook(LookChoice::Desktop); }
  void Handbook() { context().host.ShowHandbook(); }
  void LrgScrRes() { SetScreenSize(ScreenScaling::Mode::Large); }
  void FullScrRes() { SetScreenSize(ScreenScaling::Mode::Full); }
  void ScrRes();
  void Exit();

 private:
  void DetectDecimalMark();
  void ConvertDefaultsToComma();
  void BuildVersionLines();
  void ProbeLargeScreenFile();
  void ProbeFullScreenFile();
  void InitParameterBlock();
  void ReadStartUpFile();
  /// Reads a parameter file and shows what it has changed here. @return the records read
  /// @throws CommandError (File) when it cannot be opened; then nothing has changed
  int TakeFile(const std::filesystem::path& file);
  Button Question(const std::string& text, std::vector<Button> buttons);
  void Inform(const std::string& text, Icon icon = Icon::Information);
  /// Fills a screen from the shared values and shows it.
  void ShowAsOpened(Screen& screen);
  std::filesystem::path AskParameterFile(FileDialog::Kind kind);
  void ShowFile(const std::filesystem::path& path, int records, const char* done);
  /// What a parameter file holds, as it would be written again.
  FileContents ContentsOfFile(const std::filesystem::path& file);
  void ShowComparison(const FileComparison& comparison, const std::string& here,
                      const std::string& there);
  KeyPlace PlaceOfKey(const KeyDifference& difference);
  /// Shows what other values than those of controls have been put back.
  void ShowPutBack();
  /// Whether what a menu item changes can be undone as a step.
  static bool IsStep(const MenuItem& item);
  void TellMenuChanged();
  void TellTitleChanged();
  /// Asks about unsaved data. @throws CommandError (Cancelled, File) where they were to be saved
  ///                                and are not
  void SettleChanges();
  void ReadFile(const std::filesystem::path& file);
  void OpenRecentFile(std::size_t index);
  void ChooseLook(LookChoice look);
  void SaveSettings() { veldox::SaveSettings(context().host.SettingsFile(), settings_); }
  /// The colours of windows where none is chosen.
  PlainColors OwnColors() const;
  void SetScreenSize(ScreenScaling::Mode mode);
  void ProbeScreenFile(const char* marker, std::string_view menuItem);

  std::vector<Screen*> screens_;
  std::vector<ScreenPart*> toolPanels_;
  std::map<std::string, Handler, std::less<>> works_;  ///< of menu items, by their names
  ShellFace* shellFace_ = nullptr;
  std::function<void(Screen&)> opened_;
  std::function<void()> read_;
  TitleAnimation titleAnimation_;
  ParameterFile parameterFile_;
  std::string versionLine_;
  std::string dateLine_;
  bool ended_ = false;
  ScreenScaling scaling_;
  Settings settings_;
  Appearance shownAppearance_;

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

  // What takes the launcher's place while it is shown
  NotesPanel notes{*this};
  DelimitedColumnsPanel delimitedColumns{*this};
  GraphOptionsPanel graphOptions{*this, [this] { return PickColor(); }};
  AppearancePanel appearance{*this, [this] { return PickFont(); }, [this] { return PickColor(); },
                             [this] { return OwnColors(); }};
  CompanyPanel company{*this};
  CompanyPlacePanel companyPlace{*this};
  StepsPanel steps{*this};
  SheetChoicePanel sheetChoice{*this};
  SheetPanel sheet{*this};

  ScreenPrinting printing{context()};
};

}  // namespace veldox
