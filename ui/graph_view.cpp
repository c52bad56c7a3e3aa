#include "ui/graph_view.h"

#include <QKeyEvent>
#include <QLayout>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <limits>

#include "ui/face.h"
#include "ui/painter_surface.h"
#include "ui/qt_text.h"
#include "ui/screen_window.h"
#include "ui/theme.h"

namespace veldox {
namespace {

constexpr const char* kKeyHelp =
    "The Arrow Keys move the Read-out over the Graph, with Shift ten Pixels at a time; Escape "
    "takes it away.";
constexpr const char* kLineHelp =
    " The Space Bar takes hold of the next moveable Line, which the Arrow Keys move then.";
/// How large the graph would like to be while the options do not ask for another size.
constexpr QSize kPreferredSize(900, 620);
constexpr QSize kSmallestSize(320, 240);
constexpr int kPixelsPerSizeUnit = 100;  ///< of the options "Graph Size"
constexpr double kGrip = 5;              ///< how near the pointer takes hold of a line
constexpr double kMarkRadius = 4;
constexpr double kCardGap = 14;  ///< from the pointer to the card
constexpr double kCardPadding = 7;
constexpr double kSwatch = 10;
constexpr double kWidestName = 170;
constexpr double kColumnGap = 10;
constexpr int kFarStep = 10;

/// The card's texts and how wide its columns are.
struct CardLayout {
  double name = 0;
  double x = 0;
  double y = 0;
  double line = 0;

