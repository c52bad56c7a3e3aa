#include "core/field_rules.h"

#include <gtest/gtest.h>

#include <memory>

#include "core/screen.h"
#include "tests/support/test_host.h"

namespace veldox {
namespace {

class Board : public Screen {
 public:
  explicit Board(ProgramContext& context) : Screen(context, "Board", "Board", "") {}
  Frame Frame1{*this, "Frame1", ""};
  Field Blank{Frame1, "Blank", "Blank", "", Entry(KeyRule::UnsignedReal, LeaveCheck::NotBlank)};
  Field Digits{Frame1, "Digits", "Digits", "", Entry(KeyRule::UnsignedReal, LeaveCheck::HasDigits)};
  Field NotZero{Frame1, "NotZero", "Not Zero", "", Entry(KeyRule::SignedReal, LeaveCheck::NotZero)};
  Field Free{Frame1, "Free", "Free", "", KeyRule::UnsignedReal};
};

class FieldRulesTest : public testing::Test {
 protected:
  FieldRulesTest() { rules().BuildMessages(); }

  FieldRules& rules() { return context_->rules; }
  ParameterBlock& block() { return context_->block; }
  void UseComma() {
    block().DecimalCommaMode = 1;
    rules().BuildMessages();
  }
  bool Takes(KeyRule rule, std::string_view text, char32_t key) {
    rules().Filter(rule, text, key);
    return key != 0;
  }

