#include "core/numbers.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>
#include <system_error>

#include "core/error.h"
#include "core/text.h"

namespace veldox {

namespace {

/// Digits of a value that take part in rounding.
constexpr int kSignificantDigits = 15;

/// Digits that name every double exactly: none has more than 767 significant ones.
constexpr int kExactDigits = 767;

/// From here up to the largest double, rounding the digits up would give a number that is none:
/// they are cut, so that every text can be read back.
constexpr double kLargestRoundable = 1.797693134862315e308;

/// Room for a sign, the digits, a point and an exponent such as "e-308".
template <int DigitCount>
using ScientificBuffer = std::array<char, static_cast<std::size_t>(DigitCount) + 8>;

void RequireFinite(double value) {
  if (std::isfinite(value)) return;
  if (std::isnan(value)) {
    throw CommandError(ErrorKind::NotANumber, "The calculation has no result for these numbers.");
  }
  throw CommandError(ErrorKind::Overflow, "A result is too large a number to be shown.");
}

/// The value 0.d1d2d3... times ten to the power of `exponent`, where d1 is not zero. Round
/// drops trailing zeros, so that no digits at all mean zero.
struct Decimal {
  std::array<char, kSignificantDigits + 1> digits;
  int count = 0;
  int exponent = 0;

  /// Keeps the first `keep` digits, half away from zero.
  void Round(int keep) {
    if (keep < 0) {
      count = 0;
    } else if (keep < count) {
      const bool up = At(keep) >= '5';
      count = keep;
      if (up) {
        while (count > 0 && At(count - 1) == '9') --count;
        if (count > 0) {
          ++At(count - 1);
        } else {
          digits[0] = '1';
          count = 1;
          ++exponent;
        }
      }
    }
    while (count > 0 && At(count - 1) == '0') --count;
    if (count == 0) exponent = 0;
  }

