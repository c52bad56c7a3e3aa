#include "ui/painter_surface.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QXmlStreamReader>

#include "tests/ui/window_test.h"
#include "ui/svg_surface.h"

namespace veldox::testing {
namespace {

constexpr Color kBlack{0, 0, 0};
constexpr Color kRed{255, 0, 0};

/// A white picture that a graph's parts are drawn on, at a scale.
class Canvas {
 public:
  Canvas(QSize units, double scale)
      : image_((QSizeF(units) * scale).toSize(), QImage::Format_RGB32) {
    image_.fill(Qt::white);
    painter_.begin(&image_);
    painter_.scale(scale, scale);
    surface_.emplace(painter_, units);
  }

  PainterSurface& surface() { return *surface_; }
  QRgb At(int x, int y) const { return image_.pixel(x, y); }
  /// Pixels of a row that are not white.
  int InkInRow(int y) const {
    int count = 0;
    for (int x = 0; x < image_.width(); ++x) count += At(x, y) != qRgb(255, 255, 255) ? 1 : 0;
    return count;
  }
  QRect Ink() const {
    QRect ink;
    for (int y = 0; y < image_.height(); ++y) {
      for (int x = 0; x < image_.width(); ++x) {
        if (At(x, y) != qRgb(255, 255, 255)) ink |= QRect(x, y, 1, 1);
      }
    }
    return ink;
  }

