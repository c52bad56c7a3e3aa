#pragma once

#include <cstddef>
#include <vector>

#include "core/panel.h"
#include "core/screen_part.h"
#include "graph/grapher.h"

namespace veldox {

/// How the graphs of flow and of time area look.
class GraphPanel : public ScreenPart {
 public:
  explicit GraphPanel(Screen& screen);

  void Open() { Frame16.Open(); }

  /// Draws a new graph as the options have it, with all marks.
  void Draw(Grapher& grapher, const GraphFrame& frame, std::vector<GraphCurve> curves);
  /// Draws curves onto the present graph as the options have them.
  /// @param range  that the axes grow to where they do not hold it yet
  void AddTo(Grapher& grapher, std::vector<GraphCurve> curves, const AxisRange& range);

  bool showsIntake() const { return Option5.chosen() != kExhaustAlone; }
  bool showsExhaust() const { return Option5.chosen() != kIntakeAlone; }
  /// Parses the largest lift of an axis. @return inches; 0 for one that follows the curves
  double ReadMaxLift();
  /// Parses what all limits of a time area graph are multiplied by; 1 for none.
  double ReadZoom();
  /// Parses what the piston's velocity and acceleration are multiplied by.
  double ReadPistonScale();

 private:
  static constexpr int kIntakeAlone = 1;
  static constexpr int kExhaustAlone = 2;

  /// Takes the lines off curves where there are to be none.
  void TakeLinesOff(std::vector<GraphCurve>& curves) const;
  /// Puts dots and circles on the curves from an index on.
  void AddMarks(PlotEngine& plot, std::size_t first) const;

 public:
  Panel Frame16{screen(), "Frame16", "Graphing Options"};

  Frame CurveFrame{Frame16, "GraphCurveFrame", "Curves of Flow and Time Area", 0};
  CheckBox ShowDots{CurveFrame, "Check1(0)", "Show Dots", "A small box stands at each point."};
  CheckBox Circle{CurveFrame, "Check1(2)", "Circle", "A circle stands at each point."};
  CheckBox Line{CurveFrame, "Check1(3)", "Line",
                "Lines lead from point to point. Without them there are dots, or circles."};
  CheckBox ShowLargeGrouping{CurveFrame, "Check1(1)", "Show Large Grouping",
                             "Dots and circles stand for groups of points, about a dozen on a "
                             "curve, and not at each point."};

  Frame PortFrame{Frame16, "GraphPortFrame", "Ports of Time Area Graphs", 0};
  OptionGroup Option5{PortFrame,
                      "Option5",
                      "",
                      {{0, "Both Ports",
                        "Graphs have a curve of the intake and one of the "
                        "exhaust."},
                       {kIntakeAlone, "Intake", "Graphs have the intake's curve alone."},
                       {kExhaustAlone, "Exhaust", "Graphs have the exhaust's curve alone."}},
                      0,
                      3};

  Frame SizeFrame{Frame16, "GraphSizeFrame", "Sizes", 1};
  Field Text67{
      SizeFrame,
      "Text67",
      "Graph Max Lift",
      "0.0",
      Entry(KeyRule::UnsignedReal, Unit::Inches, Holds(&P::GraphMaxLift), LeaveCheck::HasDigits),
      "The largest lift on the axis of flow graphs; 0 for as much as the tables have. Time area "
      "graphs are over degrees, and it is not for them."};
  Field Text65{SizeFrame,
               "Text65",
               "Graph Zoom In Scale Size",
               "1.0",
               Entry(KeyRule::UnsignedReal, Holds(&P::ScaleSize), LeaveCheck::HasDigits),
               "All limits of a time area graph are multiplied by it: .5 shows the middle half. 1 "
               "or 0 for the whole graph."};
  Field Text66{SizeFrame,
               "Text66",
               "Scale Size 2",
               "1.0",
               Entry(KeyRule::UnsignedReal, Holds(&P::ScaleSize2), LeaveCheck::HasDigits),
               "Piston Velocity and Piston Acceleration are multiplied by it, so that they fit on "
               "another graph."};

  Command Command91{Frame16, "Command91(2)", "Done", "Back to the air and fuel flow.", PutsAway()};
};

}  // namespace veldox
