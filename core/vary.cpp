#include "core/vary.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <utility>

#include "core/dry_run.h"

namespace veldox {

namespace {

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
  // A step of .1 must come to the end of a range of 1, though ten of them are a little less.
  constexpr double kSlack = 1e-9;
  const double count = Floor(steps + kSlack) + 1;
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
  const auto textOf = [&](double value) { return FormatField(value, mark); };
  const auto resultAt = [&](double value) {
    double number = 0;
    std::string fault;
    const std::string text = textOf(value);
    const std::string error = Try({{&field, text}}, command, [&] {
      try {
        number = NumberOf(result);
      } catch (const CommandError&) {
        fault = '"' + result.PlainCaption() + "\" is no number";
      }
      if (fault.empty() && !std::isfinite(number)) {
        fault = '"' + result.PlainCaption() + "\" is no number";
      }
    });
    if (!fault.empty()) Refuse(fault + " at " + textOf(value) + '.');
    if (!error.empty()) Refuse("At " + textOf(value) + ": " + error);
    return number;
  };
  double best = 0;
  {
    const FloatGuard guard;
    double a = sought.low;
    double b = sought.high;
    const double atLow = resultAt(a);
    const double atHigh = resultAt(b);
    double fa = atLow - sought.target;
    double fb = atHigh - sought.target;
    if ((fa > 0) == (fb > 0) && fa != 0 && fb != 0) {
      Refuse('"' + result.PlainCaption() + "\" is " + textOf(atLow) + " at " + textOf(a) + " and " +
             textOf(atHigh) + " at " + textOf(b) + ": " + textOf(sought.target) +
             " is not between them.");
    }
    // Names as in Brent: b is the best so far, c the other end of the interval, d the last step.
    double c = a;
    double fc = fa;
    double d = b - a;
    double e = d;
    constexpr int kMostSteps = 200;
    for (int step = 0; step < kMostSteps && fb != 0; ++step) {
      if ((fb > 0) == (fc > 0)) {
        c = a;
        fc = fa;
        d = e = b - a;
      }
      if (std::abs(fc) < std::abs(fb)) {
        a = b;
        b = c;
        c = a;
        fa = fb;
        fb = fc;
        fc = fa;
      }
      const double tolerance = LastDigit(b) / 2;
      const double half = (c - b) / 2;
      if (std::abs(half) <= tolerance / 2) break;
      if (std::abs(e) < tolerance || std::abs(fa) <= std::abs(fb)) {
        d = e = half;
      } else {
        double p = 0;
        double q = 0;
        const double s = fb / fa;
        if (a == c) {
          p = 2 * half * s;
          q = 1 - s;
        } else {
          const double r = fb / fc;
          const double t = fa / fc;
          p = s * (2 * half * t * (t - r) - (b - a) * (r - 1));
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
      fa = fb;
      b += std::abs(d) > tolerance ? d : (half > 0 ? tolerance : -tolerance);
      fb = resultAt(b) - sought.target;
    }
    best = b;
  }
  const History::Step step(
      field.screen().context(), History::Kind::Other,
      field.PlainCaption() + " sought for " + result.PlainCaption() + ' ' + textOf(sought.target));
  field.Edit(textOf(best));
  command.Run();
  return field.text();
}

}  // namespace veldox
