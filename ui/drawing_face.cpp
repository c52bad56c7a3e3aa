#include "ui/drawing_face.h"

#include <QPainter>

#include "ui/painter_surface.h"
#include "ui/qt_text.h"

namespace veldox {
namespace {

// In widths and heights of the window's font.
constexpr int kDigitsWide = 78;
constexpr int kLinesHigh = 14;

}  // namespace

DrawingView::DrawingView(const Drawing& drawing, QWidget* parent)
    : QWidget(parent), drawing_(drawing) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize DrawingView::sizeHint() const {
  const QFontMetrics metrics = fontMetrics();
  return {metrics.horizontalAdvance(QLatin1Char('0')) * kDigitsWide, metrics.height() * kLinesHigh};
}

void DrawingView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  if (drawing_.sketch().Empty()) {
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, ToQt(drawing_.caption()));
    return;
  }
  PlotTheme theme;
  theme.background = FromQtColor(palette().color(QPalette::Window));
  theme.text = FromQtColor(palette().color(QPalette::WindowText));
  theme.grid = FromQtColor(palette().color(QPalette::PlaceholderText));
  theme.fontSize = QFontInfo(font()).pointSizeF();
  PainterSurface surface(painter, size());
  DrawSketch(drawing_.sketch(), surface, theme);
}

DrawingFace::DrawingFace(FaceSet& set, Drawing& drawing, QWidget* parent)
    : Face(set, drawing, new DrawingView(drawing, parent)), drawing_(drawing) {}

void DrawingFace::Follow() {
  Face::Follow();
  QStringList names;
  for (const SketchName& name : drawing_.sketch().names) names << ToQt(name.text);
  widget()->setAccessibleName(names.isEmpty() ? ToQt(drawing_.caption())
                                              : QStringLiteral("Drawing of ") +
                                                    names.join(QLatin1String(", ")));
  widget()->update();
}

}  // namespace veldox