  TestHost host_;
  std::unique_ptr<ProgramContext> context_ = std::make_unique<ProgramContext>(host_);
  Board board_{*context_};
};

TEST_F(FieldRulesTest, ControlKeysPassEveryFilter) {
  for (const KeyRule rule : {KeyRule::AnyText, KeyRule::OutputOnly, KeyRule::Digits,
                             KeyRule::UnsignedReal, KeyRule::SignedReal, KeyRule::SignedDigits}) {
    for (char32_t key = 8; key <= 13; ++key) EXPECT_TRUE(Takes(rule, "1.-2", key));
  }
}

TEST_F(FieldRulesTest, EachRuleTakesItsKeysAndRefusesAllOthersInSilence) {
  for (char32_t key = 14; key < 0x180; ++key) {
    const bool digit = key >= U'0' && key <= U'9';
    EXPECT_FALSE(Takes(KeyRule::OutputOnly, "", key));
    EXPECT_EQ(Takes(KeyRule::Digits, "", key), digit);
    EXPECT_EQ(Takes(KeyRule::UnsignedReal, "", key), digit || key == U'.');
    EXPECT_EQ(Takes(KeyRule::SignedReal, "", key), digit || key == U'.' || key == U'-');
    EXPECT_EQ(Takes(KeyRule::SignedDigits, "", key), digit || key == U'-');
    EXPECT_TRUE(Takes(KeyRule::AnyText, "", key));
  }
}

TEST_F(FieldRulesTest, SecondPointBringsTheBox) {
  host_.Answer(Button::OK);
  host_.Answer(Button::OK);
  EXPECT_FALSE(Takes(KeyRule::UnsignedReal, "1.2", U'.'));
  EXPECT_FALSE(Takes(KeyRule::SignedReal, "1.2", U'.'));
  ASSERT_EQ(host_.messages.size(), 2U);
  EXPECT_EQ(host_.messages[0].icon, Icon::Warning);
  EXPECT_EQ(host_.messages[0].title, "VELDOX-Math-Formula-Calculator");
  EXPECT_EQ(host_.messages[0].text,
            "NOTE: This field only accepts Numbers\r\nand one period (Decimal Point)!");
  EXPECT_EQ(host_.messages[1].text,
            "NOTE: This field only accepts Numbers\r\none period (Decimal Point) and one Minus "
            "Sign!");
}

TEST_F(FieldRulesTest, SecondMinusBringsTheBoxOnRealsAndIsRefusedInSilenceOnCounts) {
  EXPECT_TRUE(Takes(KeyRule::SignedReal, "12", U'-'));
  EXPECT_FALSE(Takes(KeyRule::SignedDigits, "1-", U'-'));
  host_.Answer(Button::OK);
  EXPECT_FALSE(Takes(KeyRule::SignedReal, "-12", U'-'));
}

TEST_F(FieldRulesTest, CommaModeTakesCommasAndRefusesPoints) {
  UseComma();
  EXPECT_TRUE(Takes(KeyRule::UnsignedReal, "1", U','));
  EXPECT_FALSE(Takes(KeyRule::UnsignedReal, "1", U'.'));
  EXPECT_FALSE(Takes(KeyRule::SignedReal, "1", U'.'));
  // The search for a second mark is for the point, so a second comma is taken.
  EXPECT_TRUE(Takes(KeyRule::UnsignedReal, "1,2", U','));
  host_.Answer(Button::OK);
  EXPECT_FALSE(Takes(KeyRule::UnsignedReal, "1.2", U','));
  EXPECT_EQ(host_.messages.back().text,
            "NOTE: This field only accepts Numbers\r\nand one comma (Decimal Point)!");
}

TEST_F(FieldRulesTest, EveryFilterMarksTheDataAsChangedAlsoForRefusedKeys) {
  for (const KeyRule rule : {KeyRule::OutputOnly, KeyRule::Digits, KeyRule::UnsignedReal,
                             KeyRule::SignedReal, KeyRule::SignedDigits}) {
    block().DataChanged = 0;
    EXPECT_FALSE(Takes(rule, "", U'x'));
    EXPECT_EQ(block().DataChanged, 1);
    block().DataChanged = 0;
    block().OptionFieldActive = 1;
    Takes(rule, "", U'5');
    EXPECT_EQ(block().DataChanged, 0);
    block().OptionFieldActive = 0;
  }
}

TEST_F(FieldRulesTest, EnteringSelectsUnlessTheMouseIsDownOrTheFieldIsEmpty) {
  EXPECT_TRUE(rules().FieldGotFocus("4.0"));
  EXPECT_FALSE(rules().FieldGotFocus(""));
  block().FieldMouseDown = 1;
  EXPECT_FALSE(rules().FieldGotFocus("4.0"));
}

TEST_F(FieldRulesTest, LeavingABlankFieldKeepsTheFocus) {
  ASSERT_TRUE(board_.MoveFocus(&board_.Blank));
  host_.Answer(Button::OK);
  EXPECT_FALSE(board_.MoveFocus(&board_.Free));
  EXPECT_EQ(board_.focus(), &board_.Blank);
  EXPECT_EQ(host_.messages.back().text, "Note: This field can not be blank.");
  board_.Blank.SetText("-");
  EXPECT_TRUE(board_.MoveFocus(&board_.Free));
}

TEST_F(FieldRulesTest, LeavingAFieldWithoutDigitsKeepsTheFocus) {
  for (const char* text : {"", ".", "-.", "-,"}) {
    board_.Digits.SetText(text);
    ASSERT_TRUE(board_.MoveFocus(&board_.Digits));
    host_.Answer(Button::OK);
    EXPECT_FALSE(board_.MoveFocus(nullptr)) << text;
    board_.Digits.SetText("0");
    EXPECT_TRUE(board_.MoveFocus(nullptr));
  }
}

TEST_F(FieldRulesTest, LeavingAZeroKeepsTheFocusWhereZeroIsNoValue) {
  for (const char* text : {"-.0", ".", "", "0", "0.00"}) {
    board_.NotZero.SetText(text);
    ASSERT_TRUE(board_.MoveFocus(&board_.NotZero));
    host_.Answer(Button::OK);
    EXPECT_FALSE(board_.MoveFocus(nullptr)) << text;
    EXPECT_EQ(host_.messages.back().text,
              "Note: This field can not be blank and must have a value of other than zero.");
    board_.NotZero.SetText("-.01");
    EXPECT_TRUE(board_.MoveFocus(nullptr));
  }
}

TEST_F(FieldRulesTest, TextHasDigitsTellsByABox) {
  EXPECT_EQ(rules().TextHasDigits("-0"), 0);
  host_.Answer(Button::OK);
  EXPECT_EQ(rules().TextHasDigits("-."), 1);
  EXPECT_EQ(host_.messages.back().text, "Note: This field can not be blank.");
}

TEST_F(FieldRulesTest, SharedMessagesAreThere) {
  EXPECT_EQ(rules().messages().MsgNumbersOnly, "NOTE: This field only accepts Numbers");
  EXPECT_EQ(rules().messages().MsgOutputOnly, "NOTE: This field is for Output Only!");
}

}  // namespace
}  // namespace veldox
