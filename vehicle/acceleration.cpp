#include "vehicle/acceleration.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>

#include "core/numbers.h"
#include "core/step_bound.h"

namespace veldox {

namespace {

constexpr double kStandardGravity = 32.17405;  // feet a second squared
constexpr double kFeetASecondPerMph = 1.4666666666666666;
constexpr double kPowerOfTorque = 5252;  // foot pounds x RPM of a horsepower
constexpr double kInchesInFoot = 12;
constexpr double kInchTurnsPerMph = 168.06762;  // speed of a radius in inches at an RPM
constexpr double kTireTurnsPerMph = 336.13524;  // the same of a diameter
constexpr double kAeroPower = 146625;           // square feet x MPH cubed of a horsepower
constexpr double kPoundMphOfHp = 375;
constexpr double kHoodPressure = 9266.1264;     // from pounds a cubic foot and feet a second
constexpr double kAtmosphere = 14.69595;        // psi
constexpr double kStandardPressure = 29.92126;  // inches of mercury
constexpr double kStandardDensity = 0.076501;   // pounds a cubic foot
constexpr double kLargestDensity = 0.1;         // above it a number is a pressure
constexpr double kRadiansPerDegree = 0.017453292519943278;
constexpr double kLastDirection = 359;

constexpr double kFirstWheelRpm = 100;
constexpr double kLaunchStep = 0.25;  // RPM
constexpr int kSubSteps = 400;
/// Equal RPM are told by this part of a step: sums of steps are not exact.
constexpr double kStepTolerance = 1e-3;

constexpr double kFeetInMile = 5280;
constexpr double kQuarterMile = 1320;
constexpr double kOutOfGearFeet = 1325;
constexpr double kExtensionFeet = 1260;
constexpr double kFineChartSeconds = 45;
constexpr double kFineChartFeet = 6600;

// The car that rolls out
constexpr double kRollOutStep = 0.025;  // MPH
constexpr double kRollOutDensity = 0.076474;
constexpr double kLeastRearEndLoss = 5;

/// Steps of speed of a CVT's run, feet a second.
constexpr double kCvtStep = 0.01;
constexpr int kMostCvtSteps = 20'000'000;
constexpr int kMostRollOutSteps = 2'000'000;

/// Points of a curve between its rows.
constexpr int kLaunchSampleSteps = 100;
constexpr int kCvtSampleSteps = 50;
/// A gear's curve has about this many points, and some in each interval of a short table.
constexpr int kGearSamples = 600;
constexpr int kMostIntervalSamples = 40;

/// Feet a second squared. No clock tells a car that gains speed more slowly from one that gains
/// none.
constexpr double kLeastAcceleration = 1e-6;

/// Tires that hold from here on have limited nothing that a report with tenths of a foot could
/// tell.
constexpr double kLeastLimitedFeet = 0.05;

// Bounds that keep a run within steps and speeds that there are
constexpr double kMostRpm = 1e6;
constexpr double kLeastRpmGap = 0.01;
constexpr double kMostMph = 10000;

constexpr double kNever = std::numeric_limits<double>::max();
/// The stall speed without a converter: no engine speed is below it, 0 neither.
constexpr double kNoStall = -1;
/// No row was at this RPM.
constexpr double kNoRow = -kNever;

double DensityFactorOf(double trackPressure) {
  return trackPressure / (trackPressure > kLargestDensity ? kStandardPressure : kStandardDensity);
}

double AirDensityOf(double trackPressure) {
  return trackPressure > kLargestDensity ? trackPressure / kStandardPressure * kStandardDensity
                                         : trackPressure;
}

double Kept(double percentLost) {
  return 1 - percentLost / 100;
}

/// A nitrous stage, ready for a step.
struct StageRamp {
  double horsepower = 0;
  double start = 0;
  double startPercent = 100;
  double full = 0;
  double stop = kNever;
  double nitrousSlope = 1;  ///< of RPM or seconds a percent

  /// @param at  RPM or seconds
  double At(double at) const {
    if (at < start || (at >= stop && stop < kNever)) return 0;
    if (at >= full || startPercent >= 100) return horsepower;
    return horsepower * ((at - start) / nitrousSlope + startPercent) / 100;
  }
};

StageRamp RampOf(double horsepower, double start, double startPercent, double full, double stop) {
  StageRamp ramp{horsepower, start, startPercent, full, stop};
  if (startPercent < 100 && full > start) ramp.nitrousSlope = (full - start) / (100 - startPercent);
  return ramp;
}

/// The stages that act in one gear.
class ActiveStages {
 public:
  ActiveStages() = default;
  ActiveStages(const AccelerationInputs& inputs, double gear) {
    if (!inputs.nitrous) return;
    for (std::size_t i = 0; i < kNitrousStages; ++i) {
      const auto& stage = inputs.nitrousStages[i];
      if (i >= kGearStages) {
        if (stage[0] != 0) Add(RampOf(stage[0], stage[1], stage[2], stage[3], stage[4]), true);
      } else if (stage[0] == gear && stage[0] != kUnusedStageGear) {
        Add(RampOf(stage[1], stage[2], stage[3], stage[4], kNever), false);
      }
    }
  }

  /// Horsepower of all of them.
  double At(double rpm, double elapsed) const {
    double sum = 0;
    for (std::size_t i = 0; i < count_; ++i) sum += ramps_[i].At(i < byRpm_ ? rpm : elapsed);
    return sum;
  }
  /// Horsepower with the timed stages in full.
  double AtFullTime(double rpm) const {
    double sum = 0;
    for (std::size_t i = 0; i < count_; ++i) {
      sum += i < byRpm_ ? ramps_[i].At(rpm) : ramps_[i].horsepower;
    }
    return sum;
  }
  double Shot() const { return AtFullTime(kNever); }

 private:
  void Add(const StageRamp& ramp, bool byTime) {
    ramps_[count_++] = ramp;
    if (!byTime) byRpm_ = count_;
  }

