#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "core/error.h"

namespace veldox {

// A car's run down the strip and to its top speed, on plain numbers. The run is stepped in engine
// speed: a small rise in RPM becomes a rise in road speed, and the thrust tells how long that
// takes. Speeds are in MPH or feet a second as named, distances in feet, times in seconds, torques
// in foot pounds, weights and forces in pounds, lengths in inches, losses and growth in percent.

inline constexpr std::size_t kGears = 18;
inline constexpr std::size_t kShifts = kGears - 1;
inline constexpr std::size_t kNitrousStages = 14;
/// Stages before this one run by gear and RPM, the others by time.
inline constexpr std::size_t kGearStages = 7;
/// A gear stage of this gear is unused.
inline constexpr double kUnusedStageGear = 9;
/// Marks from half a mile on, a quarter of a mile apart.
inline constexpr std::size_t kFurtherMarks = 27;
/// The height of the centre of gravity and the wheel base of every run, in inches.
inline constexpr double kRunCenterOfGravity = 21;
inline constexpr double kRunWheelBase = 108;
/// From this coefficient of friction on a car would turn over backwards.
inline constexpr double kFrictionLimit = 36.0 / 7;

/// The engine speed at which gears are changed in a gear behind which there is none.
inline constexpr double kNoShiftRpm = 999999;

/// What a run is made from; the numbers of the screen's fields, in their units.
struct AccelerationInputs {
  // The torque table: as many rows in one as in the other, RPM rising.
  std::span<const double> tableRpm;
  std::span<const double> tableTorque;

  // Per gear, gear 1 first
  std::array<double, kGears> transRatio{};  ///< a 0 ends the gearbox
  std::array<double, kGears> tireGrowth{};  ///< percent
  std::array<double, kGears> gearLoss{};    ///< percent
  std::array<double, kShifts> shiftRpm{};   ///< at which to leave the gear
  std::array<double, kShifts> shiftTime{};  ///< seconds of the change out of the gear

  double rearGearRatio = 0;
  double primaryDrive = 1;         ///< only with usesPrimaryDrive
  double tireDiameter = 0;         ///< inches
  double tireRollingRadius = 0;    ///< inches
  double converterSlippage = 0;    ///< percent; only with an automatic, as the two that follow
  double converterStallSpeed = 0;  ///< RPM
  double torqueMultiplier = 1;
  double rearEndLoss = 0;  ///< percent
  double carWeight = 0;    ///< pounds, with the driver
  double dragCoefficient = 0;
  double frontalArea = 0;  ///< square feet
  double rollingResistance = 0;
  double dynoCorrection = 1;
  double launchRpm = 0;
  double rollout = 0;        ///< inches
  double frictionMu = 0;     ///< below kFrictionLimit
  double trackPressure = 0;  ///< above 0.1 inches of mercury, else pounds a cubic foot
  double windSpeed = 0;      ///< MPH
  double windDirection = 0;  ///< degrees; 0 is from ahead
  double throttleStopRpm = 0;
  double throttleStopTime = 0;  ///< seconds
  double cvtRpm = 0;            ///< only for a CVT, as the one that follows
  double cvtLoss = 0;           ///< percent

  bool automatic = false;
  bool usesPrimaryDrive = false;
  bool nitrous = false;
  bool hoodScoop = false;
  bool nitrousAtWheels = false;  ///< the stages are rated at the rear wheels
  bool throttleStop = false;

  /// Stages 1 to 7: gear, horsepower, RPM at the start, percent at the start, RPM of the full shot.
  /// Stages 8 to 14: horsepower, start time, percent at the start, time of the full shot, stop
  /// time.
  std::array<std::array<double, 5>, kNitrousStages> nitrousStages = UnusedStages();

