#include "ui/screen_window.h"

#include <QCloseEvent>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>

#include "core/file_taker.h"
#include "ui/control_faces.h"
#include "ui/file_drop.h"
#include "ui/frame_panel.h"
#include "ui/help_bar.h"
#include "ui/preview_line.h"
#include "ui/qt_text.h"
#include "ui/sheet_stack.h"
#include "ui/step_keys.h"
#include "ui/window_picture.h"

namespace veldox {
namespace {

constexpr int kWindowMargin = 6;
constexpr int kFrameGap = 5;
/// Under the line of previews, which has room of its own around its letters.
constexpr int kFootMargin = 1;
/// What an open report has before the frames get all that they want.
constexpr int kReadableLines = 30;
/// What a window manager puts around a window.
constexpr QSize kDecoration(10, 40);

/// The width of the bar that scrolls the frames down.
int BarWidth(const SheetStack& sheets) {
  return sheets.views().front().scroll->verticalScrollBar()->sizeHint().width();
}

/// A widget that frames stand on, and those on it.
void AppendGrounds(QWidget& ground, std::vector<QWidget*>& grounds) {
  grounds.push_back(&ground);
  for (QWidget* child : ground.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
    if (qobject_cast<QGroupBox*>(child) == nullptr) AppendGrounds(*child, grounds);
  }
}

/// The switch that keeps the results up to date; how things stand is told beside it.
class KeepFace : public CheckBoxFace {
 public:
  KeepFace(FaceSet& set, CheckBox& box, PreviewLine& line, QWidget* parent)
      : CheckBoxFace(set, box, parent), line_(line) {}

  void Follow() override {
    CheckBoxFace::Follow();
    const auto& box = static_cast<const CheckBox&>(control());
    line_.SetStanding(box.on() ? ToQt(box.help()) : QString());
  }

 private:
  PreviewLine& line_;
};

}  // namespace

QSize FittingSize(const QWidget& window, QSize wanted) {
  const QSize room = window.screen()->availableSize() - kDecoration;
  return wanted.boundedTo(room);
}

void OrderTabs(const FaceSet& faces) {
  QWidget* last = nullptr;
  for (const Control* control : faces.screen().ReadingOrder()) {
    const Face* face = faces.Of(*control);
    if (face == nullptr || face->widget()->focusPolicy() == Qt::NoFocus) continue;
    if (last != nullptr) QWidget::setTabOrder(last, face->widget());
    last = face->widget();
  }
  for (const auto& face : faces.all()) {
    if (last != nullptr && face->control().isInFoot()) QWidget::setTabOrder(last, face->widget());
  }
}

ScreenWindow::ScreenWindow(Screen& screen, OwnFaceMaker makeOwnFace, const Appearance& appearance,
                           const ScreenScaling& scaling)
    : screen_(screen), makeOwnFace_(makeOwnFace), faces_(screen) {
  setObjectName(ToQt(screen.name()));
  setWindowTitle(ToQt(screen.title()));
  faces_.SetLook(WindowLook(appearance));
  Fill();
  AddPictureKeys(*this, screen);
  AddStepKeys(*this, screen.context().history);
  if (auto* taker = dynamic_cast<FileTaker*>(&screen)) AcceptFiles(*this, *taker);
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
    auto* again = new QShortcut(QKeySequence(Qt::CTRL | key), this);
    connect(again, &QShortcut::activated, this, [this] { screen_.CalculateAgain(); });
  }
  SizeToScreen();
  SizeByLargeScreen(scaling);
}

void ScreenWindow::Fill() {
  faces_.look().DressWindow(*this);
  Control* quit = screen_.QuitCommand();
  std::vector<const Control*> placed;
  for (const Control* control :
       {screen_.HelpPlace(), static_cast<Control*>(screen_.ReportPane()), quit}) {
    if (control != nullptr) placed.push_back(control);
  }

  sheets_ = new SheetStack(faces_, std::move(placed), this);
  FollowPointerOverBackgrounds();
  connect(sheets_, &QStackedWidget::currentChanged, this, [this] { ShareRoom(); });
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, kFootMargin);
  column->setSpacing(kWindowMargin);
  QLayout* foot = BuildFoot(quit);
  // Made after all controls: the tab key comes to it last.
  ownFace_ = makeOwnFace_(screen_, this);
  if (ownFace_ == nullptr) {
    column->addWidget(sheets_, 1);
  } else {
    column->addLayout(BesideOwnFace(), 1);
  }
  column->addLayout(foot);
  sheets_->Follow();
  OrderTabs(faces_);
  if (report_ != nullptr) {
    // Behind the report come its buttons, and only then what stands under it.
    const std::vector<QWidget*> chain = static_cast<ReportPanel*>(report_)->TabChain();
    for (std::size_t i = 1; i < chain.size(); ++i) QWidget::setTabOrder(chain[i - 1], chain[i]);
    Face* last = quit == nullptr ? nullptr : faces_.Of(*quit);
    if (last != nullptr) QWidget::setTabOrder(chain.back(), last->widget());
  }
}