  std::array<StageRamp, kNitrousStages> ramps_;
  std::size_t count_ = 0;
  std::size_t byRpm_ = 0;  ///< of them, which come first
};

/// What a step makes of the car.
struct StepValues {
  double rpm = 0;
  double torque = 0;
  double mph = 0;
  double speedFps = 0;
  double meanSpeedFps = 0;
  double power = 0;
  double aeroHp = 0;
  double rollHp = 0;
  double netHp = 0;
  double nitrousHp = 0;
  double hoodPressure = 0;
  double acceleration = 0;
  bool limited = false;  ///< by the tires

  /// Takes over a step's values, each by itself: they stay in registers until here, which a copy of
  /// the whole would prevent.
  void Follow(const StepValues& step) {
    rpm = step.rpm;
    torque = step.torque;
    mph = step.mph;
    speedFps = step.speedFps;
    meanSpeedFps = step.meanSpeedFps;
    power = step.power;
    aeroHp = step.aeroHp;
    rollHp = step.rollHp;
    netHp = step.netHp;
    nitrousHp = step.nitrousHp;
    hoodPressure = step.hoodPressure;
    acceleration = step.acceleration;
    limited = step.limited;
  }
};

/// The car after a step that it has taken.
struct Moment : StepValues {
  double lastTimeStep = 0;   ///< of the last step whose speed has really risen
  double lastSpeedStep = 0;  ///< its rise in feet a second
  double elapsed = 0;
  double distance = 0;
  double limitedFeet = 0;  ///< where the tires limited the thrust last
  std::size_t steps = 0;
};

/// The run itself. Whatever happens in a step is in plain numbers of this object.
class Run {
 public:
  Run(const AccelerationInputs& inputs, RunSink& sink);

  RunResult Launched();
  RunResult EachGear();
  RunResult Cvt();

 private:
  void ReadGearTables(std::size_t gear);
  void ReadGearOfStep();
  void ReadNitrous(double gear);
  void FindLaunch();
  bool LaunchPhase();
  std::optional<RunEnd> ShiftGear(std::size_t to, bool pulls);
  bool RunGear(bool shifts);
  StepValues StepAt(double rpm, double torque) const;
  bool Take(const StepValues& step);
  void Resist(StepValues& step, double mph) const;
  void Power(StepValues& step, double power) const;
  void Accelerate(StepValues& step, double netThrust) const;
  double AddNitrous(StepValues& step) const;
  bool Happens();
  void Happen();
  void EndAtPower();
  void TakeTopSpeed();
  void EndRollout(bool late);
  void TakeMarks();
  void WriteDueRows();
  void WriteChartRow();
  void ForceRow();
  double ChartSpeedGap() const;
  void ThrottleStop();
  RunRow Row() const;
  void Sample();
  void BeginClock();
  void Restart();

  RunResult Finish(RunEnd end);
  void HoldSpeed(double feetASecond);
  bool RollOut();

  void WalkTo(double rpm, double step, double torqueStep);
  void SetRpmStep(double step);
  double TableRpm(std::size_t i) const { return in_.tableRpm[i]; }
  double TableTorque(std::size_t i) const { return in_.tableTorque[i]; }
  std::size_t LastPoint() const { return in_.tableRpm.size() - 1; }

  const AccelerationInputs& in_;
  RunSink& sink_;
  const bool sampled_;

  // The car
  double tireDiameter_;
  double windDirection_;
  double mass_;
  double perMass_;
  double tractionLimit_;
  double headWind_;
  double densityFactor_;
  double aeroFactor_;  ///< horsepower of MPH cubed
  double rollFactor_;  ///< horsepower of MPH
  double hoodFactor_;  ///< psi of feet a second squared

  // The present gear
  std::size_t gear_ = 0;
  std::size_t gearOfStep_ = 0;  ///< of the last step, while rowAfterShift_
  double gearRatio_ = 1;
  double growth_ = 0;
  double overallRatio_ = 1;
  double rollRadiusFt_ = 1;
  double speedFactor_ = 1;
  double efficiency_ = 1;
  double efficiencyRaw_ = 1;
  double powerFactor_ = 0;   ///< horsepower at the wheels of RPM x torque
  double thrustFactor_ = 0;  ///< pounds of horsepower / RPM
  double shiftRpm_ = kNoShiftRpm;
  double stallRpm_ = kNoStall;

  // The place in the table
  std::size_t index_ = 0;
  double currentRpm_ = 0;
  double torqueNow_ = 0;
  double rpmStep_ = 0;
  double leastSpeedStep_ = 0;  ///< feet a second; what is below is the rounding of equal RPM

  // Nitrous of the present gear
  ActiveStages stages_;
  double nitrousFactor_ = 1;

  Moment now_;

  // Marks and rows
  bool launching_ = false;
  bool varies_ = false;      ///< the engine keeps its speed
  bool wholeTable_ = false;  ///< all of the table is gone through, whether the car can or not
  bool clockRuns_ = false;
  bool stopDone_ = false;
  bool rowAfterShift_ = false;
  std::size_t mark_ = 0;  ///< the next one: those of the strip, then the further ones
  double nextMark_ = 0;   ///< feet; before the clock runs the end of the rollout
  double nextChartSpeed_ = 5;
  double nextChartMile_ = kFeetInMile;
  double lastRowAt_ = 0;
  int sampleSteps_ = 0;
  int untilSample_ = 0;

