#include "vehicle/torque_table.h"

#include <algorithm>
#include <cmath>

#include "core/error.h"
#include "core/report.h"
#include "core/text.h"
#include "core/torque_rows.h"
#include "core/units.h"

namespace veldox {

namespace {

constexpr std::string_view kBlanks = " \t;";

[[noreturn]] void Refuse(const std::string& what) {
  throw CommandError(ErrorKind::InvalidArgument, what);
}

std::string Speed(double rpm) {
  return FormatShortest(rpm) + " RPM";
}

/// The columns of the shared values, as a point has them.
std::array<TorqueColumn ParameterBlock::*, std::tuple_size_v<TorquePoint>> Columns() {
  using P = ParameterBlock;
  return {&P::AccelRpm,     &P::AccelTorque, &P::AccelFuel, &P::AccelBsfc,
          &P::AccelAirFuel, &P::AccelScfm,   &P::AccelBsac};
}

/// The pattern by which all numbers of a column keep the decimals that reports have, and their
/// marks stand under each other.
NumberPattern PatternOfColumn(const std::vector<TorquePoint>& points, std::size_t column) {
  NumberPattern pattern{.forcedWhole = 1};
  for (const TorquePoint& point : points) {
    const std::string text = FormatSmart(point[column], DecimalMark::Point);
    const auto decimals = static_cast<int>(text.size() - text.find('.') - 1);
    const bool isWhole = decimals == 1 && text.back() == '0';
    pattern.decimals = std::max(pattern.decimals, isWhole ? 0 : decimals);
  }
  pattern.forcedDecimals = pattern.decimals;
  pattern.hasMark = pattern.decimals > 0;
  return pattern;
}

/// Reads one line. @param line  without its line break, and not empty
TorquePoint ReadPoint(std::string_view line, DecimalMark mark) {
  TorqueUnit unit = TorqueUnit::PoundFeet;
  for (const TorqueKey& key : kTorqueKeys) {
    if (!StartsIgnoringCase(line, key.key)) continue;
    unit = key.unit;
    line = Trim(line.substr(key.key.size()));
    if (line.starts_with('=')) line.remove_prefix(1);
    break;
  }
  TorquePoint point{};
  std::size_t count = 0;
  for (std::size_t from = line.find_first_not_of(kBlanks); from < line.size();) {
    const std::size_t end = std::min(line.find_first_of(kBlanks, from), line.size());
    const std::string_view number = line.substr(from, end - from);
    if (count == point.size()) Refuse("holds more numbers than a point has.");
    if (!IsNumber(number, mark))
      Refuse("holds \"" + Clipped(number, 24) + "\", which is not a number.");
    point[count++] = ParseNumber(number, mark);
    from = std::min(line.find_first_not_of(kBlanks, end), line.size());
  }
  if (count < 2) Refuse("needs RPM and torque.");
  point[1] = TorqueInPoundFeet(point[1], unit, point[0]);
  return point;
}

}  // namespace

std::vector<TorquePoint> TorquePoints(const ParameterBlock& block) {
  const auto rows = static_cast<std::size_t>(std::clamp<int>(block.AccelRowCount, 0, kTorqueRows));
  std::vector<TorquePoint> points(rows);
  const auto columns = Columns();
  for (std::size_t row = 0; row < rows; ++row) {
    for (std::size_t i = 0; i < columns.size(); ++i) points[row][i] = (block.*columns[i])[row];
  }
  return points;
}

void SetTorquePoints(ParameterBlock& block, const std::vector<TorquePoint>& points) {
  RequireTorquePoints(points);
  const auto columns = Columns();
  for (std::size_t row = 0; row < points.size(); ++row) {
    for (std::size_t i = 0; i < columns.size(); ++i) (block.*columns[i])[row] = points[row][i];
  }
  block.AccelRowCount = static_cast<std::int16_t>(points.size());
}

void RequireTorquePoints(const std::vector<TorquePoint>& points) {
  if (points.size() < 2) Refuse("The torque table needs at least two points of RPM and torque.");
  if (points.size() > kTorqueRows) {
    Refuse("The torque table holds at most " + std::to_string(kTorqueRows) + " points.");
  }
  for (std::size_t row = 0; row < points.size(); ++row) {
    const double rpm = points[row][0];
    if (rpm < 0) Refuse("RPM must not be below 0 in the torque table.");
    if (row == 0 || rpm > points[row - 1][0]) continue;
    Refuse("RPM must rise from point to point of the torque table; " + Speed(rpm) + " follows " +
           Speed(points[row - 1][0]) + '.');
  }
}

std::string TorqueTableText(const std::vector<TorquePoint>& points, DecimalMark mark) {
  constexpr std::array<int, std::tuple_size_v<TorquePoint>> kWidths{9, 11, 11, 11, 11, 11, 11};
  const bool isMeasured = std::ranges::any_of(points, [](const TorquePoint& point) {
    return std::any_of(point.begin() + 2, point.end(), [](double number) { return number != 0; });
  });
  const std::size_t columns = isMeasured ? kWidths.size() : 2;
  std::array<NumberPattern, kWidths.size()> patterns;
  for (std::size_t i = 0; i < columns; ++i) patterns[i] = PatternOfColumn(points, i);
  std::string lines =
      isMeasured ? ";     RPM     Torque      lb/hr       BSFC        A/F       SCFM       BSAC"
                 : ";     RPM     Torque";
  for (const TorquePoint& point : points) {
    lines += "\r\n";
    for (std::size_t i = 0; i < columns; ++i) {
      const std::string number = FormatByPattern(point[i], patterns[i], mark);
      const auto room = static_cast<std::size_t>(kWidths[i]);
      // Never without a blank between two numbers.
      lines.append(number.size() < room ? room - number.size() : 1, ' ');
      lines += number;
    }
  }
  return lines;
}

std::vector<TorquePoint> ReadTorqueTable(std::string_view text, DecimalMark mark) {
  std::vector<TorquePoint> points;
  int number = 0;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    if (line.ends_with('\r')) line.remove_suffix(1);
    line = Trim(line);
    ++number;
    if (line.empty() || line.starts_with(';')) continue;
    try {
      points.push_back(ReadPoint(line, mark));
    } catch (const CommandError& error) {
      throw CommandError(error.kind(), "Line " + std::to_string(number) + " of the torque table " +
                                           error.message());
    }
  }
  RequireTorquePoints(points);
  return points;
}

std::string TorquePeaksText(const std::vector<TorquePoint>& points, DecimalMark mark) {
  if (points.empty()) return "no points";
  const auto powerOf = [](const TorquePoint& point) {
    return point[0] * point[1] / kRpmOfEqualTorqueAndPower;
  };
  const TorquePoint& strongest =
      *std::ranges::max_element(points, {}, [](const TorquePoint& point) { return point[1]; });
  const TorquePoint& fastest = *std::ranges::max_element(points, {}, powerOf);
  const auto rpm = [&](const TorquePoint& point) { return FormatInt(point[0], mark) + " RPM"; };
  return std::to_string(points.size()) + " points from " + FormatInt(points.front()[0], mark) +
         " to " + rpm(points.back()) + "; most torque " + FormatValue<"0.0">(strongest[1], mark) +
         " lb-ft at " + rpm(strongest) + ", most power " +
         FormatValue<"0.0">(powerOf(fastest), mark) + " HP at " + rpm(fastest);
}

}  // namespace veldox
