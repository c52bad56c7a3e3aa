#pragma once

#include "core/host.h"
#include "core/parameter_block.h"

namespace veldox {

/// How much larger than designed a window and its letters are.
struct ScaleFactors {
  double width = 1;
  double height = 1;
  double font = 1;

  bool operator==(const ScaleFactors&) const = default;
};

/// What of a control the size of the screen changes.
struct ControlBox {
  double left = 0;         ///< pixels
  double top = 0;          ///< pixels
  double width = 0;        ///< pixels
  double height = 0;       ///< pixels
  double borderWidth = 0;  ///< pixels
  double fontSize = 0;     ///< points
};

/// A control on a larger screen: what lies across by the factor of the width, what lies down and
/// the border by that of the height, the letters by their own.
ControlBox ScaleControl(const ControlBox& designed, const ScaleFactors& factors);

/// How windows use a screen that is larger than they were designed for.
class ScreenScaling {
 public:
  /// The screen that windows are designed for, in pixels.
  static constexpr int kDesignWidth = 1000;
  static constexpr int kDesignHeight = 700;

  enum class Mode { Off, Large, Full };

  /// Measures the screen: sets the limits of what a window may grow to.
  void DetectScreenSize(const ScreenSize& size);
  bool detected() const { return widthLimit_ > 0; }
  int widthLimit() const { return widthLimit_; }    ///< pixels, 0 for a small screen
  int heightLimit() const { return heightLimit_; }  ///< pixels, 0 for a small screen

  /// What the shared values ask for; off on a small screen.
  Mode ModeOf(const ParameterBlock& block) const;
  /// The factors for a window.
  /// @param width, height  the size that it was designed with, in pixels
  ScaleFactors FactorsFor(Mode mode, double width, double height) const;

 private:
  int widthLimit_ = 0;
  int heightLimit_ = 0;
};

}  // namespace veldox
