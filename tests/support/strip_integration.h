#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <optional>
#include <vector>

#include "vehicle/acceleration.h"

namespace veldox::test {

/// A run down the strip by Newton's law in small steps of time (fourth order Runge-Kutta), in
/// metres, kilograms, newtons and watts: what the run that is stepped in engine speed must agree
/// with. Nothing of that run is used here but its inputs.
class StripIntegration {
 public:
  explicit StripIntegration(const AccelerationInputs& car, double timeStep = 2e-4)
      : car_(car), timeStep_(timeStep) {
    mass_ = car.carWeight * kKilogramsPerPound;
    pressure_ =
        car.trackPressure > 0.1 ? car.trackPressure / 29.92126 : car.trackPressure / 0.076501;
    density_ = pressure_ * 0.076501 * kKilogramsPerPound / std::pow(kMetresPerFoot, 3);
    wind_ = car.windSpeed * kMetresPerSecondPerMph *
            std::cos(std::min(car.windDirection, 359.0) * std::numbers::pi / 180);
    grip_ = 0.5 * car.frictionMu * mass_ * kGravity / (1 - 21.0 / 108 * car.frictionMu);
    position_ = -car.rollout * kMetresPerFoot / 12;
    UseGear(0);
  }

  struct Passing {
    double seconds = 0;
    double mph = 0;
  };

  /// When and how fast the car passes a distance in feet; nothing where it never does.
  std::optional<Passing> At(double feet) {
    while (position_ < feet * kMetresPerFoot) {
      if (!Advance()) return std::nullopt;
    }
    const double part = (feet * kMetresPerFoot - before_.position) / (position_ - before_.position);
    return Passing{before_.time + part * (time_ - before_.time),
                   (before_.speed + part * (speed_ - before_.speed)) / kMetresPerSecondPerMph};
  }

  /// Drives on to where the run ends. @return the last speed in MPH
  double ToTheEnd() {
    while (Advance()) {
    }
    return speed_ / kMetresPerSecondPerMph;
  }

 private:
  static constexpr double kKilogramsPerPound = 0.45359237;
  static constexpr double kGravity = 9.80665;
  static constexpr double kMetresPerFoot = 0.3048;
  static constexpr double kMetresPerSecondPerMph = 0.44704;
  static constexpr double kWattsPerHp = 745.6998716;
  static constexpr double kNewtonMetresPerFootPound = 1.3558179483;
  static constexpr double kPascals = 101325;

  struct Moment {
    double time = 0;
    double position = 0;
    double speed = 0;
  };

  void UseGear(std::size_t gear) {
    gear_ = gear;
    ratio_ = car_.transRatio[gear] * car_.rearGearRatio;
    if (car_.usesPrimaryDrive) ratio_ *= car_.primaryDrive;
    const double growth = 1 + car_.tireGrowth[gear] / 100;
    contact_ = growth * car_.tireRollingRadius / 12 * kMetresPerFoot;
    rolling_ =
        growth * std::max(car_.tireDiameter / 2, car_.tireRollingRadius) / 12 * kMetresPerFoot;
    if (car_.automatic) rolling_ *= 1 - car_.converterSlippage / 100;
    kept_ = (1 - car_.gearLoss[gear] / 100) * (1 - car_.rearEndLoss / 100);
  }

  double RpmAt(double speed) const {
    return speed / rolling_ * ratio_ * 60 / (2 * std::numbers::pi);
  }

  /// Of the engine in newton metres; held while the car is taken up to the launch.
  double TorqueAt(double rpm) const {
    double at = rpm;
    if (launching_) at = std::max(car_.launchRpm, car_.tableRpm.front());
    const auto& rpms = car_.tableRpm;
    std::size_t i = 1;
    while (i + 1 < rpms.size() && rpms[i] < at) ++i;
    const double part = (at - rpms[i - 1]) / (rpms[i] - rpms[i - 1]);
    return (car_.tableTorque[i - 1] + part * (car_.tableTorque[i] - car_.tableTorque[i - 1])) *
           kNewtonMetresPerFootPound;
  }

  static double Shot(double at, double power, double start, double percent, double full) {
    if (at < start) return 0;
    if (at >= full || percent >= 100) return power;
    return power * (percent + (100 - percent) * (at - start) / (full - start)) / 100;
  }

  double NitrousWatts(double rpm, double time) const {
    double hp = 0;
    for (std::size_t i = 0; i < 14 && car_.nitrous; ++i) {
      const auto& s = car_.nitrousStages[i];
      if (i < 7) {
        if (s[0] == static_cast<double>(gear_ + 1)) hp += Shot(rpm, s[1], s[2], s[3], s[4]);
      } else if (time < s[4]) {
        hp += Shot(time, s[0], s[1], s[2], s[3]);
      }
    }
    return hp * kWattsPerHp * (car_.nitrousAtWheels ? 1 : kept_);
  }

