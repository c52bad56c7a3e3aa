#pragma once

#include <utility>

#include "core/screen.h"

namespace veldox {

/// A value of a screen's own that no control shows and that commands keep for later ones. It
/// belongs to the program's state: undoing a step and a command's preview put it back.
template <class T>
class Kept {
 public:
  /// @param aspect  what it tells; what most values are is no change by itself
  explicit Kept(Screen& screen, T value = {}, Aspect aspect = Aspect::Work)
      : journal_(screen.context().journal),
        owner_(&screen),
        value_(std::move(value)),
        aspect_(aspect) {}
  /// A value of a part of the program that is no screen.
  explicit Kept(ProgramContext& context, T value = {})
      : journal_(context.journal), owner_(nullptr), value_(std::move(value)) {}
  Kept(const Kept&) = delete;
  Kept& operator=(const Kept&) = delete;

  Kept& operator=(T value) {
    journal_.Assign(value_, std::move(value), owner_, aspect_);
    return *this;
  }
  // NOLINTNEXTLINE(google-explicit-constructor): it stands for its value
  operator const T&() const { return value_; }
  const T& operator*() const { return value_; }
  const T* operator->() const { return &value_; }
  /// The value, to be changed in its place.
  T& Change() {
    journal_.Keep(value_, owner_, aspect_);
    return value_;
  }
  /// The value, to be changed in what is no part of the state, such as where it was last drawn.
  T& Drawn() { return value_; }

 private:
  Journal& journal_;
  StateOwner owner_;
  T value_;
  Aspect aspect_ = Aspect::Work;
};

}  // namespace veldox
