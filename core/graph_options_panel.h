#pragma once

#include <functional>
#include <string>

#include "core/screen_part.h"

namespace veldox {

/// How graphs look: colors, line widths, grid, texts and size, set in the launcher's place.
class GraphOptionsPanel : public ScreenPart {
 public:
  /// @param pickColor  asks the user for a color, as decimal text
  GraphOptionsPanel(Screen& screen, std::function<std::string()> pickColor);

  /// What is done when an option was changed here.
  void SetListener(std::function<void()> listener) { listener_ = std::move(listener); }
  void Open();
  /// Puts the options of the shared values on the panel.
  void ShowOptions();
  /// Shows the options and tells the listener.
  void TellChanged();
  /// Tells that options have changed, where the panel shows them already.
  void TellListener() const;
  /// Words the help of a control by what it would change now.
  void RefreshHelp(const Control* control);

 private:
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
  void PickDrawLineColor() { PickColorInto(block().DrawLineColor); }
  void PickFontColor() { PickColorInto(block().GraphFontColor); }
  void PickBackgroundColor() { PickColorInto(block().GraphBackGroundColor); }
  void PickGridColor() { PickColorInto(block().GridColor); }
  void ToggleHeads() { Toggle(block().GraphHeads); }
  void ToggleLogo() { Toggle(block().GraphLogo); }
  void ToggleLineColors() { Toggle(block().GraphLineColor); }
  void ToggleMovableGridLines() { Toggle(block().MoveGridLines); }
  void ToggleSolidGrid();
  void SetGraphSize();
  void SetGridLineCounts();
  void SetLineWidths();
  void Close();

  std::function<std::string()> pickColor_;
  std::function<void()> listener_;

 public:
  Frame GraphFrame{screen(), "GraphFrame", "Graph / Draw Options"};
  Command DrawLn{GraphFrame, "DrawLn", "Select Draw Line Color",
                 "Select the Color of Lines drawn on a Graph, and of Curves while Graph Line "
                 "Colors are ON.",
                 [this] { PickDrawLineColor(); }};
  Command FontColor{GraphFrame, "FontColor", "Select Graph Font Color",
                    "Select the Color of the Texts of a Graph.", [this] { PickFontColor(); }};
  Command BGColor{GraphFrame, "BGColor", "Select Graph BackGround Color",
                  "Select the Color behind a Graph.", [this] { PickBackgroundColor(); }};
  Command Grid_Color{GraphFrame, "Grid_Color", "Select Grid Line Color",
                     "Select the Color of Grid Lines.", [this] { PickGridColor(); }};
  Command Graph_Head{GraphFrame, "Graph_Head", "Graph Heads -- Is OFF",
                     "Show the Titles over a Graph or leave them out.", [this] { ToggleHeads(); }};
  Command Graph_Logo{GraphFrame, "Graph_Logo", "Graph Logo -- Is OFF",
                     "Show the Program's Name under a Graph or leave it out.",
                     [this] { ToggleLogo(); }};
  Command Graph_Line_Color{GraphFrame, "Graph_Line_Color", "Select Graph Line Colors -- Is OFF",
                           "Draw all Curves in the Draw Line Color.",
                           [this] { ToggleLineColors(); }};
  Command Graph_Move_Grid{GraphFrame, "Graph_Move_Grid", "Moveable Grid Lines -- Is OFF",
                          "Show Lines on the Graph that can be moved with the Mouse to read off "
                          "Values.",
                          [this] { ToggleMovableGridLines(); }};

  Frame WidthFrame{screen(), "WidthFrame", "Line Width", 0};
  Field Text21{WidthFrame, "Text21", "Draw Line Width", "1", KeyRule::Digits};
  Field Text23{WidthFrame, "Text23", "Graph Line Width", "1", KeyRule::Digits};
  Command Command4{WidthFrame, "Command4", "Enter",
                   "Click Enter Button to Confirm Changing the Line Widths.",
                   [this] { SetLineWidths(); }};

  Frame GridFrame{screen(), "GridFrame", "Grid Lines", 1};
  OptionGroup Option5{GridFrame,
                      "Option5",
                      "Grid",
                      {{0, "No Grid", "Draw Graphs without a Grid."},
                       {1, "Whole Grid", "Draw Graphs with a whole Grid."},
                       {2, "Semi Grid", "Draw Graphs with Ticks or Crosses for a Grid."}},
                      1,
                      3};
  Command Solid_Line{GridFrame, "Solid_Line", "Solid Line",
                     "Draw the Grid with solid Lines or with Dashes.",
                     [this] { ToggleSolidGrid(); }};
  CheckBox Check1{GridFrame, "Check1", "Large Lines", "Draw the Grid with wider Lines.",
                  [this] { TellChanged(); }};
  CheckBox Check3{GridFrame, "Check3", "Semi Grid Cross Lines",
                  "Show small Crosses where the Lines of a Semi Grid would cross.",
                  [this] { TellChanged(); }};
  CheckBox Check4{GridFrame, "Check4", "Semi Grid Box Lines",
                  "Show short Ticks at the Edges of a Semi Grid.", [this] { TellChanged(); }};

  Frame CountFrame{screen(), "CountFrame", "Grid Line Count", 1};
  Field Text19{CountFrame, "Text19", "X-Axis Grid Line Count", "10", KeyRule::Digits};
  Field Text20{CountFrame, "Text20", "Y-Axis Grid Line Count", "10", KeyRule::Digits};
  Command Command3{CountFrame, "Command3", "Enter", "", [this] { SetGridLineCounts(); }};

  Frame TextFrame{screen(), "TextFrame", "Texts", 2};
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

  Frame SizeFrame{screen(), "SizeFrame", "Graph Size", 2};
  Field Text14{SizeFrame, "Text14", "Graph Size Width", "6", KeyRule::Digits};
  Field Text24{SizeFrame, "Text24", "Graph Size Height", "6", KeyRule::Digits};
  Command Command5{SizeFrame, "Command5", "Enter", "", [this] { SetGraphSize(); }};

  Frame DoneFrame{screen(), "DoneFrame", "", 2};
  Command Command2{DoneFrame, "Command2", "Done Graph Options",
                   "Close the Graphic Options Selection Screen.",
                   CommandWork([this] { Close(); }, CommandRole::Closes)};
};

}  // namespace veldox
