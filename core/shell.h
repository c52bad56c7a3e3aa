#pragma once

#include <cstdint>
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

enum class MenuKind {
  Submenu,  ///< where it names a screen, choosing it without opening it shows all its lists there
  Separator,
  Screen,
  List,  ///< puts a list into a screen and opens that
  Action,
  PrintScreen,
};

/// One item of the menu tree. The table lists the items in the order of the menus.
struct MenuItem {
  std::string_view name;
  std::string_view caption;
  std::string_view parent{};  ///< the submenu it stands in, empty for the bar
  MenuKind kind = MenuKind::Action;
  std::string_view screen{};  ///< the screen it opens, fills or prints
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
  bool UsesSharedValues() const override { return false; }
  void ClearFields() override;

  void Hover(Control* control) override;

  /// What is done when a graph option was changed here.
  void SetGraphOptionListener(std::function<void()> listener) {
    graphOptionsChanged_ = std::move(listener);
  }
  /// The panels that take the launcher's place while they are shown: the frames of each,
  /// which show and go with the first.
  std::vector<std::vector<Frame*>> Panels();
  /// Puts the graph options of the shared values on their panel.
  void ShowGraphOptions();

  // Menu actions
  void Graph();
  void Read();
  void Write();
  void Notes();
  void Clear();
  void Metric();
  void Printer();
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

  // The graph options' panel
  struct GraphSize {
    std::int16_t width;
    std::int16_t height;
  };
  struct GridCounts {
    std::int16_t x;
    std::int16_t y;
  };
  void PickColorInto(std::int32_t& slot);
  void Toggle(std::int16_t& slot);
  void DrawLn_Click() { PickColorInto(block().DrawLineColor); }
  void FontColor_Click() { PickColorInto(block().GraphFontColor); }
  void BGColor_Click() { PickColorInto(block().GraphBackGroundColor); }
  void Grid_Color_Click() { PickColorInto(block().GridColor); }
  void Graph_Head_Click() { Toggle(block().GraphHeads); }
  void Graph_Logo_Click() { Toggle(block().GraphLogo); }
  void Graph_Line_Color_Click() { Toggle(block().GraphLineColor); }
  void Graph_Move_Grid_Click() { Toggle(block().MoveGridLines); }
  void Solid_Line_Click();
  void GraphOptionsChanged();
  /// The frames of the graph options, which show and go together.
  std::vector<Frame*> GraphOptionFrames();
  void SetGraphSize();
  void SetGridLineCounts();
  void SetLineWidths();
  void CloseGraphOptions();

  std::vector<Screen*> screens_;
  ShellFace* shellFace_ = nullptr;
  std::function<void(Screen&)> opened_;
  std::function<void()> graphOptionsChanged_;
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

  // Options of graphs
  Frame GraphFrame{*this, "GraphFrame", "Graph / Draw Options"};
  Command DrawLn{GraphFrame, "DrawLn", "Select Draw Line Color",
                 "Select the Color of Lines drawn on a Graph, and of Curves while Graph Line "
                 "Colors are ON.",
                 &Shell::DrawLn_Click};
  Command FontColor{GraphFrame, "FontColor", "Select Graph Font Color",
                    "Select the Color of the Texts of a Graph.", &Shell::FontColor_Click};
  Command BGColor{GraphFrame, "BGColor", "Select Graph BackGround Color",
                  "Select the Color behind a Graph.", &Shell::BGColor_Click};
  Command Grid_Color{GraphFrame, "Grid_Color", "Select Grid Line Color",
                     "Select the Color of Grid Lines.", &Shell::Grid_Color_Click};
  Command Graph_Head{GraphFrame, "Graph_Head", "Graph Heads -- Is OFF",
                     "Show the Titles over a Graph or leave them out.", &Shell::Graph_Head_Click};
  Command Graph_Logo{GraphFrame, "Graph_Logo", "Graph Logo -- Is OFF",
                     "Show the Program's Name under a Graph or leave it out.",
                     &Shell::Graph_Logo_Click};
  Command Graph_Line_Color{GraphFrame, "Graph_Line_Color", "Select Graph Line Colors -- Is OFF",
                           "Draw all Curves in the Draw Line Color.",
                           &Shell::Graph_Line_Color_Click};
  Command Graph_Move_Grid{GraphFrame, "Graph_Move_Grid", "Moveable Grid Lines -- Is OFF",
                          "Show Lines on the Graph that can be moved with the Mouse to read off "
                          "Values.",
                          &Shell::Graph_Move_Grid_Click};

