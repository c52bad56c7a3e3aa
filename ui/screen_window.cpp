#include "ui/screen_window.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QVBoxLayout>
#include <algorithm>

#include "ui/control_faces.h"
#include "ui/frame_panel.h"
#include "ui/help_bar.h"
#include "ui/qt_text.h"
#include "ui/sheet_stack.h"
#include "ui/window_picture.h"

namespace veldox {
namespace {

constexpr int kWindowMargin = 6;
constexpr int kFrameGap = 5;
/// What an open report has before the frames get all that they want.
constexpr int kReadableLines = 30;
/// What a window manager puts around a window.
constexpr QSize kDecoration(10, 40);

/// The width of the bar that scrolls the frames down.
int BarWidth(const SheetStack& sheets) {
  return sheets.views().front().scroll->verticalScrollBar()->sizeHint().width();
}

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
}

ScreenWindow::ScreenWindow(Screen& screen, OwnFaceMaker makeOwnFace)
    : screen_(screen), faces_(screen) {
  setObjectName(ToQt(screen.name()));
  setWindowTitle(ToQt(screen.title()));
  Control* quit = screen.QuitCommand();
  std::vector<const Control*> placed;
  for (const Control* control :
       {screen.HelpPlace(), static_cast<Control*>(screen.ReportPane()), quit}) {
    if (control != nullptr) placed.push_back(control);
  }

  sheets_ = new SheetStack(faces_, std::move(placed), this);
  FollowPointerOverBackgrounds();
  connect(sheets_, &QStackedWidget::currentChanged, this, [this] { ShareRoom(); });
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, kWindowMargin);
  column->setSpacing(kWindowMargin);
  QLayout* foot = BuildFoot(quit);
  // Made after all controls: the tab key comes to it last.
  ownFace_ = makeOwnFace(screen, this);
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
  AddPictureKeys(*this, screen);
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
    auto* again = new QShortcut(QKeySequence(Qt::CTRL | key), this);
    connect(again, &QShortcut::activated, this, [this] { screen_.CalculateAgain(); });
  }
  SizeToScreen();
}

void ScreenWindow::FollowPointerOverBackgrounds() {
  std::vector<QWidget*> grounds{this};
  for (const SheetView& view : sheets_->views()) {
    grounds.push_back(view.flow);
    for (QWidget* column :
         view.flow->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
      grounds.push_back(column);
    }
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
  auto* bar = helpPlace != nullptr ? new HelpBar(this) : nullptr;
  if (report != nullptr) {
    auto* panel = new ReportPanel(*report, this);
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
  foot->addLayout(row);
  return foot;
}

QLayout* ScreenWindow::BesideOwnFace() {
  auto* row = new QHBoxLayout;
  row->setContentsMargins(0, 0, kWindowMargin, 0);
  row->setSpacing(0);
  sheets_->setFixedWidth(sheets_->WantedWidth() + BarWidth(*sheets_));
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