 private:
  QImage image_;
  QPainter painter_;
  std::optional<PainterSurface> surface_;
};

class SharpLine : public ::testing::TestWithParam<double> {};

TEST_P(SharpLine, AnUprightLineFillsWholePixelsAndGrowsWithTheScale) {
  const double scale = GetParam();
  for (const double place : {10.0, 10.3, 17.5}) {
    Canvas canvas(QSize(40, 40), scale);
    canvas.surface().DrawLine({place, 2}, {place, 38}, {kBlack, 2, LineStyle::Solid});
    const int row = static_cast<int>(20 * scale);
    EXPECT_EQ(canvas.InkInRow(row), std::lround(2 * scale)) << place;
    const QRect ink = canvas.Ink();
    for (int x = ink.left(); x <= ink.right(); ++x) EXPECT_EQ(canvas.At(x, row), qRgb(0, 0, 0));
    EXPECT_NEAR(ink.left() + ink.width() / 2.0, place * scale, 0.76);
  }
}

INSTANTIATE_TEST_SUITE_P(Scales, SharpLine, ::testing::Values(1.0, 1.5, 2.0, 3.0));

TEST(PainterSurface, ALineOfOneUnitNeverVanishes) {
  Canvas canvas(QSize(40, 40), 0.5);
  canvas.surface().DrawLine({2, 20}, {38, 20}, {kBlack, 1, LineStyle::Solid});
  EXPECT_EQ(canvas.Ink().height(), 1);
  EXPECT_EQ(canvas.At(10, 10), qRgb(0, 0, 0));
}

TEST(PainterSurface, DashesLeaveGaps) {
  for (const LineStyle style :
       {LineStyle::LongDash, LineStyle::Dash, LineStyle::DashDot, LineStyle::DashDotDot}) {
    Canvas canvas(QSize(200, 20), 1);
    canvas.surface().DrawLine({0, 10}, {200, 10}, {kBlack, 1, style});
    const int ink = canvas.InkInRow(10);
    EXPECT_GT(ink, 60) << static_cast<int>(style);
    EXPECT_LT(ink, 190) << static_cast<int>(style);
  }
}

TEST(PainterSurface, AWideCurveHasNoHolesWhereItsPiecesMeet) {
  Canvas canvas(QSize(400, 20), 1);
  std::vector<SurfacePoint> points;
  for (int i = 0; i <= 380; ++i) points.push_back({10.0 + i, 10});
  canvas.surface().DrawPolyline(points, {kRed, 4, LineStyle::Solid});
  for (int x = 12; x < 388; ++x) EXPECT_EQ(canvas.At(x, 10), qRgb(255, 0, 0)) << x;
  EXPECT_EQ(canvas.Ink().top(), 8);
  EXPECT_EQ(canvas.Ink().bottom(), 11);
}

TEST(PainterSurface, APointOfACurveIsADot) {
  Canvas canvas(QSize(40, 40), 1);
  const std::vector<SurfacePoint> points{{20, 20}, {20, 20}};
  canvas.surface().DrawPolyline(points, {kBlack, 6, LineStyle::Solid});
  EXPECT_NEAR(canvas.Ink().width(), 6, 1);
  EXPECT_NEAR(canvas.Ink().height(), 6, 1);
}

TEST(PainterSurface, TextStandsInItsMeasuredBoxAtEachAlignment) {
  const struct {
    TextAlign align;
    double part;  ///< of the width that stands left of the place
  } cases[] = {{TextAlign::Left, 0}, {TextAlign::Center, 0.5}, {TextAlign::Right, 1}};
  for (const auto& [align, part] : cases) {
    Canvas canvas(QSize(300, 60), 1);
    canvas.surface().DrawText({150, 20}, "Horsepower", 12, kBlack, align);
    const QRect ink = canvas.Ink();
    const double width = canvas.surface().TextWidth("Horsepower", 12);
    EXPECT_GE(ink.left(), 150 - part * width - 1);
    EXPECT_LE(ink.right(), 150 + (1 - part) * width + 1);
    EXPECT_GT(ink.width(), 0.9 * width - 3);
    EXPECT_GE(ink.top(), 20);
    EXPECT_LE(ink.bottom(), 20 + canvas.surface().TextHeight(12));
  }
}

TEST(PainterSurface, TextSizesArePoints) {
  // 72 points are an inch, which has 96 units: a line of text is a little higher.
  Canvas canvas(QSize(10, 10), 1);
  EXPECT_GT(canvas.surface().TextHeight(72), 96);
  EXPECT_LT(canvas.surface().TextHeight(72), 96 * 1.4);
  EXPECT_NEAR(canvas.surface().TextHeight(24) / canvas.surface().TextHeight(12), 2, 0.15);
}

TEST(PainterSurface, NothingIsDrawnOutsideTheClip) {
  Canvas canvas(QSize(60, 60), 1);
  canvas.surface().SetClip({20, 20, 10, 10});
  canvas.surface().DrawPolyline(std::vector<SurfacePoint>{{0, 0}, {60, 60}},
                                {kBlack, 3, LineStyle::Solid});
  EXPECT_TRUE(QRect(20, 20, 10, 10).contains(canvas.Ink()));
  canvas.surface().ClearClip();
  canvas.surface().Fill({0, 0, 5, 5}, kRed);
  EXPECT_EQ(canvas.At(2, 2), qRgb(255, 0, 0));
}

std::string PictureBytes(const char* format) {
  QImage image(4, 4, QImage::Format_RGB32);
  image.fill(Qt::red);
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, format);
  return buffer.data().toStdString();
}

TEST(PainterSurface, PicturesAreStretchedOverTheirArea) {
  for (const char* format : {"PNG", "BMP"}) {
    Canvas canvas(QSize(40, 40), 1);
    canvas.surface().DrawPicture({10, 10, 20, 20}, PictureBytes(format));
    EXPECT_EQ(canvas.Ink(), QRect(10, 10, 20, 20));
    EXPECT_EQ(canvas.At(29, 29), qRgb(255, 0, 0));
  }
}

TEST(PainterSurface, WhatIsNoPictureLeavesTheAreaAsItIs) {
  Canvas canvas(QSize(40, 40), 1);
  canvas.surface().DrawPicture({10, 10, 20, 20}, "no picture");
  EXPECT_TRUE(canvas.Ink().isNull());
}

TEST(SvgSurface, WritesAWholeDocument) {
  SvgSurface surface(300, 200);
  surface.Fill({0, 0, 300, 200}, {255, 255, 255});
  surface.DrawText({150, 10}, "<--- RPM & \"HP\"", 10, kBlack, TextAlign::Center);
  surface.SetClip({20, 20, 260, 160});
  surface.DrawPolyline(std::vector<SurfacePoint>{{0, 0}, {150.5, 99.25}},
                       {kRed, 2, LineStyle::Dash});
  surface.DrawPicture({0, 0, 10, 10}, PictureBytes("PNG"));
  surface.ClearClip();
  QXmlStreamReader xml(ToQt(surface.Document()));
  int depth = 0;
  QString text;
  QStringList lines;
  int linesDepth = 0;
  bool picture = false;
  while (!xml.atEnd()) {
    xml.readNext();
    if (xml.isStartElement()) {
      ++depth;
      if (xml.name() == QLatin1String("svg")) {
        EXPECT_EQ(xml.attributes().value(QLatin1String("width")), QLatin1String("300"));
        EXPECT_EQ(xml.attributes().value(QLatin1String("viewBox")), QLatin1String("0 0 300 200"));
      } else if (xml.name() == QLatin1String("polyline")) {
        lines.append(xml.attributes().value(QLatin1String("points")).toString());
        linesDepth = depth;
        EXPECT_EQ(xml.attributes().value(QLatin1String("stroke")), QLatin1String("#ff0000"));
        EXPECT_EQ(xml.attributes().value(QLatin1String("stroke-dasharray")), QLatin1String("8 6"));
      } else if (xml.name() == QLatin1String("image")) {
        picture = true;
      }
    } else if (xml.isEndElement()) {
      --depth;
    } else if (xml.isCharacters() && !xml.isWhitespace()) {
      text += xml.text();
    }
  }
  EXPECT_FALSE(xml.hasError()) << FromQt(xml.errorString());
  EXPECT_EQ(depth, 0);
  EXPECT_EQ(text, QStringLiteral("<--- RPM & \"HP\""));
  EXPECT_EQ(lines, QStringList(QStringLiteral("0,0 150.5,99.25")));
  EXPECT_EQ(linesDepth, 3) << "the line stands in the group that is clipped";
  EXPECT_TRUE(picture);
}

}  // namespace
}  // namespace veldox::testing