  QSizeF Size(std::size_t lines) const {
    return {2 * kCardPadding + kSwatch + kColumnGap + name + kColumnGap + x + kColumnGap + y,
            2 * kCardPadding + line * static_cast<double>(lines)};
  }
};

CardLayout LayOutCard(const std::vector<GraphView::ReadOut::Row>& rows,
                      const QFontMetricsF& metrics) {
  CardLayout layout;
  layout.line = metrics.height() + 2;
  for (const auto& row : rows) {
    layout.name = std::max(layout.name, metrics.horizontalAdvance(row.name));
    layout.x = std::max(layout.x, metrics.horizontalAdvance(row.x));
    layout.y = std::max(layout.y, metrics.horizontalAdvance(row.y));
  }
  return layout;
}

QString MoreText(int left) {
  return QStringLiteral("and %1 more").arg(left);
}

bool Covers(const QRectF& card, QPointF point, double air) {
  return card.adjusted(-air, -air, air, air).contains(point);
}

}  // namespace

QRectF PlaceCard(QSizeF card, const QRectF& room, QPointF pointer,
                 const std::vector<QPointF>& marks) {
  const QSizeF size = card.boundedTo(room.size());
  const double lefts[] = {pointer.x() + kCardGap, pointer.x() - kCardGap - size.width(),
                          room.right() - size.width(), room.left()};
  const double tops[] = {pointer.y() + kCardGap, pointer.y() - kCardGap - size.height(),
                         pointer.y() - size.height() / 2, room.top(),
                         room.bottom() - size.height()};
  constexpr double kOverPointer = 1e9;
  constexpr double kOverMark = 1e6;
  QRectF best(room.topLeft(), size);
  double least = std::numeric_limits<double>::infinity();
  for (const double left : lefts) {
    for (const double top : tops) {
      const QRectF tried(
          QPointF(std::clamp(left, room.left(), std::max(room.left(), room.right() - size.width())),
                  std::clamp(top, room.top(), std::max(room.top(), room.bottom() - size.height()))),
          size);
      const QPointF away = tried.center() - pointer;
      double cost = std::hypot(away.x(), away.y());
      if (Covers(tried, pointer, kMarkRadius)) cost += kOverPointer;
      for (const QPointF& mark : marks) {
        if (Covers(tried, mark, kMarkRadius + 1)) cost += kOverMark;
      }
      if (cost >= least) continue;
      least = cost;
      best = tried;
    }
  }
  return best;
}

GraphView::GraphView(Form8& grapher, QWidget* parent) : QWidget(parent), grapher_(grapher) {
  setObjectName(QLatin1String(kGraphSurfaceName));
  setAccessibleName(QStringLiteral("Graph"));
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setCursor(Qt::CrossCursor);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  askedSize_ = AskedSize();
  grapher_.SetGraphFace(this);
}

GraphView::~GraphView() {
  grapher_.SetGraphFace(nullptr);
}

QSize GraphView::AskedSize() const {
  const ParameterBlock& block = grapher_.block();
  return QSize(block.CustomGraphWidth, block.CustomGraphHeight) * kPixelsPerSizeUnit;
}

QSize GraphView::sizeHint() const {
  const ParameterBlock usual;
  const QSize untouched =
      QSize(usual.CustomGraphWidth, usual.CustomGraphHeight) * kPixelsPerSizeUnit;
  return askedSize_ == untouched ? kPreferredSize : askedSize_;
}

QSize GraphView::minimumSizeHint() const {
  return kSmallestSize;
}

void GraphView::GraphChanged() {
  stale_ = true;
  if (const QSize asked = AskedSize(); asked != askedSize_) {
    askedSize_ = asked;
    updateGeometry();
    QWidget* top = window();
    if (QLayout* rows = top->layout()) rows->activate();
    if (!top->isMaximized()) top->resize(FittingSize(*top, top->size() + sizeHint() - size()));
  }
  update();
}

PlotTheme GraphView::theme() const {
  const QPalette& colors = palette();
  const ThemeColors derived(colors);
  PlotTheme theme;
  theme.background = FromQtColor(colors.color(QPalette::Active, QPalette::Base));
  theme.text = FromQtColor(colors.color(QPalette::Active, QPalette::Text));
  theme.grid = FromQtColor(derived.border);
  theme.lightensFaint = true;
  return theme;
}

QRectF GraphView::FrameRect() const {
  const SurfaceRect& frame = grapher_.frame();
  return {frame.left, frame.top, frame.width, frame.height};
}

void GraphView::Redraw() {
  const double scale = devicePixelRatioF();
  const QSize pixels = (QSizeF(size()) * scale).toSize();
  if (!stale_ && picture_.size() == pixels && picture_.devicePixelRatio() == scale) return;
  picture_ = QPixmap(pixels);
  picture_.setDevicePixelRatio(scale);
  QPainter painter(&picture_);
  PainterSurface surface(painter, size(), logicalDpiY() / 72.0);
  grapher_.DrawOn(surface, theme());
  if (grapher_.plot().Empty()) {
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.setFont(font());
    painter.drawText(QRectF(rect()), Qt::AlignCenter, QStringLiteral("No graph yet"));
  }
  stale_ = false;
  ++redraws_;
}

void GraphView::paintEvent(QPaintEvent*) {
  Redraw();
  QPainter painter(this);
  painter.drawPixmap(0, 0, picture_);
  painter.setRenderHint(QPainter::Antialiasing);
  DrawMoveableLines(painter);
  if (const auto read = readOut()) DrawReadOut(painter, *read);
  if (hasFocus()) {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(ThemeColors(palette()).accent, 1));
    painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
  }
}

void GraphView::changeEvent(QEvent* event) {
  if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange) {
    stale_ = true;
    update();
  }
  QWidget::changeEvent(event);
}

// ---------------------------------------------------------------- the pointer

QPointF GraphView::PlaceOf(const GraphPoint& point, const AxisRange& range) const {
  const QRectF frame = FrameRect();
  return {frame.left() + (point.x - range.xLow) / (range.xHigh - range.xLow) * frame.width(),
          frame.bottom() - (point.y - range.yLow) / (range.yHigh - range.yLow) * frame.height()};
}

