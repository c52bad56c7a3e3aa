#include "script/arguments.h"

#include <charconv>
#include <string_view>

namespace veldox {

const char* const kScriptUsage =
    "usage: veldox-script [--windows] [--folder DIR] [--decimal-comma] "
    "[--date \"YYYY-MM-DD hh:mm:ss\"] FILE";

namespace {

std::optional<int> Digits(std::string_view text, std::size_t from, std::size_t count) {
  int value = 0;
  const char* begin = text.data() + from;
  const auto [end, error] = std::from_chars(begin, begin + count, value);
  if (error != std::errc() || end != begin + count || *begin == '-') return std::nullopt;
  return value;
}

std::optional<ClockTime> ParseDate(std::string_view text) {
  constexpr std::string_view kShape = "0000-00-00 00:00:00";
  if (text.size() != kShape.size()) return std::nullopt;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (kShape[i] != '0' && text[i] != kShape[i]) return std::nullopt;
  }
  const auto year = Digits(text, 0, 4), month = Digits(text, 5, 2), day = Digits(text, 8, 2);
  const auto hour = Digits(text, 11, 2), minute = Digits(text, 14, 2), second = Digits(text, 17, 2);
  if (!year || !month || !day || !hour || !minute || !second) return std::nullopt;
  if (*month < 1 || *month > 12 || *day < 1 || *day > 31 || *hour > 23 || *minute > 59 ||
      *second > 59) {
    return std::nullopt;
  }
  return ClockTime{*year, *month, *day, *hour, *minute, *second};
}

}  // namespace

std::optional<ScriptArguments> ParseScriptArguments(const std::vector<std::string>& arguments,
                                                    std::string& wrong) {
  ScriptArguments result;
  bool fileGiven = false;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& argument = arguments[i];
    const bool hasNext = i + 1 < arguments.size();
    if (argument == "--windows") {
      result.windows = true;
    } else if (argument == "--decimal-comma") {
      result.decimalComma = true;
    } else if (argument == "--folder" && hasNext) {
      result.folder = arguments[++i];
    } else if (argument == "--date" && hasNext) {
      result.date = ParseDate(arguments[++i]);
      if (!result.date) {
        wrong = "the date is not \"YYYY-MM-DD hh:mm:ss\": " + arguments[i];
        return std::nullopt;
      }
    } else if (argument.size() > 1 && argument.front() == '-') {
      wrong = "unknown or incomplete option " + argument;
      return std::nullopt;
    } else if (fileGiven) {
      wrong = "more than one script: " + argument;
      return std::nullopt;
    } else {
      result.file = argument;
      fileGiven = true;
    }
  }
  if (!fileGiven) {
    wrong = "no script given";
    return std::nullopt;
  }
  return result;
}

}  // namespace veldox
