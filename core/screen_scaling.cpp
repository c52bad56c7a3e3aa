#include "core/screen_scaling.h"

#include <algorithm>
#include <array>

namespace veldox {

namespace {

constexpr int kSmallestWidth = 1020;  ///< pixels; below it nothing is scaled
constexpr int kSmallestHeight = 700;
/// Steps that letters take on a full screen where their text would not fit otherwise.
constexpr std::array kFontSteps = {1.2, 1.1, 1.05, 1.0};

}  // namespace

ControlBox ScaleControl(const ControlBox& designed, const ScaleFactors& factors) {
  return {designed.left * factors.width,         designed.top * factors.height,
          designed.width * factors.width,        designed.height * factors.height,
          designed.borderWidth * factors.height, designed.fontSize * factors.font};
}

void ScreenScaling::DetectScreenSize(const ScreenSize& size) {
  widthLimit_ = 0;
  heightLimit_ = 0;
  // Where the desktop enlarges everything already, its own pixels are what windows live in.
  const double width = size.width / size.scale;
  const double height = size.height / size.scale;
  if (width < kSmallestWidth || height < kSmallestHeight) return;
  widthLimit_ = kDesignWidth;
  heightLimit_ = kDesignHeight;
  for (int i = 0; i <= 35; ++i) {
    if (width >= 1050 + 100 * i) widthLimit_ = 1000 + 100 * i;
  }
  for (int i = 1; i <= 23; ++i) {
    if (height >= 750 + 100 * i) heightLimit_ = 700 + 100 * i;
  }
}

ScreenScaling::Mode ScreenScaling::ModeOf(const ParameterBlock& block) const {
  if (!detected()) return Mode::Off;
  if (block.FullScreen != 0) return Mode::Full;
  return block.LargeScreen != 0 ? Mode::Large : Mode::Off;
}

ScaleFactors ScreenScaling::FactorsFor(Mode mode, double width, double height) const {
  if (mode == Mode::Off || !detected()) return {};
  ScaleFactors factors{static_cast<double>(widthLimit_) / kDesignWidth,
                       static_cast<double>(heightLimit_) / kDesignHeight, 1};
  factors.font = factors.height;
  if (mode == Mode::Large) return factors;
  const auto fits = [&](double font) {
    return width * font <= widthLimit_ && height * font <= heightLimit_;
  };
  if (fits(factors.font)) return factors;
  for (const double step : kFontSteps) {
    if (step > factors.font) continue;
    factors.font = step;
    if (fits(step)) break;
  }
  return factors;
}

}  // namespace veldox
