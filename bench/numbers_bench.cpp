// Text of numbers and back, beside the C library's way to the same digits.

#include <benchmark/benchmark.h>

#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

#include "core/numbers.h"
#include "core/report_columns.h"

namespace {

using namespace veldox;

constexpr std::size_t kCount = 1024;  // a power of two, so that the index wraps cheaply

/// Calculated values of the sizes that screens show, from 0.01 to 10000, with all their digits.
const std::vector<double>& CalculatedValues() {
  static const std::vector<double> values = [] {
    std::mt19937_64 random(4);
    std::uniform_real_distribution<double> power(-2, 4);
    std::vector<double> result(kCount);
    for (double& value : result) value = std::pow(10, power(random));
    return result;
  }();
  return values;
}

/// Values as a user types them: up to three decimals.
const std::vector<double>& TypedValues() {
  static const std::vector<double> values = [] {
    std::mt19937_64 random(5);
    std::uniform_int_distribution<int> thousandths(1, 9'999'999);
    std::vector<double> result(kCount);
    for (double& value : result) value = thousandths(random) / 1000.0;
    return result;
  }();
  return values;
}

const std::vector<std::string>& FieldTexts() {
  static const std::vector<std::string> texts = [] {
    std::vector<std::string> result;
    for (double value : CalculatedValues()) {
      result.push_back(FormatField(value, DecimalMark::Point));
    }
    return result;
  }();
  return texts;
}

const std::vector<std::string>& ShortestTexts() {
  static const std::vector<std::string> texts = [] {
    std::vector<std::string> result;
    for (double value : CalculatedValues()) result.push_back(FormatShortest(value));
    return result;
  }();
  return texts;
}

template <class Item, class Work>
void Repeat(benchmark::State& state, const std::vector<Item>& items, Work work) {
  std::size_t i = 0;
  for (auto _ : state) benchmark::DoNotOptimize(work(items[i++ % kCount]));
}

std::string Printed(const char* format, int decimals, double value) {
  std::array<char, 64> text;
  const int length = std::snprintf(text.data(), text.size(), format, decimals, value);
  return {text.data(), static_cast<std::size_t>(length)};
}

/// A pattern beside the C library's format of as many decimals.
template <PatternText Pattern>
void RegisterPattern(int decimals) {
  const std::string pattern(Pattern.view());
  const auto add = [&](const std::string& kind, const std::vector<double>& values) {
    benchmark::RegisterBenchmark(
        ("Format<" + pattern + ">/" + kind).c_str(), [&values](benchmark::State& state) {
          Repeat(state, values,
                 [](double v) { return FormatValue<Pattern>(v, DecimalMark::Point); });
        });
    benchmark::RegisterBenchmark(
        ("Print<" + pattern + ">/" + kind).c_str(), [&values, decimals](benchmark::State& state) {
          Repeat(state, values, [decimals](double v) { return Printed("%.*f", decimals, v); });
        });
  };
  add("calculated", CalculatedValues());
  add("typed", TypedValues());
}

const bool kPatternsRegistered = [] {
  RegisterPattern<"0">(0);
  RegisterPattern<"#,##0">(0);
  RegisterPattern<"0.00">(2);
  RegisterPattern<".0000">(4);
  RegisterPattern<"0.0#####">(6);
  RegisterPattern<"0.000000000">(9);
  RegisterPattern<"0.000000000000">(12);
  return true;
}();

void FieldFormat(benchmark::State& state) {
  Repeat(state, CalculatedValues(), [](double v) { return FormatField(v, DecimalMark::Point); });
}
BENCHMARK(FieldFormat);

void Shortest(benchmark::State& state) {
  Repeat(state, CalculatedValues(), [](double v) { return FormatShortest(v); });
}
BENCHMARK(Shortest);

void ShortestPrint(benchmark::State& state) {
  Repeat(state, CalculatedValues(), [](double v) { return Printed("%.*g", 17, v); });
}
BENCHMARK(ShortestPrint);

void Parse(benchmark::State& state, const std::vector<std::string>& texts) {
  Repeat(state, texts, [](const std::string& t) { return ParseNumber(t, DecimalMark::Point); });
}
BENCHMARK_CAPTURE(Parse, field, FieldTexts());
BENCHMARK_CAPTURE(Parse, shortest, ShortestTexts());

void Scan(benchmark::State& state, const std::vector<std::string>& texts) {
  Repeat(state, texts, [](const std::string& t) { return std::strtod(t.c_str(), nullptr); });
}
BENCHMARK_CAPTURE(Scan, field, FieldTexts());
BENCHMARK_CAPTURE(Scan, shortest, ShortestTexts());

void ReportTable(benchmark::State& state) {
  const std::vector<double>& values = CalculatedValues();
  for (auto _ : state) {
    ReportColumns report(DecimalMark::Point);
    for (double value : values) report.AddCell<"0.00">(value, 10);
    benchmark::DoNotOptimize(report.ReportLine.data());
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(kCount));
}
BENCHMARK(ReportTable);

}  // namespace