std::optional<GraphView::ReadOut> GraphView::readOut() const {
  const QRectF frame = FrameRect();
  const PlotEngine& plot = grapher_.plot();
  if (!pointer_ || dragged_ >= 0 || !plot.hasAxes() || !frame.contains(*pointer_)) {
    return std::nullopt;
  }
  const QFontMetricsF metrics(font());
  ReadOut read;
  read.pointer = *pointer_;
  const double x = grapher_.ValueAt({pointer_->x(), pointer_->y()}).x;
  for (const NearestPoint& nearest : plot.NearestPoints(x)) {
    const PlotSeriesRecord& series = plot.series()[nearest.series];
    const QPointF mark = PlaceOf(nearest.point, series.range);
    if (frame.contains(mark)) read.marks.push_back(mark);
    const QString legend = ToQt(plot.LegendText(series));
    // The legend tells the rest; the card must not cover the graph.
    const bool isLong = metrics.horizontalAdvance(legend) > kWidestName && !series.name.empty();
    read.rows.push_back({ToQtColor(plot.ShownColor(series, theme())),
                         isLong ? ToQt(series.name) : legend,
                         ToQt(FormatAxisValue(nearest.point.x, grapher_.mark())),
                         ToQt(FormatAxisValue(nearest.point.y, grapher_.mark()))});
  }
  if (read.rows.empty()) return std::nullopt;
  const CardLayout layout = LayOutCard(read.rows, metrics);
  const auto fitting = static_cast<std::size_t>(
      std::max(2.0, std::floor((height() - 2 * kCardPadding) / layout.line)));
  std::size_t lines = read.rows.size();
  if (lines > fitting) {
    lines = fitting;
    read.left = static_cast<int>(read.rows.size() - (fitting - 1));
  }
  read.card = PlaceCard(layout.Size(lines), rect(), read.pointer, read.marks);
  return read;
}

void GraphView::PointAt(QPointF place) {
  pointer_ = place;
  grapher_.MouseMove({place.x(), place.y()});
  update();
}

void GraphView::DropPointer() {
  pointer_.reset();
  grapher_.MouseLeave();
  update();
}

void GraphView::DrawReadOut(QPainter& painter, const ReadOut& read) const {
  const ThemeColors colors(palette());
  const QRectF frame = FrameRect();
  QColor cross = palette().color(QPalette::Text);
  cross.setAlphaF(0.45F);
  painter.setPen(QPen(cross, 1, Qt::DashLine));
  const double x = std::floor(read.pointer.x()) + 0.5;
  const double y = std::floor(read.pointer.y()) + 0.5;
  painter.drawLine(QPointF(x, frame.top()), QPointF(x, frame.bottom()));
  painter.drawLine(QPointF(frame.left(), y), QPointF(frame.right(), y));

  painter.setBrush(palette().color(QPalette::Base));
  painter.setPen(QPen(palette().color(QPalette::Text), 1.5));
  for (const QPointF& mark : read.marks) painter.drawEllipse(mark, kMarkRadius, kMarkRadius);

  QColor ground = palette().color(QPalette::ToolTipBase);
  ground.setAlphaF(0.95F);
  painter.setBrush(ground);
  painter.setPen(QPen(colors.fieldBorder, 1));
  painter.drawRoundedRect(read.card.adjusted(0.5, 0.5, -0.5, -0.5), 5, 5);
  painter.setFont(font());
  painter.setClipRect(read.card);
  const QFontMetricsF metrics(font());
  CardLayout layout = LayOutCard(read.rows, metrics);
  // A narrow window cuts the names, never the values.
  layout.name -= std::max(0.0, layout.Size(1).width() - read.card.width());
  QRectF line(read.card.left() + kCardPadding, read.card.top() + kCardPadding,
              read.card.width() - 2 * kCardPadding, layout.line);
  const QColor text = palette().color(QPalette::ToolTipText);
  const std::size_t shown = read.rows.size() - static_cast<std::size_t>(read.left);
  for (std::size_t i = 0; i < shown; ++i) {
    const ReadOut::Row& row = read.rows[i];
    painter.fillRect(QRectF(line.left(), line.center().y() - 2, kSwatch, 4), row.color);
    painter.setPen(text);
    const double name = line.left() + kSwatch + kColumnGap;
    painter.drawText(QRectF(name, line.top(), layout.name, line.height()),
                     Qt::AlignLeft | Qt::AlignVCenter,
                     metrics.elidedText(row.name, Qt::ElideRight, layout.name + 1));
    painter.drawText(QRectF(line.right() - layout.y - kColumnGap - layout.x, line.top(), layout.x,
                            line.height()),
                     Qt::AlignRight | Qt::AlignVCenter, row.x);
    painter.drawText(QRectF(line.right() - layout.y, line.top(), layout.y, line.height()),
                     Qt::AlignRight | Qt::AlignVCenter, row.y);
    line.translate(0, layout.line);
  }
  if (read.left > 0) painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter, MoreText(read.left));
  painter.setClipping(false);
}

