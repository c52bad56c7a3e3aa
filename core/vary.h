#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "core/screen.h"

namespace veldox {

/// The most values of one series.
inline constexpr std::size_t kMostVaried = 100'000;
/// The most results of one series.
inline constexpr std::size_t kMostVariedResults = 8;

/// Values of a field one after the other, from one towards another.
struct ValueRange {
  double from = 0;
  double to = 0;
  double by = 0;  ///< below 0 the values go down

  /// How many values there are, the last being the last one not beyond `to`.
  /// @throws CommandError (InvalidArgument) for a range that cannot be
  std::size_t Count() const;
  double At(std::size_t index) const { return from + static_cast<double>(index) * by; }
  /// All of them. @throws CommandError as Count
  std::vector<double> Values() const;
};

/// What a command would show for one value of a field.
struct VariedLine {
  std::string text;                  ///< of the field
  std::vector<std::string> results;  ///< as the controls show them; empty where it cannot
  std::string error;                 ///< why it cannot, empty where it can
};

/// What is worked out for each value of a field, and for each value of a second one again.
struct Variation {
  Field* field = nullptr;
  std::vector<double> values;
  Field* second = nullptr;  ///< null for none
  std::vector<double> secondValues;
  Command* command = nullptr;
  std::vector<Control*> results;
  /// What one value may take; nothing where it may take its time.
  std::optional<std::chrono::microseconds> limit = std::nullopt;
};

/// What comes of the values of the first field, at one of the second.
struct VariedSeries {
  std::string text;  ///< of the second field, empty where there is none
  std::vector<VariedLine> lines;
};

/// Asked after each value, with how many are done; false ends the series there.
using GoOn = std::function<bool(std::size_t done)>;

/// Runs a command for each value of a field and of a second one, each time from the present
/// state, and puts everything back. The order is that of the values, the first field's in each of
/// the second's.
/// @throws CommandError (InvalidArgument) for more than kMostVaried values, the same field twice,
///         a field that takes no number and a command that cannot be varied; nothing has changed
///         then
std::vector<VariedSeries> Vary(const Variation& variation, const GoOn& goOn = {});

/// Runs a command for each value of a field, each time from the present state, and puts everything
/// back.
/// @param goOn  asked after each value, with how many are done; false ends the series there
/// @throws CommandError (InvalidArgument) for a range that cannot be, a field that takes no number
///         and a command that cannot be varied; nothing has changed then
std::vector<VariedLine> Vary(Field& field, const ValueRange& range, Command& command,
                             const std::vector<Control*>& results, const GoOn& goOn = {});

/// Where a result is to come to by changing a field.
struct Sought {
  double low = 0;   ///< of the field
  double high = 0;  ///< of the field
  double target = 0;
};

/// Finds the value of a field with which a command brings a result to a target, puts it into the
/// field and runs the command, as one step. By the method of R. P. Brent, "Algorithms for
/// Minimization without Derivatives", Prentice-Hall 1973, chapter 4: bisection, secants and inverse
/// quadratic interpolation on an interval that always holds the target. It ends where the interval
/// is narrower than one unit of the last digit that the field can show.
/// @return the field's text
/// @throws CommandError (InvalidArgument) where the ends do not have the target between them or a
///         result is no number; nothing has changed then
std::string Seek(Field& field, const Sought& sought, Command& command, Control& result);

}  // namespace veldox
