#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include "core/pick_list.h"
#include "data/tables.h"

namespace veldox {
namespace {

constexpr double kCcInCubicInch = 16.387064;

struct Engine {
  std::string make, name, source;
  double bore, stroke, rod, cylinders;
  double cubicInches() const { return bore * bore * std::acos(-1.0) / 4 * stroke * cylinders; }
};

/// All rows that have figures.
std::vector<Engine> Engines() {
  std::vector<Engine> engines;
  for (const TableGroup& group : EngineTable()) {
    for (const TableRow& row : group.rows) {
      if (row.kind != TableRow::Kind::Figures) continue;
      const std::vector<std::string> figures = PickedFigures("| " + std::string(row.figures), 9);
      EXPECT_EQ(figures.size(), 4U) << row.name;
      if (figures.size() != 4) continue;
      const auto number = [&](std::size_t i) { return std::strtod(figures[i].c_str(), nullptr); };
      engines.push_back({std::string(group.name), std::string(row.name), std::string(row.source),
                         number(0), number(1), number(2), number(3)});
    }
  }
  return engines;
}

TEST(EngineTable, HasAllMakesWithAllTheirEngines) {
  const std::vector<std::pair<std::string, int>> makes{{"AMC", 29},
                                                       {"Buick", 31},
                                                       {"Cadillac", 15},
                                                       {"Chevy SB", 76},
                                                       {"Chevy BB", 65},
                                                       {"Chevy All", 29},
                                                       {"Chrysler SB", 17},
                                                       {"Chrysler BB", 23},
                                                       {"Chrysler All", 59},
                                                       {"Cummins", 20},
                                                       {"Ford SB", 73},
                                                       {"Ford BB", 45},
                                                       {"Ford All", 48},
                                                       {"Olds", 27},
                                                       {"Packard", 11},
                                                       {"Pontiac", 78},
                                                       {"Studebaker", 11},
                                                       {"BMW", 52},
                                                       {"Ferrari", 51},
                                                       {"Honda", 41},
                                                       {"Maserati", 20},
                                                       {"Mazda", 20},
                                                       {"Mercedes", 33},
                                                       {"Nissan", 30},
                                                       {"Porsche", 27},
                                                       {"Toyota", 47},
                                                       {"VW", 25},
                                                       {"For Other", 169},
                                                       {"Arctic Cat", 24},
                                                       {"BMWW", 22},
                                                       {"Harley Davidson", 65},
                                                       {"Hondaa", 38},
                                                       {"Kawasaki", 29},
                                                       {"Ski Doo", 20},
                                                       {"Suzuki", 70},
                                                       {"Yamaha", 84},
                                                       {"Motor Other", 40},
                                                       {"AirCraft", 83}};
  ASSERT_EQ(EngineTable().size(), makes.size());
  int all = 0;
  for (std::size_t i = 0; i < makes.size(); ++i) {
    const TableGroup& group = EngineTable()[i];
    int engines = 0;
    for (const TableRow& row : group.rows) engines += row.kind == TableRow::Kind::Header ? 0 : 1;
    EXPECT_EQ(group.name, makes[i].first);
    EXPECT_EQ(engines, makes[i].second) << group.name;
    all += engines;
  }
  EXPECT_EQ(all, 1647);
}

TEST(EngineTable, KeepsNamesAndFiguresToTheLetter) {
  const std::vector<std::pair<std::string, std::string>> rows{
      {"AMC", "I-151 (Pontiac) | 4.00 3.00 6.05 4"},
      {"Buick", "I-225 | 3.75 3.4 5.96 6"},
      {"Cadillac", "v8-346 5.7L - CTS-V(LS6) | 3.9 3.62 0.0 8"},
      {"Chevy SB", "262 | 3.671 3.109 5.7 8"},
      {"Cummins", "I4-122 1991cc Marine | 3.26772 3.62205 0.0 4"},
      {"Ford BB", "332 | 4.0 3.3 0.0 8"},
      {"Porsche", "I4-2479cc | 3.93701 3.1063 0.0 8"},
      {"Harley Davidson", "2- 53.88 ci 883 cc | 3.0 3.81102 0.0 2"},
      {"Yamaha", "1-49.0 cc | 1.5748 1.53543 0.0 1"},
      {"AirCraft", "1710 ci | 5.5 6.0 0.0 12"},
      {"Packard", "I6-237 ci | 3.44 4.25 0.0 6"},
      {"Mazda", "I4-1.3L 81ci | 2.79528 3.29134 0.0 4"}};
  for (const auto& [make, row] : rows) {
    bool found = false;
    for (const TableGroup& group : EngineTable()) {
      if (group.name != make) continue;
      for (const PickRow& offered : PickRowsOf(group, "")) found = found || offered.text == row;
    }
    EXPECT_TRUE(found) << make << ": " << row;
  }
}

TEST(EngineTable, HoldsEnginesThatCanBeBuilt) {
  const std::vector<Engine> engines = Engines();
  EXPECT_EQ(engines.size(), 1309U);
  for (const Engine& e : engines) {
    const std::string where = e.make + ": " + e.name;
    EXPECT_GE(e.bore, 0.5) << where;
    EXPECT_LE(e.bore, 8) << where;
    EXPECT_GE(e.stroke, 0.5) << where;
    EXPECT_LE(e.stroke, 10) << where;
    EXPECT_GE(e.bore / e.stroke, 0.5) << where;
    EXPECT_LE(e.bore / e.stroke, 3) << where;
    EXPECT_GE(e.cylinders, 1) << where;
    EXPECT_LE(e.cylinders, 36) << where;
    // A rod of no length is one that is not known.
    if (e.rod != 0) {
      EXPECT_GE(e.rod / e.stroke, 1.4) << where;
      EXPECT_LE(e.rod / e.stroke, 2.6) << where;
    }
    EXPECT_FALSE(e.source.empty()) << where;
  }
}

/// Displacements that a name tells, each with what the figures give in the same unit and how
/// far the two may be apart.
struct Told {
  double told, given, tolerance;
};

std::vector<Told> ToldIn(const Engine& engine) {
  const std::string before = "(?:^|[^A-Za-z0-9_.])";
  const std::string behind = "(?![A-Za-z0-9])";
  static const std::regex cc(before + "(?:(\\d+\\.\\d+) ?c{1,3}|(\\d{2,}) ?c{2,3})" + behind);
  static const std::regex litres(before + "(\\d{1,2}\\.\\d+) ?[lL]" + behind);
  static const std::regex inches("(\\d+(?:\\.\\d+)?) ?ci");
  static const std::regex number("\\d{2,4}(?:\\.\\d+)?");
  const double size = engine.cubicInches();
  std::vector<Told> told;
  const auto find = [&](const std::regex& pattern, double given, bool isLitres) {
    for (std::sregex_iterator i(engine.name.begin(), engine.name.end(), pattern), end; i != end;
         ++i) {
      const double value = std::stod((i->size() > 2 && !(*i)[1].matched ? (*i)[2] : (*i)[1]).str());
      // Litres are told to a tenth, the others are rounded or cut to a whole.
      told.push_back({value, given, isLitres ? 0.06 : std::max(1.0, 0.01 * value)});
    }
  };
  find(cc, size * kCcInCubicInch, false);
  find(litres, size * kCcInCubicInch / 1000, true);
  find(inches, size, false);
  if (!told.empty()) return told;
  // A name that is a size without a unit: cubic inches or cc, whichever is nearer.
  Told nearest{0, size, std::max(1.0, 0.01 * size)};
  for (std::sregex_iterator i(engine.name.begin(), engine.name.end(), number), end; i != end; ++i) {
    const double value = std::stod(i->str());
    for (const double given : {size, size * kCcInCubicInch}) {
      if (std::abs(value - given) / given <
          std::abs(nearest.told - nearest.given) / nearest.given) {
        nearest = {value, given, std::max(1.0, 0.01 * given)};
      }
    }
  }
  return {nearest};
}

TEST(EngineTable, AgreesWithTheDisplacementInTheNames) {
  // What is known to be apart, and why.
  const std::map<std::string, std::string> exceptions{
      {"Chrysler SB: 426 (6.1L)", "a 6.1 litre engine with a longer stroke"},
      {"Chrysler All: V10 - 505 8.2L SRT-10", "505 cubic inches are 8.28 litres"},
      {"Pontiac: 350", "354 cubic inches, sold as 350"},
      {"Nissan: L18", "no displacement in the name"},
      {"Nissan: Z20E", "no displacement in the name"},
      {"Porsche: I4-2479cc", "the table has 8 cylinders for the four-cylinder engine"},
      {"For Other: 4-1998cc 1.8L K20a DOHC 4v", "the name contradicts itself; the cc are right"},
      {"For Other: V12-6.0L DB7 GT", "5.94 litres, sold as 6.0"},
      {"For Other: I3-60.6 993.5cc 1.3L", "the name contradicts itself; the cc are right"},
      {"For Other: V6-2.0L 2099 cc", "2.1 litres, sold as 2.0"},
      {"For Other: V8-3506cc 3.6L", "the name contradicts itself; the cc are right"},
      {"For Other: G54B", "no displacement in the name"},
      {"For Other: V6-183 3000 cc", "2962 cc, sold as 3000"},
      {"AirCraft: DB 605 35.7L", "35.76 litres, cut to tenths"}};
  std::set<std::string> apart;
  for (const Engine& engine : Engines()) {
    for (const Told& told : ToldIn(engine)) {
      if (std::abs(told.told - told.given) <= told.tolerance) continue;
      const std::string name = engine.make + ": " + engine.name;
      apart.insert(name);
      EXPECT_TRUE(exceptions.count(name) == 1)
          << name << " tells " << told.told << ", its figures give " << told.given;
    }
  }
  // An exception that has gone is no exception any more.
  for (const auto& [name, reason] : exceptions) EXPECT_EQ(apart.count(name), 1U) << name << reason;
}

}  // namespace
}  // namespace veldox
