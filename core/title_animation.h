#pragma once

#include <array>

namespace veldox {

/// The title of the main window: six big letters and two lines that slide in from the
/// right, one after another, by a fixed step a tick. Positions are thousandths of the
/// window's width to the right of the place where a piece comes to rest.
class TitleAnimation {
 public:
  static constexpr int kPieces = 8;
  static constexpr int kStart = 1000;  ///< thousandths of the window's width
  static constexpr int kStep = 125;    ///< thousandths of the window's width
  static constexpr int kTickMilliseconds = 16;

  TitleAnimation() { offsets_.fill(kStart); }

  /// Moves the piece that is on its way one step. False once the last has arrived.
  bool Tick();
  /// Puts every piece to rest.
  void Finish() { offsets_.fill(0); }
  bool running() const { return offsets_.back() > 0; }
  int offset(int piece) const { return offsets_.at(static_cast<std::size_t>(piece)); }

 private:
  std::array<int, kPieces> offsets_{};
};

}  // namespace veldox
