// The sample screens under a script's hands: the same lines with windows and without.

#include <QApplication>
#include <string>
#include <vector>

#include "script/model_driver.h"
#include "script/runner.h"
#include "script/script_host.h"
#include "tests/support/sample_screens.h"
#include "tests/ui/window_test.h"
#include "ui/window_driver.h"

namespace veldox::testing {
namespace {

/// What a script prints, and then what it found wrong.
std::vector<std::string> Run(bool withWindows, const char* script) {
  const TemporaryFolder folder;
  ScriptHost host({folder.path(), DecimalMark::Point, ClockTime{2024, 5, 6, 7, 8, 9}});
  Program program(host);
  FlowBench bench(program.context());
  PagedBench pages(program.context());
  program.shell().Add(bench);
  program.shell().Add(pages);
  std::unique_ptr<Driver> driver;
  if (withWindows) {
    driver = std::make_unique<WindowDriver>(program.shell());
  } else {
    driver = std::make_unique<ModelDriver>(program.shell());
  }
  program.Start();
  bench.SetVisible(true);
  pages.SetVisible(true);
  Settle();
  std::vector<std::string> lines;
  ScriptRunner runner(program, host, *driver, folder.path(),
                      [&](std::string_view line) { lines.emplace_back(line); });
  if (!runner.Run(script)) lines.push_back("wrong: " + runner.wrong());
  lines.push_back("focus " + (bench.focus() == nullptr ? "none" : bench.focus()->name()));
  return lines;
}

void ExpectBoth(const char* script, const std::vector<std::string>& expected) {
  EXPECT_EQ(Run(false, script), expected) << "without windows";
  EXPECT_EQ(Run(true, script), expected) << "with windows";
}

TEST(SheetsScript, CellsAnswerToTheirNames) {
  ExpectBoth(
      R"(set FlowBench.Text48(3) .333
get FlowBench.Text48(3)
state FlowBench.Text48(3)
click FlowBench.Command35
state FlowBench.Text48(3)
type FlowBench.Text49(3) 1a2.5{TAB}
get FlowBench.Text49(3)
press FlowBench.Text49(4) 7
get FlowBench.Text49(4)
type FlowBench.Text49(5) 99{ENTER}
get FlowBench.Text49(5)
click FlowBench.CommandF3(0)
get FlowBench.Text52(3)
type FlowBench.Text52(3) 5
get FlowBench.Text52(3)
get FlowBench.Label2(51)
type FlowBench.Text49(15) 1{ENTER})",
      {"FlowBench.Text48(3) = .333", "FlowBench.Text48(3) = hidden enabled",
       "FlowBench.Text48(3) = visible enabled", "FlowBench.Text49(3) = 12.5",
       "FlowBench.Text49(4) = 7", "FlowBench.Text49(5) = 99", "FlowBench.Text52(3) = 37.53753",
       "FlowBench.Text52(3) = 37.53753", "FlowBench.Label2(51) = Flow", "focus Text52(0)"});
}

TEST(SheetsScript, AMessageNamesTheCell) {
  ExpectBoth(R"(set FlowBench.Text49(2) many
click FlowBench.Command1
messages)",
             {"message [VELDOX-Math-Formula-Calculator] warning: \"Flow, row 3\" holds \"many\", "
              "which is not a number. -> OK",
              "focus Text49(2)"});
}

TEST(SheetsScript, PanelsLieOverEachOther) {
  ExpectBoth(R"(click FlowBench.Command35
click FlowBench.Command1
get FlowBench.L1
click FlowBench.Command50(1)
state FlowBench.Frame11
state FlowBench.Frame8
click FlowBench.Command91(9)
state FlowBench.Frame11
set FlowBench.Text49(0) 1000
get FlowBench.Text49(0)
choose FlowBench.Option1(11)
get FlowBench.Option1
click FlowBench.Command91(4)
state FlowBench.Frame8
click FlowBench.Command91(9)
state FlowBench.Frame11
click FlowBench.Command1
get FlowBench.L1
choose FlowBench.Option1(11)
get FlowBench.Option1
get FlowBench.Option1(1)
click FlowBench.Command3
show FlowBench.Text3)",
             {"FlowBench.L1 = ", "FlowBench.Frame11 = visible enabled",
              "FlowBench.Frame8 = visible enabled", "FlowBench.Frame11 = visible enabled",
              "FlowBench.Text49(0) = 1000", "FlowBench.Option1 = 1",
              "FlowBench.Frame8 = hidden enabled", "FlowBench.Frame11 = hidden enabled",
              // (1000 + 65 + 120.25 + 165) / 16 = 84.390625
              "FlowBench.L1 = 84.39062", "FlowBench.Option1 = 11", "FlowBench.Option1(1) = off",
              "| Average: 84.39062", "| Lift: 0.8", "focus Command3"});
}

TEST(SheetsScript, PagesTakeTurns) {
  ExpectBoth(
      R"(click PagedBench.Command4
get PagedBench.Text3
click PagedBench.Command8
click PagedBench.Command4
get PagedBench.Text3
state PagedBench.Text1
click PagedBench.Command3
set PagedBench.Text83(2) 650
get PagedBench.Text83(2)
click PagedBench.Command1
click PagedBench.Command2
get PagedBench.Text2)",
      {"PagedBench.Text3 = 18", "PagedBench.Text3 = 19.0", "PagedBench.Text1 = hidden enabled",
       "PagedBench.Text83(2) = 650", "PagedBench.Text2 = 3200.0", "focus none"});
}

}  // namespace
}  // namespace veldox::testing
