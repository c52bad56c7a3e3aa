#pragma once

#include <array>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "core/file_taker.h"
#include "core/kept.h"
#include "core/screen.h"
#include "graph/graph_script.h"
#include "graph/grapher.h"
#include "graph/plot_engine.h"

namespace veldox {

/// Told when the graph has to be drawn anew.
class GraphFace {
 public:
  virtual ~GraphFace() = default;
  virtual void GraphChanged() = 0;
};

/// A line that the user drags over the graph to read off values.
struct MoveableLine {
  std::string name;       ///< "Picture3(0)" and on
  bool vertical = false;  ///< a vertical line reads X values
  double place = 0;       ///< part of the frame's width or height from the left or the top
};

/// The grapher: the one screen with a graph surface, `Picture1`. It graphs the standard
/// horsepower curves, graph-script files and pictures, and what other screens hand over.
class Form8 : public Screen, public Grapher, public FileTaker {
 public:
  explicit Form8(ProgramContext& context);

  void CopyFromBlock() override { OptionsChanged(); }
  Control* HelpPlace() override { return &Label7; }
  Control* QuitCommand() override { return &Command1; }
  bool HasResults() const override { return false; }
  /// Reads a graph file and draws what it tells.
  void OpenFile(const std::filesystem::path& file) override;
  void Closed() override;

  // Grapher
  void DrawGraph(const GraphFrame& frame, std::span<const GraphCurve> curves) override;
  void DrawOwnGraph(const GraphFrame& frame, const std::function<void(PlotEngine&)>& draw) override;
  void AddToGraph(std::span<const GraphCurve> curves) override;
  void AddToGraph(std::span<const GraphCurve> curves, const AxisRange& range) override;
  bool HasGraph() const override { return plot_->hasAxes(); }
  void ShowGraph() override { SetVisible(true); }
  const PlotEngine& plot() const override { return plot_; }
  PlotEngine& ChangePlot() override { return plot_.Change(); }
  void PutBack() override { GraphChanged(); }

  /// For the screen's own use: the graph's commands work on the grapher's own graphs.
  void EnableGrapherCommands() { SetGrapherCommands(true); }
  /// For screens that use the surface for theirs.
  void DisableGrapherCommands() { SetGrapherCommands(false); }

  void SetGraphFace(GraphFace* face) { graphFace_ = face; }
  /// Draws the graph on its window; the pointer's places are told on this drawing.
  void DrawOn(Surface& surface, const PlotTheme& theme);
  /// Draws it on a page or a picture.
  void DrawPicture(Surface& surface, const PlotTheme& theme);

  /// The frame of the window's last drawing.
  const SurfaceRect& frame() const { return frame_; }

  // The mouse. Places are in drawing units of the window's surface.
  void MouseMove(SurfacePoint place);
  void MouseLeave();
  GraphPoint ValueAt(SurfacePoint place) const;
  /// What the pointer reads: the nearest point of each curve, a line each.
  std::string ReadOut(SurfacePoint place) const;

  // Free drawing while the box "Draw" is on
  void BeginStroke(SurfacePoint place);
  void ContinueStroke(SurfacePoint place);
  void EndStroke() { strokeAt_.reset(); }

  // Moveable grid lines
  const std::vector<MoveableLine>& moveableLines() const { return moveableLines_; }
  bool MoveableLinesShown() const { return block().MoveGridLines != 0; }
  void MoveGridLine(std::size_t line, SurfacePoint place);
  /// The value that a line stands at: X of a vertical one, else Y.
  double GridLineValue(std::size_t line) const;

  /// Options of the main form have changed: captions follow and the graph is drawn anew.
  void OptionsChanged();
  /// What to do when an option was changed here.
  void SetOptionListener(std::function<void()> listener) { listener_ = std::move(listener); }

 private:
  /// What stands on the surface, for the zoom buttons.
  enum class Shown { Nothing, PowerCurve, File, Other };
  enum class ReadMode { NewLimits, KeepLimits };

  void DrawStandardCurve();
  void WidenPowerCurve() { ZoomPowerCurve(-1); }
  void NarrowPowerCurve() { ZoomPowerCurve(1); }
  void WidenFileGraph() { ZoomFile(-1); }
  void NarrowFileGraph() { ZoomFile(1); }
  void ReadGraphFile();
  void ShowPictureFile();
  void SaveGraphAs();
  void SaveScreenPicture();
  void SaveGraphPicture();
  void PrintGraphPicture();
  void CopyGraph();
  void SavePoints();
  void ClearDrawing();
  void SwitchMoveableLines();

  void SetGrapherCommands(bool enabled);
  bool ReadCurveType(int& type);
  void DrawPowerCurve(int type, const std::optional<AxisRange>& limits);
  AxisRange ZoomedLimits(int direction) const;
  void ZoomPowerCurve(int direction);
  void ZoomFile(int direction);
  bool HasGraphOf(Shown kind);
  void RunGraphScript(const std::filesystem::path& file, ReadMode mode, const AxisRange& limits);
  AxisRange ScriptLimits(const GraphScript& script, const AxisRange& before);
  static void AddCurves(PlotEngine& next, std::span<const GraphCurve> curves);
  static void DrawStandardLine(PlotEngine& next, double level);
  void Commit(PlotEngine next, Shown shown);
  void KeepFirstLimits();
  void GraphChanged();
  void Inform(Icon icon, const std::string& text, const std::string& boxTitle = {});
  std::filesystem::path AskFile(FileDialog::Kind kind, const char* filter, int index);
  void SaveGraph(const std::filesystem::path& file);
  void RequireSomethingDrawn() const;
  SurfacePoint InFrame(SurfacePoint place) const { return {place.x - frame_.left, place.y}; }

