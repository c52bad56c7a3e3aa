#include "core/numbers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cfenv>
#include <clocale>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "core/error.h"

namespace veldox {
namespace {

constexpr DecimalMark kPoint = DecimalMark::Point;
constexpr DecimalMark kComma = DecimalMark::Comma;
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();

struct Failure {
  bool happened = false;
  ErrorKind kind = ErrorKind::Cancelled;
  std::string message;
};

template <class Work>
Failure FailureOf(Work work) {
  try {
    work();
  } catch (const CommandError& error) {
    return {true, error.kind(), error.message()};
  }
  return {};
}

#define EXPECT_FAILS(expression, expectedKind)                      \
  do {                                                              \
    const Failure failure = FailureOf([&] { (void)(expression); }); \
    EXPECT_TRUE(failure.happened) << #expression;                   \
    EXPECT_EQ(failure.kind, expectedKind) << #expression;           \
    EXPECT_FALSE(failure.message.empty());                          \
  } while (false)

std::string ParseMessage(std::string_view text, DecimalMark mark = kPoint) {
  return FailureOf([&] { ParseNumber(text, mark); }).message;
}

// --- An exact way to the same digits, by decimal strings alone -------------------------------

/// A magnitude written out in full: "123" and "4500" are 123.45.
struct LongDecimal {
  std::string whole;
  std::string decimals;
};

void MultiplyBy(std::vector<int>& digits, int factor) {  // lowest digit first
  int carry = 0;
  for (int& digit : digits) {
    carry += digit * factor;
    digit = carry % 10;
    carry /= 10;
  }
  for (; carry > 0; carry /= 10) digits.push_back(carry % 10);
}

/// Every digit of a double: its mantissa times 2^n, or times 5^n with the mark moved n places.
LongDecimal WriteOut(double magnitude) {
  int power = 0;
  const double fraction = std::frexp(magnitude, &power);
  auto mantissa = static_cast<std::uint64_t>(std::ldexp(fraction, 53));
  power -= 53;
  while (mantissa != 0 && mantissa % 2 == 0 && power < 0) {
    mantissa /= 2;
    ++power;
  }
  std::vector<int> digits;
  for (; mantissa > 0; mantissa /= 10) digits.push_back(static_cast<int>(mantissa % 10));
  for (int i = 0; i < std::abs(power); ++i) MultiplyBy(digits, power > 0 ? 2 : 5);

  const auto places = static_cast<std::size_t>(std::max(-power, 0));
  while (digits.size() < places + 1) digits.push_back(0);
  LongDecimal result;
  for (std::size_t i = digits.size(); i-- > 0;) {
    (i >= places ? result.whole : result.decimals) += static_cast<char>('0' + digits[i]);
  }
  return result;
}

/// Rounds to a number of decimals, half up; a negative number rounds left of the mark.
LongDecimal RoundTo(const LongDecimal& number, int places) {
  std::string all = '0' + number.whole + number.decimals;
  const int last = static_cast<int>(number.whole.size()) + places;  // its position in `all`
  if (last < 0) return {"0", ""};
  const auto keep = static_cast<std::size_t>(last) + 1;
  if (keep >= all.size()) return number;
  const bool up = all[keep] >= '5';
  std::fill(all.begin() + static_cast<std::ptrdiff_t>(keep), all.end(), '0');
  if (up) {
    std::size_t i = keep;
    while (all[--i] == '9') all[i] = '0';
    ++all[i];
  }
  const std::size_t whole = number.whole.size() + 1;
  return {all.substr(0, whole), all.substr(whole)};
}

LongDecimal FifteenDigits(double magnitude) {
  LongDecimal number = WriteOut(magnitude);
  const std::string all = number.whole + number.decimals;
  const std::size_t first = all.find_first_not_of('0');
  if (first == std::string::npos) return number;
  const auto places = 15 - static_cast<int>(number.whole.size()) + static_cast<int>(first);
  return RoundTo(number, places);
}

/// The text of a number of 15 digits by a pattern that is read here anew.
std::string Expected(const LongDecimal& digits, bool negative, std::string_view pattern,
                     DecimalMark mark) {
  const std::size_t point = pattern.find('.');
  const std::string_view left = pattern.substr(0, point);
  const std::string_view right =
      point == std::string_view::npos ? std::string_view() : pattern.substr(point + 1);
  const auto forcedWhole = static_cast<std::size_t>(std::count(left.begin(), left.end(), '0'));
  const std::size_t lastForced = right.rfind('0');
  const std::size_t forced = lastForced == std::string_view::npos ? 0 : lastForced + 1;

  LongDecimal number = RoundTo(digits, static_cast<int>(right.size()));
  number.whole.erase(0, number.whole.find_first_not_of('0'));
  while (number.whole.size() < forcedWhole) number.whole.insert(0, 1, '0');
  number.decimals.resize(std::max(right.size(), number.decimals.size()), '0');
  number.decimals.resize(right.size());
  while (number.decimals.size() > forced && number.decimals.back() == '0') {
    number.decimals.pop_back();
  }
  const bool zero = (number.whole + number.decimals).find_first_not_of('0') == std::string::npos;
  if (left.find(',') != std::string_view::npos) {
    std::string grouped;
    for (std::size_t i = 0; i < number.whole.size(); ++i) {
      if (i > 0 && (number.whole.size() - i) % 3 == 0) grouped += mark == kPoint ? ',' : '.';
      grouped += number.whole[i];
    }
    number.whole = grouped;
  }
  std::string text = negative && !zero ? "-" : "";
  text += number.whole;
  if (point != std::string_view::npos) text += mark == kPoint ? '.' : ',';
  return text + number.decimals;
}

struct PatternCase {
  std::string_view text;
  NumberPattern pattern;
};

consteval PatternCase Case(std::string_view text) {
  return {text, ParsePattern(text)};
}

constexpr PatternCase kPatterns[] = {
    Case("#,##0"),
    Case("0"),
    Case("00"),
    Case("000"),
    Case("."),
    Case(".0"),
    Case(".00"),
    Case(".000"),
    Case(".0000"),
    Case("0.0"),
    Case("0.00"),
    Case("0.000"),
    Case("0.0#"),
    Case("0.0##"),
    Case("0.0###"),
    Case("0.0####"),
    Case("0.0#####"),
    Case("0.0#######"),
    Case("0.0##########"),
    Case("0.0000"),
    Case("0.00000"),
    Case("0.0000000"),
    Case("0.000000000"),
    Case("0.00000000000"),
    Case("0.000000000000"),
    Case("#.000000"),
    Case("#.0###"),
    Case("#.0#####"),
    Case("0.#"),
    Case("#,##0.00"),
};

void ExpectExact(double value) {
  const LongDecimal digits = FifteenDigits(std::fabs(value));
  for (const PatternCase& item : kPatterns) {
    for (const DecimalMark mark : {kPoint, kComma}) {
      ASSERT_EQ(FormatByPattern(value, item.pattern, mark),
                Expected(digits, std::signbit(value), item.text, mark))
          << "pattern " << item.text << ", value " << FormatShortest(value);
    }
  }
}

TEST(ExactReference, WritesKnownNumbersOut) {
  EXPECT_EQ(WriteOut(0.5).decimals, "5");
  EXPECT_EQ(WriteOut(10.625).whole, "10");
  EXPECT_EQ(WriteOut(10.625).decimals, "625");
  // One tenth as a double, known from any text on binary fractions.
  EXPECT_EQ(WriteOut(0.1).decimals, "1000000000000000055511151231257827021181583404541015625");
  EXPECT_EQ(WriteOut(1e23).whole, "99999999999999991611392");
  EXPECT_EQ(FifteenDigits(1e23).whole, "1" + std::string(23, '0'));
}

// --- FormatValue ---------------------------------------------------------------------------

TEST(FormatValue, RoundsHalfAwayFromZeroOnFifteenDigits) {
  EXPECT_EQ(FormatValue<"0.00">(1.005, kPoint), "1.01");
  EXPECT_EQ(FormatValue<"0.00">(-1.005, kPoint), "-1.01");
  EXPECT_EQ(FormatValue<"0.00">(0.125, kPoint), "0.13");
  EXPECT_EQ(FormatValue<"0.00">(0.135, kPoint), "0.14");
  EXPECT_EQ(FormatValue<"0.0">(0.25, kPoint), "0.3");
  EXPECT_EQ(FormatValue<"0.0">(0.35, kPoint), "0.4");
  EXPECT_EQ(FormatValue<"0">(0.5, kPoint), "1");
  EXPECT_EQ(FormatValue<"0">(1.5, kPoint), "2");
  EXPECT_EQ(FormatValue<"0">(2.5, kPoint), "3");
  EXPECT_EQ(FormatValue<"0">(-2.5, kPoint), "-3");
  EXPECT_EQ(FormatValue<"0.00">(2.675, kPoint), "2.68");
  EXPECT_EQ(FormatValue<"0">(0.49999999999999994, kPoint), "1");  // 0.5 in 15 digits
  EXPECT_EQ(FormatValue<"0">(0.4999999999, kPoint), "0");
}

TEST(FormatValue, CarriesThroughNines) {
  EXPECT_EQ(FormatValue<"0.00">(9.995, kPoint), "10.00");
  EXPECT_EQ(FormatValue<"0.0#####">(999999.9999996, kPoint), "1000000.0");
  EXPECT_EQ(FormatValue<"0.0">(0.95, kPoint), "1.0");
  EXPECT_EQ(FormatValue<"0">(0.96, kPoint), "1");
  EXPECT_EQ(FormatValue<"#,##0">(999.5, kPoint), "1,000");
}

TEST(FormatValue, RoundsExactTiesOfTheSixteenthDigitAwayFromZero) {
  EXPECT_EQ(FormatValue<"0">(1234567890123445.0, kPoint), "1234567890123450");
  EXPECT_EQ(FormatValue<"0">(1234567890123455.0, kPoint), "1234567890123460");
  EXPECT_EQ(FormatValue<"0">(1234567890123454.75, kPoint), "1234567890123450");
  EXPECT_EQ(FormatValue<"0">(1234567890123455.25, kPoint), "1234567890123460");
  EXPECT_EQ(FormatValue<"0.0">(12345678901234.25, kPoint), "12345678901234.3");
  EXPECT_EQ(FormatValue<"0.0">(12345678901234.75, kPoint), "12345678901234.8");
}

TEST(FormatValue, WritesZerosAfterFifteenDigits) {
  EXPECT_EQ(FormatValue<"0">(1234567890123456789.0, kPoint), "1234567890123460000");
  EXPECT_EQ(FormatValue<"0.00">(1e20, kPoint), "100000000000000000000.00");
  EXPECT_EQ(FormatValue<"0.0#####">(123456789012345680.0, kPoint), "123456789012346000.0");
  EXPECT_EQ(FormatValue<"0">(1e300, kPoint), "1" + std::string(300, '0'));
  EXPECT_EQ(FormatValue<"0">(-std::numeric_limits<double>::max(), kPoint),
            "-179769313486231" + std::string(294, '0'));
}

TEST(FormatValue, WritesNothingThatIsBeyondADouble) {
  // Rounded up, the largest numbers would be read as an infinity.
  for (const double value :
       {1.797693134862315e308, 1.7976931348623151e308, 1.7976931348623157e308}) {
    const std::string digits = "179769313486231" + std::string(294, '0');
    EXPECT_EQ(FormatValue<"0">(value, kPoint), digits);
    EXPECT_EQ(FormatSmart(-value, kPoint), '-' + digits + ".0");
    EXPECT_EQ(ParseNumber(FormatField(value, kPoint), kPoint), 1.79769313486231e308);
  }
  EXPECT_EQ(FormatValue<"0">(1.7976931348623149e308, kPoint),
            "179769313486231" + std::string(294, '0'));
}

TEST(FormatValue, HasNoMinusSignOnWhatRoundsToZero) {
  EXPECT_EQ(FormatValue<"0.00">(-0.0, kPoint), "0.00");
  EXPECT_EQ(FormatValue<"0.00">(-0.004, kPoint), "0.00");
  EXPECT_EQ(FormatValue<"0.00">(-0.005, kPoint), "-0.01");
  EXPECT_EQ(FormatValue<".000">(-0.0001, kPoint), ".000");
  EXPECT_EQ(FormatValue<"0">(-0.4, kPoint), "0");
  EXPECT_EQ(FormatValue<"0.0#####">(-std::numeric_limits<double>::denorm_min(), kPoint), "0.0");
}

TEST(FormatValue, KeepsForcedDecimalsAndDropsOptionalZeros) {
  EXPECT_EQ(FormatValue<"0.0#">(5, kPoint), "5.0");
  EXPECT_EQ(FormatValue<"0.0#">(5.25, kPoint), "5.25");
  EXPECT_EQ(FormatValue<"0.0##">(5.2, kPoint), "5.2");
  EXPECT_EQ(FormatValue<"0.0##">(5.204, kPoint), "5.204");
  EXPECT_EQ(FormatValue<"0.0##">(5.2004, kPoint), "5.2");
  EXPECT_EQ(FormatValue<"0.0#######">(0.1, kPoint), "0.1");
  EXPECT_EQ(FormatValue<"0.0000">(0.5, kPoint), "0.5000");
  EXPECT_EQ(FormatValue<"0.000000000000">(kPi, kPoint), "3.141592653590");
}

TEST(FormatValue, WritesTheMarkEvenWithoutDecimals) {
  EXPECT_EQ(FormatValue<"0.#">(5, kPoint), "5.");
  EXPECT_EQ(FormatValue<"0.">(5, kComma), "5,");
  EXPECT_EQ(FormatValue<".">(0, kPoint), ".");
}

TEST(FormatValue, WritesNoWholeZeroThatThePatternDoesNotForce) {
  EXPECT_EQ(FormatValue<".000">(0.25, kPoint), ".250");
  EXPECT_EQ(FormatValue<".000">(-0.25, kPoint), "-.250");
  EXPECT_EQ(FormatValue<".000">(12.5, kPoint), "12.500");
  EXPECT_EQ(FormatValue<".0">(0, kPoint), ".0");
  EXPECT_EQ(FormatValue<".00">(0.999, kPoint), "1.00");
  EXPECT_EQ(FormatValue<"#.000000">(0.5, kPoint), ".500000");
  EXPECT_EQ(FormatValue<"#.000000">(3.5, kPoint), "3.500000");
}

TEST(FormatValue, PadsWholeDigitsWithZeros) {
  EXPECT_EQ(FormatValue<"00">(7, kPoint), "07");
  EXPECT_EQ(FormatValue<"000">(7, kPoint), "007");
  EXPECT_EQ(FormatValue<"000">(-7, kPoint), "-007");
  EXPECT_EQ(FormatValue<"00">(1234, kPoint), "1234");
  EXPECT_EQ(FormatValue<"000">(0, kPoint), "000");
}

TEST(FormatValue, GroupsThousandsByTheMarkThatIsNotTheDecimalOne) {
  EXPECT_EQ(FormatValue<"#,##0">(0, kPoint), "0");
  EXPECT_EQ(FormatValue<"#,##0">(999, kPoint), "999");
  EXPECT_EQ(FormatValue<"#,##0">(1000, kPoint), "1,000");
  EXPECT_EQ(FormatValue<"#,##0">(-1000, kPoint), "-1,000");
  EXPECT_EQ(FormatValue<"#,##0">(-100, kPoint), "-100");
  EXPECT_EQ(FormatValue<"#,##0">(1234567, kPoint), "1,234,567");
  EXPECT_EQ(FormatValue<"#,##0">(1234567, kComma), "1.234.567");
}

TEST(FormatValue, WritesTheDecimalMarkOfTheSystem) {
  EXPECT_EQ(FormatValue<"0.00">(3.14159, kComma), "3,14");
  EXPECT_EQ(FormatValue<".000">(-0.5, kComma), "-,500");
}

TEST(FormatValue, RefusesWhatIsNoFiniteNumber) {
  EXPECT_FAILS(FormatValue<"0.0">(kInfinity, kPoint), ErrorKind::Overflow);
  EXPECT_FAILS(FormatValue<"0.0">(-kInfinity, kPoint), ErrorKind::Overflow);
  EXPECT_FAILS(FormatValue<"0.0">(kNoNumber, kPoint), ErrorKind::NotANumber);
  EXPECT_FAILS(FormatSmart(kNoNumber, kPoint), ErrorKind::NotANumber);
  EXPECT_FAILS(FormatField(kInfinity, kPoint), ErrorKind::Overflow);
  EXPECT_FAILS(FormatField11(kInfinity, kPoint), ErrorKind::Overflow);
  EXPECT_FAILS(FormatInt(kNoNumber, kPoint), ErrorKind::NotANumber);
  EXPECT_FAILS(FormatShortest(kInfinity), ErrorKind::Overflow);
  EXPECT_FAILS(FormatShortest(kNoNumber), ErrorKind::NotANumber);
}

TEST(FormatValue, AgreesWithExactArithmeticOnRandomValuesOfAllSizes) {
  std::mt19937_64 random(1);
  std::uniform_real_distribution<double> power(-20, 20);
  for (int i = 0; i < 6000; ++i) {
    const double value = std::pow(10, power(random)) * (random() % 2 == 0 ? 1 : -1);
    ASSERT_NO_FATAL_FAILURE(ExpectExact(value));
  }
}

TEST(FormatValue, AgreesWithExactArithmeticOnShortDecimals) {
  std::mt19937_64 random(2);
  for (int i = 0; i < 4000; ++i) {
    const double divisor = std::array{10.0, 100.0, 1000.0, 1e4, 1e6}[random() % 5];
    const auto units = static_cast<double>(random() % 20'000'000) - 1e7;
    ASSERT_NO_FATAL_FAILURE(ExpectExact(units / divisor));
  }
}

TEST(FormatValue, AgreesWithExactArithmeticOnTies) {
  std::mt19937_64 random(3);
  for (int i = 0; i < 1500; ++i) {
    // A tie in binary (an odd number of halves, eighths, ...) and its nearest neighbours.
    const auto odd = static_cast<double>((random() >> (12 + random() % 50)) | 1U);
    const double tie = std::ldexp(odd, -1 - static_cast<int>(random() % 12));
    ASSERT_NO_FATAL_FAILURE(ExpectExact(tie));
    ASSERT_NO_FATAL_FAILURE(ExpectExact(std::nextafter(tie, 0)));
    ASSERT_NO_FATAL_FAILURE(ExpectExact(-std::nextafter(tie, kInfinity)));
  }
}

TEST(FormatValue, AgreesWithExactArithmeticAroundPowersOfTenAndTwo) {
  for (int power = -30; power <= 30; ++power) {
    for (const double value :
         {std::pow(10, power), std::ldexp(1, power), std::ldexp(1, 2 * power)}) {
      ASSERT_NO_FATAL_FAILURE(ExpectExact(value));
      ASSERT_NO_FATAL_FAILURE(ExpectExact(std::nextafter(value, 0)));
      ASSERT_NO_FATAL_FAILURE(ExpectExact(-std::nextafter(value, kInfinity)));
      ASSERT_NO_FATAL_FAILURE(ExpectExact(value * (1 - 5e-16)));
    }
  }
}

TEST(FormatValue, AgreesWithExactArithmeticAtTheSixteenthDigit) {
  std::mt19937_64 random(4);
  std::uniform_int_distribution<std::uint64_t> digits(100'000'000'000'000, 999'999'999'999'999);
  for (int i = 0; i < 1500; ++i) {
    // Fifteen random digits and a 5: exact where no decimals follow, else the nearest double.
    const auto value = static_cast<double>(digits(random) * 10 + 5);
    ASSERT_NO_FATAL_FAILURE(ExpectExact(value));
    ASSERT_NO_FATAL_FAILURE(ExpectExact(value / std::pow(10, random() % 20)));
  }
}

TEST(FormatValue, WritesTheExtremesOfADouble) {
  for (const double value :
       {std::numeric_limits<double>::min(), std::numeric_limits<double>::denorm_min(),
        1.79769313486231e308, -1.79769313486231e308}) {
    ASSERT_NO_FATAL_FAILURE(ExpectExact(value));
  }
}

// --- FormatSmart, FormatField, FormatField11, FormatInt, FormatShortest -----------------------

TEST(FormatSmart, HasOneDecimalFewerFromOneHundredOn) {
  EXPECT_EQ(FormatSmart(99.123456, kPoint), "99.12346");
  EXPECT_EQ(FormatSmart(100.123456, kPoint), "100.1235");
  EXPECT_EQ(FormatSmart(100, kPoint), "100.0");
  EXPECT_EQ(FormatSmart(99.9999999, kPoint), "100.0");
  EXPECT_EQ(FormatSmart(99.99999, kPoint), "99.99999");
}

TEST(FormatSmart, CountsNegativeValuesAsLessThanOneHundred) {
  EXPECT_EQ(FormatSmart(-1234.123456, kPoint), "-1234.12346");
  EXPECT_EQ(FormatSmart(-1234.123456, kComma), "-1234,12346");
}

TEST(FormatField, CutsToEightCharactersWithoutRounding) {
  EXPECT_EQ(FormatField(326.7256400001, kPoint), "326.7256");
  EXPECT_EQ(FormatField(326.7256999, kPoint), "326.7257");  // rounded to six decimals before
  EXPECT_EQ(FormatField(326.725699, kPoint), "326.7256");
  EXPECT_EQ(FormatField(12.345678, kPoint), "12.34567");
  EXPECT_EQ(FormatField(-12.345678, kPoint), "-12.3456");
  EXPECT_EQ(FormatField(1.2345678, kPoint), "1.234568");
}

TEST(FormatField, LeavesAShortTextAlone) {
  EXPECT_EQ(FormatField(4, kPoint), "4.0");
  EXPECT_EQ(FormatField(0, kPoint), "0.0");
  EXPECT_EQ(FormatField(0.000001, kPoint), "0.000001");
  EXPECT_EQ(FormatField(123456.7, kPoint), "123456.7");
}

TEST(FormatField, KeepsATrailingMarkAtTheEighthPlace) {
  EXPECT_EQ(FormatField(1234567.25, kPoint), "1234567.");
  EXPECT_EQ(FormatField(1234567.25, kComma), "1234567,");
  EXPECT_EQ(FormatField(-123456.78, kPoint), "-123456.");
}

TEST(FormatField, KeepsAllWholeDigitsOfALargeNumber) {
  EXPECT_EQ(FormatField(123456789.5, kPoint), "123456789");
  EXPECT_EQ(FormatField(123456789.5, kComma), "123456789");
  EXPECT_EQ(FormatField(12345678.5, kPoint), "12345678");
  EXPECT_EQ(FormatField(-1234567.5, kPoint), "-1234567");
  EXPECT_EQ(FormatField(1e15, kPoint), "1000000000000000");
}

TEST(FormatField, CountsTheSignAsACharacter) {
  EXPECT_EQ(FormatField(-0.000001, kPoint), "-0.00000");
  EXPECT_EQ(FormatField(-0.0000001, kPoint), "0.0");
}

TEST(FormatField11, CutsToElevenCharacters) {
  EXPECT_EQ(FormatField11(4, kPoint), "4.000000000");
  EXPECT_EQ(FormatField11(326.72564, kPoint), "326.7256400");
  EXPECT_EQ(FormatField11(-4, kPoint), "-4.00000000");
  EXPECT_EQ(FormatField11(0.0004, kComma), "0,000400000");
}

TEST(FormatField11, MovesToWholeDigitsFromTheTwelfthPlace) {
  EXPECT_EQ(FormatField11(1234567890.25, kPoint), "1234567890.");
  EXPECT_EQ(FormatField11(12345678901.25, kPoint), "12345678901");
  EXPECT_EQ(FormatField11(123456789012.25, kPoint), "123456789012");
  EXPECT_EQ(FormatField11(-1234567890.25, kPoint), "-1234567890");
}

TEST(FormatInt, WritesWholeNumbers) {
  EXPECT_EQ(FormatInt(8, kPoint), "8");
  EXPECT_EQ(FormatInt(-7.5, kComma), "-8");
  EXPECT_EQ(FormatInt(0, kPoint), "0");
}

TEST(FormatShortest, WritesNoMoreDigitsThanNeeded) {
  EXPECT_EQ(FormatShortest(0.1), "0.1");
  EXPECT_EQ(FormatShortest(4.125), "4.125");
  EXPECT_EQ(FormatShortest(-326.72564), "-326.72564");
  EXPECT_EQ(FormatShortest(0), "0");
  EXPECT_EQ(FormatShortest(-0.0), "0");
  EXPECT_EQ(FormatShortest(0.1 + 0.2), "0.30000000000000004");
}

TEST(FormatShortest, ReadsBackToTheSameNumber) {
  std::mt19937_64 random(5);
  std::uniform_real_distribution<double> power(-300, 300);
  for (int i = 0; i < 20000; ++i) {
    const double value = std::pow(10, power(random)) * (random() % 2 == 0 ? 1 : -1);
    ASSERT_EQ(ParseNumber(FormatShortest(value), kPoint), value);
    ASSERT_EQ(ParseNumber(FormatShortest(value), kComma), value);
  }
  for (const double value :
       {std::numeric_limits<double>::min(), std::numeric_limits<double>::denorm_min(),
        std::numeric_limits<double>::max(), std::numeric_limits<double>::lowest()}) {
    EXPECT_EQ(ParseNumber(FormatShortest(value), kPoint), value);
  }
}

// --- ParseNumber ---------------------------------------------------------------------------

TEST(ParseNumber, ReadsWhatAUserTypes) {
  EXPECT_EQ(ParseNumber("4.125", kPoint), 4.125);
  EXPECT_EQ(ParseNumber("-4.125", kPoint), -4.125);
  EXPECT_EQ(ParseNumber("+4.125", kPoint), 4.125);
  EXPECT_EQ(ParseNumber("8", kPoint), 8);
  EXPECT_EQ(ParseNumber("007", kPoint), 7);
  EXPECT_EQ(ParseNumber(" \t 350 \t ", kPoint), 350);
  EXPECT_EQ(ParseNumber("1234567.", kPoint), 1234567);
  EXPECT_EQ(ParseNumber(".5", kPoint), 0.5);
  EXPECT_EQ(ParseNumber("5.", kPoint), 5);
  EXPECT_EQ(ParseNumber("-.5", kPoint), -0.5);
  EXPECT_EQ(ParseNumber("+.5", kPoint), 0.5);
}

TEST(ParseNumber, ReadsAnExponent) {
  EXPECT_EQ(ParseNumber("1e3", kPoint), 1000);
  EXPECT_EQ(ParseNumber("1E+3", kPoint), 1000);
  EXPECT_EQ(ParseNumber("25.e-1", kPoint), 2.5);
  EXPECT_EQ(ParseNumber("-.5e1", kPoint), -5);
  EXPECT_EQ(ParseNumber("2,5e1", kComma), 25);
}

TEST(ParseNumber, TakesPointAndCommaForTheMarkInCommaMode) {
  EXPECT_EQ(ParseNumber("4,125", kComma), 4.125);
  EXPECT_EQ(ParseNumber("4.125", kComma), 4.125);
  EXPECT_EQ(ParseNumber(",5", kComma), 0.5);
  EXPECT_EQ(ParseNumber("-5,", kComma), -5);
  EXPECT_EQ(ParseNumber(" -,5 ", kComma), -0.5);
}

TEST(ParseNumber, ReadsALongNumberInCommaMode) {
  const std::string zeros(500, '0');
  EXPECT_EQ(ParseNumber(zeros + "12,5" + zeros, kComma), 12.5);
  EXPECT_EQ(ParseNumber("0," + std::string(300, '0') + "1e301", kComma), 1);
}

TEST(ParseNumber, RefusesASecondMark) {
  for (const std::string_view text : {"1,2,3", "1.2,3", "1,2.3", "1.2.3", ",,5", "1,,", "1,5."}) {
    EXPECT_FAILS(ParseNumber(text, kComma), ErrorKind::NotANumber);
    EXPECT_FAILS(ParseNumber(text, kPoint), ErrorKind::NotANumber);
  }
}

TEST(ParseNumber, KnowsNoThousandsGroups) {
  EXPECT_FAILS(ParseNumber("1,234", kPoint), ErrorKind::NotANumber);
  EXPECT_FAILS(ParseNumber("1,5", kPoint), ErrorKind::NotANumber);
  EXPECT_FAILS(ParseNumber("1 234", kPoint), ErrorKind::NotANumber);
}

TEST(ParseNumber, RefusesWhatIsNoNumber) {
  for (const std::string_view text :
       {"",     " ",   "-",       "+",        ".",    "-.",    "+.",    "abc",  "1a",
        "a1",   "1 2", "--1",     "+-1",      "-+1",  "++1",   "1-",    "- 1",  "1e",
        "1e+",  "1e-", "1e1.5",   "e5",       ".e5",  "1ee5",  "1e5e5", "1e 5", "inf",
        "-inf", "nan", "NaN",     "infinity", "0x10", "0x1p3", "1f",    "1.0d", "1\n",
        "\n1",  "1\r", "\u00A01", "1_000",    "'5'",  "5%"}) {
    for (const DecimalMark mark : {kPoint, kComma}) {
      SCOPED_TRACE(text);
      EXPECT_FAILS(ParseNumber(text, mark), ErrorKind::NotANumber);
      EXPECT_FALSE(IsNumber(text, mark)) << text;
    }
  }
  EXPECT_FAILS(ParseNumber(",", kComma), ErrorKind::NotANumber);
  EXPECT_FAILS(ParseNumber(std::string_view("1\0", 2), kPoint), ErrorKind::NotANumber);
  EXPECT_FAILS(ParseNumber(std::string_view(), kPoint), ErrorKind::NotANumber);
}

TEST(ParseNumber, SaysWhatToDoWithAnEmptyText) {
  const char* expected = "is empty. Please enter a number; 0 serves for a value that is not used.";
  EXPECT_EQ(ParseMessage(""), expected);
  EXPECT_EQ(ParseMessage("  \t"), expected);
}

TEST(ParseNumber, QuotesWhatIsNoNumber) {
  EXPECT_EQ(ParseMessage("abc"), "holds \"abc\", which is not a number.");
  EXPECT_EQ(ParseMessage(" 1.2.3 "), "holds \"1.2.3\", which is not a number.");
  EXPECT_EQ(ParseMessage("1\n2"), "holds \"1 2\", which is not a number.");
  EXPECT_EQ(ParseMessage("1e999"), "holds \"1e999\", which is too large a number.");
}

TEST(ParseNumber, ClipsALongTextBetweenCharacters) {
  EXPECT_EQ(ParseMessage(std::string(40, 'x')),
            "holds \"" + std::string(40, 'x') + "\", which is not a number.");
  EXPECT_EQ(ParseMessage(std::string(100000, 'x')),
            "holds \"" + std::string(40, 'x') + "...\", which is not a number.");
  std::string umlauts;
  for (int i = 0; i < 40; ++i) umlauts += "\xC3\xA4";
  EXPECT_EQ(ParseMessage(umlauts + umlauts),
            "holds \"" + umlauts + "...\", which is not a number.");
}

TEST(ParseNumber, FailsOnWhatIsTooLargeForADouble) {
  for (const std::string& text :
       {std::string("1e999"), std::string("-1e999"), std::string("1.8e308"),
        std::string("1e99999999999999999999999"), "1" + std::string(400, '0'),
        "0.0001e" + std::string(30, '9'), std::string(".1e310")}) {
    SCOPED_TRACE(text);
    EXPECT_FAILS(ParseNumber(text, kPoint), ErrorKind::Overflow);
    EXPECT_FAILS(ParseNumber(text, kComma), ErrorKind::Overflow);
    EXPECT_FALSE(IsNumber(text, kPoint)) << text;
  }
  EXPECT_FAILS(ParseNumber("1,5e999", kComma), ErrorKind::Overflow);
}

TEST(ParseNumber, ReadsWhatIsTooSmallAsZero) {
  for (const std::string& text :
       {std::string("1e-999"), std::string("-1e-999"), std::string("1e-99999999999999999999999"),
        "0." + std::string(400, '0') + "1", "1000e-" + std::string(30, '9'),
        std::string("0.1e-330"), std::string("0e999"), std::string("0.0e99999999999999999999")}) {
    EXPECT_EQ(ParseNumber(text, kPoint), 0) << text;
    EXPECT_TRUE(IsNumber(text, kComma)) << text;
  }
  EXPECT_EQ(ParseNumber("1,5e-999", kComma), 0);
}

TEST(ParseNumber, WeighsDigitsAgainstTheExponentAtTheLimits) {
  EXPECT_EQ(ParseNumber("0." + std::string(400, '0') + "1e402", kPoint), 10);
  EXPECT_EQ(ParseNumber("1" + std::string(400, '0') + "e-399", kPoint), 10);
  EXPECT_EQ(ParseNumber("5e-324", kPoint), std::numeric_limits<double>::denorm_min());
  EXPECT_EQ(ParseNumber("1.7976931348623157e308", kPoint), std::numeric_limits<double>::max());
}

TEST(ParseNumber, AgreesWithTheCLibraryOnRandomDecimals) {
  std::mt19937_64 random(6);
  for (int i = 0; i < 20000; ++i) {
    std::string text = random() % 3 == 0 ? "-" : "";
    text += static_cast<char>('0' + random() % 10);
    const std::size_t mark = random() % 20;
    for (std::size_t digit = 0, count = random() % 25; digit < count; ++digit) {
      if (digit == mark) text += '.';
      text += static_cast<char>('0' + random() % 10);
    }
    if (random() % 3 == 0) {
      text += 'e';
      text += std::to_string(static_cast<int>(random() % 500) - 250);
    }
    ASSERT_EQ(ParseNumber(text, kPoint), std::strtod(text.c_str(), nullptr)) << text;
    std::string comma = text;
    std::replace(comma.begin(), comma.end(), '.', ',');
    ASSERT_EQ(ParseNumber(comma, kComma), ParseNumber(text, kPoint)) << comma;
  }
}

TEST(ParseNumber, ReadsAFormattedValueWithinHalfItsLastPlace) {
  std::mt19937_64 random(7);
  std::uniform_real_distribution<double> power(-9, 9);
  for (int i = 0; i < 5000; ++i) {
    const double value = std::pow(10, power(random)) * (random() % 2 == 0 ? 1 : -1);
    for (const PatternCase& item : kPatterns) {
      if (item.pattern.groups || item.pattern.forcedWhole + item.pattern.forcedDecimals == 0)
        continue;
      for (const DecimalMark mark : {kPoint, kComma}) {
        const double half = 0.5 * std::pow(10, -item.pattern.decimals);
        const double read = ParseNumber(FormatByPattern(value, item.pattern, mark), mark);
        // Fifteen digits allow half a unit of the fifteenth more.
        ASSERT_LE(std::fabs(read - value), half + 6e-15 * std::fabs(value)) << item.text;
      }
    }
  }
}

TEST(ParseNumber, TakesAnyBytesWithoutHarm) {
  constexpr std::string_view kLikely = "0123456789+-.,eE \t";
  std::mt19937_64 random(8);
  int numbers = 0;
  for (int i = 0; i < 50000; ++i) {
    std::string text(random() % 24, '\0');
    const bool likely = random() % 2 == 0;
    for (char& c : text) {
      c = likely ? kLikely[random() % kLikely.size()] : static_cast<char>(random() % 256);
    }
    for (const DecimalMark mark : {kPoint, kComma}) {
      const bool expected = IsNumber(text, mark);
      double value = 0;
      const Failure failure = FailureOf([&] { value = ParseNumber(text, mark); });
      ASSERT_EQ(failure.happened, !expected) << text;
      if (expected) {
        ++numbers;
        ASSERT_TRUE(std::isfinite(value)) << text;
      } else {
        ASSERT_THAT(failure.kind, testing::AnyOf(ErrorKind::NotANumber, ErrorKind::Overflow));
        ASSERT_LE(failure.message.size(), 200U);
      }
    }
  }
  EXPECT_GT(numbers, 1000);
}

TEST(Numbers, DoNotAskTheCLocale) {
  const std::string before = std::setlocale(LC_ALL, nullptr);
  // The build makes the locale, whatever the system has.
  ::setenv("LOCPATH", VELDOX_LOCALES, 1);  // NOLINT(concurrency-mt-unsafe): one thread
  ASSERT_NE(std::setlocale(LC_ALL, "de_DE.UTF-8"), nullptr)
      << "the build could not make it: is the package locales installed?";
  ASSERT_STREQ(std::localeconv()->decimal_point, ",");
  EXPECT_EQ(ParseNumber("4.125", kPoint), 4.125);
  EXPECT_EQ(FormatValue<"0.000">(4.125, kPoint), "4.125");
  EXPECT_EQ(FormatShortest(4.125), "4.125");
  std::setlocale(LC_ALL, before.c_str());
}

// --- Whole numbers and mathematics ---------------------------------------------------------

TEST(RoundToInt16, RoundsHalfToEven) {
  EXPECT_EQ(RoundToInt16(0.5), 0);
  EXPECT_EQ(RoundToInt16(1.5), 2);
  EXPECT_EQ(RoundToInt16(2.5), 2);
  EXPECT_EQ(RoundToInt16(-0.5), 0);
  EXPECT_EQ(RoundToInt16(-1.5), -2);
  EXPECT_EQ(RoundToInt16(2.500001), 3);
  EXPECT_EQ(RoundToInt16(8), 8);
}

TEST(RoundToInt16, FailsBeyondSixteenBits) {
  EXPECT_EQ(RoundToInt16(32767.49), 32767);
  EXPECT_EQ(RoundToInt16(-32768.5), -32768);
  EXPECT_FAILS(RoundToInt16(32767.5), ErrorKind::Overflow);
  EXPECT_FAILS(RoundToInt16(-32768.51), ErrorKind::Overflow);
  EXPECT_FAILS(RoundToInt16(1e300), ErrorKind::Overflow);
  EXPECT_FAILS(RoundToInt16(kInfinity), ErrorKind::Overflow);
  EXPECT_FAILS(RoundToInt16(kNoNumber), ErrorKind::Overflow);
  EXPECT_EQ(FailureOf([] { RoundToInt16(40000); }).message,
            "must be a number from -32768 to 32767.");
}

TEST(RoundToInt32, RoundsHalfToEven) {
  EXPECT_EQ(RoundToInt32(16777214.5), 16777214);
  EXPECT_EQ(RoundToInt32(16777215.5), 16777216);
  EXPECT_EQ(RoundToInt32(-2.5), -2);
}

TEST(RoundToInt32, FailsBeyondThirtyTwoBits) {
  EXPECT_EQ(RoundToInt32(2147483647.25), 2147483647);
  EXPECT_EQ(RoundToInt32(-2147483648.5), std::numeric_limits<std::int32_t>::min());
  EXPECT_FAILS(RoundToInt32(2147483647.5), ErrorKind::Overflow);
  EXPECT_FAILS(RoundToInt32(-2147483649.0), ErrorKind::Overflow);
  EXPECT_FAILS(RoundToInt32(-kInfinity), ErrorKind::Overflow);
  EXPECT_FAILS(RoundToInt32(kNoNumber), ErrorKind::Overflow);
}

TEST(Floor, GoesDownAlsoBelowZero) {
  EXPECT_EQ(Floor(2.9), 2);
  EXPECT_EQ(Floor(-2.1), -3);
  EXPECT_EQ(Floor(-2), -2);
  EXPECT_EQ(Floor(1e300), 1e300);
}

TEST(Cot, IsTheInverseOfTheTangent) {
  EXPECT_NEAR(Cot(kPi / 4), 1, 1e-14);
  EXPECT_NEAR(Cot(kPi / 6), std::sqrt(3.0), 1e-13);
  EXPECT_NEAR(Cot(-kPi / 3), -1 / std::sqrt(3.0), 1e-14);
}

TEST(Cot, OfZeroIsADivisionByZero) {
  std::feclearexcept(FE_ALL_EXCEPT);
  volatile double zero = 0;
  EXPECT_TRUE(std::isinf(Cot(zero)));
  EXPECT_NE(std::fetestexcept(FE_DIVBYZERO), 0);
  std::feclearexcept(FE_ALL_EXCEPT);
}

TEST(ArcSin, IsExactAtTheEnds) {
  EXPECT_EQ(ArcSin(1), 3.14159265358979 / 2);
  EXPECT_EQ(ArcSin(-1), -3.14159265358979 / 2);
}

TEST(ArcSin, InvertsTheSine) {
  EXPECT_EQ(ArcSin(0), 0);
  EXPECT_NEAR(ArcSin(0.5), kPi / 6, 1e-14);
  for (double x = -0.999; x < 1; x += 0.001) EXPECT_NEAR(std::sin(ArcSin(x)), x, 1e-14);
}

TEST(ArcSin, HasNoValueBeyondOne) {
  EXPECT_TRUE(std::isnan(ArcSin(1.0000001)));
  EXPECT_TRUE(std::isnan(ArcSin(-2)));
}

TEST(ArcCos, IsExactAtTheEnds) {
  EXPECT_EQ(ArcCos(1), 0);
  EXPECT_EQ(ArcCos(-1), 4 * std::atan(1.0));
}

TEST(ArcCos, InvertsTheCosine) {
  EXPECT_NEAR(ArcCos(0), kPi / 2, 1e-14);
  EXPECT_NEAR(ArcCos(-0.5), 2 * kPi / 3, 1e-14);
  for (double x = -0.999; x < 1; x += 0.001) EXPECT_NEAR(std::cos(ArcCos(x)), x, 1e-14);
}

TEST(ArcCos, HasNoValueBeyondOne) {
  EXPECT_TRUE(std::isnan(ArcCos(1.0000001)));
  EXPECT_TRUE(std::isnan(ArcCos(-2)));
}

/// Runs work and gives the floating-point flags that a command would take for its own failure.
template <class Work>
int FlagsAfter(Work work) {
  std::feclearexcept(FE_ALL_EXCEPT);
  work();
  const int flags = std::fetestexcept(FE_DIVBYZERO | FE_OVERFLOW | FE_INVALID);
  std::feclearexcept(FE_ALL_EXCEPT);
  return flags;
}

TEST(Numbers, RaiseNoFloatingPointFlagOnGoodInput) {
  std::mt19937_64 random(9);
  std::uniform_real_distribution<double> power(-307, 307);
  std::vector<double> values = {0,
                                -0.0,
                                1,
                                -1,
                                std::numeric_limits<double>::min(),
                                std::numeric_limits<double>::denorm_min(),
                                std::numeric_limits<double>::max(),
                                std::numeric_limits<double>::lowest(),
                                1234567890123455.0};
  for (int i = 0; i < 1000; ++i) values.push_back(std::pow(10, power(random)));
  for (const double value : values) {
    EXPECT_EQ(FlagsAfter([&] {
                for (const PatternCase& item : kPatterns) {
                  FormatByPattern(value, item.pattern, kPoint);
                }
                FormatSmart(value, kPoint);
                FormatField(value, kComma);
                FormatField11(value, kPoint);
                FormatInt(value, kPoint);
              }),
              0);
    EXPECT_EQ(FlagsAfter([&] { Floor(value); }), 0);
    std::string text;
    EXPECT_EQ(FlagsAfter([&] { text = FormatShortest(value); }), 0);
    EXPECT_EQ(FlagsAfter([&] { ParseNumber(text, kPoint); }), 0);
    EXPECT_EQ(FlagsAfter([&] { ParseNumber(text, kComma); }), 0);
  }
  EXPECT_EQ(FlagsAfter([] { ParseNumber("1e-999", kPoint); }), 0);
  EXPECT_EQ(FlagsAfter([] { IsNumber("1e999", kPoint); }), 0);
  EXPECT_EQ(FlagsAfter([] { IsNumber("nan", kPoint); }), 0);
  EXPECT_EQ(FlagsAfter([] { RoundToInt16(-32768.5); }), 0);
  EXPECT_EQ(FlagsAfter([] { RoundToInt32(2.5); }), 0);
  EXPECT_EQ(FlagsAfter([] { Cot(1.5); }), 0);
  for (const double x :
       {-1.0, std::nextafter(-1.0, 0.0), -0.5, 0.0, 1e-300, 0.5, std::nextafter(1.0, 0.0), 1.0}) {
    EXPECT_EQ(FlagsAfter([&] { ArcSin(x); }), 0) << x;
    EXPECT_EQ(FlagsAfter([&] { ArcCos(x); }), 0) << x;
  }
}

}  // namespace
}  // namespace veldox
