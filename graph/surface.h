#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace veldox {

/// A colour in parts from 0 to 255.
struct Color {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;

  friend bool operator==(const Color&, const Color&) = default;
  /// The colour as options keep it: red + 256 * green + 65536 * blue.
  constexpr std::int32_t Value() const { return red + 256 * green + 65536 * blue; }
  static constexpr Color FromValue(std::int32_t value) {
    return {static_cast<std::uint8_t>(value & 255), static_cast<std::uint8_t>((value >> 8) & 255),
            static_cast<std::uint8_t>((value >> 16) & 255)};
  }
};

/// A place on a surface in its drawing units, from the left and from the top.
struct SurfacePoint {
  double x = 0;
  double y = 0;
};

/// A rectangle of a surface in drawing units.
struct SurfaceRect {
  double left = 0;
  double top = 0;
  double width = 0;
  double height = 0;

  double right() const { return left + width; }
  double bottom() const { return top + height; }
};

/// How a line is drawn, by the number of its style.
enum class LineStyle : std::uint8_t {
  Solid = 0,
  LongDash = 1,
  Dash = 2,
  DashDot = 3,
  DashDotDot = 4,
};

struct Pen {
  Color color;
  double width = 1;  ///< drawing units
  LineStyle style = LineStyle::Solid;

  friend bool operator==(const Pen&, const Pen&) = default;
};

enum class TextAlign { Left, Center, Right };

/// What a graph can be drawn on: a window, a printer page, a picture, a test.
class Surface {
 public:
  Surface() = default;
  Surface(const Surface&) = delete;
  Surface& operator=(const Surface&) = delete;
  virtual ~Surface() = default;

  /// The size in drawing units.
  virtual double Width() const = 0;
  virtual double Height() const = 0;
  virtual void Fill(const SurfaceRect& area, Color color) = 0;
  virtual void DrawLine(SurfacePoint from, SurfacePoint to, const Pen& pen) = 0;
  virtual void DrawPolyline(std::span<const SurfacePoint> points, const Pen& pen) = 0;
  /// A text whose top stands at `at.y`; `at.x` is its left, middle or right. Sizes in points.
  virtual void DrawText(SurfacePoint at, std::string_view text, double size, Color color,
                        TextAlign align) = 0;
  virtual double TextWidth(std::string_view text, double size) const = 0;
  virtual double TextHeight(double size) const = 0;
  /// What is drawn from here on shows inside `area` only.
  virtual void SetClip(const SurfaceRect& area) = 0;
  virtual void ClearClip() = 0;
  /// A picture from the bytes of its file, stretched over an area. Surfaces that cannot
  /// decode pictures leave the area as it is.
  virtual void DrawPicture(const SurfaceRect& /*area*/, const std::string& /*bytes*/) {}
};

}  // namespace veldox
