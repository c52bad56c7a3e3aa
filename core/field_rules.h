#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "core/host.h"
#include "core/parameter_block.h"

namespace veldox {

class TextControl;

/// Which keys a field takes.
enum class KeyRule { AnyText, OutputOnly, Digits, UnsignedReal, SignedReal, SignedDigits };

/// What a field is checked for when it loses the focus.
enum class LeaveCheck { None, NotBlank, HasDigits, NotZero };

/// The strings that all fields share, built once the decimal mark is known.
struct FieldMessages {
  std::string MessageTitle = "VELDOX-Math-Formula-Calculator";
  std::string MsgNumbersOnly;
  std::string MsgNumbersAndPoint;
  std::string MsgNumbersPointMinus;
  std::string MsgOutputOnly;
  std::string MsgNotBlank;
  std::string MsgNotBlankOrZero;
  /// Shown by screens whose unit conversion is partial.
  std::string PartialMetricNote;
};

/// The rules every field obeys: which keys it takes and what is checked on leaving it.
/// A key filter sets the key code to 0 to refuse the key. Every filter, also for a
/// refused key, sets DataChanged unless an option field has the focus.
class FieldRules {
 public:
  FieldRules(ParameterBlock& block, Host& host) : block_(block), host_(host) {}

  /// Builds the messages for the block's decimal mark.
  void BuildMessages();
  const FieldMessages& messages() const { return messages_; }

  /// Runs the filter of a rule on a key typed while the field holds `text`.
  void Filter(KeyRule rule, std::string_view text, char32_t& key);

  /// True when every character of a text that is put in as a whole passes a rule; nobody is
  /// told when one does not.
  bool Takes(KeyRule rule, std::string_view text) const;

  void KeyOutputOnly(char32_t& key);
  void KeyDigits(char32_t& key);
  void KeyUnsignedReal(std::string_view text, char32_t& key);
  void KeySignedReal(std::string_view text, char32_t& key);
  void KeySignedDigits(std::string_view text, char32_t& key);

  /// True when entering a field has to select all of its text.
  bool FieldGotFocus(std::string_view text) const;

  /// Runs a field's check on leaving it; false when the field keeps the focus. The box then ends
  /// in `consequence`: what is not done because of it.
  bool Check(LeaveCheck check, TextControl& field, std::string_view consequence = {});
  bool CheckNotBlank(TextControl& field, std::string_view consequence = {});
  bool CheckHasDigits(TextControl& field, std::string_view consequence = {});
  bool CheckNotZero(TextControl& field, std::string_view consequence = {});
  /// 1 after showing MsgNotBlank when the text holds nothing but "-", "." and ",", else 0.
  int TextHasDigits(std::string_view text);

  /// False, after a box with the reason, for a text that cannot be the notes of a file.
  bool TakesNotes(std::string_view text);

  /// Marks the shared values as changed since the last Read.
  void NoteChange();
  /// What is done when values that were saved are changed for the first time.
  void SetChangeListener(std::function<void()> listener) { changed_ = std::move(listener); }

 private:
  char32_t MarkKey() const;
  void Warn(const std::string& text);
  /// Puts the focus back into a refused field and tells why.
  void Refuse(TextControl& field, const std::string& reason, std::string_view consequence);

  ParameterBlock& block_;
  Host& host_;
  FieldMessages messages_;
  std::function<void()> changed_;
};

}  // namespace veldox