  // What is told of the run
  RunResult result_;
};

Run::Run(const AccelerationInputs& inputs, RunSink& sink)
    : in_(inputs),
      sink_(sink),
      sampled_(sink.TakesSamples()),
      tireDiameter_(inputs.tireDiameter),
      windDirection_(std::min(inputs.windDirection, kLastDirection)),
      mass_(inputs.carWeight / kStandardGravity),
      perMass_(kStandardGravity / inputs.carWeight),
      tractionLimit_(TractionLimit(inputs.carWeight, inputs.frictionMu)),
      headWind_(inputs.windSpeed * std::cos(windDirection_ * kRadiansPerDegree)),
      densityFactor_(DensityFactorOf(inputs.trackPressure)),
      aeroFactor_(inputs.frontalArea * inputs.dragCoefficient / kAeroPower * densityFactor_),
      rollFactor_(inputs.carWeight * inputs.rollingResistance / kPoundMphOfHp),
      hoodFactor_(AirDensityOf(inputs.trackPressure) / kHoodPressure) {
  if (windDirection_ < inputs.windDirection) sink.WindDirectionLowered(windDirection_);
  if (tireDiameter_ / 2 < inputs.tireRollingRadius) {
    sink.Message(
        "Tire Rolling Radius is Greater Than Half of the Tire Diameter! Tire Diameter set to "
        "Radius * 2");
    tireDiameter_ = 2 * inputs.tireRollingRadius;
    sink.TireDiameterRaised(tireDiameter_);
  }
}

void Run::ReadGearOfStep() {
  if (rowAfterShift_) ReadGearTables(gearOfStep_);
}

void Run::ReadNitrous(double gear) {
  stages_ = ActiveStages(in_, gear);
}

void Run::ReadGearTables(std::size_t gear) {
  gear_ = gear;
  gearRatio_ = in_.transRatio[gear];
  growth_ = in_.tireGrowth[gear];
  const double grown = 1 + growth_ / 100;
  overallRatio_ = in_.rearGearRatio * gearRatio_ * (in_.usesPrimaryDrive ? in_.primaryDrive : 1);
  rollRadiusFt_ = grown * in_.tireRollingRadius / kInchesInFoot;
  const double driveRadius = grown * tireDiameter_ / 2;
  speedFactor_ = driveRadius / (overallRatio_ * kInchTurnsPerMph);
  if (in_.automatic) speedFactor_ *= Kept(in_.converterSlippage);
  efficiencyRaw_ = Kept(in_.gearLoss[gear]) * Kept(in_.rearEndLoss);
  efficiency_ = efficiencyRaw_ / in_.dynoCorrection;
  powerFactor_ = efficiency_ / kPowerOfTorque;
  thrustFactor_ = kPowerOfTorque * overallRatio_ / rollRadiusFt_;
  shiftRpm_ = gear < kShifts ? in_.shiftRpm[gear] : kNoShiftRpm;
  stallRpm_ = in_.automatic && in_.converterStallSpeed > 0 ? in_.converterStallSpeed : kNoStall;
  nitrousFactor_ = in_.nitrousAtWheels ? 1 : efficiencyRaw_;
  ReadNitrous(static_cast<double>(gear + 1));
}

inline double Run::AddNitrous(StepValues& step) const {
  step.nitrousHp = stages_.At(step.rpm, now_.elapsed);
  return step.nitrousHp * nitrousFactor_;
}

void Run::BeginClock() {
  clockRuns_ = true;
  now_.elapsed = 0;
  mark_ = 0;
  nextMark_ = kStripMarks[0];
}

void Run::EndRollout(bool late) {
  sink_.RolloutEnds(now_.elapsed);
  if (late) sink_.Message("Abnormal ET Reset -- Final ET MAY NOT be Correct");
  BeginClock();
}

void Run::TakeMarks() {
  while (now_.distance >= nextMark_) {
    const RunMark taken{now_.elapsed - (now_.distance - nextMark_) / now_.speedFps, now_.mph};
    if (mark_ < kStripMarks.size()) {
      result_.strip[mark_] = taken;
      WriteChartRow();
    } else {
      result_.further[mark_ - kStripMarks.size()] = taken;
    }
    ++mark_;
    const std::size_t further = mark_ - kStripMarks.size();
    nextMark_ = mark_ < kStripMarks.size() ? kStripMarks[mark_]
                : further < kFurtherMarks  ? FurtherMarkFeet(further)
                                           : kNever;
  }
}

/// @return false where the thrust does not bring the car to the step's speed; it stays as it is
inline bool Run::Take(const StepValues& step) {
  Moment& m = now_;
  ++m.steps;
  const double dV = step.speedFps - m.speedFps;
  const bool gains = step.acceleration > kLeastAcceleration;
  if (!gains && dV > 0 && !wholeTable_) return false;
  m.Follow(step);
  if (!gains) return true;
  const double dT = dV / step.acceleration;
  if (dT > 0) {
    m.elapsed += dT;
    m.distance += dT * step.meanSpeedFps;
    if (dV > leastSpeedStep_) {
      m.lastTimeStep = dT;
      m.lastSpeedStep = dV;
    }
  }
  if (step.limited) m.limitedFeet = m.distance;
  return true;
}

inline bool Run::Happens() {
  const Moment& m = now_;
  return --untilSample_ <= 0 || m.distance >= nextMark_ || m.mph >= nextChartSpeed_ ||
         m.distance >= nextChartMile_ || rowAfterShift_;
}

void Run::Happen() {
  if (now_.distance >= nextMark_) {
    if (!clockRuns_) EndRollout(!launching_ && !varies_);
    TakeMarks();
  }
  if (rowAfterShift_) {
    WriteChartRow();
    rowAfterShift_ = false;
  }
  WriteDueRows();
  if (untilSample_ <= 0) Sample();
}

void Run::EndAtPower() {
  if (!(now_.speedFps > 0)) return;
  Happen();
  WriteChartRow();
  Sample();
}

void Run::TakeTopSpeed() {
  result_.topSpeed = now_.mph;
  result_.topSpeedRpm = now_.rpm;
  result_.topSpeedGear = static_cast<int>(gear_) + 1;
  result_.topSpeedTime = now_.elapsed;
  result_.topSpeedFeet = now_.distance;
}

inline void Run::Resist(StepValues& step, double mph) const {
  const double air = mph + headWind_;
  step.aeroHp = air * air * mph * aeroFactor_;
  step.rollHp = rollFactor_ * mph;
}

inline void Run::Power(StepValues& step, double power) const {
  step.power = power;
  if (in_.hoodScoop) {
    step.hoodPressure = step.meanSpeedFps * step.meanSpeedFps * hoodFactor_;
    step.power *= (step.hoodPressure + kAtmosphere) / kAtmosphere;
  }
  step.netHp = step.power - step.aeroHp - step.rollHp;
  if (in_.nitrous) step.netHp += AddNitrous(step);
}

inline void Run::Accelerate(StepValues& step, double netThrust) const {
  step.limited = netThrust > tractionLimit_;
  step.acceleration = (step.limited ? tractionLimit_ : netThrust) * perMass_;
}

inline StepValues Run::StepAt(double rpm, double torque) const {
  StepValues step;
  step.rpm = rpm;
  step.torque = torque;
  step.mph = rpm * speedFactor_;
  step.speedFps = step.mph * kFeetASecondPerMph;
  step.meanSpeedFps = (now_.speedFps + step.speedFps) / 2;
  Resist(step, step.mph);
  Power(step, rpm * torque * powerFactor_);
  // The thrust of the net torque; a converter below its stall speed multiplies both alike.
  double netThrust = rpm > 0 ? step.netHp / rpm * thrustFactor_ : 0;
  if (rpm <= stallRpm_) {
    netThrust += (1 - rpm / stallRpm_) * netThrust * (in_.torqueMultiplier - 1);
  }
  Accelerate(step, netThrust);
  return step;
}

RunRow Run::Row() const {
  RunRow row;
  row.gear = static_cast<int>(gear_) + 1;
  row.rpm = now_.rpm;
  row.mph = now_.mph;
  row.feetASecond = now_.speedFps;
  row.torque = now_.torque;
  row.aeroHp = now_.aeroHp;
  row.rollHp = now_.rollHp;
  row.elapsed = now_.elapsed;
  row.distance = now_.distance;
  row.acceleration = now_.acceleration;
  row.nitrousHp = now_.nitrousHp;
  row.hoodPressure = now_.hoodPressure;
  row.engineHp = now_.power;
  if (varies_) {
    if (!(now_.mph > 0)) return row;
    // The step was driven at its mean speed. The row tells of its own.
    StepValues shown = now_;
    Resist(shown, now_.mph);
    row.aeroHp = shown.aeroHp;
    row.rollHp = shown.rollHp;
    const double driving = now_.netHp + now_.aeroHp + now_.rollHp;
    row.wheelThrust = driving * kPoundMphOfHp / now_.mph;
    Accelerate(shown, (driving - row.aeroHp - row.rollHp) * kPoundMphOfHp / now_.mph);
    row.acceleration = shown.acceleration;
    return row;
  }
  if (now_.lastTimeStep > 0) {
    // The first step of a gear is a part of one, or leads up to the table.
    row.rpsRate = now_.lastSpeedStep / (speedFactor_ * kFeetASecondPerMph) / now_.lastTimeStep;
  }
  row.wheelForce = overallRatio_ * now_.torque * efficiency_ / rollRadiusFt_;
  if (now_.rpm > 0) {
    row.wheelTorque =
        (now_.netHp + now_.aeroHp + now_.rollHp) * kPowerOfTorque / now_.rpm * overallRatio_;
    row.wheelThrust = row.wheelTorque / rollRadiusFt_;
  }
  return row;
}

void Run::WriteChartRow() {
  const double at = varies_ ? now_.mph : now_.rpm;
  if (std::abs(at - lastRowAt_) <= rpmStep_ * kStepTolerance) return;
  lastRowAt_ = at;
  sink_.Row(Row());
}

void Run::ForceRow() {
  now_.acceleration = 0;
  lastRowAt_ = kNoRow;
  WriteChartRow();
}

void Run::ThrottleStop() {
  stopDone_ = true;
  // Directly behind a shift the last step is one of the gear before.
  const std::size_t gear = gear_;
  ReadGearOfStep();
  sink_.ThrottleStopStarts();
  const double before = now_.acceleration;
  ForceRow();
  now_.elapsed += in_.throttleStopTime;
  now_.distance += now_.speedFps * in_.throttleStopTime;
  ForceRow();
  now_.acceleration = before;
  sink_.ThrottleStopEnds();
  if (gear_ != gear) ReadGearTables(gear);
}

double Run::ChartSpeedGap() const {
  constexpr double kGap = 5, kFineGap = 1;
  const bool coarse =
      launching_ || (now_.elapsed < kFineChartSeconds && now_.distance < kFineChartFeet);
  return coarse ? kGap : kFineGap;
}

void Run::WriteDueRows() {
  if (now_.mph < nextChartSpeed_ && now_.distance < nextChartMile_) return;
  WriteChartRow();
  if (now_.mph >= nextChartSpeed_) nextChartSpeed_ = Floor(now_.mph) + ChartSpeedGap();
  if (now_.distance >= nextChartMile_) nextChartMile_ = Floor(now_.distance) + kFeetInMile;
}

void Run::Sample() {
  if (!sampled_) return;
  untilSample_ = sampleSteps_;
  if (now_.mph > 0) sink_.Sample(Row());
}

void Run::Restart() {
  now_.distance = -in_.rollout / kInchesInFoot;
  untilSample_ = sampled_ ? 0 : std::numeric_limits<int>::max();
  const int perInterval =
      std::clamp(kGearSamples / static_cast<int>(LastPoint()), 1, kMostIntervalSamples);
  sampleSteps_ = kSubSteps / perInterval;
}

void Run::SetRpmStep(double step) {
  rpmStep_ = step;
  leastSpeedStep_ = step * kStepTolerance * speedFactor_ * kFeetASecondPerMph;
}

void Run::WalkTo(double rpm, double step, double torqueStep) {
  while (currentRpm_ <= rpm + step * kStepTolerance) {
    currentRpm_ += step;
    torqueNow_ += torqueStep;
  }
  currentRpm_ -= step;
  torqueNow_ -= torqueStep;
}

void Run::FindLaunch() {
  index_ = 0;
  currentRpm_ = TableRpm(0);
  torqueNow_ = TableTorque(0);
  if (in_.launchRpm >= TableRpm(LastPoint())) {
    sink_.Message("Launch RPM to High -- Not Used");
    return;
  }
  launching_ = true;
  if (in_.launchRpm < TableRpm(0)) {
    sink_.Message("Launch RPM Lower than any RPM in table -- Not Used");
    return;
  }
  std::size_t above = 1;
  while (TableRpm(above) <= in_.launchRpm) ++above;
  index_ = above - 1;
  currentRpm_ = TableRpm(index_);
  torqueNow_ = TableTorque(index_);
  const double gap = TableRpm(above) - TableRpm(index_);
  const double subSteps = gap >= 500   ? 1000
                          : gap >= 400 ? 800
                          : gap >= 300 ? 600
                          : gap >= 200 ? 400
                                       : 200;
  WalkTo(in_.launchRpm, gap / subSteps, (TableTorque(above) - TableTorque(index_)) / subSteps);
}

bool Run::LaunchPhase() {
  SetRpmStep(kLaunchStep);
  const int everyStep = sampleSteps_;
  sampleSteps_ = kLaunchSampleSteps;
  for (double wheelRpm = kFirstWheelRpm; wheelRpm <= currentRpm_; wheelRpm += kLaunchStep) {
    if (!Take(StepAt(wheelRpm, torqueNow_))) {
      EndAtPower();
      return false;
    }
    if (Happens()) Happen();
  }
  sampleSteps_ = everyStep;
  launching_ = false;
  return true;
}

/// @return false where the thrust has ended before the gear
bool Run::RunGear(bool shifts) {
  const double shiftRpm = shifts ? shiftRpm_ : kNever;
  const bool stops = shifts && in_.throttleStop && !stopDone_;
  double rpm = currentRpm_, torque = torqueNow_;
  for (; index_ < LastPoint(); ++index_) {
    const double next = TableRpm(index_ + 1);
    const double rpmStep = (next - TableRpm(index_)) / kSubSteps;
    const double rise = TableTorque(index_ + 1) - TableTorque(index_);
    const double torqueStep = rise / kSubSteps;
    const double tolerance = rpmStep * kStepTolerance;
    const double last = std::min(next, shiftRpm) + tolerance;
    double stopRpm = stops && !stopDone_ ? in_.throttleStopRpm - tolerance : kNever;
    SetRpmStep(rpmStep);
    // An interval that the last one's step has passed over gives its rise all the same.
    if (rpm > next + tolerance) torque += rise;
    while (rpm <= last) {
      if (rpm >= stopRpm) {
        stopRpm = kNever;
        ThrottleStop();
      }
      if (!Take(StepAt(rpm, torque))) {
        EndAtPower();
        return false;
      }
      rpm += rpmStep;
      torque += torqueStep;
      if (Happens()) Happen();
    }
    WriteChartRow();
    Sample();
    // The next step would be above the RPM to shift at, or the last one was just there.
    if (rpm <= next + tolerance || std::abs(now_.rpm - shiftRpm) <= tolerance) break;
  }
  return true;
}

/// @param pulls  the gear before still gained speed
/// @return why there is no change: the run ends in the gear before, with its last step
std::optional<RunEnd> Run::ShiftGear(std::size_t to, bool pulls) {
  const double time = in_.shiftTime[to - 1];
  const Moment before = now_;
  if (!rowAfterShift_) gearOfStep_ = gear_;
  const auto stay = [&](RunEnd end) {
    now_ = before;
    ReadGearTables(gearOfStep_);
    result_.refusedGear = static_cast<int>(to) + 1;
    return pulls ? end : RunEnd::Power;
  };
  now_.elapsed += time;
  Resist(now_, now_.mph);
  // However long the change takes, the car does not roll back.
  now_.distance +=
      std::max(0.0,
               now_.speedFps - (std::sqrt(time) * ((now_.aeroHp + now_.rollHp) * 10) / mass_) / 2) *
      time;
  ReadGearTables(to);
  const int number = static_cast<int>(to);
  std::size_t point = 0;
  while (point <= LastPoint() && TableRpm(point) * speedFactor_ < now_.mph) ++point;
  if (point > LastPoint()) {
    if (pulls) sink_.GearTooShort(static_cast<int>(gearOfStep_) + 1, number + 1);
    return stay(RunEnd::GearTooShort);
  }
  const bool belowTable = point == 0;
  index_ = belowTable ? 0 : point - 1;
  currentRpm_ = TableRpm(index_);
  torqueNow_ = TableTorque(index_);
  const double step = (TableRpm(index_ + 1) - TableRpm(index_)) / kSubSteps;
  const double torqueStep = (TableTorque(index_ + 1) - TableTorque(index_)) / kSubSteps;
  while (currentRpm_ * speedFactor_ < now_.mph) {
    currentRpm_ += step;
    torqueNow_ += torqueStep;
  }
  if (!(StepAt(currentRpm_, torqueNow_).acceleration > kLeastAcceleration)) {
    return stay(RunEnd::NextGear);
  }
  sink_.GearChange(number, number + 1, belowTable);
  rowAfterShift_ = true;
  untilSample_ = sampled_ ? 0 : untilSample_;
  return std::nullopt;
}

RunResult Run::Launched() {
  Restart();
  ReadGearTables(0);
  FindLaunch();
  if (launching_ && !LaunchPhase()) return Finish(RunEnd::Power);
  bool pulls = RunGear(true);
  for (std::size_t gear = 1; gear < kGears && in_.transRatio[gear] > 0; ++gear) {
    // A car that never moved has nothing to shift for.
    if (!(now_.speedFps > 0)) break;
    if (const std::optional<RunEnd> end = ShiftGear(gear, pulls)) return Finish(*end);
    pulls = RunGear(true);
  }
  return Finish(pulls ? RunEnd::Gearing : RunEnd::Power);
}

RunResult Run::EachGear() {
  wholeTable_ = true;
  for (std::size_t gear = 0; gear < kGears && in_.transRatio[gear] > 0; ++gear) {
    Restart();
    ReadGearTables(gear);
    now_.elapsed = 0;
    now_.distance = 0;
    nextMark_ = kNever;
    index_ = 0;
    currentRpm_ = TableRpm(0);
    torqueNow_ = TableTorque(0);
    now_.speedFps = currentRpm_ * speedFactor_ * kFeetASecondPerMph;
    lastRowAt_ = kNoRow;
    nextChartSpeed_ = nextChartMile_ = 0;
    RunGear(false);
  }
  result_.last = Row();
  result_.steps = now_.steps;
  result_.tireDiameter = tireDiameter_;
  result_.windDirection = windDirection_;
  return result_;
}

RunResult Run::Cvt() {
  Restart();
  ReadNitrous(1);
  efficiencyRaw_ = Kept(in_.cvtLoss);
  efficiency_ = efficiencyRaw_ / in_.dynoCorrection;
  nitrousFactor_ = in_.nitrousAtWheels ? 1 : efficiencyRaw_;
  varies_ = true;
  sampleSteps_ = kCvtSampleSteps;
  std::size_t above = 1;
  while (above < LastPoint() && TableRpm(above) < in_.cvtRpm) ++above;
  const double low = TableRpm(above - 1);
  const double part = (in_.cvtRpm - low) / (TableRpm(above) - low);
  StepValues step;
  step.torque = TableTorque(above - 1) + part * (TableTorque(above) - TableTorque(above - 1));
  step.rpm = in_.cvtRpm;
  const double enginePower = step.rpm * step.torque * efficiency_ / kPowerOfTorque;
  const double end = FurtherMarkFeet(kFurtherMarks - 1);
  StepBound bound(kMostCvtSteps);
  bool pulls = true;
  while (pulls && now_.distance < end) {
    bound.Step();
    step.speedFps = static_cast<double>(now_.steps + 1) * kCvtStep;
    step.meanSpeedFps = (now_.speedFps + step.speedFps) / 2;
    step.mph = step.speedFps / kFeetASecondPerMph;
    // The forces stand for the whole step: at its mean speed power and thrust give the same energy.
    const double meanMph = step.meanSpeedFps / kFeetASecondPerMph;
    Resist(step, meanMph);
    Power(step, enginePower);
    Accelerate(step, step.netHp * kPoundMphOfHp / meanMph);
    pulls = Take(step);
    if (pulls && Happens()) Happen();
  }
  WriteChartRow();
  Sample();
  return Finish(pulls ? RunEnd::Distance : RunEnd::Power);
}

void Run::HoldSpeed(double feetASecond) {
  // The clock of a car that has not left the rollout begins at its end.
  const double elapsed = clockRuns_ ? now_.elapsed : now_.distance / feetASecond;
  for (std::size_t i = static_cast<std::size_t>(StripMark::Feet600); i < kStripMarks.size(); ++i) {
    RunMark& mark = result_.strip[i];
    if (mark.reached()) continue;
    mark.time = elapsed - (now_.distance - kStripMarks[i]) / feetASecond;
    mark.mph = feetASecond / kFeetASecondPerMph;
  }
}

bool Run::RollOut() {
  const auto taken = result_.strip;
  if (in_.rearEndLoss < kLeastRearEndLoss) {
    efficiencyRaw_ -= (kLeastRearEndLoss - in_.rearEndLoss) / 100;
  }
  if (!(efficiencyRaw_ > 0)) return false;
  sink_.ExtensionBegins();
  const double dragArea = in_.frontalArea * in_.dragCoefficient;
  nextChartSpeed_ = 0;
  constexpr double kTolerance = kRollOutStep * kStepTolerance;
  // Rows stand at the speeds that those of the run stand at.
  const double gap = ChartSpeedGap();
  double nextRow = (Floor((now_.mph - kTolerance) / gap)) * gap;
  StepBound bound(kMostRollOutSteps);
  now_.torque = now_.power = now_.nitrousHp = 0;
  while (now_.distance < kQuarterMile) {
    bound.Step();
    const double lastSpeedFps = now_.speedFps;
    now_.mph -= kRollOutStep;
    if (!(now_.mph > 0)) break;
    now_.speedFps = now_.mph * kFeetASecondPerMph;
    now_.rpm = now_.mph / speedFactor_;
    const double dV = lastSpeedFps - now_.speedFps;
    now_.meanSpeedFps = (lastSpeedFps + now_.speedFps) / 2;
    Resist(now_, now_.mph);
    const double deceleration =
        now_.rollHp / mass_ +
        (now_.speedFps * now_.speedFps * densityFactor_ * kRollOutDensity * dragArea) /
            (2 * in_.carWeight) / efficiencyRaw_;
    if (!(deceleration > kLeastAcceleration)) break;
    now_.acceleration = -deceleration;
    now_.elapsed += dV / deceleration;
    now_.distance += dV / deceleration * now_.meanSpeedFps;
    if (now_.distance >= nextMark_) {
      if (!clockRuns_) EndRollout(true);
      TakeMarks();
    }
    if (now_.mph <= nextRow + kTolerance) {
      WriteChartRow();
      nextRow -= ChartSpeedGap();
    }
  }
  if (now_.distance >= kQuarterMile) return true;
  // What the car has not reached so is told at constant speed; the row stays as its last word.
  result_.strip = taken;
  return false;
}

RunResult Run::Finish(RunEnd end) {
  ReadGearOfStep();
  result_.tireDiameter = tireDiameter_;
  result_.windDirection = windDirection_;
  result_.steps = now_.steps;
  result_.last = Row();
  result_.end = end;
  if (now_.limitedFeet >= kLeastLimitedFeet) result_.tractionLimitedFeet = now_.limitedFeet;
  TakeTopSpeed();
  if (!(result_.topSpeed > 0)) {
    result_.end = RunEnd::NoThrust;
    return result_;
  }
  // A car whose power has ended keeps its top speed.
  const bool powerEnded = end == RunEnd::Power;
  const double lastSpeedFps = now_.speedFps;
  const double rpm = now_.rpm;
  const double left = kQuarterMile - now_.distance;
  if (now_.distance < kOutOfGearFeet && !varies_) {
    const double gained = powerEnded || !(now_.acceleration > 0) ? 0 : 2 * now_.acceleration * left;
    const double speed =
        std::sqrt(std::max(0.0, lastSpeedFps * lastSpeedFps + gained)) / kFeetASecondPerMph;
    const double ratio = gearRatio_ * (in_.usesPrimaryDrive ? in_.primaryDrive : 1);
    result_.tryRearGearRatio = (in_.automatic ? Kept(in_.converterSlippage) : 1) * rpm *
                               tireDiameter_ * (1 + growth_ / 100) /
                               (kTireTurnsPerMph * speed * ratio);
  }
  if (left <= 0) return result_;
  const Moment before = now_;
  const bool clockRan = clockRuns_;
  if (now_.distance < kExtensionFeet && !powerEnded && RollOut()) {
    result_.rest = RunRest::Deceleration;
  } else {
    now_ = before;
    clockRuns_ = clockRan;
    HoldSpeed(lastSpeedFps);
    result_.rest = RunRest::ConstantVelocity;
  }
  return result_;
}

// ---------------------------------------------------------------- what a run asks of its inputs

std::string Ordinal(std::size_t index) {
  const std::size_t number = index + 1;
  const char* ending = number == 1 ? "st" : number == 2 ? "nd" : number == 3 ? "rd" : "th";
  return std::to_string(number) + ending;
}

std::string ShiftCaption(std::size_t index) {
  return std::to_string(index + 1) + " - " + std::to_string(index + 2);
}

void Require(bool holds, RunField field, std::size_t index, const char* reason) {
  if (!holds) throw RunInputError(field, index, reason);
}
void Require(bool holds, RunField field, const char* reason) {
  Require(holds, field, 0, reason);
}

void RequireNumber(double value, RunField field, std::size_t index = 0) {
  Require(IsUsable(value), field, index, kMustBeUsual);
}
void RequirePositive(double value, RunField field, std::size_t index = 0) {
  RequireNumber(value, field, index);
  Require(value > 0, field, index, kMustBePositive);
}
/// Positive, and large enough that a run comes to times and distances that can be told.
void RequireUsual(double value, RunField field, std::size_t index = 0) {
  RequirePositive(value, field, index);
  Require(IsOfUsualSize(value), field, index, kMustBeUsual);
}
void RequireNotNegative(double value, RunField field, std::size_t index = 0) {
  RequireNumber(value, field, index);
  Require(value >= 0, field, index, kMustNotBeNegative);
}
void RequireLoss(double value, RunField field, std::size_t index = 0) {
  Require(value >= 0 && value < 100, field, index, kMustBeLoss);
}

void RequireTable(const AccelerationInputs& in) {
  constexpr RunField field = RunField::TorqueTable;
  Require(!in.tableRpm.empty(), field, "has no rows. A run needs at least two.");
  Require(in.tableRpm.size() > 1, field, "has only one row. A run needs at least two.");
  Require(in.tableRpm.size() == in.tableTorque.size(), field,
          "must have as many torques as engine speeds.");
  for (std::size_t i = 0; i < in.tableRpm.size(); ++i) {
    const double rpm = in.tableRpm[i];
    const auto refuse = [&](const std::string& reason) {
      throw RunInputError(field, i, reason + " in row " + std::to_string(i + 1) + ".");
    };
    if (!(rpm >= 0 && rpm <= kMostRpm)) refuse("must have an RPM from 0 to 1000000");
    if (!IsUsable(in.tableTorque[i])) refuse("must have a torque of usual size");
    if (i > 0 && !(rpm >= in.tableRpm[i - 1] + kLeastRpmGap)) {
      refuse("must be in ascending order by RPM, which it is not");
    }
  }
}

void RequireCar(const AccelerationInputs& in) {
  RequireTable(in);
  RequireUsual(in.tireRollingRadius, RunField::TireRollingRadius);
  RequireUsual(in.tireDiameter, RunField::TireDiameter);
  RequireUsual(in.dynoCorrection, RunField::DynoCorrection);
  RequireUsual(in.carWeight, RunField::CarWeight);
  RequireNotNegative(in.dragCoefficient, RunField::DragCoefficient);
  RequireNotNegative(in.frontalArea, RunField::FrontalArea);
  RequireNotNegative(in.rollingResistance, RunField::RollingResistance);
  RequireNotNegative(in.rollout, RunField::Rollout);
  RequireUsual(in.frictionMu, RunField::FrictionMu);
  Require(in.frictionMu < kFrictionLimit, RunField::FrictionMu,
          "must be below 36 / 7 (5.142857), where the car would turn over.");
  RequireNotNegative(in.trackPressure, RunField::TrackPressure);
  RequireNumber(in.windSpeed, RunField::WindSpeed);
  RequireNumber(in.windDirection, RunField::WindDirection);
  if (!in.nitrous) return;
  for (std::size_t i = 0; i < kNitrousStages; ++i) {
    for (std::size_t k = 0; k < in.nitrousStages[i].size(); ++k) {
      if (!IsUsable(in.nitrousStages[i][k])) {
        throw RunInputError(RunField::Nitrous, i, kMustBeUsual).InColumn(k);
      }
    }
  }
}

void RequireGears(const AccelerationInputs& in, RunKind kind) {
  const double primary = in.usesPrimaryDrive ? in.primaryDrive : 1;
  const double slip = in.automatic ? Kept(in.converterSlippage) : 1;
  const double inches = std::max(in.tireDiameter, 2 * in.tireRollingRadius);
  RequireUsual(in.transRatio[0], RunField::TransRatio);
  for (std::size_t i = 0; i < kGears && (i == 0 || in.transRatio[i] != 0); ++i) {
    const double ratio = in.transRatio[i];
    RequireUsual(ratio, RunField::TransRatio, i);
    RequireLoss(in.gearLoss[i], RunField::GearLoss, i);
    RequireNumber(in.tireGrowth[i], RunField::TireGrowth, i);
    Require(in.tireGrowth[i] > -100, RunField::TireGrowth, i, "must be above -100 percent.");
    const double speed = in.tableRpm.back() * (1 + in.tireGrowth[i] / 100) * inches / 2 * slip /
                         (ratio * in.rearGearRatio * primary * kInchTurnsPerMph);
    Require(speed <= kMostMph, RunField::TransRatio, i,
            "is too small: with these gears and tires the car would go beyond 10000 MPH.");
    if (kind != RunKind::Launched) continue;
    Require(i == 0 || ratio <= in.transRatio[i - 1], RunField::TransRatio, i,
            "must not be above that of the gear before it.");
    if (i >= kShifts) continue;
    RequirePositive(in.shiftRpm[i], RunField::ShiftRpm, i);
    RequireNotNegative(in.shiftTime[i], RunField::ShiftTime, i);
  }
}

}  // namespace

RunInputError::RunInputError(RunField field, std::size_t index, std::string reason)
    : CommandError(ErrorKind::InvalidArgument, CaptionOf(field, index) + ' ' + reason),
      field_(field),
      index_(index),
      reason_(std::move(reason)) {}

std::string CaptionOf(RunField field, std::size_t index) {
  switch (field) {
    case RunField::TorqueTable: return "The torque table";
    case RunField::TransRatio: return "Trans Gear Ratio " + Ordinal(index);
    case RunField::TireGrowth: return "Tire Growth " + Ordinal(index);
    case RunField::GearLoss: return "Power Loss " + Ordinal(index);
    case RunField::ShiftRpm: return "Shift RPM " + ShiftCaption(index);
    case RunField::ShiftTime: return "Shift Time " + ShiftCaption(index);
    case RunField::RearGearRatio: return "Rear Gear Ratio";
    case RunField::PrimaryDrive: return "Primary Gear Ratio";
    case RunField::TireDiameter: return "Tire Diameter";
    case RunField::TireRollingRadius: return "Tire Rolling Radius";
    case RunField::ConverterSlippage: return "% Converter Slippage";
    case RunField::ConverterStallSpeed: return "Converter Stall Speed";
    case RunField::TorqueMultiplier: return "Torque Multiplier";
    case RunField::RearEndLoss: return "% Rear End Power Loss";
    case RunField::CarWeight: return "Vehicle Weight plus driver";
    case RunField::DragCoefficient: return "Coefficient of Drag (CD)";
    case RunField::FrontalArea: return "Frontal Area Sq.Ft.";
    case RunField::RollingResistance: return "Tire Rolling Resistance";
    case RunField::DynoCorrection: return "Dyno Correct Factor";
    case RunField::LaunchRpm: return "Launch RPM";
    case RunField::Rollout: return "Rollout Distance inches";
    case RunField::FrictionMu: return "Coefficient of Mu";
    case RunField::TrackPressure: return "Track - BP or Air Density";
    case RunField::WindSpeed: return "Wind Speed";
    case RunField::WindDirection: return "Wind Direction";
    case RunField::ThrottleStopRpm: return "Throttle S RPM";
    case RunField::ThrottleStopTime: return "Throttle S Time";
    case RunField::CvtRpm: return "CVT RPM";
    case RunField::CvtLoss: return "CVT Power Loss";
    case RunField::Nitrous: return "Nitrous stage " + std::to_string(index + 1);
  }
  return {};
}

bool IsOfUsualSize(double value) {
  return std::abs(value) >= kLeastUsual && IsUsable(value);
}

bool IsUsable(double value) {
  return std::abs(value) <= kMostUsual;
}

std::string FurtherMarkName(std::size_t index) {
  const std::size_t quarters = index + 2;
  std::string name;
  if (quarters >= 4) name = std::to_string(quarters / 4);
  constexpr std::array<const char*, 4> kFractions = {"", "1/4", "1/2", "3/4"};
  if (quarters % 4 != 0) {
    if (!name.empty()) name += ' ';
    name += kFractions[quarters % 4];
  }
  return name + " Mile";
}

double RunResult::EighthMileMph() const {
  return (at(StripMark::Feet660).mph + at(StripMark::Feet600).mph) / 2;
}

double RunResult::QuarterMileMph() const {
  return (at(StripMark::Feet1320).mph + at(StripMark::Feet1290).mph) / 2;
}

double NitrousShot(const AccelerationInputs& inputs, int gear) {
  return ActiveStages(inputs, gear).Shot();
}

double EngineNitrous(const AccelerationInputs& inputs, int gear, double rpm) {
  const double horsepower = ActiveStages(inputs, gear).AtFullTime(rpm);
  if (!inputs.nitrousAtWheels) return horsepower;
  const auto index = static_cast<std::size_t>(std::clamp(gear, 1, static_cast<int>(kGears)) - 1);
  RequireLoss(inputs.gearLoss[index], RunField::GearLoss, index);
  RequireLoss(inputs.rearEndLoss, RunField::RearEndLoss);
  return horsepower / (Kept(inputs.gearLoss[index]) * Kept(inputs.rearEndLoss));
}

double TractionLimit(double carWeight, double mu) {
  constexpr double kRearShare = 0.5;
  return (carWeight * kRearShare * mu) / (1 - (kRunCenterOfGravity / kRunWheelBase) * mu);
}

void RequireRun(const AccelerationInputs& inputs, RunKind kind) {
  RequireCar(inputs);
  RequireUsual(inputs.rearGearRatio, RunField::RearGearRatio);
  if (inputs.usesPrimaryDrive) RequireUsual(inputs.primaryDrive, RunField::PrimaryDrive);
  RequireLoss(inputs.rearEndLoss, RunField::RearEndLoss);
  if (inputs.automatic) {
    RequireLoss(inputs.converterSlippage, RunField::ConverterSlippage);
    RequireNotNegative(inputs.converterStallSpeed, RunField::ConverterStallSpeed);
    RequireNotNegative(inputs.torqueMultiplier, RunField::TorqueMultiplier);
  }
  RequireGears(inputs, kind);
  if (kind == RunKind::EachGear) return;
  RequireNotNegative(inputs.launchRpm, RunField::LaunchRpm);
  if (inputs.throttleStop) {
    RequireNotNegative(inputs.throttleStopRpm, RunField::ThrottleStopRpm);
    RequireNotNegative(inputs.throttleStopTime, RunField::ThrottleStopTime);
  }
}

void RequireCvtRun(const AccelerationInputs& inputs) {
  RequireCar(inputs);
  RequireLoss(inputs.cvtLoss, RunField::CvtLoss);
  Require(inputs.cvtRpm >= inputs.tableRpm.front() && inputs.cvtRpm <= inputs.tableRpm.back(),
          RunField::CvtRpm, "must lie within the RPM of the torque table.");
  RequirePositive(inputs.cvtRpm, RunField::CvtRpm);
}

RunResult SimulateRun(const AccelerationInputs& inputs, RunSink& sink, RunKind kind) {
  RequireRun(inputs, kind);
  Run run(inputs, sink);
  return kind == RunKind::Launched ? run.Launched() : run.EachGear();
}

RunResult SimulateCvtRun(const AccelerationInputs& inputs, RunSink& sink) {
  RequireCvtRun(inputs);
  return Run(inputs, sink).Cvt();
}

}  // namespace veldox