// ---------------------------------------------------------------- moveable lines

QLineF GraphView::PlaceOfLine(std::size_t line) const {
  const QRectF frame = FrameRect();
  const MoveableLine& moveable = grapher_.moveableLines()[line];
  if (moveable.vertical) {
    const double x = frame.left() + moveable.place * frame.width();
    return {x, frame.top(), x, frame.bottom()};
  }
  const double y = frame.top() + moveable.place * frame.height();
  return {frame.left(), y, frame.right(), y};
}

int GraphView::LineAt(QPointF place) const {
  if (!grapher_.MoveableLinesShown() || !grapher_.HasGraph()) return -1;
  if (!FrameRect().adjusted(-kGrip, -kGrip, kGrip, kGrip).contains(place)) return -1;
  int nearest = -1;
  double least = kGrip;
  for (std::size_t i = 0; i < grapher_.moveableLines().size(); ++i) {
    const QLineF line = PlaceOfLine(i);
    const double distance = grapher_.moveableLines()[i].vertical ? std::abs(line.x1() - place.x())
                                                                 : std::abs(line.y1() - place.y());
    if (distance > least) continue;
    least = distance;
    nearest = static_cast<int>(i);
  }
  return nearest;
}

void GraphView::DrawMoveableLines(QPainter& painter) const {
  if (!grapher_.MoveableLinesShown() || !grapher_.HasGraph()) return;
  const QColor accent = ThemeColors(palette()).accent;
  const QFontMetricsF metrics(font());
  const QRectF frame = FrameRect();
  painter.setFont(font());
  std::vector<QRectF> tags;
  for (std::size_t i = 0; i < grapher_.moveableLines().size(); ++i) {
    const bool vertical = grapher_.moveableLines()[i].vertical;
    const QLineF line = PlaceOfLine(i);
    painter.setPen(QPen(accent, static_cast<int>(i) == held_ ? 4 : 1.5));
    painter.drawLine(line);
    const QString value = ToQt(FormatAxisValue(grapher_.GridLineValue(i), grapher_.mark()));
    const QSizeF size(metrics.horizontalAdvance(value) + 8, metrics.height() + 2);
    QRectF tag(QPointF(0, 0), size);
    // Values of upright lines stand at the bottom, where no legend is; those of level
    // ones at the right. A value that would lie on another one moves away from the edge.
    if (vertical) {
      tag.moveCenter(QPointF(line.x1(), frame.bottom() - size.height() / 2 - 2));
    } else {
      tag.moveCenter(QPointF(frame.right() - size.width() / 2 - 2, line.y1()));
    }
    tag.moveLeft(std::clamp(tag.left(), frame.left(), frame.right() - tag.width()));
    tag.moveTop(std::clamp(tag.top(), frame.top(), frame.bottom() - tag.height()));
    const auto taken = [&] {
      return std::any_of(tags.begin(), tags.end(),
                         [&](const QRectF& other) { return other.intersects(tag); });
    };
    while (taken() && frame.contains(tag)) {
      vertical ? tag.translate(0, -size.height() - 1) : tag.translate(-size.width() - 1, 0);
    }
    tags.push_back(tag);
    painter.setPen(Qt::NoPen);
    painter.setBrush(accent);
    painter.drawRoundedRect(tag, 3, 3);
    painter.setPen(palette().color(QPalette::HighlightedText));
    painter.drawText(tag, Qt::AlignCenter, value);
  }
}

