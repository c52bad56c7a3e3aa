#include "cam/duration_table.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace veldox {

// For the lists of points below.
bool operator==(const CurvePoint& a, const CurvePoint& b) {
  return a.x == b.x && a.y == b.y;
}

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr double kNoNumber = -1;

TEST(PointsOfLobe, OfDurationsAreTheSameOnBothFlanks) {
  const DurationRow rows[] = {
      {0, 300, {}, {}}, {0.05, 220, {}, {}}, {0.2, 0, {}, {}}, {0.3, 100, {}, {}}};
  const LobePoints points = PointsOfLobe(rows, 0.4, FlankSource::Duration);
  EXPECT_THAT(points.opening, ElementsAre(CurvePoint{0, 0.4}, CurvePoint{50, 0.3},
                                          CurvePoint{110, 0.05}, CurvePoint{150, 0}));
  EXPECT_EQ(points.opening, points.closing);
  EXPECT_THAT(points.kept, ElementsAre(0, 1, 3));
  EXPECT_THAT(points.ignored, IsEmpty());
  EXPECT_EQ(points.top, 0.4);
}

// Open 44 and close 76 have their middle at 106 behind the dead center. Open 20 and close 60
// (260 degrees) have it at 110: the nose stays at 106, so the opening flank is 126 long.
TEST(PointsOfLobe, OfEventsArePartedByTheMiddle) {
  const DurationRow rows[] = {{0, 300, {44, 76}, {}}, {0.05, 260, {20, 60}, {}}};
  const LobePoints points = PointsOfLobe(rows, 0.4, FlankSource::Events);
  EXPECT_THAT(points.opening,
              ElementsAre(CurvePoint{0, 0.4}, CurvePoint{126, 0.05}, CurvePoint{150, 0}));
  EXPECT_THAT(points.closing,
              ElementsAre(CurvePoint{0, 0.4}, CurvePoint{134, 0.05}, CurvePoint{150, 0}));
}

TEST(PointsOfLobe, WithoutEventsAreInTheMiddle) {
  const DurationRow rows[] = {{0, 300, {44, 76}, {}}, {0.05, 260, {}, {}}};
  const LobePoints points = PointsOfLobe(rows, 0.4, FlankSource::Events);
  EXPECT_THAT(points.opening,
              ElementsAre(CurvePoint{0, 0.4}, CurvePoint{130, 0.05}, CurvePoint{150, 0}));
  EXPECT_EQ(points.opening, points.closing);
}

TEST(PointsOfLobe, OfTwoEventsCloseByTheSecond) {
  const DurationRow rows[] = {{0, 300, {44, 76}, {79, 111}}, {0.05, 260, {24, 56}, {50, 84}}};
  const LobePoints points = PointsOfLobe(rows, 0.4, FlankSource::TwoEvents, 370);
  EXPECT_THAT(points.opening,
              ElementsAre(CurvePoint{0, 0.4}, CurvePoint{130, 0.05}, CurvePoint{150, 0}));
  // 370 and 314 degrees; the second middle has moved by a degree.
  EXPECT_THAT(points.closing,
              ElementsAre(CurvePoint{0, 0.4}, CurvePoint{158, 0.05}, CurvePoint{185, 0}));
  // Rows without second events leave the closing flank to the others.
  const DurationRow few[] = {
      {0, 300, {44, 76}, {}}, {0.05, 260, {24, 56}, {}}, {0.1, 220, {4, 36}, {30, 62}}};
  EXPECT_THAT(PointsOfLobe(few, 0.4, FlankSource::TwoEvents, 370).closing,
              ElementsAre(CurvePoint{0, 0.4}, CurvePoint{136, 0.1}, CurvePoint{185, 0}));
}

TEST(PointsOfLobe, LeaveOutRowsThatDoNotRise) {
  const DurationRow rows[] = {
      {0, 300, {}, {}},   {0.1, 250, {}, {}},       {0.1, 240, {}, {}},       {0.05, 230, {}, {}},
      {0.2, -10, {}, {}}, {kNoNumber, 200, {}, {}}, {0.3, kNoNumber, {}, {}}, {0.35, 90, {}, {}}};
  const LobePoints points = PointsOfLobe(rows, 0.4, FlankSource::Duration);
  EXPECT_THAT(points.kept, ElementsAre(0, 1, 7));
  EXPECT_THAT(points.ignored, ElementsAre(2, 3, 4, 5, 6));
}

TEST(PointsOfLobe, AboveTheNoseRaiseIt) {
  const DurationRow rows[] = {{0, 300, {}, {}}, {0.45, 100, {}, {}}};
  const LobePoints points = PointsOfLobe(rows, 0.4, FlankSource::Duration);
  EXPECT_EQ(points.top, 0.45);
  EXPECT_EQ(points.opening.front(), (CurvePoint{0, 0.45}));
}

}  // namespace
}  // namespace veldox