 private:
  char& At(int index) { return digits[static_cast<std::size_t>(index)]; }
};

/// The digit after the last significant one, from an expansion of `DigitCount` digits; '\0'
/// where that many digits do not tell on which side of a tie the value lies.
template <int DigitCount>
char DigitBeyond(double magnitude) {
  ScientificBuffer<DigitCount> text;
  std::to_chars(text.data(), text.data() + text.size(), magnitude, std::chars_format::scientific,
                DigitCount - 1);
  const char* beyond = text.data() + kSignificantDigits + 1;  // one more for the point
  if constexpr (DigitCount < kExactDigits) {
    const char* end = text.data() + DigitCount + 1;
    if (*beyond == '5' && std::all_of(beyond + 1, end, [](char c) { return c == '0'; })) {
      return '\0';
    }
  }
  return *beyond;
}

#ifdef __SIZEOF_INT128__
__extension__ using Wide = unsigned __int128;

constexpr int kLargestScale = 22;

constexpr auto kPowersOfTen = [] {
  std::array<Wide, kLargestScale + 1> powers{};
  Wide power = 1;
  for (Wide& entry : powers) {
    entry = power;
    power *= 10;
  }
  return powers;
}();

/// The same as SignificantDigits in far less time, for the magnitudes that screens
/// show: from 2^-26 to 2^49, the scaled value is an exact fraction of 128-bit integers.
/// @return false for other magnitudes
bool QuickDigits(double magnitude, Decimal& result) {
  constexpr std::uint64_t kHiddenBit = 1ULL << 52;
  constexpr std::uint64_t kLimit = 1'000'000'000'000'000;  // the first number of 16 digits
  const auto bits = std::bit_cast<std::uint64_t>(magnitude);
  const int power = static_cast<int>(bits >> 52) - 1023;
  if (power < -26 || power > 48) return false;
  const std::uint64_t mantissa = (bits & (kHiddenBit - 1)) | kHiddenBit;
  const int shift = 52 - power;

  // The whole part of the decimal logarithm of 2^power; of the magnitude it may be one more.
  int logarithm = (power * 78913) >> 18;
  std::uint64_t scaled = kLimit;
  for (; scaled >= kLimit; ++logarithm) {
    const auto scale = static_cast<std::size_t>(kSignificantDigits - 1 - logarithm);
    const Wide half = Wide{1} << (shift - 1);
    scaled = static_cast<std::uint64_t>((mantissa * kPowersOfTen[scale] + half) >> shift);
  }
  std::to_chars(result.digits.data(), result.digits.data() + kSignificantDigits, scaled);
  result.count = kSignificantDigits;
  result.exponent = logarithm;  // the loop has counted one beyond the logarithm
  return true;
}
#else
bool QuickDigits(double, Decimal&) {
  return false;
}
#endif

/// The 15 significant digits of a magnitude, exact ties away from zero.
Decimal SignificantDigits(double magnitude) {
  Decimal result;
  if (magnitude == 0 || QuickDigits(magnitude, result)) return result;

  constexpr int kDigits = kSignificantDigits + 1;
  ScientificBuffer<kDigits> text;
  const auto [end, error] = std::to_chars(text.data(), text.data() + text.size(), magnitude,
                                          std::chars_format::scientific, kSignificantDigits);
  result.digits[0] = text[0];
  std::memcpy(&result.digits[1], &text[2], kSignificantDigits);
  result.count = kDigits;

  // A sixteenth digit of 5 may itself have been rounded up to that; any other one settles it.
  if (result.digits.back() == '5') {
    char beyond = DigitBeyond<kDigits + 3>(magnitude);
    if (beyond == '\0') beyond = DigitBeyond<kExactDigits>(magnitude);
    result.digits.back() = beyond;
  }

  const char* exponent = text.data() + kDigits + 2;  // past the digits, the point and the "e"
  int power = 0;
  for (const char* c = exponent + 1; c != end; ++c) power = power * 10 + (*c - '0');
  result.exponent = (*exponent == '-' ? -power : power) + 1;
  if (magnitude >= kLargestRoundable) result.count = kSignificantDigits;
  result.Round(kSignificantDigits);
  return result;
}

/// Puts the separator before every third digit, seen from the right.
void GroupThousands(std::string& text, std::size_t begin, std::size_t end, char separator) {
  while (end > begin + 3) {
    end -= 3;
    text.insert(end, 1, separator);
  }
}

std::string CutToWidth(std::string text, std::size_t width, DecimalMark mark) {
  const std::size_t whole = text.find(static_cast<char>(mark));
  if (whole >= width) {
    text.resize(std::min(whole, text.size()));
  } else if (text.size() > width) {
    text.resize(width);
  }
  return text;
}

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

/// A text as the user wrote it, short and in one line, for a message.
std::string Quoted(std::string_view text) {
  constexpr std::size_t kLongest = 40;
  std::string result = "\"";
  std::size_t characters = 0;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (!IsContinuationByte(c) && ++characters > kLongest) {
      result += "...";
      break;
    }
    result += byte < 0x20U || byte == 0x7FU ? ' ' : c;
  }
  result += '"';
  return result;
}

/// A number's text taken apart, without blanks and a leading "+".
struct Literal {
  std::string_view text;  ///< from a leading "-" or the first digit or mark to the end
  std::size_t mark = std::string_view::npos;
  std::size_t exponent = std::string_view::npos;  ///< position of the "e"
};

/// Takes the text of a number apart. @return false where it is none
bool SplitLiteral(std::string_view text, DecimalMark mark, Literal& literal) {
  text = Trim(text);
  if (text.size() > 1 && text[0] == '+' && text[1] != '-') text.remove_prefix(1);
  literal.text = text;

  std::size_t i = !text.empty() && text[0] == '-' ? 1 : 0;
  std::size_t digits = 0;
  for (; i < text.size(); ++i) {
    const char c = text[i];
    if (IsDigit(c)) {
      ++digits;
    } else if (c == '.' || (c == ',' && mark == DecimalMark::Comma)) {
      if (literal.mark != std::string_view::npos) return false;
      literal.mark = i;
    } else {
      break;
    }
  }
  if (digits == 0) return false;
  if (i == text.size()) return true;

  if (text[i] != 'e' && text[i] != 'E') return false;
  literal.exponent = i++;
  if (i < text.size() && (text[i] == '+' || text[i] == '-')) ++i;
  if (i == text.size()) return false;
  return std::all_of(text.begin() + static_cast<std::ptrdiff_t>(i), text.end(), IsDigit);
}

/// For a literal outside the range of a double: whether it is too large, not too small.
bool IsLarge(const Literal& literal) {
  const std::string_view mantissa = literal.text.substr(0, literal.exponent);
  const std::size_t first = mantissa.find_first_of("123456789");
  if (first == std::string_view::npos) return false;
  const auto mark = static_cast<std::ptrdiff_t>(std::min(literal.mark, mantissa.size()));
  const std::ptrdiff_t magnitude = mark - static_cast<std::ptrdiff_t>(first);
  if (literal.exponent == std::string_view::npos) return magnitude > 0;

  std::string_view digits = literal.text.substr(literal.exponent + 1);
  const bool negative = digits.front() == '-';
  if (!IsDigit(digits.front())) digits.remove_prefix(1);
  std::ptrdiff_t power = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), power);
  if (error != std::errc()) return !negative;
  return negative ? magnitude > power : power > -magnitude;
}

double ConvertPointed(std::string_view text, const Literal& literal) {
  double value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error == std::errc()) return value;
  return IsLarge(literal) ? std::numeric_limits<double>::infinity() : 0;
}

/// The number of a literal; an infinity where it is beyond the range of a double.
double Convert(const Literal& literal) {
  const std::string_view text = literal.text;
  if (literal.mark == std::string_view::npos || text[literal.mark] == '.') {
    return ConvertPointed(text, literal);
  }
  std::array<char, 64> buffer;
  if (text.size() <= buffer.size()) {
    std::memcpy(buffer.data(), text.data(), text.size());
    buffer[literal.mark] = '.';
    return ConvertPointed({buffer.data(), text.size()}, literal);
  }
  std::string pointed(text);
  pointed[literal.mark] = '.';
  return ConvertPointed(pointed, literal);
}

