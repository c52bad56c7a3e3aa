#pragma once

#include <string>
#include <vector>

#include "core/page_surface.h"
#include "graph/plot_engine.h"
#include "graph/surface.h"

namespace veldox {

/// A place of a sketch: in its units, from the left and from the top, and this many lines of text
/// below that, at whatever scale the sketch is drawn.
struct SketchPoint {
  double x = 0;
  double y = 0;
  double lines = 0;
};

enum class SketchStroke {
  Outline,  ///< what is drawn
  Seam,     ///< where its parts meet
  Measure,  ///< what tells a length
  Axis,     ///< what it turns about
};

struct SketchLine {
  SketchPoint from;
  SketchPoint to;
  SketchStroke stroke = SketchStroke::Outline;
};

/// A name in the middle over or under a place.
struct SketchName {
  SketchPoint top;  ///< the middle of the text's upper edge
  std::string text;
  /// Lines that it moves by where it would stand over a name before it.
  double aside = 0;
};

/// A drawing to scale with names, which a window and a page show alike. Without lines it is empty.
struct Sketch {
  double width = 0;   ///< of what is drawn, in its units
  double height = 0;  ///< the same; names may stand beyond it
  double linesAbove = 0;
  double linesBelow = 0;
  std::vector<SketchLine> lines;
  std::vector<SketchName> names;

  bool Empty() const { return lines.empty() || !(width > 0) || !(height > 0); }
};

/// Draws a sketch as large as the surface holds it, one scale for width and height, in the middle.
/// @return drawing units a unit of the sketch; 0 where nothing was drawn
double DrawSketch(const Sketch& sketch, Surface& surface, const PlotTheme& theme);

/// A part of a page as a surface, in twips from its left top corner. All is black on white.
class PagePart : public Surface {
 public:
  PagePart(PageSurface& page, const PageArea& area) : page_(page), area_(area) {}

  double Width() const override { return area_.width; }
  double Height() const override { return area_.height; }
  void Fill(const SurfaceRect&, Color) override {}
  void DrawLine(SurfacePoint from, SurfacePoint to, const Pen& pen) override;
  void DrawPolyline(std::span<const SurfacePoint> points, const Pen& pen) override;
  void DrawText(SurfacePoint at, std::string_view text, double size, Color color,
                TextAlign align) override;
  double TextWidth(std::string_view text, double size) const override;
  double TextHeight(double size) const override;
  void SetClip(const SurfaceRect&) override {}
  void ClearClip() override {}

 private:
  void PlaceLine(SurfacePoint from, SurfacePoint to, double width);

  PageSurface& page_;
  PageArea area_;
};

/// A report's picture of a sketch. @param height  twips
PagePicture PictureOf(Sketch sketch, int height);

}  // namespace veldox