void ScreenWindow::FillAnew(WindowLook look) {
  // The controls let go first: what their widgets do while they end is not the user's doing.
  faces_.Clear();
  backgrounds_.clear();
  sheets_ = nullptr;
  ownFace_ = nullptr;
  report_ = nullptr;
  delete layout();
  qDeleteAll(findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly));
  faces_.SetLook(std::move(look));
  Fill();
  for (QWidget* child : findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
    // In a window that is open already nothing shows by itself.
    if (!child->testAttribute(Qt::WA_WState_ExplicitShowHide)) child->show();
  }
  // The keyboard is where it was, in a window at the back as well.
  const Control* focus = screen_.focus();
  const Face* face = focus == nullptr ? nullptr : faces_.Of(*focus);
  if (face != nullptr) face->widget()->setFocus(Qt::OtherFocusReason);
}

void ScreenWindow::SetAppearance(const Appearance& appearance) {
  if (appearance == faces_.look().appearance()) return;
  const bool hasOwnSize = size() == ownSize_ && faces_.look().scale() == 1;
  FillAnew(WindowLook(appearance, faces_.look().scale()));
  if (hasOwnSize && !isMaximized() && !isFullScreen()) SizeToScreen();
  ShareRoom();
}

void ScreenWindow::SizeByLargeScreen(const ScreenScaling& scaling) {
  mode_ = scaling.ModeOf(screen_.block());
  if (mode_ == ScreenScaling::Mode::Off) return;
  const ScaleFactors factors = scaling.FactorsFor(mode_, width(), height());
  const ControlBox box = ScaleControl(
      {0, 0, static_cast<double>(width()), static_cast<double>(height()), 0, 1}, factors);
  FillAnew(WindowLook(faces_.look().appearance(), box.fontSize));
  SizeToScreen();
  const QSize wanted = QSize(qRound(box.width), qRound(box.height)).expandedTo(size());
  resize(FittingSize(*this, wanted.boundedTo(QSize(scaling.widthLimit(), scaling.heightLimit()))));
}

bool ScreenWindow::sizedByUser() const {
  const QSize now(width(), heightWithoutReport_ > 0 ? heightWithoutReport_ : height());
  return mode_ == ScreenScaling::Mode::Off && now != ownSize_;
}

void ScreenWindow::FollowPointerOverBackgrounds() {
  std::vector<QWidget*> grounds{this};
  for (const SheetView& view : sheets_->views()) {
    AppendGrounds(*view.flow, grounds);
  }
  for (QWidget* ground : grounds) {
    ground->setMouseTracking(true);
    ground->installEventFilter(this);
    backgrounds_.push_back(ground);
  }
}

QLayout* ScreenWindow::BuildFoot(Control* quit) {
  auto* foot = new QVBoxLayout;
  foot->setContentsMargins(kWindowMargin, 0, kWindowMargin, 0);
  foot->setSpacing(8);
  Control* helpPlace = screen_.HelpPlace();
  ReportBox* report = screen_.ReportPane();
  auto* bar = helpPlace != nullptr ? new HelpBar(faces_.look(), this) : nullptr;
  if (report != nullptr) {
    auto* panel = new ReportPanel(*report, faces_.look(), this);
    panel->installEventFilter(this);
    report_ = panel;
    faces_.Make<ReportFace>(*report, panel, helpPlace == report ? bar : nullptr);
    foot->addWidget(panel);
  }
  auto* row = new QHBoxLayout;
  row->setSpacing(kFrameGap);
  if (bar != nullptr) {
    if (helpPlace != report) faces_.Make<HelpFace>(*helpPlace, bar);
    row->addWidget(bar, 1);
  } else {
    row->addStretch(1);
  }
  if (quit != nullptr) {
    QWidget* button = faces_.Make<CommandFace>(static_cast<Command&>(*quit), this).widget();
    button->setMinimumWidth(fontMetrics().horizontalAdvance(QLatin1Char('0')) * 13);
    row->addWidget(button, 0, Qt::AlignBottom);
  }
  // The line has no room of its own to give away on a small screen.
  auto* lines = new QVBoxLayout;
  lines->setSpacing(0);
  lines->addLayout(row);
  foot->addLayout(lines);
  auto* last = new QHBoxLayout;
  last->setSpacing(kFrameGap);
  lines->addLayout(last);
  PreviewLine* preview = MakePreviewLine(faces_, this);
  last->addWidget(preview, 1);
  if (CheckBox* box = screen_.context().current.SwitchOf(screen_)) {
    QWidget* keep = faces_.Make<KeepFace>(*box, *preview, this).widget();
    faces_.look().DressLabel(*keep);
    // No room around its letters: a window that fills the smallest screen has none to give.
    keep->setFixedHeight(std::max(keep->fontMetrics().height(),
                                  keep->style()->pixelMetric(QStyle::PM_IndicatorHeight)));
    last->addWidget(keep);
  }
  return foot;
}