  Kept<PlotEngine> plot_;
  Kept<std::optional<PlotEngine>> underOverlay_{*this};  ///< the graph below a file's overlay
  SurfaceRect frame_;                                    ///< of the window's last drawing
  GraphFace* graphFace_ = nullptr;
  std::function<void()> listener_;
  Kept<Shown> shown_{*this, Shown::Nothing};
  Kept<double> firstXLow_{*this};
  Kept<double> firstYLow_{*this};
  Kept<std::filesystem::path> scriptFile_{*this};
  std::optional<GraphPoint> strokeAt_;
  std::vector<MoveableLine> moveableLines_;

 public:
  Frame Frame1{*this, "Frame1", "Horsepower Curve", 0};
  Field Text4{Frame1,
              "Text4",
              "Horsepower",
              "1300",
              Entry(KeyRule::UnsignedReal, Unit::Power,
                    Holds(&P::HorsePower).NotShownAtOpening().NotConverted()),
              "Horsepower at the peak of the curve."};
  Field Text5{
      Frame1,
      "Text5",
      "RPM",
      "8800",
      Entry(KeyRule::UnsignedReal, Unit::RevolutionsPerMinute, Holds(&P::RPM).NotShownAtOpening()),
      "RPM of the peak."};
  Field Text6{Frame1, "Text6", "Type Curve", "2", KeyRule::Digits, "Shape of the curve, 1 to 8."};
  Command Command2{Frame1, "Command2", "&Graph",
                   "Graph Horsepower and Torque from Horsepower, RPM and Type Curve; this clears "
                   "and starts a new Graph.",
                   &Form8::DrawStandardCurve};
  Command Command4{Frame1, "Command4", "-", "Zoom the Horsepower Curve, wider range.",
                   &Form8::WidenPowerCurve};
  Command Command6{Frame1, "Command6", "+", "Zoom the Horsepower Curve, narrower range.",
                   &Form8::NarrowPowerCurve};

  Frame Frame2{*this, "Frame2", "Graph File", 0};
  Label Label1{Frame2, "Label1", ""};
  Command Read{Frame2, "Read", "&Read PRM", "Read a Graph File and draw what it tells.",
               Serves(&Form8::ReadGraphFile)};
  Command Command7{Frame2, "Command7", "-", "Zoom the Graph of a File, wider range.",
                   &Form8::WidenFileGraph};
  Command Command8{Frame2, "Command8", "+", "Zoom the Graph of a File, narrower range.",
                   &Form8::NarrowFileGraph};

  Frame Frame3{*this, "Frame3", "Pictures", 0};
  Command Command5{Frame3, "Command5", "R&ead BMP", "Show a Picture File.",
                   Serves(&Form8::ShowPictureFile)};
  Command Command3{Frame3, "Command3", "&Save as BMP",
                   "Save the Graph as a Picture: .bmp, .jpg, .png, .svg or .pdf.",
                   Serves(&Form8::SaveGraphAs)};
  Command Save_Form_JPG{Frame3, "Save_Form_JPG", "PrtSC &JPG",
                        "Save this Screen as a JPG Picture in the Program's Folder.",
                        Serves(&Form8::SaveScreenPicture)};
  Command Save_Picture_Image{Frame3, "Save_Picture_Image", "&P",
                             "Save the Graph as a JPG Picture in the Program's Folder.",
                             Serves(&Form8::SaveGraphPicture)};
  Command Print_Picture_Image{Frame3, "Print_Picture_Image", "Print Picture",
                              "Save the Graph as a BMP Picture in the Program's Folder and Print "
                              "it.",
                              Serves(&Form8::PrintGraphPicture)};
  Command Copy_Picture{Frame3, "Copy_Picture", "&Copy", "Copy the Graph to the Clipboard.",
                       Serves(&Form8::CopyGraph)};
  Command Save_Points{Frame3, "Save_Points", "Save Points as CS&V",
                      "Save the Points of all Curves as a CSV File.", Serves(&Form8::SavePoints)};

  Frame Frame4{*this, "Frame4", "Mouse", 0};
  Label Label2{Frame4, "Label2", "Mouse On Graph Pos"};
  Label Label18{Frame4, "Label18", ""};
  Label Label19{Frame4, "Label19", ""};
  CheckBox Check1{Frame4, "Check1", "Draw", "Draw on the Graph with the Mouse."};
  Command Clear_Draw{Frame4, "Clear_Draw", "Clear Draw",
                     "Take the Lines away that were drawn with the Mouse.",
                     Serves(&Form8::ClearDrawing)};
  Command Graph_Move_Grid{Frame4, "Graph_Move_Grid", "Moveable Grid Lines -- Is OFF",
                          "Show Lines on the Graph that can be moved with the Mouse to read off "
                          "Values. On the Graph, the Space Bar takes hold of the next Line and "
                          "the Arrow Keys move it.",
                          Serves(&Form8::SwitchMoveableLines)};

  Frame HelpFrame{*this, "HelpFrame", ""};
  Label Label7{HelpFrame, "Label7", ""};
  Command Command1{HelpFrame, "Command1", "&Quit", "Close this screen.", &Form8::Quit};
};

}  // namespace veldox