  static constexpr std::array<std::array<double, 5>, kNitrousStages> UnusedStages() {
    std::array<std::array<double, 5>, kNitrousStages> stages{};
    for (std::size_t i = 0; i < kGearStages; ++i) stages[i][0] = kUnusedStageGear;
    return stages;
  }
};

// Numbers of a car, an engine or a rate lie within these.
inline constexpr double kLeastUsual = 1e-6;
inline constexpr double kMostUsual = 1e9;
inline constexpr const char* kMustBeUsual = "must be a number of usual size.";
inline constexpr const char* kMustBePositive = "must be above 0.";
inline constexpr const char* kMustNotBeNegative = "must not be below 0.";
inline constexpr const char* kMustBeLoss = "must be a loss from 0 to below 100 percent.";
/// True for a number within them, of either sign; false for 0.
bool IsOfUsualSize(double value);
/// True for a number that is none too large; false for what is no number.
bool IsUsable(double value);

/// What is told of a car that never moves.
inline constexpr const char* kDoesNotMove =
    "The car does not move: the torque table gives no thrust beyond the losses, Tire Rolling "
    "Resistance and the wind.";

/// How a run goes through the table.
enum class RunKind {
  Launched,  ///< launched at the launch RPM, with gears changed at their RPM
  EachGear,  ///< each gear over the whole table from its first point; no launch, clock or marks
};

/// The field that an input stands in.
enum class RunField {
  TorqueTable,
  TransRatio,
  TireGrowth,
  GearLoss,
  ShiftRpm,
  ShiftTime,
  RearGearRatio,
  PrimaryDrive,
  TireDiameter,
  TireRollingRadius,
  ConverterSlippage,
  ConverterStallSpeed,
  TorqueMultiplier,
  RearEndLoss,
  CarWeight,
  DragCoefficient,
  FrontalArea,
  RollingResistance,
  DynoCorrection,
  LaunchRpm,
  Rollout,
  FrictionMu,
  TrackPressure,
  WindSpeed,
  WindDirection,
  ThrottleStopRpm,
  ThrottleStopTime,
  CvtRpm,
  CvtLoss,
  Nitrous,  ///< a stage
};

/// An input that no run can be made from. Its message names the field by its caption; a screen that
/// has the field raises the error anew with `reason` and the control.
class RunInputError : public CommandError {
 public:
  /// @param index   of the gear, the table row or the nitrous stage, from 0
  /// @param reason  what is to be done, to be read behind the caption
  RunInputError(RunField field, std::size_t index, std::string reason);

  RunField field() const { return field_; }
  std::size_t index() const { return index_; }
  /// Of a nitrous stage: which of its five numbers, from 0.
  std::size_t column() const { return column_; }
  const std::string& reason() const { return reason_; }

  RunInputError& InColumn(std::size_t column) {
    column_ = column;
    return *this;
  }

 private:
  RunField field_;
  std::size_t index_;
  std::size_t column_ = 0;
  std::string reason_;
};

/// The caption of a field as its messages have it, such as "Vehicle Weight plus driver".
/// @param index  of the gear, from 0; the captions of the gear table differ by it
std::string CaptionOf(RunField field, std::size_t index = 0);

/// The car at one moment of its run.
struct RunRow {
  int gear = 1;
  double rpm = 0;
  double mph = 0;
  double feetASecond = 0;
  double torque = 0;       ///< of the engine, without nitrous
  double wheelForce = 0;   ///< of that torque at the wheel
  double wheelThrust = 0;  ///< with hood scoop and nitrous
  double wheelTorque = 0;  ///< foot pounds of that thrust
  double engineHp = 0;     ///< at the wheels, without nitrous
  double aeroHp = 0;
  double rollHp = 0;
  double elapsed = 0;
  double distance = 0;      ///< below 0 during the rollout
  double acceleration = 0;  ///< feet a second squared
  double nitrousHp = 0;
  double hoodPressure = 0;  ///< psi
  double rpsRate = 0;       ///< RPM that the engine gains in a second
};

/// Where a run's rows, lines and messages go. What a sink has no use for it leaves as it is.
class RunSink {
 public:
  RunSink() = default;
  RunSink(const RunSink&) = delete;
  RunSink& operator=(const RunSink&) = delete;
  virtual ~RunSink() = default;

  /// A row of the chart.
  virtual void Row(const RunRow& /*row*/) {}
  /// The rollout ends. @param elapsed  seconds since the car has begun to move
  virtual void RolloutEnds(double /*elapsed*/) {}
  virtual void ThrottleStopStarts() {}
  virtual void ThrottleStopEnds() {}
  /// A gear is changed. @param belowTable  the engine falls below the table's first row
  virtual void GearChange(int /*from*/, int /*to*/, bool /*belowTable*/) {}
  /// The run could not go on in the next gear, which is too short for the present speed.
  virtual void GearTooShort(int /*from*/, int /*to*/) {}
  /// A message box, which the run goes on behind.
  virtual void Message(std::string_view /*text*/) {}
  /// The tire's diameter was raised to twice its rolling radius, which the field is to show.
  virtual void TireDiameterRaised(double /*inches*/) {}
  /// The wind's direction was lowered to 359 degrees, which the field is to show.
  virtual void WindDirectionLowered(double /*degrees*/) {}
  /// The rows that follow are of the car rolling out with the power gone.
  virtual void ExtensionBegins() {}

