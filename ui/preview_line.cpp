#include "ui/preview_line.h"

#include <algorithm>

#include "ui/qt_text.h"

namespace veldox {
namespace {

/// The pointer never waits longer than a frame of the display.
constexpr std::chrono::milliseconds kLongestWait(16);
/// A command that takes longer is tried when the pointer has rested on it.
constexpr std::chrono::milliseconds kRest(500);
constexpr std::chrono::seconds kLongestTry(2);

}  // namespace

PreviewLine::PreviewLine(QWidget* parent, CommandRole most) : QLabel(parent), most_(most) {
  setObjectName(QStringLiteral("PreviewLine"));
  setTextFormat(Qt::PlainText);
  setAccessibleName(QStringLiteral("What the command changes, or whether results are up to date"));
  rest_.setSingleShot(true);
  rest_.setInterval(kRest);
  connect(&rest_, &QTimer::timeout, this, [this] { Run(true); });
}

QSize PreviewLine::sizeHint() const {
  return {0, fontMetrics().height()};
}

QSize PreviewLine::minimumSizeHint() const {
  return sizeHint();
}

void PreviewLine::resizeEvent(QResizeEvent* event) {
  QLabel::resizeEvent(event);
  Tell();
}

void PreviewLine::SetStanding(const QString& text) {
  if (text == standing_) return;
  standing_ = text;
  if (command_ == nullptr) Tell();
}

void PreviewLine::Follow(Command* command) {
  rest_.stop();
  // What opens and closes changes nothing that a line could tell.
  const bool isTold =
      command != nullptr && command->role() <= most_ && command != command->screen().QuitCommand();
  command_ = isTold ? command : nullptr;
  preview_ = {};
  if (command_ == nullptr) {
    Tell();
  } else if (slow_.contains(command_)) {
    clear();
    rest_.start();
  } else {
    Run(false);
  }
}

void PreviewLine::Run(bool mayTakeLong) {
  if (command_ == nullptr) return;
  using std::chrono::microseconds;
  preview_ =
      PreviewOf(*command_, mayTakeLong ? microseconds(kLongestTry) : microseconds(kLongestWait));
  if (preview_.took > kLongestWait || preview_.ranOutOfTime) {
    slow_[command_] = preview_.took;
  } else {
    slow_.erase(command_);
  }
  if (preview_.ranOutOfTime && !mayTakeLong) {
    clear();
    rest_.start();
    return;
  }
  Tell();
}

void PreviewLine::Tell() {
  const QFontMetrics metrics(font());
  if (command_ == nullptr) {
    setText(metrics.elidedText(standing_, Qt::ElideRight, width()));
    setToolTip(standing_);
    return;
  }
  const std::string text = TellPreview(preview_, [&](const std::string& line) {
    return metrics.horizontalAdvance(ToQt(line)) <= width();
  });
  setText(metrics.elidedText(ToQt(text), Qt::ElideRight, width()));
  setToolTip(ToQt(TellPreview(preview_, [](const std::string&) { return true; })));
}

PreviewLine* MakePreviewLine(FaceSet& faces, QWidget* parent, CommandRole most) {
  auto* line = new PreviewLine(parent, most);
  faces.look().DressLabel(*line);
  faces.SetPreview([line](Command* command) { line->Follow(command); });
  return line;
}

}  // namespace veldox
