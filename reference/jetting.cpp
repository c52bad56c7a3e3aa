#include "reference/jetting.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <limits>
#include <string_view>

#include "core/error.h"
#include "core/report.h"
#include "core/units.h"

namespace veldox {

namespace {

double AreaOf(double diameter) {
  return (diameter / 2) * (diameter / 2) * kPi;
}

double DiameterOf(double area) {
  return 2 * std::sqrt(area / kPi);
}

/// What a change makes of the area that flows.
struct FlowFactors {
  double temperature;
  double pressure;
};

FlowFactors FactorsOf(const WeatherChange& change) {
  return {TemperatureRatio(change.before.temperature, change.after.temperature),
          CorrectedBarometer(change.after) / CorrectedBarometer(change.before)};
}

/// The open area that the new weather needs, the rod's own area included.
double OpenAreaNeeded(double jet, double rod, const WeatherChange& change) {
  if (rod > jet) return std::numeric_limits<double>::quiet_NaN();
  const FlowFactors factors = FactorsOf(change);
  const double flow = (AreaOf(jet) - AreaOf(rod)) * factors.pressure * factors.temperature;
  return flow + AreaOf(rod);
}

constexpr std::array<std::string_view, 4> kWeatherLines{
    "Barometric Pressure = ", "Humidity = ", "Vapor Pressure = ", "Temperature = "};
constexpr std::array<std::string_view, 4> kNewWeatherLines{
    "New Barometric Pressure = ", "New Humidity = ", "New Vapor Pressure = ", "New Temperature = "};

void WriteWeather(ReportWriter& report, const std::array<std::string_view, 4>& names,
                  const Air& air, double humidity, bool metric, DecimalMark mark) {
  const double pressureUnit = metric ? kMillibarsPerInchMercury : 1;
  const std::array values{air.pressure * pressureUnit, humidity, air.vaporPressure * pressureUnit,
                          metric ? CelsiusOf(air.temperature) : air.temperature};
  for (std::size_t i = 0; i < names.size(); ++i) {
    report.Add(names[i]).Add(FormatField(values[i], mark)).EndLine();
  }
  report.EndLine();
}

/// The rod in a jet that is larger than needed.
double RodFor(double jet, double rod, double needed) {
  return DiameterOf(AreaOf(rod) + (AreaOf(jet) - needed));
}

}  // namespace

double JetForWeather(double jet, const WeatherChange& change) {
  const FlowFactors factors = FactorsOf(change);
  return DiameterOf(AreaOf(jet) * factors.pressure * factors.temperature);
}

double BypassJetForWeather(double jet, const WeatherChange& change) {
  const FlowFactors factors = FactorsOf(change);
  return DiameterOf(AreaOf(jet) * (1 / factors.pressure) * (1 / factors.temperature));
}

double JetWithRodForWeather(double jet, double rod, const WeatherChange& change) {
  return DiameterOf(OpenAreaNeeded(jet, rod, change));
}

double MeteringRodForWeather(double jet, double rod, const WeatherChange& change) {
  return RodFor(jet, rod, OpenAreaNeeded(jet, rod, change));
}

std::vector<JettingRow> JettingRows(double jet, double rod, const WeatherChange& change) {
  constexpr double kLargestJet = 10;
  constexpr double kLargestPart = 1.3;
  constexpr double kThousandths = 1000;
  // A jet of .082 is not quite 82 thousandths as the machine counts.
  constexpr double kAllowance = 1e-9;
  const auto refuse = [](const char* why) { throw CommandError(ErrorKind::InvalidArgument, why); };
  if (!(jet <= kLargestJet)) {
    refuse("The report is for jets of up to 10 inches: sizes are in inches, such as 0.082.");
  }
  if (rod > jet) refuse("The Metering Rod must not be thicker than the Jet.");
  const double needed = OpenAreaNeeded(jet, rod, change);
  if (!std::isfinite(needed)) {
    refuse(
        "No Jet can be computed: please check both Barometric Pressures, Humidities and "
        "Temperatures.");
  }
  std::vector<JettingRow> rows;
  const double last = Floor(jet * kLargestPart * kThousandths + kAllowance);
  for (double count = Floor(jet * kThousandths + kAllowance); count <= last; ++count) {
    const double size = count / kThousandths;
    if (AreaOf(size) < needed) continue;
    rows.push_back({size, RodFor(size, rod, needed)});
  }
  if (rows.empty()) {
    refuse("No Jet up to 1.3 times the original one is large enough for the new conditions.");
  }
  return rows;
}

std::string JettingReport(const JettingReportInput& input, DecimalMark mark) {
  const std::vector<JettingRow> rows = JettingRows(input.jet, input.rod, input.change);
  ReportWriter report(mark);
  WriteWeather(report, kWeatherLines, input.change.before, input.humidity, input.metric, mark);
  WriteWeather(report, kNewWeatherLines, input.change.after, input.humidityNew, input.metric, mark);
  report.Add("Original Jet Size = ").Add(FormatField(input.jet, mark));
  report.Add(" - Original Metering Rod Size = ").Add(FormatField(input.rod, mark)).EndLine();
  report.EndLine();
  report.AddLines({"  New      New_", "  Jet    Metering_", " Size    Rod Size_"});
  for (const JettingRow& row : rows) {
    report.Add<".000">(row.jet, 5).Add(" - ").Add<".0000">(row.rod, 7).EndLine();
  }
  return report.Finish();
}

}  // namespace veldox
