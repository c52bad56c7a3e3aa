#pragma once

#include <QPixmap>
#include <QWidget>
#include <optional>
#include <vector>

#include "graph/grapher_screen.h"

namespace veldox {

/// The grapher's drawing surface.
inline constexpr const char* kGraphSurfaceName = "Picture1";

/// A place for a card of a size inside a room: over none of the marks where that can be,
/// not over the pointer, and near it. A card larger than the room is cut to it.
QRectF PlaceCard(QSizeF card, const QRectF& room, QPointF pointer,
                 const std::vector<QPointF>& marks);

/// The grapher's surface in its window. It shows the graph, tells the pointer's place and
/// the nearest point of each curve, takes strokes drawn by hand, and holds the lines that
/// can be moved over the graph. With the keyboard focus the arrow keys move the pointer's
/// cross, by a pixel or, with Shift, by ten; Escape takes it away. Space takes hold of the
/// moveable lines, one after another, and the arrow keys move the one that is held.
class GraphView : public QWidget, public GraphFace {
 public:
  GraphView(Form8& grapher, QWidget* parent);
  ~GraphView() override;

  void GraphChanged() override;
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

  /// What the pointer reads off the graph.
  struct ReadOut {
    struct Row {
      QColor color;
      QString name;
      QString x;
      QString y;
    };
    QPointF pointer;             ///< inside the frame
    std::vector<Row> rows;       ///< a row a curve
    std::vector<QPointF> marks;  ///< the places of the points that are read, inside the frame
    int left = 0;                ///< curves that the card has no room for
    QRectF card;
  };
  /// Nothing while the pointer is off the graph's frame or there are no curves.
  std::optional<ReadOut> readOut() const;
  /// How often the graph itself was drawn; the pointer's cross is laid over a kept picture.
  int redraws() const { return redraws_; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void changeEvent(QEvent* event) override;
  void enterEvent(QEnterEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  PlotTheme theme() const;
  QSize AskedSize() const;
  QRectF FrameRect() const;
  void Redraw();
  void PointAt(QPointF place);
  void DropPointer();
  /// The moveable line at a place; -1 where there is none.
  int LineAt(QPointF place) const;
  QLineF PlaceOfLine(std::size_t line) const;
  QPointF PlaceOf(const GraphPoint& point, const AxisRange& range) const;
  void DrawMoveableLines(QPainter& painter) const;
  void DrawReadOut(QPainter& painter, const ReadOut& read) const;

  Form8& grapher_;
  QPixmap picture_;  ///< the graph as it was drawn last
  bool stale_ = true;
  int redraws_ = 0;
  QSize askedSize_;
  std::optional<QPointF> pointer_;
  int dragged_ = -1;
  int held_ = -1;  ///< the moveable line that the arrow keys move, -1 for none
};

}  // namespace veldox
