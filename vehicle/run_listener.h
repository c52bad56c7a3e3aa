#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "vehicle/acceleration.h"

namespace veldox {

/// What a run tells besides its chart or its curves. Empty functions are not called.
struct RunListener {
  std::function<void(const std::string& text)> message;      ///< a box; the run goes on behind it
  std::function<void(double inches)> tireDiameterRaised;     ///< the field is to show it
  std::function<void(double degrees)> windDirectionLowered;  ///< the field is to show it
  /// Called now and then, by a run that may take long. What it throws ends the run.
  std::function<void()> goesOn;
};

/// A sink that hands on what a listener is told.
class ListenedSink : public RunSink {
 public:
  explicit ListenedSink(const RunListener& listener) : listener_(listener) {}

  void Message(std::string_view text) override {
    if (listener_.message) listener_.message(std::string(text));
  }
  void TireDiameterRaised(double inches) override {
    if (listener_.tireDiameterRaised) listener_.tireDiameterRaised(inches);
  }
  void WindDirectionLowered(double degrees) override {
    if (listener_.windDirectionLowered) listener_.windDirectionLowered(degrees);
  }
  void Row(const RunRow& /*row*/) override { GoOn(); }

 protected:
  /// To be called at each row or point.
  void GoOn() {
    constexpr int kOften = 64;
    if (++rows_ % kOften == 0 && listener_.goesOn) listener_.goesOn();
  }

 private:
  const RunListener& listener_;
  int rows_ = 0;
};

}  // namespace veldox