  /// True for a sink that takes points between the rows, which are fine enough for a curve.
  virtual bool TakesSamples() const { return false; }
  /// A point of the run. Each gear begins and ends with one.
  virtual void Sample(const RunRow& /*row*/) {}
};

/// Time and speed at a distance; 0 while it was not reached.
struct RunMark {
  double time = 0;
  double mph = 0;
  bool reached() const { return time > 0 || mph > 0; }
};

/// The distances of the marks that the strip has: 60, 330, 600, 660, 1000, 1290 and 1320 feet.
inline constexpr std::array<double, 7> kStripMarks = {60, 330, 600, 660, 1000, 1290, 1320};
enum class StripMark : std::size_t {
  Feet60,
  Feet330,
  Feet600,
  Feet660,
  Feet1000,
  Feet1290,
  Feet1320
};

/// Feet of a further mark. @param index  0 to 26
constexpr double FurtherMarkFeet(std::size_t index) {
  return 2640 + 1320 * static_cast<double>(index);
}
/// Its name, such as "1/2 Mile" or "1 1/4 Mile". @param index  0 to 26
std::string FurtherMarkName(std::size_t index);

/// Why a run's speed ended.
enum class RunEnd {
  Gearing,       ///< the table or the last gear's shift RPM ended while the car still gained speed
  Power,         ///< drag has taken all of the thrust
  GearTooShort,  ///< the next gear is too short for the speed that was reached
  NextGear,      ///< the next gear cannot pull at the speed that was reached
  Distance,      ///< a CVT had passed the last of the marks
  NoThrust,      ///< the car has never moved
};

/// How the times beyond a run's end were found.
enum class RunRest {
  None,              ///< the run itself went to 1320 feet
  ConstantVelocity,  ///< at the last speed
  Deceleration,      ///< rolling out with the power gone
};

/// What a run came to.
struct RunResult {
  /// The marks of the strip, by StripMark. Behind the end of the run they are what `rest` gives.
  std::array<RunMark, kStripMarks.size()> strip{};
  std::array<RunMark, kFurtherMarks> further{};

  const RunMark& at(StripMark mark) const { return strip[static_cast<std::size_t>(mark)]; }
  // The values that are kept for other screens
  double Et60() const { return at(StripMark::Feet60).time; }
  double Et8() const { return at(StripMark::Feet660).time; }
  double Et() const { return at(StripMark::Feet1320).time; }
  double Mph8() const { return at(StripMark::Feet660).mph; }
  /// The mean over the speed trap before the eighth of a mile.
  double EighthMileMph() const;
  /// The mean over the speed trap before the quarter mile.
  double QuarterMileMph() const;

  RunRow last;               ///< the last step of the run
  double tireDiameter = 0;   ///< as it was used
  double windDirection = 0;  ///< as it was used
  RunEnd end = RunEnd::Gearing;
  RunRest rest = RunRest::None;
  int refusedGear = 0;  ///< that the run could not go on in; 0 for none
  double topSpeed = 0;  ///< MPH, the highest at which the car still gained speed
  double topSpeedRpm = 0;
  int topSpeedGear = 0;
  double topSpeedTime = 0;
  double topSpeedFeet = 0;
  /// The distance until which the tires limited the thrust; nothing where they never did.
  std::optional<double> tractionLimitedFeet;
  /// The rear gear ratio that would bring the last RPM to the quarter mile, for a run that ended
  /// before it.
  std::optional<double> tryRearGearRatio;
  std::size_t steps = 0;
};

/// The thrust in pounds that the tires hold. @param mu  below kFrictionLimit
double TractionLimit(double carWeight, double mu);

/// The nitrous stages that act in a gear, in horsepower of the full shot. @param gear  from 1
double NitrousShot(const AccelerationInputs& inputs, int gear);
/// What they give the engine at an RPM, with the timed stages in full.
/// @throws RunInputError where a loss leaves nothing of the power
double EngineNitrous(const AccelerationInputs& inputs, int gear, double rpm);

/// Refuses inputs that no run can be made from.
/// @throws RunInputError
void RequireRun(const AccelerationInputs& inputs, RunKind kind);
/// The same for a CVT.
void RequireCvtRun(const AccelerationInputs& inputs);

/// A whole run: setup, launch, gears, and what is to be told of its end.
/// @throws RunInputError before anything is computed
RunResult SimulateRun(const AccelerationInputs& inputs, RunSink& sink,
                      RunKind kind = RunKind::Launched);

/// The run of a car whose drive varies so that the engine stays at one speed.
/// @throws RunInputError before anything is computed
RunResult SimulateCvtRun(const AccelerationInputs& inputs, RunSink& sink);

}  // namespace veldox
