#include "cam/cam_generator_screen.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <filesystem>
#include <limits>
#include <span>
#include <utility>

#include "cam/lift_file.h"
#include "core/files.h"

namespace veldox {

namespace {

constexpr const char* kMessageTitle = "VELDOX -- Cam File Generation";
constexpr const char* kTooManyPoints =
    "This will Generate more than 3600 Data Points -- Program can only read back in 3600 Data "
    "Point -- Please increase every X value and Rerun.";
constexpr const char* kS96StepMustBe2 =
    "For S96 Files - Every x Degree 'MUST BE 2' File can not be Generated";
constexpr const char* kNoCurve =
    "No curve can be computed from these values. Please check the Lift and Duration columns.";

constexpr const char* kSaveFilter =
    "Text Files (*.txt)|*.txt|All Files (*.*)|*.*|Cam Files (*.cmm)|*.cmm|Printer Files "
    "(*.prt)|*.prt|S96 Files (*.S96)|*.S96";
constexpr int kCamFilesIndex = 3;
constexpr int kS96FilesIndex = 5;
constexpr int kTextSize = 10;  // points

constexpr double kUsualLift = 0.5;
constexpr double kUsualDuration = 300;  // degrees
constexpr double kLongestDuration = 360;
constexpr double kS96Step = 2;
/// Styles of ramp that have a user rate: velocity to snap.
constexpr int kRateStyles = 4;
/// A degree of the camshaft is two of the crank.
constexpr double kCrankDegreesPerCamDegree = 2;

/// What a cell that holds no number counts as: no lift or duration either.
constexpr double kNoNumber = -1;

constexpr const char* kComment = ";  ";
constexpr std::string_view kLineEnd = "\r\n";
constexpr const char* kRampBreak = "000000000000000000000000000000000000000000000000000000000000";

/// @param text  with the sign of comments
std::string CommentLine(std::string text) {
  return text += kLineEnd;
}

bool IsBlank(const std::string& text) {
  return text.find_first_not_of(' ') == std::string::npos;
}

}  // namespace

Form33::Form33(ProgramContext& context, CamFiles& files)
    : Screen(context, "Form33", "Cam File Generator", "Gen_Cam_File"), files_(files) {
  std::vector<std::string> degrees;
  for (int degree = kLowestDegree; degree <= kHighestDegree; ++degree) {
    degrees.push_back(std::to_string(degree));
  }
  Combo1.SetRows(std::move(degrees));
  Combo1.Choose(kUsualDegree - kLowestDegree);
}

// ---------------------------------------------------------------- input

void Form33::Tell(const std::string& text) {
  context().host.Ask({Icon::Warning, kMessageTitle, text, {Button::OK}});
}

void Form33::Stop(const std::string& text) {
  Tell(text);
  throw CommandError(ErrorKind::Cancelled, "");
}

std::optional<double> Form33::NumberIn(const Field& field) const {
  if (!IsNumber(field.text(), mark())) return std::nullopt;
  return ParseNumber(field.text(), mark());
}

double Form33::ReadCell(Field& field) {
  const std::optional<double> number = IsBlank(field.text()) ? 0 : NumberIn(field);
  if (!number) return kNoNumber;
  const Holds::Slot slot = field.holds().In(block());
  *std::get<double*>(slot) = *number;
  return *number;
}

double Form33::ReadStep() {
  const double step = Read(Text2);
  Require(step > 0, Text2, "must be greater than 0.");
  return step;
}

double Form33::DurationOrUsual(Field& field, const char* missing) {
  const double duration = ReadCell(field);
  if (duration > 0) return duration;
  Tell(missing + field.text() + " -- Data Ignored - 300 Used");
  Store(field, kUsualDuration);
  ShowText(field, FormatInt(kUsualDuration, mark()));
  return kUsualDuration;
}

Form33::Generation Form33::BeginGeneration() {
  Generation generation;
  generation.size.step = ReadStep();
  Field& top = Text58[kTopRow];
  generation.lift = ReadCell(top);
  if (!(generation.lift > 0)) {
    Tell("Invalid Max Lift Data -->" + top.text() + " -- Data Ignored - 0.500 Used");
    generation.lift = kUsualLift;
    Store(top, generation.lift);
  }
  Field& zero = Text59[0];
  const double duration = DurationOrUsual(zero, "User Must Supply .000 Lift Duration -->");
  generation.size.openHalf = duration / 2;
  generation.durationText = zero.text();
  return generation;
}

void Form33::RequireReadable(double records) {
  if (!(records <= kMostLiftRecords)) Stop(kTooManyPoints);
}

void Form33::RequireFlank(const LobeSize& size) {
  Require(size.step <= size.openHalf && size.step <= size.closeHalf, Text2,
          "is longer than a flank of the lobe, so that no lift would be written.");
}

std::string Form33::RecordText(double number) const {
  if (!std::isfinite(number)) {
    throw CommandError(ErrorKind::InvalidArgument, kNoCurve);
  }
  return LiftText(number, mark());
}

// ---------------------------------------------------------------- motion laws

CommandWork Form33::Generates(const MotionLaw& law) {
  return {[&law](Screen& screen, int) { static_cast<Form33&>(screen).GenerateByLaw(law); },
          CommandRole::Calculates};
}

Form33::Generation Form33::BeginLobe() {
  Generation generation = BeginGeneration();
  LobeSize& size = generation.size;
  size.closeHalf = size.openHalf;
  if (Check2.on()) {
    size.closeHalf =
        DurationOrUsual(Text20, "User Must Supply Asymmetrical .000 Lift Duration -->") / 2;
  }
  if (LimitDuration(generation) && !Check2.on()) size.closeHalf = size.openHalf;
  RequireReadable(RecordCount(size));
  RequireFlank(size);
  return generation;
}

bool Form33::LimitDuration(Generation& generation) {
  LobeSize& size = generation.size;
  if (!(kMostLiftRecords < 2 * size.openHalf / size.step)) return false;
  Tell("This will Generate more than 3600 data point --> 360 Degrees Used");
  size.openHalf = kLongestDuration / 2;
  generation.durationText = FormatInt(kLongestDuration, mark());
  return true;
}

Form33::Output Form33::OutputOf(const std::string& name, const Generation& generation) const {
  Output output;
  output.comments = CommentLine(kComment + name) +
                    CommentLine(kComment + generation.durationText + " - .000") +
                    CommentLine(kComment + FormatValue<"0.0#####">(generation.lift, mark()));
  output.step = Text2.text();
  return output;
}

void Form33::FinishLobe(Output output, const LiftCurve& curve, double step) {
  for (const double lift : curve.lifts) output.records.push_back(RecordText(lift));
  output.nose = curve.nose;
  ShowLobe(curve, step);
  Save(output);
}

void Form33::GenerateByLaw(const MotionLaw& law) {
  const Generation generation = BeginLobe();
  FinishLobe(OutputOf(law.name, generation), LobeOf(generation.size, law, generation.lift),
             generation.size.step);
}

void Form33::GenerateModifiedEllipse() {
  const Generation generation = BeginLobe();
  std::optional<double> ratio = NumberIn(Text21);
  if (!ratio || std::abs(*ratio) > kLargestEllipseRatio) {
    Tell("Ratio is Less than -.9999 Or Greater the .9999 -- Ratio Set to .005");
    ratio = kUsualEllipseRatio;
    ShowText(Text21, FormatValue<".000">(*ratio, mark()));
  }
  ReadFields({&Text21});
  Output output = OutputOf(kModifiedEllipseName, generation);
  output.comments += CommentLine(";  M E Ratio " + Text21.text());
  FinishLobe(std::move(output),
             LobeOf(
                 generation.size, [ratio](double x) { return ModifiedEllipse(x, *ratio); },
                 generation.lift),
             generation.size.step);
}

// ---------------------------------------------------------------- lash ramps

void Form33::GenerateLashRamp() {
  GenerateRamp("Constant Lash Ramp - ", [this](const Generation& g, double length) {
    return Ramp{LashRamp(g.lift, length, g.size.step, Option1.chosen() + 1), g.lift};
  });
}

void Form33::GenerateLashRampByRate() {
  if (Option1.chosen() >= kRateStyles) {
    Stop("This Function only works with Velocity, Acceleration, Jerk, and Snap");
  }
  const auto byRate = [this](const Generation& g, double length) {
    std::vector<double> lifts = LashRampByRate(g.lift, length, g.size.step, Option1.chosen() + 1);
    const double height = lifts.back();
    return Ramp{std::move(lifts), height};
  };
  GenerateRamp("Constant Lash Ramp - User Supplied Rate - ", byRate);
}

void Form33::GenerateRamp(const std::string& kind, const RampMaker& makeRamp) {
  Generation generation = BeginGeneration();
  LimitDuration(generation);
  const double length = 2 * generation.size.openHalf;
  const double step = generation.size.step;
  // The way up, the height, the break and the way down.
  RequireReadable(2 * (WholeSteps(length, step) + 1) + 2);
  Require(step <= length, Text2, "is longer than the ramp, so that no lift would be written.");
  const Ramp ramp = makeRamp(generation, length);
  const auto style = static_cast<std::size_t>(Option1.chosen());
  Output output = OutputOf(kind + Option1.buttons()[style]->caption(), generation);
  for (const double lift : ramp.rising) output.records.push_back(RecordText(lift));
  std::vector<std::string> falling(output.records.rbegin(), output.records.rend());
  output.nose = output.records.size();
  output.records.push_back(RecordText(ramp.height));
  output.records.emplace_back(kRampBreak);
  output.records.insert(output.records.end(), falling.begin(), falling.end());
  ForgetLobe();
  Save(output);
}

// ---------------------------------------------------------------- cam reports

std::optional<ValveEvents> Form33::ReadEvents(Field& open, Field& close) {
  const ValveEvents events{ReadCell(open), ReadCell(close)};
  const bool areBlank = IsBlank(open.text()) && IsBlank(close.text());
  if (areBlank || (NumberIn(open) && NumberIn(close))) return events;
  return std::nullopt;
}

std::vector<DurationRow> Form33::ReadRows(FlankSource source) {
  std::vector<DurationRow> rows;
  for (int i = 0; i < kReportRows; ++i) {
    DurationRow row{ReadCell(Text58[i]), ReadCell(Text59[i]), {}, {}};
    const auto read = [&](ValveEvents& events, Field& open, Field& close) {
      const std::optional<ValveEvents> cells = ReadEvents(open, close);
      events = cells.value_or(ValveEvents{});
      // A row with half of its events does not count.
      if (!cells) row.lift = kNoNumber;
    };
    if (source != FlankSource::Duration) read(row.events, Text60[i], Text61[i]);
    if (source == FlankSource::TwoEvents) read(row.closing, Text62[i], Text63[i]);
    rows.push_back(row);
  }
  return rows;
}

void Form33::TellIgnoredRows(const std::vector<int>& rows) {
  std::string text;
  for (const int row : rows) {
    if (!text.empty()) text += kLineEnd;
    text +=
        "Invalid Data -->" + Text58[row].text() + " - " + Text59[row].text() + " -- Data Ignored";
  }
  if (!text.empty()) Tell(text);
}

std::string Form33::PairComment(double lift, double duration) const {
  return CommentLine(kComment + FormatValue<"0.0#####">(lift, mark()) + " - " +
                     FormatValue<"0.0#####">(duration, mark()));
}

FittedCurve Form33::Fit(const std::vector<CurvePoint>& points) {
  try {
    return FitCurve(points, static_cast<FitMethod>(Option2.chosen()),
                    Combo1.chosen() + kLowestDegree);
  } catch (const CommandError& error) {
    Stop(error.message());
  }
}

std::string Form33::CommentsOf(const FittedCurve& curve) const {
  switch (static_cast<FitMethod>(Option2.chosen())) {
    case FitMethod::Spline: return CommentLine(";  Spline");
    case FitMethod::SplineInterp: return CommentLine(";  Spline Interp");
    case FitMethod::Poly: break;
  }
  std::string comments;
  for (std::size_t power = 0; power < curve.coefficients.size(); ++power) {
    if (!std::isfinite(curve.coefficients[power])) continue;
    std::string value = FormatShortest(curve.coefficients[power]);
    if (mark() == DecimalMark::Comma) std::ranges::replace(value, '.', ',');
    comments += CommentLine(";  (X ^ " + std::to_string(power) + " * " + value + ')');
  }
  return comments;
}

void Form33::GenerateFromTable(FlankSource source) {
  Generation generation = BeginGeneration();
  LobeSize& size = generation.size;
  if (source == FlankSource::TwoEvents) {
    size.closeHalf =
        DurationOrUsual(Text20, "User Must Supply Asymmetrical .000 Lift Duration -->") / 2;
  }
  const std::vector<DurationRow> rows = ReadRows(source);
  const LobePoints points = PointsOfLobe(rows, generation.lift, source, 2 * size.closeHalf);
  TellIgnoredRows(points.ignored);
  if (points.top > generation.lift) {
    Tell("Invalid Max Lift Data -->" + Text58[kTopRow].text() +
         " -- Data Ignored - Highest Lift Used");
    Store(Text58[kTopRow], points.top);
  }
  const FittedCurve opening = Fit(points.opening);
  const FittedCurve closing = Fit(points.closing);
  size.openHalf = points.opening.back().x;
  size.closeHalf = points.closing.back().x;
  RequireReadable(RecordCount(size));
  RequireFlank(size);
  Output output;
  for (const int row : points.kept) {
    const DurationRow& pair = rows[static_cast<std::size_t>(row)];
    output.comments += PairComment(pair.lift, pair.duration);
  }
  output.comments += CommentsOf(opening);
  // Splines tell only their name.
  if (source != FlankSource::Duration && !closing.coefficients.empty()) {
    output.comments += CommentsOf(closing);
  }
  output.step = Text2.text();
  const LiftCurve curve = LobeOf(
      size, [&](double degrees) { return opening.at(size.openHalf - degrees); },
      [&](double degrees) { return closing.at(size.closeHalf - degrees); });
  FinishLobe(std::move(output), curve, size.step);
}

void Form33::GenerateFromDurations() {
  GenerateFromTable(FlankSource::Duration);
}

void Form33::GenerateFromEvents() {
  GenerateFromTable(Check2.on() ? FlankSource::TwoEvents : FlankSource::Events);
}

// ---------------------------------------------------------------- curve data

std::vector<CurvePoint> Form33::ReadCurvePoints() {
  std::vector<CurvePoint> points;
  std::vector<int> ignored;
  for (int i = 0; i < kReportRows; ++i) {
    if (!HoldsPoint(i)) continue;
    // A blank is 0.
    const double x = ReadCell(Text59[i]);
    const double y = ReadCell(Text58[i]);
    const auto isNumber = [this](const Field& field) {
      return IsBlank(field.text()) || NumberIn(field).has_value();
    };
    if (isNumber(Text59[i]) && isNumber(Text58[i])) {
      points.push_back({x, y});
    } else {
      ignored.push_back(i);
    }
  }
  TellIgnoredRows(ignored);
  return points;
}

void Form33::MakeCurve(bool withInputs) {
  const double step = ReadStep();
  const std::vector<CurvePoint> points = ReadCurvePoints();
  if (points.size() < kFewestSplinePoints) Stop(kTooFewPoints);
  const FittedCurve curve = Fit(points);
  const auto [low, high] = std::ranges::minmax_element(points, {}, &CurvePoint::x);
  const double steps = WholeSteps(high->x - low->x, step);
  RequireReadable(steps + 1);
  Output output;
  for (const CurvePoint& point : points) output.comments += PairComment(point.y, point.x);
  output.comments += CommentsOf(curve);
  output.step = Text2.text();
  output.isLiftFile = !withInputs;
  double highest = -std::numeric_limits<double>::infinity();
  for (std::size_t i = 0; i <= static_cast<std::size_t>(steps); ++i) {
    const double x = std::min(low->x + static_cast<double>(i) * step, high->x);
    const double y = curve.at(x);
    if (y > highest) {
      highest = y;
      output.nose = i;
    }
    output.records.push_back(withInputs ? "| " + RecordText(x) + ' ' + RecordText(y)
                                        : RecordText(y));
  }
  ForgetLobe();
  Save(output);
}

// ---------------------------------------------------------------- the table

bool Form33::HoldsPoint(int row) const {
  const Field& lift = Text58[row];
  const Field& duration = Text59[row];
  const auto isZero = [this](const Field& field) {
    return IsBlank(field.text()) || NumberIn(field) == 0.0;
  };
  if (!isZero(lift) || !isZero(duration)) return true;
  // The first row may be the origin.
  return row == 0 && !IsBlank(lift.text()) && !IsBlank(duration.text());
}

void Form33::ClearDurations() {
  for (const FieldArray* column : {&Text59, &Text60, &Text61, &Text62, &Text63}) {
    for (const auto& field : column->fields()) {
      Store(*field, 0);
      ShowText(*field, FormatInt(0, mark()));
    }
  }
}

void Form33::SolveDurations() {
  std::array<std::optional<double>, kReportRows> durations;
  std::vector<int> ignored;
  for (int i = 0; i < kReportRows; ++i) {
    const std::optional<ValveEvents> events = ReadEvents(Text60[i], Text61[i]);
    if (!events) ignored.push_back(i);
    if (!events || !events->given()) continue;
    Require(events->duration() > 0, Text61[i],
            "comes before the valve opens: Open and Close leave no Duration.");
    durations[static_cast<std::size_t>(i)] = events->duration();
  }
  TellIgnoredRows(ignored);
  for (int i = 0; i < kReportRows; ++i) {
    const std::optional<double>& duration = durations[static_cast<std::size_t>(i)];
    if (duration) Store(Text59[i], *duration);
  }
}

std::optional<double> Form33::LiftKey(int row) const {
  const std::optional<double> duration = NumberIn(Text59[row]);
  const std::optional<double> lift = NumberIn(Text58[row]);
  return lift == 0.0 && duration.value_or(0) == 0 ? std::nullopt : lift;
}

std::optional<double> Form33::DurationKey(int row) const {
  return HoldsPoint(row) ? NumberIn(Text59[row]) : std::nullopt;
}

void Form33::SortRows(SortKey key) {
  const std::array columns{&Text58, &Text59, &Text60, &Text61, &Text62, &Text63};
  struct Row {
    std::optional<double> key;  ///< nothing for one that has to stand at the end
    std::array<std::string, 6> texts;
  };
  std::vector<Row> rows;
  for (int i = 0; i < kReportRows; ++i) {
    Row row{(this->*key)(i), {}};
    for (std::size_t c = 0; c < columns.size(); ++c) row.texts[c] = (*columns[c])[i].text();
    rows.push_back(std::move(row));
  }
  std::ranges::stable_sort(
      rows, [](const Row& a, const Row& b) { return a.key && (!b.key || *a.key < *b.key); });
  for (int i = 0; i < kReportRows; ++i) {
    for (std::size_t c = 0; c < columns.size(); ++c) {
      Field& field = (*columns[c])[i];
      std::string& text = rows[static_cast<std::size_t>(i)].texts[c];
      if (field.text() == text) continue;
      ShowText(field, std::move(text));
      ReadCell(field);
    }
  }
}

void Form33::SortByLift() {
  SortRows(&Form33::LiftKey);
}

void Form33::SortByDuration() {
  SortRows(&Form33::DurationKey);
}

// ---------------------------------------------------------------- flat tappets

void Form33::SolveMaxVelocity() {
  ReadFields({&Text5});
  const double diameter = InInches(Text5, Read(Text5));
  Require(diameter > 2 * kTappetMargin, Text5,
          "is too small: .01 inch of margin on each side must be left on its face.");
  Store(Text1, AsShown(Text1, MaxTappetVelocity(diameter)));
  JudgeVelocity();
}

void Form33::SolveMinDiameter() {
  ReadFields({&Text1});
  const double velocity = InInches(Text1, Read(Text1));
  Require(velocity >= 0, Text1, "must not be negative.");
  Store(Text5, AsShown(Text5, MinTappetDiameter(velocity)));
  JudgeVelocity();
}

// ---------------------------------------------------------------- output

void Form33::Save(const Output& output) {
  std::string text = output.comments;
  if (output.isLiftFile) text = CmmText({output.comments, output.step, {}, {}}, mark());
  for (const std::string& record : output.records) {
    text += record;
    text += kLineEnd;
  }
  const bool isS96 = output.isLiftFile && Check3.on();
  const bool canBeSaved = !isS96 || Read(Text2) == kS96Step;
  if (isS96 && canBeSaved) text = S96Text(output.records, output.nose);
  text.erase(text.size() - kLineEnd.size());
  const int filterIndex = isS96 ? kS96FilesIndex : kCamFilesIndex;
  ShowReport(text, kTextSize, {kSaveFilter, filterIndex, true, true});
  if (!canBeSaved) {
    Tell(kS96StepMustBe2);
    Tell("File Not Saved");
    return;
  }
  const auto path = context().host.AskFile(
      {FileDialog::Kind::Save, kSaveFilter, filterIndex, context().host.ProgramFolder()});
  if (path) SaveFile(*path, text + std::string(kLineEnd));
}

// ---------------------------------------------------------------- the lobe

void Form33::ShowLobe(const LiftCurve& curve, double step) {
  lobe_ = curve;
  lobeStep_ = step;
  lobeIsMetric_ = metric();
  Show(LobeRecords, static_cast<double>(curve.lifts.size()));
  Show(LobeAreaText, LobeArea(curve, step));
  JudgeVelocity();
  PeakVelocityText.SetMark(Mark::Changed);
}

void Form33::ForgetLobe() {
  lobe_ = LiftCurve{};
  for (Field* result : {&LobeRecords, &LobeAreaText, &PeakVelocityText}) result->SetText({});
  VelocityNote.SetCaption({});
}

void Form33::JudgeVelocity() {
  PeakVelocityText.SetText({});
  VelocityNote.SetCaption({});
  if (lobe_->lifts.empty()) return;
  const double perDegree = PeakVelocity(lobe_, lobeStep_);
  const double perCamDegree =
      Option3.chosen() == 0 ? perDegree * kCrankDegreesPerCamDegree : perDegree;
  // The lobe is as it was generated, whatever units have been chosen since.
  const double inches = lobeIsMetric_ ? kLengthRule.toInches(perCamDegree) : perCamDegree;
  const double shown = AsShown(PeakVelocityText, inches);
  if (!std::isfinite(shown)) return;
  PeakVelocityText.SetText(FormatField(shown, mark()));
  const std::optional<double> most = NumberIn(Text1);
  if (!most || !(*most > 0)) return;
  VelocityNote.SetCaption(inches > InInches(Text1, *most)
                              ? "Above Max Velocity: runs over the edge of the tappet."
                              : "Within Max Velocity: stays on the tappet.");
}

void Form33::Edited(const Control& control) {
  if (&control == &Text1 || &control == &Option3) JudgeVelocity();
}

void Form33::StoreTable(bool exhaust) {
  if (lobe_->lifts.empty()) Stop("There is no lobe yet. Please generate one first.");
  // The other side stays, in the inches of the new one.
  files_.ConvertTables(false);
  const ParameterBlock& b = block();
  const auto side = [](const LiftColumn& column, std::int16_t count, double step) {
    LiftSide held;
    if (count > 0) held.lifts.assign(column.begin(), column.begin() + count + 1);
    held.step = step;
    return held;
  };
  LiftFile file;
  file.step = b.CamStepDegrees.General;
  file.intake = side(b.IntakeCamLift, b.IntakeLiftCount, b.CamStepDegrees.Intake);
  file.exhaust = side(b.ExhaustCamLift, b.ExhaustLiftCount, b.CamStepDegrees.Exhaust);
  LiftSide& taken = exhaust ? file.exhaust : file.intake;
  taken.lifts = {0};
  for (const double lift : lobe_->lifts) {
    taken.lifts.push_back(lobeIsMetric_ ? kLengthRule.toInches(lift) : lift);
  }
  taken.lifts.push_back(0);
  taken.step = lobeStep_;
  if (!exhaust) file.step = lobeStep_;
  files_.StoreTables(file, "Cam Lift Curve Generator", false);
}

void Form33::StoreIntakeTable() {
  StoreTable(false);
}

void Form33::StoreExhaustTable() {
  StoreTable(true);
}

// ---------------------------------------------------------------- units

void Form33::ConvertLengths() {
  for (const auto& field : Text58.fields()) {
    if (!IsBlank(field->text())) Read(*field);
  }
  for (Field* field : {&Text5, &Text1}) {
    if (!IsBlank(field->text())) Read(*field);
  }
  SwitchUnits();
}

}  // namespace veldox
