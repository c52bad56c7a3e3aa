#include "chassis/car_plan.h"

#include <string>

namespace veldox {

namespace {

constexpr double kLength = 150;
constexpr double kWidth = 40;
// Of the wheels: where their centers stand, and how long and wide they are.
constexpr double kFrontAxle = 29;
constexpr double kRearAxle = 119;
constexpr double kWheelLength = 15;
constexpr double kWheelWidth = 7;
constexpr double kBodyInset = 3;
constexpr double kNose = 6;
constexpr double kCenterMark = 3;
// Below the car, in lines of text.
constexpr double kHalfLine = 0.5;
constexpr double kNameBelow = 0.25;
constexpr double kNameAbove = -1.3;
constexpr double kBarTop = 1.9;
constexpr double kBarBottom = 2.6;
constexpr int kBarStrokes = 7;  ///< that fill it
constexpr double kHalfMark = 0.25;
constexpr double kBarName = 2.95;
constexpr double kLinesBelow = 4.2;
constexpr double kHalf = kLength / 2;

class Plan {
 public:
  explicit Plan(Sketch& sketch) : sketch_(sketch) {}

  void Line(const SketchPoint& from, const SketchPoint& to, SketchStroke stroke) {
    sketch_.lines.push_back({from, to, stroke});
  }
  void Box(const SketchPoint& top, const SketchPoint& bottom, SketchStroke stroke) {
    const SketchPoint right{bottom.x, top.y, top.lines};
    const SketchPoint left{top.x, bottom.y, bottom.lines};
    Line(top, right, stroke);
    Line(right, bottom, stroke);
    Line(bottom, left, stroke);
    Line(left, top, stroke);
  }
  void Name(const SketchPoint& top, std::string text) {
    sketch_.names.push_back({top, std::move(text), 0});
  }

 private:
  Sketch& sketch_;
};

void DrawBody(Plan& plan) {
  const double top = kBodyInset;
  const double bottom = kWidth - kBodyInset;
  const SketchPoint outline[] = {{kNose, top},
                                 {kLength - kNose / 2, top},
                                 {kLength, top + kNose},
                                 {kLength, bottom - kNose},
                                 {kLength - kNose / 2, bottom},
                                 {kNose, bottom},
                                 {0, bottom - 2 * kNose},
                                 {0, top + 2 * kNose},
                                 {kNose, top}};
  for (std::size_t i = 1; i < std::size(outline); ++i) {
    plan.Line(outline[i - 1], outline[i], SketchStroke::Seam);
  }
}

/// The bar of the cross diagonal. @param percent  of the car's weight
void DrawBar(Plan& plan, double percent) {
  plan.Box({0, kWidth, kBarTop}, {kLength, kWidth, kBarBottom}, SketchStroke::Seam);
  for (int i = 0; i <= kBarStrokes; ++i) {
    const double line = kBarTop + (kBarBottom - kBarTop) * i / kBarStrokes;
    plan.Line({0, kWidth, line}, {percent / 100 * kLength, kWidth, line}, SketchStroke::Outline);
  }
  plan.Line({kHalf, kWidth, kBarTop - kHalfMark}, {kHalf, kWidth, kBarBottom + kHalfMark},
            SketchStroke::Outline);
}

}  // namespace

Sketch SketchOf(const Corners& weights, DecimalMark mark) {
  Sketch sketch;
  sketch.width = kLength;
  sketch.height = kWidth;
  sketch.linesAbove = -kNameAbove;
  sketch.linesBelow = kLinesBelow;
  Plan plan(sketch);
  DrawBody(plan);
  const double sum = weights.Sum();
  const double right = kWheelWidth / 2;
  const double left = kWidth - kWheelWidth / 2;
  const auto wheel = [&](double x, double y, const char* name, double weight) {
    plan.Box({x - kWheelLength / 2, y - kWheelWidth / 2},
             {x + kWheelLength / 2, y + kWheelWidth / 2}, SketchStroke::Outline);
    const double side = y < kWidth / 2 ? 0 : kWidth;
    plan.Name({x, side, y < kWidth / 2 ? kNameAbove : kNameBelow},
              std::string(name) + "  " + FormatValue<"0.0">(weight, mark) + " lb  " +
                  FormatValue<"0.0">(weight / sum * 100, mark) + " %");
  };
  wheel(kFrontAxle, right, "Right Front", weights.rightFront);
  wheel(kRearAxle, right, "Right Rear", weights.rightRear);
  wheel(kFrontAxle, left, "Left Front", weights.leftFront);
  wheel(kRearAxle, left, "Left Rear", weights.leftRear);
  plan.Line({kFrontAxle, right}, {kRearAxle, left}, SketchStroke::Axis);
  plan.Line({kFrontAxle, left}, {kRearAxle, right}, SketchStroke::Axis);
  const double x = kFrontAxle + (kRearAxle - kFrontAxle) * (weights.Rear() / sum);
  const double y = right + (left - right) * (weights.Left() / sum);
  plan.Line({x - kCenterMark, y}, {x + kCenterMark, y}, SketchStroke::Outline);
  plan.Line({x, y - kCenterMark}, {x, y + kCenterMark}, SketchStroke::Outline);
  plan.Name({x, y + kCenterMark, kNameBelow}, "CG");
  plan.Name({2 * kNose, kWidth / 2, -kHalfLine}, "Front");
  const double cross = weights.Cross() / sum * 100;
  DrawBar(plan, cross);
  plan.Name({kHalf, kWidth, kBarName},
            "Cross (RF + LR) " + FormatValue<"0.00">(cross, mark) + " %,  wedge " +
                FormatValue<"0.0">(weights.Cross() - (sum - weights.Cross()), mark) + " lb");
  return sketch;
}

}  // namespace veldox
