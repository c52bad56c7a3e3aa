#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace veldox {

/// pi as every formula of the program uses it.
inline constexpr double kPi = 3.14159265358979;

/// The character between the whole and the fractional digits of a number.
enum class DecimalMark : char { Point = '.', Comma = ',' };

/// A number pattern taken apart: '#' is an optional digit, '0' a forced one,
/// '.' the place of the decimal mark and ',' asks for thousands groups.
struct NumberPattern {
  int forcedWhole = 0;     ///< whole digits written at least, padded with zeros
  int forcedDecimals = 0;  ///< decimals always written
  int decimals = 0;        ///< decimals at most; those past the forced ones lose trailing zeros
  bool hasMark = false;    ///< the decimal mark is written even when no decimal follows it
  bool groups = false;     ///< thousands groups
};

/// Takes a pattern such as "0.0#####" apart. Anything but '#', '0', ',' and one
/// '.' in it is a compile error where the pattern is a constant.
consteval NumberPattern ParsePattern(std::string_view pattern) {
  NumberPattern result;
  for (char c : pattern) {
    if (c == '.') {
      if (result.hasMark) throw "a pattern has one decimal mark";
      result.hasMark = true;
    } else if (c == ',') {
      if (result.hasMark) throw "thousands groups stand before the decimal mark";
      result.groups = true;
    } else if (c == '0' || c == '#') {
      if (result.hasMark) {
        ++result.decimals;
        if (c == '0') result.forcedDecimals = result.decimals;
      } else if (c == '0') {
        ++result.forcedWhole;
      }
    } else {
      throw "a pattern holds only '#', '0', ',' and '.'";
    }
  }
  return result;
}

/// The text of a pattern as a template argument.
template <std::size_t N>
struct PatternText {
  char text[N];
  // NOLINTNEXTLINE(google-explicit-constructor): written as a plain literal between the brackets
  consteval PatternText(const char (&literal)[N]) {
    for (std::size_t i = 0; i < N; ++i) text[i] = literal[i];
  }
  consteval std::string_view view() const { return {text, N - 1}; }
};

/// Formats by a pattern that was taken apart. The digits that are rounded are
/// the value's 15 significant decimal digits, half away from zero (cut where they would exceed
/// the largest double, so that every text can be read back). A value that rounds to zero has no
/// minus sign.
/// @throws CommandError (Overflow) for an infinity, (NotANumber) for no number
std::string FormatByPattern(double value, const NumberPattern& pattern, DecimalMark mark);

/// The family of number formats: `FormatValue<"0.00">(1.005, mark)` is "1.01".
template <PatternText Pattern>
std::string FormatValue(double value, DecimalMark mark) {
  static constexpr NumberPattern kPattern = ParsePattern(Pattern.view());
  return FormatByPattern(value, kPattern, mark);
}

/// "0.0####" for values less than 100 (all negative ones among them), else "0.0###".
std::string FormatSmart(double value, DecimalMark mark);

/// The standard of fields: "0.0#####", cut (not rounded) to eight characters. With
/// the decimal mark at position 9 or beyond the whole digits stand alone, however many.
std::string FormatField(double value, DecimalMark mark);

/// The same with "0.000000000" and eleven characters.
std::string FormatField11(double value, DecimalMark mark);

/// Whole numbers: pattern "0".
std::string FormatInt(double value, DecimalMark mark);

/// The shortest text that reads back to the same double, always with a point.
/// @throws CommandError as FormatByPattern does
std::string FormatShortest(double value);

/// Reads a number as a user types it: blanks around it, a sign, digits, one
/// decimal mark, an exponent. In comma mode the first "." counts as a comma.
/// @throws CommandError (NotANumber) for any other text, (Overflow) for a number
///         beyond the range of a double
double ParseNumber(std::string_view text, DecimalMark mark);

/// True where ParseNumber would give a number.
bool IsNumber(std::string_view text, DecimalMark mark);

/// Rounds to a 16-bit count, half to even.
/// @throws CommandError (Overflow) beyond -32768 to 32767
std::int16_t RoundToInt16(double value);

/// Rounds to a 32-bit integer (colours), half to even.
/// @throws CommandError (Overflow) beyond the 32-bit range
std::int32_t RoundToInt32(double value);

/// The largest whole number that is not above the value.
double Floor(double value);

/// Cotangent of an angle in radians.
double Cot(double x);

/// Arc sine in radians: exactly +-pi/2 at +-1, else atan(x / sqrt(1 - x^2)).
double ArcSin(double x);

/// Arc cosine in radians: exactly 0 and pi at 1 and -1, else
/// atan(-x / sqrt(1 - x^2)) + 2 atan(1).
double ArcCos(double x);

}  // namespace veldox