  Frame WidthFrame{*this, "WidthFrame", "Line Width", 0};
  Field Text21{WidthFrame, "Text21", "Draw Line Width", "1", KeyRule::Digits};
  Field Text23{WidthFrame, "Text23", "Graph Line Width", "1", KeyRule::Digits};
  Command Command4{WidthFrame, "Command4", "Enter",
                   "Click Enter Button to Confirm Changing the Line Widths.",
                   &Shell::SetLineWidths};

  Frame GridFrame{*this, "GridFrame", "Grid Lines", 1};
  OptionGroup Option4{GridFrame,
                      "Option4",
                      "Grid",
                      {{0, "No Grid", "Draw Graphs without a Grid."},
                       {1, "Whole Grid", "Draw Graphs with a whole Grid."},
                       {2, "Semi Grid", "Draw Graphs with Ticks or Crosses for a Grid."}},
                      1,
                      3};
  Command Solid_Line{GridFrame, "Solid_Line", "Solid Line",
                     "Draw the Grid with solid Lines or with Dashes.", &Shell::Solid_Line_Click};
  CheckBox Check1{GridFrame, "Check1", "Large Lines", "Draw the Grid with wider Lines.",
                  &Shell::GraphOptionsChanged};
  CheckBox Check3{GridFrame, "Check3", "Semi Grid Cross Lines",
                  "Show small Crosses where the Lines of a Semi Grid would cross.",
                  &Shell::GraphOptionsChanged};
  CheckBox Check4{GridFrame, "Check4", "Semi Grid Box Lines",
                  "Show short Ticks at the Edges of a Semi Grid.", &Shell::GraphOptionsChanged};

  Frame CountFrame{*this, "CountFrame", "Grid Line Count", 1};
  Field Text19{CountFrame, "Text19", "X-Axis Grid Line Count", "10", KeyRule::Digits};
  Field Text20{CountFrame, "Text20", "Y-Axis Grid Line Count", "10", KeyRule::Digits};
  Command Command3{CountFrame, "Command3", "Enter", "", &Shell::SetGridLineCounts};

  Frame TextFrame{*this, "TextFrame", "Texts", 2};
  OptionGroup Option1{TextFrame,
                      "Option1",
                      "Caption Top",
                      {{0, "Top", "Show the Names of the Curves at the Top of the Graph."},
                       {1, "Center", "Show the Names of the Curves halfway down the Graph."},
                       {2, "Bottom", "Show the Names of the Curves at the Bottom of the Graph."}},
                      0,
                      3};
  OptionGroup Option2{TextFrame,
                      "Option2",
                      "Caption Side",
                      {{0, "Left", "Show the Names of the Curves at the Left of the Graph."},
                       {1, "Center", "Show the Names of the Curves in the Middle of the Graph."},
                       {2, "Right", "Show the Names of the Curves at the Right of the Graph."}},
                      0,
                      3};
  OptionGroup Option3{TextFrame,
                      "Option3",
                      "Graph Font Size",
                      {{0, "100%", "Texts of Graphs in full Size."},
                       {1, "75%", "Texts of Graphs in three Quarters of their Size."},
                       {2, "50%", "Texts of Graphs in half their Size."},
                       {3, "25%", "Texts of Graphs in a Quarter of their Size."},
                       {4, "8 Pt", "Texts of Graphs in 8 Points."},
                       {5, "10 Pt", "Texts of Graphs in 10 Points."},
                       {6, "12 Pt", "Texts of Graphs in 12 Points."},
                       {7, "14 Pt", "Texts of Graphs in 14 Points."}},
                      0,
                      4};

  Frame SizeFrame{*this, "SizeFrame", "Graph Size", 2};
  Field Text14{SizeFrame, "Text14", "Graph Size Width", "6", KeyRule::Digits};
  Field Text18{SizeFrame, "Text18", "Graph Size Height", "6", KeyRule::Digits};
  Command Command5{SizeFrame, "Command5", "Enter", "", &Shell::SetGraphSize};

  Frame DoneFrame{*this, "DoneFrame", "", 2};
  Command Command2{DoneFrame, "Command2", "Done Graph Options",
                   "Close the Graphic Options Selection Screen.", &Shell::CloseGraphOptions};

  // Lists of the appearance options
  Frame OptionFrame{*this, "OptionFrame", "User Selectable Entry GUI Options"};
  ComboList Combo3{OptionFrame, "Combo3", "Alignment for Entry Text"};
  ComboList Combo4{OptionFrame, "Combo4", "Entry Text Box Border Style"};
  ComboList Combo5{OptionFrame, "Combo5", "Option/Check Box Border Style"};
  ComboList Combo6{OptionFrame, "Combo6", "Color"};
};

}  // namespace veldox
