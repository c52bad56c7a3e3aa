#include "engine/compression_ratio_screen.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include "core/report.h"

namespace veldox {

namespace {

constexpr double kSmallestStroke = 0.00001;
constexpr double kThousandth = 0.001;

}  // namespace

Form1CR::Form1CR(ProgramContext& context, Grapher& grapher)
    : Screen(context, "Form1CR", "Compression Ratio", "CompRatio"), grapher_(grapher) {
  AlsoConverts(&P::BlockDeckHeight, Unit::Length);
}

void Form1CR::ReadRatioFields() {
  ParameterBlock& b = block();
  ReadFields({&Text1, &Text3, &Text10, &Text14, &Text18, &Text42, &Text19, &Text20, &Text22,
              &Text23, &Text27, &Text28, &Text6, &Text5, &Text7, &Text8});
  if (b.Stroke <= 0) b.Stroke = kSmallestStroke;
}

void Form1CR::UpdateSweptVolume() {
  const ParameterBlock& b = block();
  const double swept = DiscVolume(b.Bore, b.Stroke);
  sweptCc_ = ToCc(swept, metric());
  Show(Text4, metric() ? sweptCc_ : swept);
  Show(Text2, b.HeadGasket + b.DeckClearance);
}

void Form1CR::Warn(const std::string& text) {
  context().host.Ask({Icon::Warning, context().rules.messages().MessageTitle, text, {Button::OK}});
}

double Form1CR::InchesForThousandth(double bore) const {
  return metric() ? bore / kMillimetresPerInch : bore;
}

void Form1CR::UpdateClearanceVolumes() {
  ParameterBlock& b = block();
  Require(b.Bore > 0, Text1, "must be greater than 0 for this command.");
  if (!Check3.on()) {
    if (b.TopLandDiameter > b.Bore) {
      Store(Text20, b.Bore * 0.99);
      Warn("Top Ring Land Diameter Greater Than Bore -- 0.99 * Bore Size Used");
    }
    if (b.Bore * 0.97 > b.TopLandDiameter) Warn("Is Top Ring Land Diameter Correct?");
  }
  if (!Check2.on() && (b.HeadGasketBore > b.Bore * 1.025 || b.HeadGasketBore < b.Bore)) {
    Warn("Is Head Gasket Bore Size Correct?");
  }
  deckCc_ = ToCc(DiscVolume(b.Bore, b.DeckClearance), metric());
  if (!Check2.on()) {
    Store(Text42, ToCc(DiscVolume(b.HeadGasketBore, b.HeadGasket), metric()));
  }
  if (Check3.on()) {
    ReadFields({&Text43});
  } else {
    Store(Text43, ToCc(RingLandVolume(b.Bore, b.TopLandDiameter, b.DepthFirstRing), metric()));
  }
  Show(Text45, ToCc(DiscVolume(InchesForThousandth(b.HeadGasketBore), kThousandth), metric()));
  const double ccPerThousandth =
      ToCc(DiscVolume(InchesForThousandth(b.Bore), kThousandth), metric());
  Show(Text46, ccPerThousandth);
  Show(Text9, deckCc_);
  Show(Text11, kThousandth / ccPerThousandth, {&Text1});
}

void Form1CR::ReadRatio() {
  ReadFields({&Text17});
}

void Form1CR::ReadChamberAndDome() {
  ReadFields({&Text15, &Text16});
}

ClearanceVolumes Form1CR::Volumes() const {
  const ParameterBlock& b = block();
  return {b.CombChamberVol, b.DomeVol, b.HeadGasketCC, deckCc_, b.RingCC};
}

Field& Form1CR::LargestTaker() {
  const ClearanceVolumes volumes = Volumes();
  const std::array<std::pair<double, Field*>, 5> given{
      {{-volumes.dome, &Text16},
       {volumes.deck, &Text10},
       {volumes.gasket, Check2.on() ? &Text42 : &Text14},
       {volumes.chamber, &Text15},
       {volumes.ring, Check3.on() ? &Text43 : &Text19}}};
  return *std::min_element(given.begin(), given.end())->second;
}

void Form1CR::SumVolumes() {
  ParameterBlock& b = block();
  ReadChamberAndDome();
  Require(Volumes().Total() >= 0, LargestTaker(),
          "takes more room than all the other volumes give: there would be no space left above "
          "the piston.");
  Store(Text21, Volumes().Total());
  Store(Text17, RatioOfVolumes(sweptCc_, b.TotalVol), {&Text21});
  Show(Text44, sweptCc_);
}

void Form1CR::StoreTotalForRatio() {
  ParameterBlock& b = block();
  Require(b.CompressionRatio != 1, Text17,
          "must not be 1 for this command: at 1 there is no compression.");
  Require(b.CompressionRatio > 1, Text17, "must be greater than 1 for this command.");
  Store(Text21, ClearanceForRatio(sweptCc_, b.CompressionRatio));
}

// ---------------------------------------------------------------- ratio and volumes

void Form1CR::SolveRatio() {
  ReadRatioFields();
  UpdateSweptVolume();
  UpdateClearanceVolumes();
  SumVolumes();
}

void Form1CR::SolveChamberVolume() {
  ReadRatioFields();
  UpdateSweptVolume();
  UpdateClearanceVolumes();
  ParameterBlock& b = block();
  ReadRatio();
  ReadFields({&Text16});
  StoreTotalForRatio();
  Store(Text15, b.TotalVol - Volumes().WithoutChamber());
}

void Form1CR::SolveDomeVolume() {
  ReadRatioFields();
  UpdateSweptVolume();
  UpdateClearanceVolumes();
  ParameterBlock& b = block();
  ReadRatio();
  ReadFields({&Text15});
  StoreTotalForRatio();
  Store(Text16, Volumes().WithoutDome() - b.TotalVol);
}

void Form1CR::SolveTotalVolume() {
  ReadRatioFields();
  UpdateSweptVolume();
  ReadRatio();
  StoreTotalForRatio();
}

void Form1CR::SolveRatioFromTotal() {
  ReadRatioFields();
  UpdateSweptVolume();
  ParameterBlock& b = block();
  ReadFields({&Text21});
  Require(b.TotalVol >= 0, Text21, "must not be negative for this command.");
  Store(Text17, RatioOfVolumes(sweptCc_, b.TotalVol), {&Text21});
}

void Form1CR::SolveDomeFromPoured() {
  ReadRatioFields();
  UpdateSweptVolume();
  ParameterBlock& b = block();
  Store(Text16, ToCc(DiscVolume(b.Bore, b.PistonDepth), metric()) - b.CCsPoured);
}

void Form1CR::SolveGasketThickness() {
  ReadRatioFields();
  UpdateSweptVolume();
  ParameterBlock& b = block();
  const double thickness = GasketThickness(FromCc(b.HeadGasketCC, metric()), b.HeadGasketBore);
  RequireResult(Text14, thickness, {&Text18});
  // Rounded by its own pattern, then cut as every field is.
  ShowText(Text14,
           FormatField(ParseNumber(FormatValue<"0.0####">(thickness, mark()), mark()), mark()));
  b.HeadGasket = thickness;
}

void Form1CR::EstimateHorsepowerGain() {
  ReadRatioFields();
  ParameterBlock& b = block();
  ReadRatio();
  ReadFields({&Text29});
  Require(b.CompressionRatio > 0, Text17, "must be greater than 0 for this command.");
  Require(b.NewCompressionRatio > 0, Text29, "must be greater than 0 for this command.");
  Store(Text28, HorsepowerGainOfRatio(b.HorsePower, b.CompressionRatio, b.NewCompressionRatio));
}

// ---------------------------------------------------------------- dish

Dish Form1CR::ReadDish() {
  ReadRatioFields();
  const ParameterBlock& b = block();
  Require(b.DishBore >= 0, Text5, "must not be negative for this command.");
  Require(b.DishDepth >= 0, Text6, "must not be negative for this command.");
  Require(b.DishRadius >= 0, Text8, "must not be negative for this command.");
  return {b.DishBore, b.DishDepth, b.DishRadius};
}

void Form1CR::ShowLimitedRadius(const Dish& dish) {
  ParameterBlock& b = block();
  if (dish.radius == b.DishRadius) return;
  Warn(
      "Dish Bore Bottom Radius is Greater Than Dish Depth\r\n"
      "Dish Bore Bottom Radius is Set to Dish Depth");
  Store(Text8, dish.radius);
}

void Form1CR::SolveDishVolume() {
  const Dish dish = WithFittingRadius(ReadDish());
  ShowLimitedRadius(dish);
  Store(Text7, ToCc(DishVolume(dish), metric()));
}

void Form1CR::SolveDishDepth() {
  const Dish entered = ReadDish();
  ParameterBlock& b = block();
  Require(b.DishBore != 0, Text5, "must not be 0 for this command.");
  const Dish dish = DishWithDepthFor(FromCc(b.DishCC, metric()), entered);
  RequireResult(Text6, dish.depth);
  ShowLimitedRadius(dish);
  Store(Text6, dish.depth);
}

void Form1CR::SolveDishBore() {
  const Dish entered = ReadDish();
  ParameterBlock& b = block();
  Require(b.DishDepth > 0, Text6, "must be greater than 0 for this command.");
  Require(b.DishCC >= 0, Text7, "must not be negative for this command.");
  const Dish dish = DishWithBoreFor(FromCc(b.DishCC, metric()), entered);
  RequireResult(Text5, dish.bore);
  ShowLimitedRadius(dish);
  Store(Text5, dish.bore);
}

// ---------------------------------------------------------------- charts

CompressionInput Form1CR::Input() const {
  const ParameterBlock& b = block();
  CompressionInput input;
  input.bore = b.Bore;
  input.stroke = b.Stroke;
  input.deckClearance = b.DeckClearance;
  input.gasketThickness = b.HeadGasket;
  input.gasketBore = b.HeadGasketBore;
  input.sweptCc = sweptCc_;
  input.volumes = Volumes();
  input.metric = metric();
  return input;
}

void Form1CR::CalculateChartBase() {
  ReadRatioFields();
  UpdateSweptVolume();
  UpdateClearanceVolumes();
  SumVolumes();
  if (FirstChartedRatio(block().CompressionRatio) < kLowestChartedRatio) {
    Warn("Warning Calculated CR is to LOW for Program");
  }
}

void Form1CR::ShowChart(const std::function<std::string()>& build) {
  ShowReport(BuildReport(build,
                         "The chart cannot be computed for this engine. Please check the Bore, "
                         "Stroke, Comp Ratio, Head Gasket Bore Size and the volumes."));
}

void Form1CR::ChartTotalVolume() {
  ReadRatioFields();
  UpdateSweptVolume();
  ReadRatio();
  Require(block().CompressionRatio > 0, Text17, "must be greater than 0 for this chart.");
  ShowChart([this] { return TotalVolumeChart(Input(), block().CompressionRatio, mark()); });
}

void Form1CR::ShowNeededChart(RatioChart chart) {
  CalculateChartBase();
  ShowChart([&] { return NeededChart(chart, Input(), mark()); });
}

void Form1CR::ChartTotalVolumeNeeded() {
  ShowNeededChart(RatioChart::TotalVolume);
}

void Form1CR::ChartChamber() {
  ShowNeededChart(RatioChart::Chamber);
}

void Form1CR::ChartDome() {
  ShowNeededChart(RatioChart::Dome);
}

void Form1CR::ChartGasketThickness() {
  CalculateChartBase();
  Require(block().HeadGasketBore != 0, Text18, "must not be 0 for this chart.");
  ShowChart([this] { return NeededChart(RatioChart::GasketThickness, Input(), mark()); });
}

// ---------------------------------------------------------------- graphs

GraphCurve Form1CR::Curve(bool first) {
  GraphCurve curve =
      RatioGraphCurve((*drawn_)->graph, Input(), (*drawn_)->sweep, block().TotalVol, first, mark());
  Require(curve.points.size() > 1, Text21,
          "is not above 0 anywhere on this graph. Please check the volumes that it comes from.");
  return curve;
}

void Form1CR::GraphRatio(RatioGraph graph, const RatioSweep& sweep) {
  const GraphFrame frame = RatioGraphFrame(graph, Input(), sweep);
  const std::optional<DrawnGraph> before = drawn_;
  drawn_ = DrawnGraph{graph, sweep, frame.range};
  try {
    const GraphCurve curve = Curve(true);
    grapher_.DrawGraph(frame, {&curve, 1});
  } catch (const CommandError&) {
    drawn_ = before;
    throw;
  }
  grapher_.ShowGraph();
}

bool Form1CR::GraphStands() const {
  return drawn_->has_value() && grapher_.HasGraph() && grapher_.plot().scale() == (*drawn_)->axes;
}

void Form1CR::GraphTotalVolume() {
  ReadRatioFields();
  UpdateSweptVolume();
  ParameterBlock& b = block();
  ReadFields({&Text21});
  Require(b.TotalVol > kSmallestGraphedVolume, Text21, "must be greater than 2 for this graph.");
  GraphRatio(RatioGraph::TotalVolume, SweepAroundTotal(b.TotalVol));
}

void Form1CR::GraphChamber() {
  CalculateChartBase();
  const ParameterBlock& b = block();
  Require(b.TotalVol > 0, Text21,
          "must be greater than 0 for this graph. Please check the volumes that it comes from.");
  GraphRatio(RatioGraph::Chamber, SweepAroundChamber(b.CombChamberVol));
}

void Form1CR::GraphFurther() {
  if (!GraphStands()) {
    Text38.CloseReport();
    Text38.SetText(
        "There is no graph of this screen yet that a curve can be added to. Graph CR Tot Vol and "
        "Graph CC Vol CR draw one.");
    Text38.SetVisible(true);
    return;
  }
  if ((*drawn_)->graph == RatioGraph::Chamber) {
    CalculateChartBase();
  } else {
    ReadRatioFields();
    UpdateSweptVolume();
  }
  const GraphCurve curve = Curve(false);
  grapher_.AddToGraph({&curve, 1});
  grapher_.ShowGraph();
}

// ---------------------------------------------------------------- switches

void Form1CR::SwitchGasketEntry() {
  Text14.SetEnabled(!Check2.on());
  Text18.SetEnabled(!Check2.on());
}

void Form1CR::SwitchRingEntry() {
  Text19.SetEnabled(!Check3.on());
  Text20.SetEnabled(!Check3.on());
}

void Form1CR::ConvertRatioUnits() {
  ReadRatioFields();
  SwitchUnits();
}

}  // namespace veldox
