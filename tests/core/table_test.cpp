#include "core/table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

#include "tests/support/sample_screens.h"
#include "tests/support/test_host.h"

namespace veldox {
namespace {

class TableTest : public testing::Test {
 protected:
  TableTest() { context_->rules.BuildMessages(); }

  TestHost host_;
  std::unique_ptr<ProgramContext> context_ = std::make_unique<ProgramContext>(host_);
  FlowBench bench_{*context_};
};

TEST_F(TableTest, CellsAreCalledByColumnAndRow) {
  EXPECT_EQ(bench_.Intake.rows(), 16);
  EXPECT_EQ(bench_.Intake.columns(), 3);
  EXPECT_EQ(bench_.Intake.Cell(3, 1), &bench_.Text49[3]);
  EXPECT_EQ(bench_.Intake.Cell(16, 1), nullptr);
  EXPECT_EQ(bench_.Intake.Cell(0, 3), nullptr);
  EXPECT_EQ(bench_.Text49[3].PlainCaption(), "Flow, row 4");
  EXPECT_EQ(bench_.Text51[2].PlainCaption(), "Flow, 3rd");
  EXPECT_EQ(bench_.Intake.PlaceOf(bench_.Text49[3]), (Table::Place{3, 1}));
  EXPECT_EQ(bench_.Intake.PlaceOf(bench_.Text1), Table::Place{});
}

TEST_F(TableTest, AHeadThatIsRewrittenRenamesItsColumn) {
  bench_.Exhaust.SetHead(1, "Flow CFM");
  EXPECT_EQ(bench_.Label2[51].caption(), "Flow CFM");
  EXPECT_EQ(bench_.Text51[0].PlainCaption(), "Flow CFM, 1st");
}

TEST_F(TableTest, TabWalksRowByRowAndEnterDownTheColumns) {
  bench_.Frame11.Open();
  EXPECT_EQ(bench_.NextInTabOrder(bench_.Text48[0]), &bench_.Text49[0]);
  EXPECT_EQ(bench_.NextInTabOrder(bench_.Text52[0]), &bench_.Text48[1]);
  EXPECT_EQ(bench_.NextInTabOrder(bench_.Text52[15]), &bench_.CommandF3[0]);
  EXPECT_EQ(bench_.NextByEnter(bench_.Text48[0]), &bench_.Text48[1]);
  EXPECT_EQ(bench_.NextByEnter(bench_.Text48[15]), &bench_.Text49[0]);
  EXPECT_EQ(bench_.NextByEnter(bench_.Text52[15]), nullptr);
  EXPECT_EQ(bench_.NextByEnter(bench_.Text1), nullptr);
}

TEST_F(TableTest, CopiesTabsAndLines) {
  EXPECT_EQ(bench_.Intake.CopyText({0, 0, 1, 1}), ".050\t32.5\n.100\t65\n");
}

TEST_F(TableTest, AColumnIsPastedDownward) {
  context_->block.DataChanged = 0;
  const Table::Range gone = bench_.Intake.Paste({1, 1}, "10\r\n20.5\r\n 30 \r\n");
  EXPECT_EQ(gone, (Table::Range{1, 1, 3, 1}));
  EXPECT_EQ(bench_.Text49[0].text(), "32.5");
  EXPECT_EQ(bench_.Text49[1].text(), "10");
  EXPECT_EQ(bench_.Text49[2].text(), "20.5");
  EXPECT_EQ(bench_.Text49[3].text(), "30");
  EXPECT_EQ(bench_.Text49[4].text(), "0");
  EXPECT_EQ(context_->block.DataChanged, 1);
  EXPECT_TRUE(host_.messages.empty());
}

TEST_F(TableTest, SeveralColumnsArePastedAtOnce) {
  bench_.Intake.Paste({0, 0}, ".1\t40\n.2\t80\n");
  EXPECT_EQ(bench_.Intake.CopyText({0, 0, 1, 1}), ".1\t40\n.2\t80\n");
}

TEST_F(TableTest, WhatDoesNotFitIsToldAndNothingIsLost) {
  host_.Answer(Button::OK);
  bench_.Intake.Paste({14, 0}, ".7\tabc\n.75\t-5\n.8\t90\n");
  EXPECT_EQ(bench_.Text48[14].text(), ".7");
  EXPECT_EQ(bench_.Text48[15].text(), ".75");
  EXPECT_EQ(bench_.Text49[14].text(), "0");
  EXPECT_EQ(bench_.Text49[15].text(), "0");
  EXPECT_EQ(host_.messages.back().text,
            "2 texts were pasted, 4 were not:\r\n"
            "\"Flow, row 15\" does not take \"abc\".\r\n"
            "\"Flow, row 16\" does not take \"-5\".\r\n"
            "\".8\" has no place in the rows of this table.\r\n"
            "\"90\" has no place in the rows of this table.");
}

TEST_F(TableTest, ALongListOfRefusalsIsCut) {
  std::string column;
  for (int i = 0; i < 16; ++i) column += "x\n";
  host_.Answer(Button::OK);
  bench_.Intake.Paste({0, 1}, column);
  const std::string& text = host_.messages.back().text;
  EXPECT_EQ(text.rfind("0 texts were pasted, 16 were not:\r\n", 0), 0U) << text;
  EXPECT_EQ(std::ranges::count(text, '\n'), 9);
  EXPECT_TRUE(text.ends_with("\r\nand 8 more.")) << text;
}

TEST_F(TableTest, ResultsTakeNoPaste) {
  host_.Answer(Button::OK);
  bench_.Intake.Paste({0, 1}, "10\t1\n20\t\n");
  EXPECT_EQ(bench_.Text52[0].text(), "");
  EXPECT_EQ(bench_.Text49[1].text(), "20");
  EXPECT_EQ(host_.messages.back().text,
            "2 texts were pasted, 1 was not:\r\n\"Flow / Lift, row 1\" shows a result and does not "
            "take \"1\".");
  // A row that is copied and pasted where it stood says nothing.
  bench_.Intake.Paste({0, 0}, bench_.Intake.CopyText({0, 0, 3, 2}));
  EXPECT_EQ(host_.messages.size(), 1U);
}

TEST_F(TableTest, CommaModeTakesCommasOnly) {
  context_->block.DecimalCommaMode = 1;
  context_->rules.BuildMessages();
  host_.Answer(Button::OK);
  bench_.Intake.Paste({0, 1}, "10,5\n20.5\n1,2,3\n");
  EXPECT_EQ(bench_.Text49[0].text(), "10,5");
  EXPECT_EQ(bench_.Text49[1].text(), "65");
  EXPECT_EQ(bench_.Text49[2].text(), "120.25");
}

TEST_F(TableTest, EmptyingLeavesResults) {
  bench_.Text52[0].SetText("7");
  bench_.Intake.Empty({0, 1, 1, 2});
  EXPECT_EQ(bench_.Text49[0].text(), "");
  EXPECT_EQ(bench_.Text52[0].text(), "7");
  EXPECT_EQ(bench_.Text48[0].text(), ".050");
}

TEST_F(TableTest, HiddenRowsAreLeftOut) {
  for (int i = 4; i < 8; ++i) bench_.Text50[i].SetVisible(false);
  bench_.Frame11.Open();
  EXPECT_EQ(bench_.NextByEnter(bench_.Text50[3]), &bench_.Text51[0]);
  host_.Answer(Button::OK);
  bench_.Exhaust.Paste({3, 0}, "1\n2\n");
  EXPECT_EQ(bench_.Text50[3].text(), "1");
  EXPECT_EQ(bench_.Text50[4].text(), ".1");
}

TEST_F(TableTest, RowsAreDimmedWhileTheyAreNotInUse) {
  EXPECT_FALSE(bench_.Intake.IsDimmed(4));
  bench_.Intake.DimRows([this](int row) { return bench_.Text49[row].text() == "0"; });
  EXPECT_FALSE(bench_.Intake.IsDimmed(3));
  EXPECT_TRUE(bench_.Intake.IsDimmed(4));
  bench_.Text49[4].SetText("190");
  EXPECT_FALSE(bench_.Intake.IsDimmed(4));
  EXPECT_TRUE(bench_.Intake.IsDimmed(5));
}

TEST_F(TableTest, AMetricSwitchGoesDownTheColumn) {
  EXPECT_TRUE(bench_.Check1.Click());
  EXPECT_EQ(bench_.Text48[0].text(), "1.27");
  EXPECT_EQ(bench_.Text48[15].text(), "20.32");
  EXPECT_EQ(bench_.Text49[0].text(), "32.5");
}

}  // namespace
}  // namespace veldox
