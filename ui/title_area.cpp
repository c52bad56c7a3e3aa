#include "ui/title_area.h"

#include <QLabel>

#include "ui/control_faces.h"

namespace veldox {
namespace {

constexpr int kLetters = 6;
constexpr int kLetterPoints = 30;
constexpr int kLetterGap = 14;
constexpr int kMargin = 6;

}  // namespace

TitleArea::TitleArea(Shell& shell, FaceSet& faces, QWidget* parent)
    : QWidget(parent), shell_(shell) {
  Label* const labels[] = {&shell.Label1, &shell.Label2, &shell.Label3,  &shell.Label4,
                           &shell.Label5, &shell.Label6, &shell.Label21, &shell.Label22};
  QFont letters = font();
  letters.setPointSize(kLetterPoints);
  letters.setBold(true);
  QFont line = font();
  line.setPointSizeF(line.pointSizeF() * 1.35);
  int piece = 0;
  for (Label* label : labels) {
    auto* shown = faces.Make<LabelFace>(*label, this).label();
    if (piece < kLetters) {
      shown->setFont(letters);
      shown->setForegroundRole(QPalette::Highlight);
    } else if (piece == kLetters) {
      shown->setFont(line);
    } else {
      shown->setForegroundRole(QPalette::PlaceholderText);
    }
    pieces_[static_cast<std::size_t>(piece++)] = shown;
  }
  const int height = QFontMetrics(letters).height() + QFontMetrics(line).height() +
                     fontMetrics().height() + 2 * kMargin;
  setFixedHeight(height);

  timer_.setObjectName(QStringLiteral("Timer2"));
  timer_.setParent(this);
  timer_.setInterval(TitleAnimation::kTickMilliseconds);
  connect(&timer_, &QTimer::timeout, this, [this] {
    if (!shell_.titleAnimation().Tick()) timer_.stop();
    Place();
  });
}

void TitleArea::Finish() {
  timer_.stop();
  shell_.titleAnimation().Finish();
  Place();
}

void TitleArea::resizeEvent(QResizeEvent*) {
  Place();
}

void TitleArea::showEvent(QShowEvent*) {
  if (shell_.titleAnimation().running()) timer_.start();
}

void TitleArea::Place() {
  int lettersWidth = -kLetterGap;
  for (int i = 0; i < kLetters; ++i) {
    lettersWidth += pieces_[static_cast<std::size_t>(i)]->sizeHint().width() + kLetterGap;
  }
  int x = (width() - lettersWidth) / 2;
  int y = kMargin;
  for (int i = 0; i < TitleAnimation::kPieces; ++i) {
    QLabel* piece = pieces_[static_cast<std::size_t>(i)];
    const QSize size = piece->sizeHint();
    const int slide = shell_.titleAnimation().offset(i) * width() / TitleAnimation::kStart;
    if (i >= kLetters) x = (width() - size.width()) / 2;
    piece->setGeometry(QRect(QPoint(x + slide, y), size));
    if (i < kLetters - 1) {
      x += size.width() + kLetterGap;
    } else {
      y += size.height();
    }
  }
}

}  // namespace veldox