QLayout* ScreenWindow::BesideOwnFace() {
  auto* row = new QHBoxLayout;
  row->setContentsMargins(0, 0, kWindowMargin, 0);
  row->setSpacing(0);
  // However wide the frames are, half of the screen is left to the screen's own face.
  sheets_->setFixedWidth(std::min(sheets_->WantedWidth() + BarWidth(*sheets_),
                                  QWidget::screen()->availableSize().width() / 2));
  row->addWidget(sheets_);
  auto* face = new QVBoxLayout;
  face->setContentsMargins(0, kWindowMargin, 0, 0);
  face->addWidget(ownFace_);
  row->addLayout(face, 1);
  return row;
}

void ScreenWindow::SizeToScreen() {
  const int least = sheets_->minimumSizeHint().height();
  if (ownFace_ != nullptr) {
    const QSize face = ownFace_->sizeHint();
    const int foot = layout()->minimumSize().height() -
                     std::max(least, ownFace_->minimumSizeHint().height() + kWindowMargin);
    const SheetView& frames = sheets_->views().front();
    const int height =
        std::max(sheets_->WantedHeight(frames, sheets_->width()), face.height() + kWindowMargin) +
        foot;
    resize(FittingSize(*this, {sheets_->width() + face.width() + kWindowMargin, height}));
    ownSize_ = size();
    return;
  }
  const int foot = layout()->minimumSize().height() - least;
  const QSize room = FittingSize(*this, QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
  int width = std::min(sheets_->WantedWidth(), room.width());
  int height = 0;
  for (const SheetView& view : sheets_->views()) {
    height = std::max(height, sheets_->WantedHeight(view, width) + foot);
  }
  if (height > room.height() || report_ != nullptr) {
    // The bar for scrolling down, which a report brings, takes its room beside the frames.
    width = std::min(width + BarWidth(*sheets_), room.width());
    height = std::min(height, room.height());
  }
  resize(width, height);
  ownSize_ = size();
}

void ScreenWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape && screen_.topPanel() != nullptr) {
    screen_.PutAwayPanel();
    return;
  }
  QWidget::keyPressEvent(event);
}

void ScreenWindow::closeEvent(QCloseEvent* event) {
  // Closing is the screen's own business; it hides the window.
  event->ignore();
  screen_.Quit();
}

void ScreenWindow::MakeRoomForReport() {
  if (isMaximized() || isFullScreen() || heightWithoutReport_ > 0) return;
  const QRect room = QWidget::screen()->availableGeometry();
  heightWithoutReport_ = height();
  resize(width(), std::max(height(), FittingSize(*this, QSize(0, room.height())).height()));
  // The lower edge stays on the screen.
  const int below = frameGeometry().bottom() - room.bottom();
  if (below > 0) move(x(), std::max(room.top(), y() - below));
}

void ScreenWindow::ShareRoom() {
  int most = QWIDGETSIZE_MAX;
  if (report_ != nullptr && report_->isVisibleTo(this)) {
    // The report gets what the frames have no use for. Where that is little, reading goes
    // first, and the frames scroll in what is left. How little it can be is known only since
    // it has its font.
    report_->updateGeometry();
    layout()->activate();
    const int room = height() - layout()->minimumSize().height() +
                     sheets_->minimumSizeHint().height() + report_->minimumSizeHint().height();
    const int lines = kReadableLines * fontMetrics().lineSpacing();
    most = std::min(sheets_->WantedHeight(sheets_->current(), sheets_->width()),
                    std::max(room - lines, room * 2 / 5));
  }
  sheets_->setMaximumHeight(most);
}

void ScreenWindow::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  ShareRoom();
}

void ScreenWindow::GiveRoomBack() {
  if (heightWithoutReport_ > 0 && !isMaximized()) resize(width(), heightWithoutReport_);
  heightWithoutReport_ = 0;
}

bool ScreenWindow::eventFilter(QObject* watched, QEvent* event) {
  if (watched == report_) {
    if (event->type() == QEvent::ShowToParent) MakeRoomForReport();
    if (event->type() == QEvent::HideToParent) GiveRoomBack();
    if (event->type() == QEvent::ShowToParent || event->type() == QEvent::HideToParent) {
      ShareRoom();
    }
  }
  if (event->type() == QEvent::MouseMove &&
      std::find(backgrounds_.begin(), backgrounds_.end(), watched) != backgrounds_.end()) {
    screen_.Hover(nullptr);
  }
  return QWidget::eventFilter(watched, event);
}

}  // namespace veldox