template <class Integer>
Integer RoundToInteger(double value) {
  const double whole = std::nearbyint(value);  // the program never leaves the mode half to even
  if (!std::isfinite(whole) || whole < std::numeric_limits<Integer>::min() ||
      whole > std::numeric_limits<Integer>::max()) {
    throw CommandError(ErrorKind::Overflow,
                       "must be a number from " +
                           std::to_string(std::numeric_limits<Integer>::min()) + " to " +
                           std::to_string(std::numeric_limits<Integer>::max()) + ".");
  }
  return static_cast<Integer>(whole);
}

}  // namespace

std::string FormatByPattern(double value, const NumberPattern& pattern, DecimalMark mark) {
  RequireFinite(value);
  Decimal decimal = SignificantDigits(std::fabs(value));
  decimal.Round(decimal.exponent + pattern.decimals);

  const int wholeDigits = std::max(decimal.exponent, 0);
  const int wholeWidth = std::max(wholeDigits, pattern.forcedWhole);
  const int decimals = std::max(decimal.count - decimal.exponent, pattern.forcedDecimals);
  const bool negative = decimal.count > 0 && std::signbit(value);
  const auto wholeBegin = static_cast<std::size_t>(negative);
  const auto wholeEnd = wholeBegin + static_cast<std::size_t>(wholeWidth);
  const auto markWidth = static_cast<std::size_t>(pattern.hasMark);

  // All zeros at first: what the digits below leave free is padding.
  std::string text(wholeEnd + markWidth + static_cast<std::size_t>(decimals), '0');
  if (negative) text[0] = '-';
  const auto wholeCopied = static_cast<std::size_t>(std::min(decimal.count, wholeDigits));
  std::memcpy(text.data() + wholeEnd - wholeDigits, decimal.digits.data(), wholeCopied);
  if (pattern.hasMark) text[wholeEnd] = static_cast<char>(mark);
  if (decimal.count > wholeDigits) {
    const auto leadingZeros = static_cast<std::size_t>(std::max(-decimal.exponent, 0));
    std::memcpy(text.data() + wholeEnd + markWidth + leadingZeros,
                decimal.digits.data() + wholeDigits,
                static_cast<std::size_t>(decimal.count - wholeDigits));
  }
  if (pattern.groups) {
    GroupThousands(text, wholeBegin, wholeEnd, mark == DecimalMark::Point ? ',' : '.');
  }
  return text;
}

std::string FormatSmart(double value, DecimalMark mark) {
  RequireFinite(value);
  return value < 100 ? FormatValue<"0.0####">(value, mark) : FormatValue<"0.0###">(value, mark);
}

std::string FormatField(double value, DecimalMark mark) {
  return CutToWidth(FormatValue<"0.0#####">(value, mark), 8, mark);
}

std::string FormatField11(double value, DecimalMark mark) {
  return CutToWidth(FormatValue<"0.000000000">(value, mark), 11, mark);
}

std::string FormatInt(double value, DecimalMark mark) {
  return FormatValue<"0">(value, mark);
}

std::string FormatShortest(double value) {
  RequireFinite(value);
  if (value == 0) return "0";
  std::array<char, 32> text;
  const auto [end, error] = std::to_chars(text.data(), text.data() + text.size(), value);
  return {text.data(), end};
}

double ParseNumber(std::string_view text, DecimalMark mark) {
  Literal literal;
  if (!SplitLiteral(text, mark, literal)) {
    const std::string_view trimmed = Trim(text);
    throw CommandError(
        ErrorKind::NotANumber,
        trimmed.empty() ? "is empty. Please enter a number; 0 serves for a value that is not used."
                        : "holds " + Quoted(trimmed) + ", which is not a number.");
  }
  const double value = Convert(literal);
  if (std::isinf(value)) {
    throw CommandError(ErrorKind::Overflow,
                       "holds " + Quoted(Trim(text)) + ", which is too large a number.");
  }
  return value;
}

bool IsNumber(std::string_view text, DecimalMark mark) {
  Literal literal;
  return SplitLiteral(text, mark, literal) && !std::isinf(Convert(literal));
}

std::int16_t RoundToInt16(double value) {
  return RoundToInteger<std::int16_t>(value);
}

std::int32_t RoundToInt32(double value) {
  return RoundToInteger<std::int32_t>(value);
}

double Floor(double value) {
  return std::floor(value);
}

double Cot(double x) {
  return 1 / std::tan(x);
}

double ArcSin(double x) {
  if (x == 1) return kPi / 2;
  if (x == -1) return -kPi / 2;
  return std::atan(x / std::sqrt(1 - x * x));
}

double ArcCos(double x) {
  if (x == 1) return 0;
  if (x == -1) return 4 * std::atan(1.0);
  return std::atan(-x / std::sqrt(-x * x + 1)) + 2 * std::atan(1.0);
}

}  // namespace veldox
