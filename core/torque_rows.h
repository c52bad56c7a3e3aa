#pragma once

#include <array>
#include <string_view>

namespace veldox {

/// Units in which the second number of a torque row may stand.
enum class TorqueUnit { PoundFeet, Horsepower, NewtonMetres, Kilowatts, MetricHorsepower };

struct TorqueKey {
  std::string_view key;
  TorqueUnit unit;
};

/// The keys of torque rows in parameter files: the first is today's, the others stand in files of
/// earlier versions and hand-made ones.
inline constexpr std::array<TorqueKey, 5> kTorqueKeys = {{
    {"Acceleration", TorqueUnit::PoundFeet},
    {"accelerat hp", TorqueUnit::Horsepower},
    {"accelerat nm", TorqueUnit::NewtonMetres},
    {"accelerat kw", TorqueUnit::Kilowatts},
    {"accelerat ps", TorqueUnit::MetricHorsepower},
}};

/// The torque of a row in foot pounds. @param value  in the row's unit
/// @throws CommandError (DivisionByZero) for a power at 0 RPM, (Overflow) for what is too large
double TorqueInPoundFeet(double value, TorqueUnit unit, double rpm);

}  // namespace veldox
