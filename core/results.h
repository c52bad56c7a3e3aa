#pragma once

#include <string>
#include <utility>

#include "core/screen.h"

namespace veldox {

/// A result that stands on the screen as plain text, without a box. For commands it is a Field:
/// shown, stored, refused, marked, emptied and converted like every other. It can be reached
/// and copied, and takes no key.
class ResultLabel : public Field {
 public:
  /// @param label  what stands before it, and what messages call it
  ResultLabel(Frame& frame, std::string name, std::string label, Unit unit = Unit::None,
              std::string help = {}, std::string text = {}, Holds holds = {})
      : Field(frame, std::move(name), std::move(label), std::move(text),
              Entry(KeyRule::OutputOnly, unit, holds), std::move(help)) {}
};

/// A text box for words: it is wider than one for a number.
class TextField : public Field {
 public:
  /// Room for a line of an address.
  static constexpr int kUsualCharacters = 40;

  /// @param characters  how many there is room for
  TextField(Frame& frame, std::string name, std::string label, std::string help,
            int characters = kUsualCharacters)
      : Field(frame, std::move(name), std::move(label), {}, KeyRule::AnyText, std::move(help)),
        characters_(characters) {}

  int characters() const { return characters_; }

 private:
  int characters_;
};

/// Numbers over several lines, edited as text. They stand under each other.
class NumberLines : public TextArea {
 public:
  using TextArea::TextArea;
};

/// Results over several lines, to be read and copied. It has no keys of its own.
class ResultLines : public TextControl {
 public:
  ResultLines(Frame& frame, std::string name, std::string label, std::string help = {})
      : TextControl(frame, ControlKind::TextArea, std::move(name), std::move(label), {},
                    KeyRule::OutputOnly, std::move(help)) {}

  /// No key is ever taken as text.
  char32_t FilterKey(char32_t) override { return 0; }
};

}  // namespace veldox
