#include "airfuel/port_shape.h"

#include <gtest/gtest.h>

#include <cmath>

#include "core/numbers.h"

namespace veldox {
namespace {

TEST(PortSection, OfRoundCornersIsARoundPort) {
  for (const double r : {0.4, 0.9, 1.05}) {
    const double area = PortSectionArea({2 * r, 2 * r, r, r, r, r});
    EXPECT_NEAR(area, kPi * r * r, 1e-12);
    EXPECT_NEAR(EquivalentDiameter(area), 2 * r, 1e-12);
  }
}

TEST(PortSection, LosesEachCorner) {
  // A square of side r less a quarter circle.
  const double cut = 0.3 * 0.3 * (1 - kPi / 4);
  EXPECT_NEAR(PortSectionArea({1.2, 2, 0.3, 0, 0, 0}), 2.4 - cut, 1e-14);
  EXPECT_NEAR(PortSectionArea({1.2, 2, 0, 0.3, 0, 0.3}), 2.4 - 2 * cut, 1e-14);
  EXPECT_NEAR(PortSectionArea({1.2, 2, 0, 0, 0.3, 0}), 2.4 - cut, 1e-14);
  EXPECT_DOUBLE_EQ(PortSectionArea({1.2, 2, 0, 0, 0, 0}), 2.4);
}

TEST(PortVolume, LengthAndAreaAreInverse) {
  EXPECT_NEAR(PortVolume(1, 1), 16.387064, 1e-12);
  EXPECT_NEAR(AverageArea(PortVolume(2.4, 5.5), 5.5), 2.4, 1e-13);
  EXPECT_NEAR(PortLength(PortVolume(2.4, 5.5), 2.4), 5.5, 1e-13);
}

TEST(PortSpeed, FlowAndAreaAreInverse) {
  // 300 CFM through 2.4 square inches: 5 cubic feet a second by 1/60 square foot
  EXPECT_NEAR(PortSpeed(300, 2.4), 300, 1e-12);
  EXPECT_NEAR(PortFlow(PortSpeed(287, 2.1), 2.1), 287, 1e-12);
  EXPECT_NEAR(PortAreaForFlow(287, PortSpeed(287, 2.1)), 2.1, 1e-13);
}

TEST(PortTaper, AngleAndLengthAreInverse) {
  const PortTaper taper{2.0, 2.5, 6};
  const double angle = TaperAngle(taper);
  EXPECT_NEAR(angle, 2.38594, 5e-6);
  EXPECT_NEAR(SideLength(taper), std::hypot(6, 0.25), 1e-14);
  const double side = SideLengthByAngle({2.0, 2.5, 0}, angle);
  EXPECT_NEAR(side, SideLength(taper), 1e-11);
  EXPECT_NEAR(AxisLength(side, angle), 6, 1e-11);
}

TEST(PortTaper, LargeEndGoesByTheSine) {
  // Under the angle that makes 2.25 of 1.75 over 6 inches, which goes by the tangent.
  const double angle = TaperAngle({1.75, 2.25, 6});
  EXPECT_NEAR(angle, 2.386, 0.0005);
  EXPECT_NEAR(LargeEnd({1.75, 0, 6}, angle), 2.24957, 5e-6);
}

}  // namespace
}  // namespace veldox