// ---------------------------------------------------------------- mouse and keys

void GraphView::enterEvent(QEnterEvent* event) {
  grapher_.Hover(nullptr);
  QWidget::enterEvent(event);
}

void GraphView::leaveEvent(QEvent* event) {
  DropPointer();
  QWidget::leaveEvent(event);
}

void GraphView::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  dragged_ = LineAt(event->position());
  if (dragged_ < 0) grapher_.BeginStroke({event->position().x(), event->position().y()});
}

void GraphView::mouseMoveEvent(QMouseEvent* event) {
  const QPointF place = event->position();
  if (dragged_ >= 0) {
    grapher_.MoveGridLine(static_cast<std::size_t>(dragged_), {place.x(), place.y()});
  } else {
    grapher_.ContinueStroke({place.x(), place.y()});
    const int line = LineAt(place);
    if (line < 0) {
      setCursor(Qt::CrossCursor);
    } else {
      const bool vertical = grapher_.moveableLines()[static_cast<std::size_t>(line)].vertical;
      setCursor(vertical ? Qt::SplitHCursor : Qt::SplitVCursor);
    }
  }
  PointAt(place);
}

void GraphView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  dragged_ = -1;
  grapher_.EndStroke();
  update();
}

void GraphView::keyPressEvent(QKeyEvent* event) {
  const int step = (event->modifiers() & Qt::ShiftModifier) != 0 ? kFarStep : 1;
  const bool hasLines = grapher_.MoveableLinesShown() && grapher_.HasGraph();
  if (event->key() == Qt::Key_Space && hasLines) {
    // The next line, and behind the last one the cross again.
    const int lines = static_cast<int>(grapher_.moveableLines().size());
    held_ = held_ + 1 < lines ? held_ + 1 : -1;
    update();
    return;
  }
  QPointF move;
  switch (event->key()) {
    case Qt::Key_Left: move = {-1, 0}; break;
    case Qt::Key_Right: move = {1, 0}; break;
    case Qt::Key_Up: move = {0, -1}; break;
    case Qt::Key_Down: move = {0, 1}; break;
    case Qt::Key_Escape: DropPointer(); return;
    default: QWidget::keyPressEvent(event); return;
  }
  if (held_ >= 0 && hasLines) {
    const auto line = static_cast<std::size_t>(held_);
    const QPointF place = PlaceOfLine(line).p1() + move * step;
    grapher_.MoveGridLine(line, {place.x(), place.y()});
    return;
  }
  const QRectF frame = FrameRect();
  const QPointF place = pointer_ ? *pointer_ + move * step : frame.center();
  PointAt({std::clamp(place.x(), frame.left(), frame.right()),
           std::clamp(place.y(), frame.top(), frame.bottom())});
}

void GraphView::focusInEvent(QFocusEvent* event) {
  if (MovedOnPurpose(event->reason())) {
    grapher_.ShowHelp(std::string(kKeyHelp) + (grapher_.MoveableLinesShown() ? kLineHelp : ""));
  }
  QWidget::focusInEvent(event);
}

void GraphView::focusOutEvent(QFocusEvent* event) {
  held_ = -1;
  if (!underMouse()) DropPointer();
  QWidget::focusOutEvent(event);
}

}  // namespace veldox
