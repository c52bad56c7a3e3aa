// Series of values and targets, held against formulas of the trade and against the commands that
// solve for the other side.

#include "core/vary.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <string>
#include <vector>

#include "program/program.h"
#include "tests/support/program_state.h"
#include "tests/support/test_host.h"

namespace veldox {
namespace {

using State = ProgramState;

struct Sum {
  const char* field;
  double low;
  double high;
  const char* command;
  const char* result;
  double target;
  double expected;  ///< of the field
  double tolerance;
};

class VaryTest : public testing::Test {
 protected:
  VaryTest() {
    program_.Start();
    for (const char* form : {"Form1", "Form1CR", "Form3", "Form5", "Form14", "Form16", "Form18"}) {
      program_.shell().Open(*program_.shell().FindScreen(form));
    }
  }

  template <class C = Field>
  C& Find(const std::string& name) {
    auto* control = dynamic_cast<C*>(program_.shell().FindControl(name));
    EXPECT_NE(control, nullptr) << name;
    return *control;
  }
  double Number(const std::string& name) {
    return ParseNumber(Find(name).text(), DecimalMark::Point);
  }
  /// Results of commands and the value of a field that gives each, solved by hand.
  std::vector<Sum> Sums() {
    constexpr double kPi = std::numbers::pi;
    const double coils = Number("Form16.Text2");
    const double diameter = Number("Form16.Text3");
    const double modulus = Number("Form16.Text18");
    return {
        // pi / 4 * bore^2 * stroke * cylinders
        {"Form1.Text1", 3, 5, "Form1.Command1", "Form1.Text6", 400,
         std::sqrt(400 / (kPi / 4 * 3.25 * 8)), 1e-6},
        {"Form1.Text3", 2, 5, "Form1.Command1", "Form1.Text6", 350, 350 / (kPi / 4 * 16 * 8), 1e-6},
        {"Form1.Text3", 2, 5, "Form1.Command22", "Form1.Text11", 1.25, 4 / 1.25, 1e-6},
        {"Form1.Text4", 4, 8, "Form1.Command23", "Form1.Text12", 1.8, 1.8 * 3.25, 5e-6},
        // half the stroke, rod, pin height and clearance make the deck height
        {"Form1.Text8", 9, 10, "Form1.Command9", "Form1.Text10", 0.02,
         3.25 / 2 + 5.7 + 1.904 + 0.02, 1e-6},
        // feet a minute: two strokes a turn, twelve inches a foot
        {"Form1.Text13", 3000, 4500, "Form1.Command6", "Form1.Text5", 7000, 3.25 * 7000 / 6, 0.6},
        // G d^4 / (8 n D^3)
        {"Form16.Text1", 0.2, 1, "Form16.Command1", "Form16.Text4", 200,
         std::pow(200 * 8 * coils * std::pow(diameter, 3) / modulus, 0.25), 1e-5},
        {"Form16.Text2", 2, 30, "Form16.Command1", "Form16.Text4", 200,
         modulus * std::pow(Number("Form16.Text1"), 4) / (8 * 200 * std::pow(diameter, 3)), 1e-4},
        // horsepower is torque times RPM by 33,000 / 2 pi
        {"Form3.Text12", 100, 1000, "Form3.Command24", "Form3.Text5", 600,
         600 * 33'000 / (2 * kPi) / 6500, 0.05},
        // turns of a tire in a minute: 63,360 inches a mile
        {"Form5.Text18", 1, 7, "Form5.Command2", "Form5.Text17", 7000,
         7000 * 60 * kPi * Number("Form5.Text21") / (63'360 * Number("Form5.Text1")), 5e-3},
        // the absolute pressures' ratio; an inch of mercury weighs 0.49115 pounds a square inch
        {"Form14.Text3", 1, 20, "Form14.Command13", "Form14.Text17", 1.8,
         0.8 * 0.49115 * Number("Form14.Text15"), 2e-3},
        // the blower turns faster by the teeth of the crank's gear
        {"Form14.Text10", 30, 90, "Form14.Command10", "Form14.Text12", 1.85, 1.85 * 40, 1e-4},
        // brake mean effective pressure of a four-stroke: 48 pi * torque / size
        {"Form3.Text12", 100, 1000, "Form3.Command13", "Form3.Text14", 200,
         200 * Number("Form3.Text15") / (48 * kPi), 0.1},
    };
  }

  State Now() { return State(program_, State::Part::All); }
  std::string Refusal(const std::function<void()>& call) {
    const State before = Now();
    try {
      call();
    } catch (const CommandError& error) {
      EXPECT_EQ(State::Difference(before, Now()), "");
      return error.message();
    }
    return "none";
  }

  TestHost host_;
  Program program_{host_};
};

TEST_F(VaryTest, EachValueIsWorkedOutFromThePresentStateWhichStays) {
  const State before = Now();
  const std::vector<VariedLine> lines =
      Vary(Find("Form1.Text1"), {4, 4.5, 0.1}, Find<Command>("Form1.Command1"),
           {&Find("Form1.Text6"), &Find("Form1.Text11")});
  ASSERT_EQ(lines.size(), 6U);
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const double bore = 4 + 0.1 * static_cast<double>(i);
    const double size = std::numbers::pi / 4 * bore * bore * 3.25 * 8;
    EXPECT_EQ(lines[i].text, FormatField(bore, DecimalMark::Point));
    EXPECT_NEAR(ParseNumber(lines[i].results[0], DecimalMark::Point), size, 0.0001);
    EXPECT_NEAR(ParseNumber(lines[i].results[1], DecimalMark::Point), bore / 3.25, 0.000001);
    EXPECT_EQ(lines[i].error, "");
  }
  EXPECT_EQ(State::Difference(before, Now()), "");
  EXPECT_TRUE(host_.messages.empty());
}

TEST_F(VaryTest, ARangeHoldsTheLastValueThatIsNotBeyondItsEnd) {
  const auto texts = [&](const ValueRange& range) {
    std::vector<std::string> told;
    for (const VariedLine& line : Vary(Find("Form1.Text1"), range, Find<Command>("Form1.Command1"),
                                       {&Find("Form1.Text6")})) {
      told.push_back(line.text);
    }
    return told;
  };
  EXPECT_EQ(texts({4, 4.25, 0.1}), (std::vector<std::string>{"4.0", "4.1", "4.2"}));
  EXPECT_EQ(texts({4.2, 4, -0.1}), (std::vector<std::string>{"4.2", "4.1", "4.0"}));
  EXPECT_EQ(texts({4, 4, 1}), (std::vector<std::string>{"4.0"}));
  // Ten times a tenth is a little less than one in binary numbers.
  EXPECT_EQ((ValueRange{0, 1, 0.1}.Count()), 11U);
  EXPECT_EQ((ValueRange{0, 99'999, 1}.Count()), 100'000U);
}

TEST_F(VaryTest, WhatCannotBeIsTold) {
  auto& bore = Find("Form1.Text1");
  auto& size = Find<Command>("Form1.Command1");
  Control* result = &Find("Form1.Text6");
  const auto refusal = [&](const ValueRange& range) {
    return Refusal([&] { Vary(bore, range, size, {result}); });
  };
  EXPECT_EQ(refusal({4, 5, 0}), "The step is 0: no value would ever follow the first.");
  EXPECT_EQ(refusal({5, 4, 1}),
            "The range ends below its beginning: the step must be below 0 then.");
  EXPECT_EQ(refusal({4, 5, -1}),
            "The range ends above its beginning: the step must be above 0 then.");
  EXPECT_EQ(refusal({0, 100'000, 1}),
            "These are more than 100,000 values. Please choose a larger step.");
  EXPECT_EQ(refusal({0, HUGE_VAL, 1}), "The values from, to and by must be numbers.");
  EXPECT_EQ(Refusal([&] {
              Vary(Find("Form1.Text24"), {1, 2, 1}, size, {result});
            }),
            "\"Piston Area\" takes no number.");
  EXPECT_EQ(Refusal([&] {
              Vary(bore, {1, 2, 1}, size, {});
            }),
            "A series has one result at least and eight at most.");
  // One that cannot be does not end the others.
  const auto lines =
      Vary(Find("Form1.Text2"), {0, 2, 1}, Find<Command>("Form1.Command3"), {&Find("Form1.Text3")});
  ASSERT_EQ(lines.size(), 3U);
  EXPECT_NE(lines[0].error.find("\"Number Of Cylinders\" is 0"), std::string::npos);
  EXPECT_TRUE(lines[0].results.empty());
  EXPECT_EQ(lines[1].error, "");
}

TEST_F(VaryTest, SeeksAgreeWithFormulasSolvedByHand) {
  for (const Sum& sum : Sums()) {
    SCOPED_TRACE(std::string(sum.field) + " for " + sum.result);
    const std::size_t steps = program_.context().history.done();
    const State before(program_, State::Part::Data);
    std::string text;
    try {
      text = Seek(Find(sum.field), {sum.low, sum.high, sum.target}, Find<Command>(sum.command),
                  Find(sum.result));
    } catch (const CommandError& error) {
      ADD_FAILURE() << error.message();
      continue;
    }
    EXPECT_EQ(Find(sum.field).text(), text);
    EXPECT_NEAR(ParseNumber(text, DecimalMark::Point), sum.expected, sum.tolerance);
    EXPECT_NEAR(Number(sum.result), sum.target, std::abs(sum.target) * 2e-4);
    EXPECT_EQ(program_.context().history.done(), steps + 1) << "a seek is one step";
    program_.context().history.Undo();
    EXPECT_EQ(State::Difference(before, State(program_, State::Part::Data)), "");
  }
}

TEST_F(VaryTest, SeriesAgreeWithFormulasSolvedByHand) {
  const State before = Now();
  std::size_t agreeing = 0;
  for (const Sum& sum : Sums()) {
    SCOPED_TRACE(std::string(sum.field) + " and " + sum.result);
    const double apart = sum.expected / 64;
    const std::vector<VariedLine> lines =
        Vary(Find(sum.field), {sum.expected - apart, sum.expected + apart, apart},
             Find<Command>(sum.command), {&Find(sum.result)});
    ASSERT_EQ(lines.size(), 3U);
    std::vector<double> results;
    for (const VariedLine& line : lines) {
      ASSERT_EQ(line.error, "");
      results.push_back(ParseNumber(line.results.front(), DecimalMark::Point));
    }
    EXPECT_NEAR(results[1], sum.target, std::abs(sum.target) * 2e-4);
    // The target is passed between its neighbours.
    EXPECT_LT((results[0] - sum.target) * (results[2] - sum.target), 0);
    ++agreeing;
  }
  EXPECT_GE(agreeing, 10U);
  EXPECT_EQ(State::Difference(before, Now()), "");
}

TEST_F(VaryTest, ASecondFieldGivesASeriesForEachOfItsValues) {
  Variation variation;
  variation.field = &Find("Form1.Text1");
  variation.values = {4, 4.1};
  variation.second = &Find("Form1.Text3");
  variation.secondValues = {3, 3.5, 4};
  variation.command = &Find<Command>("Form1.Command1");
  variation.results = {&Find("Form1.Text6")};
  const State before = Now();
  const std::vector<VariedSeries> all = Vary(variation);
  ASSERT_EQ(all.size(), 3U);
  for (std::size_t i = 0; i < all.size(); ++i) {
    const double stroke = variation.secondValues[i];
    EXPECT_EQ(all[i].text, FormatField(stroke, DecimalMark::Point));
    ASSERT_EQ(all[i].lines.size(), 2U);
    for (std::size_t k = 0; k < 2; ++k) {
      const double bore = variation.values[k];
      EXPECT_NEAR(ParseNumber(all[i].lines[k].results[0], DecimalMark::Point),
                  std::numbers::pi / 4 * bore * bore * stroke * 8, 0.0001);
    }
  }
  EXPECT_EQ(State::Difference(before, Now()), "");
  // It ends where it is told to.
  EXPECT_EQ(Vary(variation, [](std::size_t done) { return done < 3; }).back().lines.size(), 1U);
  variation.second = variation.field;
  EXPECT_EQ(Refusal([&] { Vary(variation); }),
            "\"Bore\" is varied already: the second field must be another one.");
  variation.second = &Find("Form1.Text3");
  variation.values.resize(40'000, 4);
  EXPECT_EQ(Refusal([&] { Vary(variation); }),
            "These are more than 100,000 values. Please choose a larger step.");
}

/// The command that solves for the other side gives the value back that was found.
TEST_F(VaryTest, SeeksAgreeWithTheCommandsThatSolveForTheField) {
  struct Pair {
    Sum sum;
    const char* inverse;
  };
  const Pair pairs[] = {
      {{"Form1CR.Text15", 30, 90, "Form1CR.Command10", "Form1CR.Text17", 12, 0, 2e-3},
       "Form1CR.Command11"},
      {{"Form3.Text12", 100, 1000, "Form3.Command24", "Form3.Text5", 600, 0, 0.01},
       "Form3.Command12"},
      {{"Form18.Text20", 6, 16, "Form18.Command8", "Form18.Text21", 6, 0, 2e-3}, "Form18.Command9"},
      {{"Form16.Text5", 0.5, 2, "Form16.Command2", "Form16.Text9", 100, 0, 1e-3},
       "Form16.Command10"},
  };
  for (const Pair& pair : pairs) {
    const Sum& sum = pair.sum;
    SCOPED_TRACE(std::string(sum.field) + " for " + sum.result);
    try {
      Seek(Find(sum.field), {sum.low, sum.high, sum.target}, Find<Command>(sum.command),
           Find(sum.result));
    } catch (const CommandError& error) {
      ADD_FAILURE() << error.message();
      continue;
    }
    const double found = Number(sum.field);
    ASSERT_TRUE(Find<Command>(pair.inverse).Run());
    EXPECT_NEAR(Number(sum.field), found, sum.tolerance);
    EXPECT_NE(found, sum.low);
  }
}

TEST_F(VaryTest, ATargetBeyondTheEndsIsToldWithWhatTheyGive) {
  EXPECT_EQ(Refusal([&] {
              Seek(Find("Form1.Text1"), {3, 3.5, 400}, Find<Command>("Form1.Command1"),
                   Find("Form1.Text6"));
            }),
            "\"Engine Size\" is 183.7831 at 3.0 and 250.1493 at 3.5: 400.0 is not between them.");
  EXPECT_EQ(Refusal([&] {
              Seek(Find("Form1.Text1"), {5, 3, 400}, Find<Command>("Form1.Command1"),
                   Find("Form1.Text6"));
            }),
            "The low end must be below the high end.");
  EXPECT_TRUE(host_.messages.empty());
}

TEST_F(VaryTest, SeekTriesWholeNumbersWhereAFieldHoldsSuch) {
  // Each cylinder of 4.0 x 3.25 is 40.8407 cubic inches.
  EXPECT_EQ(Seek(Find("Form1.Text2"), {1, 16, 408.407}, Find<Command>("Form1.Command1"),
                 Find("Form1.Text6")),
            "10");
  try {
    Seek(Find("Form1.Text2"), {1, 16, 300}, Find<Command>("Form1.Command1"), Find("Form1.Text6"));
    ADD_FAILURE() << "no number of cylinders gives 300";
  } catch (const CommandError& error) {
    EXPECT_THAT(error.message(), ::testing::HasSubstr("285.8849 at 7"));
    EXPECT_THAT(error.message(), ::testing::HasSubstr("326.7256 at 8"));
  }
  EXPECT_EQ(Find("Form1.Text2").text(), "10");
}

TEST_F(VaryTest, SeekEndsWithTheValueThatGivesTheTargetWhereThereIsOne) {
  Field& bore = Find("Form1.Text1");
  // 4 x pi / 4 x 4^2 x 3.25 x 2, and of a bore of 3.97
  for (const auto& [target, expected] : {std::pair{326.7256, "4.0"}, std::pair{321.8431, "3.97"}}) {
    EXPECT_EQ(Seek(bore, {2, 6, target}, Find<Command>("Form1.Command1"), Find("Form1.Text6")),
              expected);
  }
}

TEST_F(VaryTest, SeekRefusesACommandThatWritesTheFieldItself) {
  try {
    Seek(Find("Form1.Text1"), {2, 6, 400}, Find<Command>("Form1.Command2"), Find("Form1.Text6"));
    ADD_FAILURE() << "the command works out the bore";
  } catch (const CommandError& error) {
    EXPECT_EQ(error.message(), "\"Bore\" writes \"Bore\" itself: no value of it can be sought.");
  }
}

TEST_F(VaryTest, ATinyStepComesToTheEndOfItsRange) {
  EXPECT_EQ((ValueRange{5227, 5227.0021, 0.0001}).Count(), 22U);
  EXPECT_EQ((ValueRange{0, 1, 0.1}).Count(), 11U);
  EXPECT_EQ((ValueRange{0, 0.95, 0.1}).Count(), 10U);
}

}  // namespace
}  // namespace veldox
