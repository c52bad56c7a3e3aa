#include "core/field_rules.h"

#include <algorithm>

#include "core/notes.h"
#include "core/screen.h"

namespace veldox {

namespace {

bool IsControlKey(char32_t key) {
  return key >= 8 && key <= 13;
}

bool IsDigit(char32_t key) {
  return key >= U'0' && key <= U'9';
}

bool Contains(std::string_view text, char c) {
  return text.find(c) != std::string_view::npos;
}

/// The text without the signs that are no digits of a number.
std::string WithoutSigns(std::string_view text) {
  std::string rest;
  std::copy_if(text.begin(), text.end(), std::back_inserter(rest),
               [](char c) { return c != '-' && c != '.' && c != ','; });
  return rest;
}

}  // namespace

void FieldRules::BuildMessages() {
  const bool comma = block_.DecimalCommaMode != 0;
  const std::string mark = comma ? "one comma" : "one period";
  messages_.MsgNumbersOnly = "NOTE: This field only accepts Numbers";
  messages_.MsgNumbersAndPoint =
      messages_.MsgNumbersOnly + "\r\n" +
      (comma ? "and one comma (Decimal Point)!" : "and one period (Decimal Point)!");
  messages_.MsgNumbersPointMinus =
      messages_.MsgNumbersOnly + "\r\n" + mark + " (Decimal Point) and one Minus Sign!";
  messages_.MsgOutputOnly = "NOTE: This field is for Output Only!";
  messages_.MsgNotBlank = "Note: This field can not be blank.";
  messages_.MsgNotBlankOrZero =
      "Note: This field can not be blank and must have a value of other than zero.";
  messages_.PartialMetricNote =
      "This form does not have all the metric conversions working at this time.\r\n"
      "Do not do any Calculations with the Metric Switch Checked!";
}

char32_t FieldRules::MarkKey() const {
  return block_.DecimalCommaMode != 0 ? U',' : U'.';
}

void FieldRules::Warn(const std::string& text) {
  host_.Ask({Icon::Warning, messages_.MessageTitle, text, {Button::OK}});
}

void FieldRules::NoteChange() {
  if (block_.OptionFieldActive == 1) return;
  const bool isFirst = block_.DataChanged != 1;
  block_.DataChanged = 1;
  if (isFirst && changed_) changed_();
}

void FieldRules::Filter(KeyRule rule, std::string_view text, char32_t& key) {
  switch (rule) {
    case KeyRule::AnyText: NoteChange(); break;
    case KeyRule::OutputOnly: KeyOutputOnly(key); break;
    case KeyRule::Digits: KeyDigits(key); break;
    case KeyRule::UnsignedReal: KeyUnsignedReal(text, key); break;
    case KeyRule::SignedReal: KeySignedReal(text, key); break;
    case KeyRule::SignedDigits: KeySignedDigits(text, key); break;
  }
}

bool FieldRules::Takes(KeyRule rule, std::string_view text) const {
  if (rule == KeyRule::AnyText) return true;
  if (rule == KeyRule::OutputOnly) return text.empty();
  const bool isReal = rule == KeyRule::UnsignedReal || rule == KeyRule::SignedReal;
  const bool isSigned = rule == KeyRule::SignedReal || rule == KeyRule::SignedDigits;
  int marks = 0;
  int signs = 0;
  for (const char c : text) {
    const auto key = static_cast<char32_t>(static_cast<unsigned char>(c));
    if (isReal && key == MarkKey()) {
      ++marks;
    } else if (isSigned && c == '-') {
      ++signs;
    } else if (!IsDigit(key)) {
      return false;
    }
  }
  return marks <= 1 && signs <= 1;
}

void FieldRules::KeyOutputOnly(char32_t& key) {
  if (!IsControlKey(key)) key = 0;
  NoteChange();
}

void FieldRules::KeyDigits(char32_t& key) {
  if (!IsControlKey(key) && !IsDigit(key)) key = 0;
  NoteChange();
}

void FieldRules::KeyUnsignedReal(std::string_view text, char32_t& key) {
  if (key == MarkKey()) {
    // The search is for the point in both modes; a second comma shows when the field is read.
    if (Contains(text, '.')) {
      key = 0;
      Warn(messages_.MsgNumbersAndPoint);
    }
  } else if (!IsControlKey(key) && !IsDigit(key)) {
    key = 0;
  }
  NoteChange();
}

void FieldRules::KeySignedReal(std::string_view text, char32_t& key) {
  if (key == MarkKey() || key == U'-') {
    if (Contains(text, key == U'-' ? '-' : '.')) {
      key = 0;
      Warn(messages_.MsgNumbersPointMinus);
    }
  } else if (!IsControlKey(key) && !IsDigit(key)) {
    key = 0;
  }
  NoteChange();
}

void FieldRules::KeySignedDigits(std::string_view text, char32_t& key) {
  if (key == U'-') {
    if (Contains(text, '-')) key = 0;
  } else if (!IsControlKey(key) && !IsDigit(key)) {
    key = 0;
  }
  NoteChange();
}

bool FieldRules::FieldGotFocus(std::string_view text) const {
  return block_.FieldMouseDown != 1 && !text.empty();
}

bool FieldRules::Check(LeaveCheck check, TextControl& field, std::string_view consequence) {
  switch (check) {
    case LeaveCheck::None: return true;
    case LeaveCheck::NotBlank: return CheckNotBlank(field, consequence);
    case LeaveCheck::HasDigits: return CheckHasDigits(field, consequence);
    case LeaveCheck::NotZero: return CheckNotZero(field, consequence);
  }
  return true;
}

void FieldRules::Refuse(TextControl& field, const std::string& reason,
                        std::string_view consequence) {
  field.Focus();
  Warn(consequence.empty() ? reason : reason + "\r\n" + std::string(consequence));
}

bool FieldRules::CheckNotBlank(TextControl& field, std::string_view consequence) {
  if (!field.text().empty()) return true;
  Refuse(field, messages_.MsgNotBlank, consequence);
  return false;
}

bool FieldRules::CheckHasDigits(TextControl& field, std::string_view consequence) {
  if (!WithoutSigns(field.text()).empty()) return true;
  Refuse(field, messages_.MsgNotBlank, consequence);
  return false;
}

bool FieldRules::CheckNotZero(TextControl& field, std::string_view consequence) {
  const std::string rest = WithoutSigns(field.text());
  const bool zero =
      IsNumber(rest, DecimalMark::Point) && ParseNumber(rest, DecimalMark::Point) == 0;
  if (!rest.empty() && !zero) return true;
  Refuse(field, messages_.MsgNotBlankOrZero, consequence);
  return false;
}

bool FieldRules::TakesNotes(std::string_view text) {
  const std::string reason = ReasonAgainstNotes(text);
  if (reason.empty()) return true;
  Warn(reason);
  return false;
}

int FieldRules::TextHasDigits(std::string_view text) {
  if (!WithoutSigns(text).empty()) return 0;
  Warn(messages_.MsgNotBlank);
  return 1;
}

}  // namespace veldox
