#include "graph/grapher_screen.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "core/files.h"
#include "core/units.h"
#include "graph/image_export.h"
#include "graph/power_curves.h"

namespace veldox {

namespace {

constexpr const char* kScriptFilter =
    "Text Files (*.txt)|*.txt|All Files (*.*)|*.*|Parameter Files (*.prm)|*.prm";
constexpr int kScriptFilterIndex = 3;
constexpr const char* kOpenPictureFilter =
    "All Files (*.*)|*.*|Graphics Files (*.bmp)|*.bmp|GIF Files (*.gif)|*.gif|JPG Files "
    "(*.jpg)|*.jpg";
constexpr const char* kSavePictureFilter = "All Files (*.*)|*.*|Graphics Files (*.bmp)|*.bmp";
constexpr int kSavePictureFilterIndex = 2;
constexpr const char* kPointsFilter = "CSV Files (*.csv)|*.csv|All Files (*.*)|*.*";

constexpr const char* kBadCurveType = "Type of Curve may only be 1 Thru 8.";
constexpr const char* kNoGraph = "User Error No Graph to Zoom!!!!";

constexpr double kWalkStep = 5;               ///< model RPM from point to point
constexpr double kZoomParts = 10;             ///< a zoom step is this part of the range
constexpr double kPixelsPerSizeUnit = 100;    ///< of "Custom Graph Width" and "Height"
constexpr std::int32_t kNoDrawColor = 99999;  ///< "Draw Line Color" without a selection
constexpr int kQuality = 100;

/// A round step that divides a range into about ten pieces.
double RoundStep(double range) {
  const double power = std::pow(10.0, Floor(std::log10(range / 10)));
  for (const double step : {1.0, 2.0, 5.0}) {
    if (range / (step * power) <= 10) return step * power;
  }
  return 10 * power;
}

double RoundBelow(double value, double step) {
  return Floor(value / step) * step;
}

double RoundAbove(double value, double step) {
  return (Floor(value / step) + 1) * step;
}

int GraphPixels(std::int16_t size) {
  return static_cast<int>(std::clamp<int>(size, 4, 64) * kPixelsPerSizeUnit);
}

}  // namespace

Form8::Form8(ProgramContext& context)
    : Screen(context, "Form8", "Grapher", "CarGraph"),
      plot_(*this, PlotEngine(context.block), Aspect::Graph),
      frame_{0, 0, static_cast<double>(GraphPixels(context.block.CustomGraphWidth)),
             static_cast<double>(GraphPixels(context.block.CustomGraphHeight))} {
  constexpr int kHorizontal = 2;
  constexpr int kVertical = 6;
  for (int i = 0; i < kHorizontal; ++i) {
    moveableLines_.push_back(
        {"Picture3(" + std::to_string(i) + ')', false, (i + 1.0) / (kHorizontal + 1)});
  }
  for (int i = 0; i < kVertical; ++i) {
    moveableLines_.push_back(
        {"Picture5(" + std::to_string(i) + ')', true, (i + 1.0) / (kVertical + 1)});
  }
}

void Form8::Closed() {
  EndStroke();
}

void Form8::SetGrapherCommands(bool enabled) {
  for (Control* control :
       std::initializer_list<Control*>{&Command2, &Command4, &Command5, &Command6, &Command7, &Read,
                                       &Command8, &Text4, &Text5, &Text6}) {
    control->SetEnabled(enabled);
  }
}

void Form8::Inform(Icon icon, const std::string& text, const std::string& boxTitle) {
  context().host.Ask({icon,
                      boxTitle.empty() ? context().rules.messages().MessageTitle : boxTitle,
                      text,
                      {Button::OK}});
}

void Form8::OpenFile(const std::filesystem::path& file) {
  const History::Step step(context(), History::Kind::Other, PathText(file.filename()));
  Perform([&] { RunGraphScript(file, ReadMode::NewLimits, plot_->scale()); });
}

std::filesystem::path Form8::AskFile(FileDialog::Kind kind, const char* filter, int index) {
  const auto path = context().host.AskFile({kind, filter, index, context().host.ProgramFolder()});
  if (!path) throw CommandError(ErrorKind::Cancelled, "");
  return *path;
}

// ---------------------------------------------------------------- what is on the surface

void Form8::Commit(PlotEngine next, Shown shown) {
  next.FitFrame(frame_);
  plot_ = std::move(next);
  shown_ = shown;
  strokeAt_.reset();
  GraphChanged();
}

void Form8::GraphChanged() {
  if (graphFace_ != nullptr && !context().journal.isDry()) graphFace_->GraphChanged();
}

void Form8::KeepFirstLimits() {
  firstXLow_ = plot_->XLow;
  firstYLow_ = plot_->YLow;
}

void Form8::AddCurves(PlotEngine& next, std::span<const GraphCurve> curves) {
  if (curves.empty()) PlotEngine::RequireSeries({});
  for (const GraphCurve& curve : curves) {
    next.PlotSeries(curve.points, {}, curve.moves, curve.fewestPoints, curve.color);
    if (!curve.note.empty()) next.SetCurveNote(curve.note + "  " + next.series().back().name);
    if (curve.boxes) {
      const Color color = next.ShownColor(next.series().back());
      for (const GraphPoint& point : curve.points) next.PlotBox(point.x, point.y, color);
    }
    if (curve.standardLine) DrawStandardLine(next, *curve.standardLine);
  }
}

void Form8::DrawStandardLine(PlotEngine& next, double level) {
  const bool stands =
      std::any_of(next.lines().begin(), next.lines().end(), [&](const PlotLineRecord& line) {
        return line.inTextColor && line.from.y == level && line.to.y == level &&
               line.to.x >= next.XHigh;
      });
  if (!stands) next.PlotAdjustedLine({next.XLow, level}, {next.XHigh, level}, {}, true);
}

void Form8::DrawGraph(const GraphFrame& frame, std::span<const GraphCurve> curves) {
  DrawOwnGraph(frame, [curves](PlotEngine& next) { AddCurves(next, curves); });
}

void Form8::DrawOwnGraph(const GraphFrame& frame, const std::function<void(PlotEngine&)>& draw) {
  PlotEngine next(block());
  next.SetScale(frame.range);
  next.crankAngleAxis = frame.crankAngle;
  next.SetCaption(kXPointerCaption, frame.xPointer);
  next.SetCaption(kXNameCaption, frame.xName);
  next.SetCaption(kYPointerCaption, frame.yPointer);
  next.SetCaption(kTitleCaption, frame.title);
  next.DrawGrid();
  next.DrawAxes();
  if (frame.zeroLine && frame.range.yLow < 0 && frame.range.yHigh > 0) {
    next.PlotAdjustedLine({frame.range.xLow, 0}, {frame.range.xHigh, 0}, {}, true);
  }
  draw(next);
  underOverlay_ = std::nullopt;
  Label1.SetCaption("");
  Commit(std::move(next), Shown::Other);
  KeepFirstLimits();
}

void Form8::AddToGraph(std::span<const GraphCurve> curves) {
  AddToGraph(curves, plot_->scale());
}

void Form8::AddToGraph(std::span<const GraphCurve> curves, const AxisRange& range) {
  if (!HasGraph()) {
    throw CommandError(ErrorKind::InvalidArgument,
                       "There is no graph yet that a curve can be added to.");
  }
  PlotEngine next = plot();
  const AxisRange scale = next.scale();
  const AxisRange grown{std::min(scale.xLow, range.xLow), std::max(scale.xHigh, range.xHigh),
                        std::min(scale.yLow, range.yLow), std::max(scale.yHigh, range.yHigh)};
  if (grown != scale) next.Rescale(grown);
  AddCurves(next, curves);
  Commit(std::move(next), Shown::Other);
}

void Form8::DrawOn(Surface& surface, const PlotTheme& theme) {
  frame_ = plot_.Drawn().DrawOn(surface, theme).frame;
}

void Form8::DrawPicture(Surface& surface, const PlotTheme& theme) {
  plot_.Drawn().DrawOn(surface, theme);
  plot_.Drawn().FitFrame(frame_);
}

// ---------------------------------------------------------------- the standard curves

bool Form8::ReadCurveType(int& type) {
  const double value = Screen::Read(Text6);
  if (value >= kFirstCurveType && value <= kLastGraphedCurveType && value == Floor(value)) {
    type = static_cast<int>(value);
    block().TypeCurve = RoundToInt16(value);
    return true;
  }
  Inform(Icon::Warning, kBadCurveType);
  return false;
}

void Form8::DrawStandardCurve() {
  Label1.SetCaption("");
  int type = 0;
  if (!ReadCurveType(type)) return;
  DrawPowerCurve(type, std::nullopt);
  KeepFirstLimits();
}

void Form8::DrawPowerCurve(int type, const std::optional<AxisRange>& limits) {
  ParameterBlock& b = block();
  ReadFields({&Text4, &Text5});
  Require(b.HorsePower > 0, Text4, "must be greater than 0 for this command.");
  Require(b.RPM > 0, Text5, "must be greater than 0 for this command.");
  const double speedScale = b.RPM / ModelPeakSpeed(type);
  const ModelRange speeds = ModelSpeeds(type, b.RPM);
  std::vector<GraphPoint> power;
  std::vector<GraphPoint> torque;
  for (double speed = speeds.low; speed <= speeds.high; speed += kWalkStep) {
    const double rpm = speed * speedScale;
    const double horsepower = ModelHorsepower(type, speed, b.HorsePower);
    power.push_back({rpm, horsepower});
    torque.push_back({rpm, horsepower * kRpmOfEqualTorqueAndPower / rpm});
  }
  PlotEngine::RequireSeries(power, "Horsepower");
  PlotEngine::RequireSeries(torque, "Torque");

  AxisRange range;
  if (limits) {
    range = *limits;
  } else {
    const auto byHeight = [](const GraphPoint& a, const GraphPoint& c) { return a.y < c.y; };
    const auto [powerLow, powerHigh] = std::minmax_element(power.begin(), power.end(), byHeight);
    const auto [torqueLow, torqueHigh] =
        std::minmax_element(torque.begin(), torque.end(), byHeight);
    const double low = std::min(powerLow->y, torqueLow->y);
    const double high = std::max(powerHigh->y, torqueHigh->y);
    const double stepX = RoundStep(power.back().x - power.front().x);
    const double stepY = RoundStep(high - low);
    range = {RoundBelow(power.front().x, stepX), RoundAbove(power.back().x, stepX),
             RoundBelow(low, stepY), RoundAbove(high, stepY)};
  }
  PlotEngine next(b);
  next.SetScale(range);
  next.DrawGrid();
  next.SetCaption(kXPointerCaption, "<--- RPM");
  next.SetCaption(kXNameCaption, "RPM");
  next.SetCaption(kYPointerCaption, "<--- Horse Power");
  next.SetCaption(kTitleCaption, "Horsepower Torque");
  next.DrawAxes();
  next.PlotSeries(power, "Horsepower  " + std::string(CurveColorOf(0).name));
  next.PlotSeries(torque, "Torque  " + std::string(CurveColorOf(1).name));
  underOverlay_ = std::nullopt;
  Commit(std::move(next), Shown::PowerCurve);
}

// ---------------------------------------------------------------- zoom

bool Form8::HasGraphOf(Shown kind) {
  if (shown_ == kind) return true;
  Inform(Icon::Warning, kNoGraph);
  return false;
}

AxisRange Form8::ZoomedLimits(int direction) const {
  const auto zoomed = [direction](double low, double high, double firstLow) {
    const double step = Floor((high - firstLow) / kZoomParts);
    const double moved = low + direction * step;
    return std::max(moved, std::min(0.0, firstLow));
  };
  AxisRange limits = plot_->scale();
  limits.xLow = zoomed(limits.xLow, limits.xHigh, firstXLow_);
  limits.yLow = zoomed(limits.yLow, limits.yHigh, firstYLow_);
  if (limits.xLow >= limits.xHigh || limits.yLow >= limits.yHigh) {
    throw CommandError(ErrorKind::InvalidArgument, "The graph cannot be zoomed any further.");
  }
  return limits;
}

void Form8::ZoomPowerCurve(int direction) {
  if (!HasGraphOf(Shown::PowerCurve)) return;
  int type = 0;
  if (!ReadCurveType(type)) return;
  DrawPowerCurve(type, ZoomedLimits(direction));
}

void Form8::ZoomFile(int direction) {
  if (!HasGraphOf(Shown::File)) return;
  RunGraphScript(scriptFile_, ReadMode::KeepLimits, ZoomedLimits(direction));
}

// ---------------------------------------------------------------- graph-script files

void Form8::ReadGraphFile() {
  const std::filesystem::path file =
      AskFile(FileDialog::Kind::Open, kScriptFilter, kScriptFilterIndex);
  RunGraphScript(file, ReadMode::NewLimits, plot_->scale());
}

AxisRange Form8::ScriptLimits(const GraphScript& script, const AxisRange& before) {
  AxisRange limits = script.overlay && HasGraph() ? before : AxisRange{};
  limits.xLow = script.xLow.value_or(limits.xLow);
  limits.xHigh = script.xHigh.value_or(limits.xHigh);
  limits.yLow = script.yLow.value_or(limits.yLow);
  limits.yHigh = script.yHigh.value_or(limits.yHigh);
  if (limits.yHigh <= limits.yLow) {
    Inform(Icon::Warning, "yhigh is less than or equal to ylow, yhigh is set to ylow * 2");
    limits.yHigh = limits.yLow * 2;
  }
  if (limits.xHigh <= limits.xLow) {
    Inform(Icon::Warning, "xhigh is less than or equal to xlow, xhigh is set to xlow * 2");
    limits.xHigh = limits.xLow * 2;
  }
  return limits;
}

void Form8::RunGraphScript(const std::filesystem::path& file, ReadMode mode,
                           const AxisRange& limits) {
  GraphScriptFailure failure;
  std::optional<GraphScript> script;
  {
    const BusyCursor busy(context().host);
    script =
        ReadGraphScript(DecodeText(LoadFile(file)), PathText(file.filename()), mark(), failure);
  }
  if (!script) {
    Inform(Icon::Warning, failure.text, failure.title);
    return;
  }
  if (!script->HasDrawing() && !script->xHigh && !script->yHigh) {
    throw CommandError(ErrorKind::InvalidArgument,
                       "There is nothing to graph: " + PathText(file.filename()) +
                           " holds no points, lines or limits.");
  }
  const bool zoom = mode == ReadMode::KeepLimits;
  const AxisRange range = zoom ? limits : ScriptLimits(*script, limits);

  std::optional<PlotEngine> under;
  if (script->overlay) under = zoom ? *underOverlay_ : std::optional(plot());
  PlotEngine next = under ? *under : PlotEngine(block());
  // What stands under an overlay keeps its values, also where the overlay brings other axes.
  next.Rescale(range);
  for (const auto& [number, text] : script->captions) next.SetCaption(number, text);
  next.DrawGrid();
  next.SetGridLines(script->gridLinesX, script->gridLinesY);
  next.DrawAxes();
  for (const GraphScript::Curve& curve : script->curves) {
    if (curve.color) {
      next.CurveInColor(*curve.color);
    } else if (curve.sameColor && !next.series().empty()) {
      const PlotSeriesRecord& last = next.series().back();
      next.CurveInColor({last.name, last.color});
    } else {
      next.CurveColor();
    }
    const double width = curve.width > 0 ? curve.width : next.series().back().pen.width;
    next.SetCurvePen(width, curve.style);
    next.ReservePoints(curve.points.size());
    auto start = curve.starts.begin();
    for (std::size_t i = 0; i < curve.points.size(); ++i) {
      const bool starts = start != curve.starts.end() && *start == i;
      if (starts) ++start;
      const GraphPoint& point = curve.points[i];
      starts ? next.PlotPoint(point.x, point.y) : next.PlotLine(point.x, point.y);
    }
  }
  for (const GraphScript::Circle& circle : script->circles) {
    const Color color = circle.color.value_or(CurveColorOf(next.CurveIndex)).color;
    next.PlotCircle(circle.center.x, circle.center.y, circle.radius,
                    {color, static_cast<double>(circle.width), circle.style});
  }
  underOverlay_ = std::move(under);
  scriptFile_ = file;
  Label1.SetCaption(PathText(file.filename()));
  Commit(std::move(next), Shown::File);
  if (!zoom) KeepFirstLimits();
  Inform(Icon::Information, FormatValue<"#,##0">(script->records, mark()) + " Records Read");
}

// ---------------------------------------------------------------- pictures

void Form8::ShowPictureFile() {
  const std::filesystem::path file = AskFile(FileDialog::Kind::Open, kOpenPictureFilter, 1);
  const BusyCursor busy(context().host);
  std::string bytes = LoadFile(file);
  context().host.MeasurePicture(bytes);
  PlotEngine next(block());
  next.SetPicture(std::move(bytes));
  underOverlay_ = std::nullopt;
  Label1.SetCaption(PathText(file.filename()));
  Commit(std::move(next), Shown::Other);
}

void Form8::RequireSomethingDrawn() const {
  if (!plot_->Empty()) return;
  throw CommandError(ErrorKind::InvalidArgument, "There is no graph yet. Please draw one first.");
}

void Form8::SaveGraph(const std::filesystem::path& file) {
  RequireSomethingDrawn();
  const BusyCursor busy(context().host);
  SaveImageFile(context().host, file, GraphPixels(block().CustomGraphWidth),
                GraphPixels(block().CustomGraphHeight), kQuality);
  Label1.SetCaption(PathText(file.filename()));
}

void Form8::SaveGraphAs() {
  RequireSomethingDrawn();
  std::filesystem::path file =
      AskFile(FileDialog::Kind::Save, kSavePictureFilter, kSavePictureFilterIndex);
  if (file.extension().empty()) file += ".bmp";
  SaveGraph(file);
}

void Form8::SaveScreenPicture() {
  const std::filesystem::path file = SaveWindowAsJpeg(*this, "CarGraph");
  Label1.SetCaption(PathText(file.filename()));
}

void Form8::SaveGraphPicture() {
  SaveGraph(GraphPictureFile(context().host, ".jpg"));
}

void Form8::PrintGraphPicture() {
  SaveGraph(GraphPictureFile(context().host, ".bmp"));
  context().host.PrintGraph();
}

void Form8::CopyGraph() {
  RequireSomethingDrawn();
  context().host.CopyPicture({PictureRequest::Of::Graph, name(), PictureFormat::Png,
                              GraphPixels(block().CustomGraphWidth),
                              GraphPixels(block().CustomGraphHeight), kQuality});
}

void Form8::SavePoints() {
  if (plot_->series().empty()) {
    throw CommandError(ErrorKind::InvalidArgument, "There is no curve yet whose points are saved.");
  }
  std::filesystem::path file = AskFile(FileDialog::Kind::Save, kPointsFilter, 1);
  if (file.extension().empty()) file += ".csv";
  SaveFile(file, plot_->PointsAsCsv());
  Label1.SetCaption(PathText(file.filename()));
}

// ---------------------------------------------------------------- the mouse

GraphPoint Form8::ValueAt(SurfacePoint place) const {
  return plot_->Unmap(InFrame(place));
}

void Form8::MouseMove(SurfacePoint place) {
  if (!plot_->hasAxes()) return MouseLeave();
  const GraphPoint value = ValueAt(place);
  if (!std::isfinite(value.x) || !std::isfinite(value.y)) return MouseLeave();
  Label18.SetCaption(FormatAxisValue(value.x, mark()));
  Label19.SetCaption(FormatAxisValue(value.y, mark()));
}

void Form8::MouseLeave() {
  Label18.SetCaption("");
  Label19.SetCaption("");
}

std::string Form8::ReadOut(SurfacePoint place) const {
  std::string text;
  if (!plot_->hasAxes()) return text;
  for (const NearestPoint& nearest : plot_->NearestPoints(ValueAt(place).x)) {
    const std::string legend = plot_->LegendText(plot_->series()[nearest.series]);
    if (!text.empty()) text += "\n";
    if (!legend.empty()) text += legend + ": ";
    text +=
        FormatAxisValue(nearest.point.x, mark()) + "  " + FormatAxisValue(nearest.point.y, mark());
  }
  return text;
}

void Form8::BeginStroke(SurfacePoint place) {
  strokeAt_.reset();
  if (!Check1.on() || !plot_->hasAxes()) return;
  strokeAt_ = ValueAt(place);
}

void Form8::ContinueStroke(SurfacePoint place) {
  if (!strokeAt_) return;
  const GraphPoint to = ValueAt(place);
  const std::int32_t chosen = block().DrawLineColor;
  constexpr int kWidestStroke = 50;
  const Pen pen{chosen == kNoDrawColor ? Color{} : Color::FromValue(chosen),
                static_cast<double>(std::clamp<int>(block().DrawLineWidth, 1, kWidestStroke)),
                LineStyle::Solid};
  plot_.Change().PlotFreeLine(*strokeAt_, to, pen, chosen == kNoDrawColor);
  strokeAt_ = to;
  GraphChanged();
}

void Form8::ClearDrawing() {
  plot_.Change().ClearFreeLines();
  GraphChanged();
}

void Form8::MoveGridLine(std::size_t line, SurfacePoint place) {
  MoveableLine& moved = moveableLines_.at(line);
  const double part = moved.vertical ? (place.x - frame_.left) / frame_.width
                                     : (place.y - frame_.top) / frame_.height;
  moved.place = std::clamp(part, 0.0, 1.0);
  GraphChanged();
}

double Form8::GridLineValue(std::size_t line) const {
  const MoveableLine& read = moveableLines_.at(line);
  const GraphPoint value =
      plot_->Unmap({read.place * frame_.width, frame_.top + read.place * frame_.height});
  return read.vertical ? value.x : value.y;
}

void Form8::SwitchMoveableLines() {
  block().MoveGridLines = block().MoveGridLines != 0 ? 0 : 1;
  OptionsChanged();
  if (listener_) listener_();
}

void Form8::OptionsChanged() {
  Graph_Move_Grid.SetCaption(std::string("Moveable Grid Lines -- Is ") +
                             (MoveableLinesShown() ? "ON" : "OFF"));
  GraphChanged();
}

}  // namespace veldox
