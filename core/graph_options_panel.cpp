#include "core/graph_options_panel.h"

#include <algorithm>
#include <utility>

#include "core/text.h"

namespace veldox {

namespace {

constexpr int kSmallestGraph = 4;  ///< hundreds of pixels
constexpr int kLargestGraph = 64;
constexpr int kLargestGraphArea = 1600;
constexpr const char* kGraphSizeNote =
    "Valid Values 4 to 64 -- Max Size of Graph is Width times Height = 1600";
constexpr int kFewestGridLines = 2;
constexpr int kMostGridLines = 400;
constexpr const char* kGridCountNote = "Valid Values 2 to 400";
constexpr int kWidestLine = 50;

}  // namespace

GraphOptionsPanel::GraphOptionsPanel(Screen& screen, std::function<std::string()> pickColor)
    : ScreenPart(screen), pickColor_(std::move(pickColor)) {
  SetFrames(
      {&GraphFrame, &WidthFrame, &GridFrame, &CountFrame, &TextFrame, &SizeFrame, &DoneFrame});
  SetAreOptions();
}

void GraphOptionsPanel::Open() {
  ShowOptions();
  Show();
  DrawLn.Focus();
}

void GraphOptionsPanel::Close() {
  Hide();
  TellChanged();
}

void GraphOptionsPanel::ShowOptions() {
  const ParameterBlock& b = block();
  const auto turn = [](Command& command, std::int16_t on) {
    command.SetCaption(SwitchCaption(command.caption(), on != 0));
  };
  turn(Graph_Head, b.GraphHeads);
  turn(Graph_Logo, b.GraphLogo);
  turn(Graph_Line_Color, b.GraphLineColor);
  turn(Graph_Move_Grid, b.MoveGridLines);
  Solid_Line.SetCaption(b.SolidSwitch == 1 ? "Solid Line" : "Dash Line");
  const auto show = [&](Field& field, std::int16_t value) {
    field.SetText(FormatInt(value, mark()));
  };
  show(Text14, b.CustomGraphWidth);
  show(Text24, b.CustomGraphHeight);
  show(Text19, b.CustomGridLineCountx);
  show(Text20, b.CustomGridLineCounty);
  show(Text21, std::max<std::int16_t>(b.DrawLineWidth, 1));
  show(Text23, std::max<std::int16_t>(b.GraphLineWidth, 1));
}

void GraphOptionsPanel::TellChanged() {
  ShowOptions();
  TellListener();
}

void GraphOptionsPanel::TellListener() const {
  if (listener_) listener_();
}

void GraphOptionsPanel::PickColorInto(std::int32_t& slot) {
  slot = RoundToInt32(ParseNumber(pickColor_(), DecimalMark::Point));
  TellChanged();
}

void GraphOptionsPanel::Toggle(std::int16_t& slot) {
  slot = slot != 0 ? 0 : 1;
  TellChanged();
}

void GraphOptionsPanel::ToggleSolidGrid() {
  block().SolidSwitch = block().SolidSwitch == 1 ? 0 : 1;
  TellChanged();
}

void GraphOptionsPanel::SetGraphSize() {
  GraphSize size{};
  ReadCount(size.width, Text14);
  ReadCount(size.height, Text24);
  const auto isValid = [](int side) { return side >= kSmallestGraph && side <= kLargestGraph; };
  if (!isValid(size.width) || !isValid(size.height) ||
      size.width * size.height > kLargestGraphArea) {
    throw CommandError(ErrorKind::InvalidArgument, kGraphSizeNote);
  }
  block().CustomGraphWidth = size.width;
  block().CustomGraphHeight = size.height;
  TellChanged();
}

void GraphOptionsPanel::SetGridLineCounts() {
  GridCounts counts{};
  ReadCount(counts.x, Text19);
  ReadCount(counts.y, Text20);
  const auto isValid = [](int count) {
    return count >= kFewestGridLines && count <= kMostGridLines;
  };
  if (!isValid(counts.x) || !isValid(counts.y)) {
    throw CommandError(ErrorKind::InvalidArgument, kGridCountNote);
  }
  block().CustomGridLineCountx = counts.x;
  block().CustomGridLineCounty = counts.y;
  TellChanged();
}

void GraphOptionsPanel::SetLineWidths() {
  std::int16_t draw = 0;
  std::int16_t curve = 0;
  ReadCount(draw, Text21);
  ReadCount(curve, Text23);
  Require(draw >= 1 && draw <= kWidestLine, Text21, "must be from 1 to 50.");
  Require(curve >= 1 && curve <= kWidestLine, Text23, "must be from 1 to 50.");
  block().DrawLineWidth = draw;
  block().GraphLineWidth = curve;
  TellChanged();
}

void GraphOptionsPanel::RefreshHelp(const Control* control) {
  const ParameterBlock& b = block();
  const auto change = [&](std::int16_t from, const Field& to) {
    return " from " + FormatInt(from, mark()) + " to " + to.text();
  };
  if (control == &Command5) {
    Command5.SetHelp("Click Enter Button to Confirm Changing the Graph Size Width" +
                     change(b.CustomGraphWidth, Text14) + " and the Height" +
                     change(b.CustomGraphHeight, Text24) + "\r\n" + kGraphSizeNote);
  } else if (control == &Command3) {
    Command3.SetHelp("Click Enter Button to Confirm Changing the X-Axis Grid Line Count" +
                     change(b.CustomGridLineCountx, Text19) + " and the Y-Axis Grid Line Count" +
                     change(b.CustomGridLineCounty, Text20) + "\r\n" + kGridCountNote);
  }
}

}  // namespace veldox