  double ResistanceAt(double speed) const {
    const double area = car_.frontalArea * kMetresPerFoot * kMetresPerFoot;
    const double air = 0.5 * density_ * area * car_.dragCoefficient * std::pow(speed + wind_, 2);
    return air + car_.rollingResistance * mass_ * kGravity;
  }

  double AccelerationAt(double speed, double time) const {
    const double rpm = RpmAt(speed);
    double torque = TorqueAt(rpm) * kept_ / car_.dynoCorrection;
    if (car_.hoodScoop) torque *= 1 + 0.5 * density_ * speed * speed / kPascals;
    // What resists the car resists the engine through the gears.
    torque -= ResistanceAt(speed) * rolling_ / ratio_;
    if (car_.nitrous && rpm > 0) {
      torque += NitrousWatts(rpm, time) / (rpm * 2 * std::numbers::pi / 60);
    }
    if (car_.automatic && rpm <= car_.converterStallSpeed) {
      torque *= 1 + (1 - rpm / car_.converterStallSpeed) * (car_.torqueMultiplier - 1);
    }
    return std::min(torque * ratio_ / contact_, grip_) / mass_;
  }

  /// A step of time. Its end is drawn in to where the engine reaches an RPM that something
  /// happens at.
  bool Advance() {
    const double shiftRpm = std::min(car_.tableRpm.back(), gear_ < 17 ? car_.shiftRpm[gear_] : 1e9);
    const double launchRpm = std::max(car_.launchRpm, car_.tableRpm.front());
    before_ = {time_, position_, speed_};
    if (!launching_ && RpmAt(speed_) >= shiftRpm * (1 - 1e-9)) return Shift();
    if (!launching_ && car_.throttleStop && !stopped_ && RpmAt(speed_) >= car_.throttleStopRpm) {
      stopped_ = true;
      return Coast(car_.throttleStopTime, speed_);
    }
    double step = timeStep_;
    Moment next = After(step);
    if (!(next.speed > speed_)) return false;
    std::vector<double> events = {launching_ ? launchRpm : shiftRpm};
    if (car_.throttleStop && !stopped_) events.push_back(std::max(car_.throttleStopRpm, launchRpm));
    for (const double rpm : events) {
      const double now = RpmAt(speed_), then = RpmAt(next.speed);
      if (now < rpm && then > rpm) {
        step *= (rpm - now) / (then - now);
        next = After(step);
        next.speed = rpm / RpmAt(1);
      }
    }
    time_ = next.time;
    position_ = next.position;
    speed_ = next.speed;
    if (launching_ && RpmAt(speed_) >= launchRpm * (1 - 1e-12)) launching_ = false;
    StartClock();
    return time_ < 3000;
  }

  Moment After(double step) const {
    const double v1 = speed_, a1 = AccelerationAt(v1, time_);
    const double v2 = speed_ + step / 2 * a1, a2 = AccelerationAt(v2, time_ + step / 2);
    const double v3 = speed_ + step / 2 * a2, a3 = AccelerationAt(v3, time_ + step / 2);
    const double v4 = speed_ + step * a3, a4 = AccelerationAt(v4, time_ + step);
    return {time_ + step, position_ + step / 6 * (v1 + 2 * v2 + 2 * v3 + v4),
            speed_ + step / 6 * (a1 + 2 * a2 + 2 * a3 + a4)};
  }

  bool Coast(double seconds, double meanSpeed) {
    time_ += seconds;
    position_ += meanSpeed * seconds;
    StartClock();
    return true;
  }

  /// The change into the next gear. By the strip's rule the car falls back a little, and goes on at
  /// its speed.
  bool Shift() {
    if (gear_ + 1 >= kGears || !(car_.transRatio[gear_ + 1] > 0)) return false;
    const double seconds = car_.shiftTime[gear_];
    const double hp = ResistanceAt(speed_) * speed_ / kWattsPerHp;
    const double slugs = car_.carWeight / 32.17405;
    position_ -= std::sqrt(seconds) * hp * 10 / slugs / 2 * kMetresPerFoot * seconds;
    before_.position = position_;
    Coast(seconds, speed_);
    UseGear(gear_ + 1);
    return true;
  }

  /// The clock starts where the rollout ends.
  void StartClock() {
    if (clockRuns_ || position_ < 0) return;
    clockRuns_ = true;
    const double part = -before_.position / (position_ - before_.position);
    const double start = before_.time + part * (time_ - before_.time);
    time_ -= start;
    before_.time -= start;
  }

  const AccelerationInputs& car_;
  const double timeStep_;
  double mass_ = 0;
  double pressure_ = 1;
  double density_ = 0;
  double wind_ = 0;
  double grip_ = 0;
  std::size_t gear_ = 0;
  double ratio_ = 1;
  double contact_ = 1;  ///< metres from the hub to the road
  double rolling_ = 1;  ///< metres a radian of the wheel
  double kept_ = 1;
  double time_ = 0;
  double position_ = 0;
  double speed_ = 0;
  Moment before_;
  bool launching_ = true;
  bool clockRuns_ = false;
  bool stopped_ = false;
};

}  // namespace veldox::test
