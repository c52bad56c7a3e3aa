#include "core/vary.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <limits>
#include <utility>

#include "core/dry_run.h"
#include "core/text.h"

namespace veldox {

namespace {

/// What a range's end may lack of a step.
constexpr double kMostSlack = 0.01;
/// A result this part away from its target, of the target or of what the ends give, is another one.
constexpr double kMostMiss = 0.005;

constexpr const char* kTooMany = "These are more than 100,000 values. Please choose a larger step.";

[[noreturn]] void Refuse(const std::string& why) {
  throw CommandError(ErrorKind::InvalidArgument, why);
}

void RequireUse(const Field& field, const Command& command) {
  if (field.rule() == KeyRule::OutputOnly || field.rule() == KeyRule::AnyText) {
    Refuse('"' + field.PlainCaption() + "\" takes no number.");
  }
  if (!command.isBuilt() || !command.enabled()) Refuse("This command cannot be used now.");
}

std::string NameOf(const Control& control) {
  const std::string caption(Trim(control.PlainCaption()));
  return caption.empty() ? control.name() : caption;
}

/// A text that is put into a field before the command runs.
struct Setting {
  Field* field;  ///< null for none
  const std::string& text;
};

/// Runs the command on values of fields and reads off what `read` wants of it.
/// @return why it cannot, empty where it can
std::string Try(std::initializer_list<Setting> settings, Command& command,
                const std::function<void()>& read,
                std::optional<std::chrono::microseconds> limit = std::nullopt) {
  DryRun run(command.screen().context());
  if (limit) run.SetLimit(*limit);
  for (const Setting& setting : settings) {
    if (setting.field != nullptr) setting.field->Edit(setting.text);
  }
  const bool done = command.Run();
  if (done) {
    read();
    return {};
  }
  if (run.log().ranOutOfTime) return "It takes too long.";
  if (run.log().wasRefused) {
    Refuse('"' + NameOf(command) + "\" cannot be run for a trial. " + run.log().error);
  }
  if (!run.log().error.empty()) return run.log().error;
  return run.log().notes.empty() ? std::string("It has nothing to do.") : run.log().notes.back();
}

/// One unit of the last digit of a number's text.
double LastDigitOf(const std::string& text) {
  const auto mark = text.find_first_of(".,");
  const auto decimals = mark == std::string::npos ? 0 : text.size() - mark - 1;
  return std::pow(10.0, -static_cast<double>(decimals));
}

/// The number that a control stands for: its shared value, in the units it shows, or its text
/// where that shows another number: some commands show a result and keep it nowhere.
/// @throws CommandError (NotANumber)
double NumberOf(const Control& control) {
  const Screen& screen = control.screen();
  const std::string text = ShownText(control);
  const double shown = ParseNumber(text, screen.mark());
  if (control.kind() != ControlKind::Field) return shown;
  const auto& field = static_cast<const Field&>(control);
  const Holds::Slot slot = field.holds().In(screen.block());
  auto* const* number = std::get_if<double*>(&slot);
  if (number == nullptr) return shown;
  const bool keptInUs = field.holds().conversion() == Holds::Conversion::ShownOnly;
  const double kept = keptInUs ? screen.AsShown(field, **number) : **number;
  return std::abs(kept - shown) <= LastDigitOf(text) ? kept : shown;
}

/// One unit of the last digit that a field can show of a value.
double LastDigit(double value) {
  constexpr int kCharacters = 8;
  constexpr int kMostDecimals = 6;
  const double size = std::abs(value);
  const int whole = size < 1 ? 1 : static_cast<int>(std::log10(size)) + 1;
  const int decimals = kCharacters - 1 - whole - (value < 0 ? 1 : 0);
  return std::pow(10.0, -std::clamp(decimals, 0, kMostDecimals));
}

/// Narrows an interval that has the target between its ends until these are one unit of the last
/// digit apart. @return the better end, and the other one
template <class Point, class F>
std::pair<Point, Point> Bracketed(const Point& low, const Point& high, bool isWhole,
                                  const F& resultAt) {
  // Names as in Brent: b is the best so far, c the other end of the interval, d the last step.
  Point a = low;
  Point b = high;
  Point c = a;
  double d = b.at - a.at;
  double e = d;
  constexpr int kMostSteps = 200;
  for (int step = 0; step < kMostSteps && b.miss != 0; ++step) {
    if ((b.miss > 0) == (c.miss > 0)) {
      c = a;
      d = e = b.at - a.at;
    }
    if (std::abs(c.miss) < std::abs(b.miss)) {
      a = b;
      b = c;
      c = a;
    }
    if (b.miss == 0) break;
    const double half = (c.at - b.at) / 2;
    if (isWhole) {
      // Between whole numbers a secant leads nowhere.
      if (std::abs(half) < 1) break;
      a = b;
      b = resultAt(std::trunc((b.at + c.at) / 2));
      continue;
    }
    const double tolerance = LastDigit(b.at) / 2;
    if (std::abs(half) <= tolerance / 2) break;
    if (std::abs(e) < tolerance || std::abs(a.miss) <= std::abs(b.miss)) {
      d = e = half;
    } else {
      double p = 0;
      double q = 0;
      const double s = b.miss / a.miss;
      if (a.at == c.at) {
        p = 2 * half * s;
        q = 1 - s;
      } else {
        const double r = b.miss / c.miss;
        const double t = a.miss / c.miss;
        p = s * (2 * half * t * (t - r) - (b.at - a.at) * (r - 1));
        q = (t - 1) * (r - 1) * (s - 1);
      }
      if (p > 0) {
        q = -q;
      } else {
        p = -p;
      }
      if (2 * p < std::min(3 * half * q - std::abs(tolerance * q), std::abs(e * q))) {
        e = d;
        d = p / q;
      } else {
        d = e = half;
      }
    }
    a = b;
    b = resultAt(b.at + (std::abs(d) > tolerance ? d : (half > 0 ? tolerance : -tolerance)));
  }
  return {b, c};
}

}  // namespace

std::size_t ValueRange::Count() const {
  if (!std::isfinite(from) || !std::isfinite(to) || !std::isfinite(by)) {
    Refuse("The values from, to and by must be numbers.");
  }
  if (by == 0) Refuse("The step is 0: no value would ever follow the first.");
  const double steps = (to - from) / by;
  if (steps < 0) {
    Refuse(by > 0 ? "The range ends below its beginning: the step must be below 0 then."
                  : "The range ends above its beginning: the step must be above 0 then.");
  }
  // A step of .1 must come to the end of a range of 1, though ten of them are a little less; the
  // more so where the step is small beside the ends.
  constexpr double kLeastSlack = 1e-9;
  constexpr double kRoundings = 4 * std::numeric_limits<double>::epsilon();
  const double slack =
      std::max(kLeastSlack, kRoundings * (std::abs(from) + std::abs(to)) / std::abs(by));
  const double count = Floor(steps + std::min(slack, kMostSlack)) + 1;
  if (!(count <= static_cast<double>(kMostVaried))) {
    Refuse(kTooMany);
  }
  return static_cast<std::size_t>(count);
}

std::vector<double> ValueRange::Values() const {
  std::vector<double> values(Count());
  for (std::size_t i = 0; i < values.size(); ++i) values[i] = At(i);
  return values;
}

std::vector<VariedSeries> Vary(const Variation& variation, const GoOn& goOn) {
  const FloatGuard guard;
  Command& command = *variation.command;
  RequireUse(*variation.field, command);
  if (variation.second != nullptr) {
    RequireUse(*variation.second, command);
    if (variation.second == variation.field) {
      Refuse('"' + variation.field->PlainCaption() +
             "\" is varied already: the second field must be another one.");
    }
  }
  if (variation.results.empty() || variation.results.size() > kMostVariedResults) {
    Refuse("A series has one result at least and eight at most.");
  }
  const std::size_t families = variation.second == nullptr ? 1 : variation.secondValues.size();
  if (variation.values.size() * families > kMostVaried) Refuse(kTooMany);
  std::size_t done = 0;
  std::vector<VariedSeries> all(families);
  for (std::size_t i = 0; i < families; ++i) {
    VariedSeries& series = all[i];
    if (variation.second != nullptr) {
      series.text = FormatField(variation.secondValues[i], variation.second->screen().mark());
    }
    series.lines.reserve(variation.values.size());
    for (const double value : variation.values) {
      VariedLine& line = series.lines.emplace_back();
      line.text = FormatField(value, variation.field->screen().mark());
      line.error = Try(
          {{variation.second, series.text}, {variation.field, line.text}}, command,
          [&] {
            for (const Control* result : variation.results) {
              line.results.push_back(ShownText(*result));
            }
          },
          variation.limit);
      if (goOn && !goOn(++done)) {
        all.resize(i + 1);
        return all;
      }
    }
  }
  return all;
}

std::vector<VariedLine> Vary(Field& field, const ValueRange& range, Command& command,
                             const std::vector<Control*>& results, const GoOn& goOn) {
  RequireUse(field, command);
  Variation variation;
  variation.field = &field;
  variation.values = range.Values();
  variation.command = &command;
  variation.results = results;
  return std::move(Vary(variation, goOn).front().lines);
}

std::string Seek(Field& field, const Sought& sought, Command& command, Control& result) {
  RequireUse(field, command);
  if (!std::isfinite(sought.low) || !std::isfinite(sought.high) || !std::isfinite(sought.target)) {
    Refuse("The ends and the target must be numbers.");
  }
  if (sought.low >= sought.high) Refuse("The low end must be below the high end.");
  const DecimalMark mark = field.screen().mark();
  const bool isWhole = field.rule() == KeyRule::Digits || field.rule() == KeyRule::SignedDigits;
  const auto textOf = [&](double value) { return FormatField(value, mark); };
  const auto entryOf = [&](double value) {
    return isWhole ? FormatInt(value, mark) : textOf(value);
  };
  struct Point {
    double at;
    double number;  ///< the result
    double miss;    ///< what it is above the target
    std::string shown;
  };
  const auto resultAt = [&](double value) {
    // What shows as 0 is 0, without a sign.
    if (std::abs(value) < LastDigit(value) / 2) value = 0;
    Point point{value, 0, 0, {}};
    const std::string text = entryOf(value);
    bool isNumber = false;
    bool isWritten = false;
    const std::string error = Try({{&field, text}}, command, [&] {
      isWritten =
          IsNumber(field.text(), mark) &&
          std::abs(ParseNumber(field.text(), mark) - ParseNumber(text, mark)) > LastDigit(value);
      point.shown = ShownText(result);
      isNumber = IsNumber(point.shown, mark);
      if (!isNumber) return;
      point.number = NumberOf(result);
      isNumber = std::isfinite(point.number);
      point.miss = point.number - sought.target;
    });
    if (!error.empty()) Refuse("At " + text + ": " + error);
    if (isWritten) {
      Refuse('"' + NameOf(command) + "\" writes \"" + NameOf(field) +
             "\" itself: no value of it can be sought.");
    }
    if (!isNumber) Refuse('"' + NameOf(result) + "\" is no number at " + text + '.');
    return point;
  };
  const auto tell = [&](const Point& one, const Point& other) {
    return '"' + NameOf(result) + "\" is " + textOf(one.number) + " at " + entryOf(one.at) +
           " and " + textOf(other.number) + " at " + entryOf(other.at) + ": ";
  };
  double best = 0;
  {
    const FloatGuard guard;
    // Ends between two whole numbers are those within them.
    const Point low = resultAt(isWhole ? std::ceil(sought.low) : sought.low);
    const Point high = resultAt(isWhole ? std::floor(sought.high) : sought.high);
    const auto isShown = [&](const Point& end) {
      return ParseNumber(end.shown, mark) == sought.target;
    };
    const bool isBracketed = (low.miss > 0) != (high.miss > 0) || low.miss == 0 || high.miss == 0;
    if (!isBracketed && isShown(low)) {
      best = low.at;
    } else if (!isBracketed && isShown(high)) {
      best = high.at;
    } else if (!isBracketed) {
      Refuse(tell(low, high) + textOf(sought.target) + " is not between them.");
    } else {
      const auto [found, beside] = Bracketed(low, high, isWhole, resultAt);
      const double scale = std::max(std::abs(sought.target), std::abs(high.miss - low.miss));
      if (std::abs(found.miss) > kMostMiss * scale) {
        Refuse(tell(found, beside) + "no value between them gives " + textOf(sought.target) + '.');
      }
      best = found.at;
      if (!isWhole && found.miss != 0) {
        // Of the values that the field can show beside the end, the one that comes nearest.
        const double perUnit = 1 / LastDigit(found.at);
        double least = std::abs(found.miss);
        for (const double by : {0.0, -1.0, 1.0}) {
          const double at = (std::round(found.at * perUnit) + by) / perUnit;
          if (at < sought.low || at > sought.high) continue;
          const double miss = std::abs(resultAt(at).miss);
          if (miss < least) {
            least = miss;
            best = at;
          }
        }
      }
    }
  }
  const History::Step step(
      field.screen().context(), History::Kind::Other,
      NameOf(field) + " sought for " + NameOf(result) + ' ' + textOf(sought.target));
  field.Edit(entryOf(best));
  command.Run();
  return field.text();
}

}  // namespace veldox
