#include "ui/sheet_stack.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "core/panel.h"
#include "ui/control_faces.h"
#include "ui/frame_panel.h"
#include "ui/qt_text.h"

namespace veldox {
namespace {

constexpr int kMargin = 6;
constexpr int kGap = 5;
constexpr double kNameGrowth = 1.15;
constexpr int kCloseDigits = 13;  ///< width of a closing command

QLabel* MakeName(const WindowLook& look, QWidget* parent) {
  auto* name = new QLabel(parent);
  look.DressLabel(*name);
  name->setTextFormat(Qt::PlainText);
  QFont font = name->font();
  font.setBold(true);
  font.setPointSizeF(font.pointSizeF() * kNameGrowth);
  name->setFont(font);
  name->setContentsMargins(2 * kMargin, kMargin, kMargin, 0);
  return name;
}

}  // namespace

SheetStack::SheetStack(FaceSet& faces, std::vector<const Control*> placed, QWidget* parent)
    : QStackedWidget(parent), faces_(faces), placed_(std::move(placed)) {
  std::vector<Frame*> frames;
  for (Frame* frame : faces_.screen().frames()) AppendFrames(*frame, frames);
  if (faces_.screen().pages().empty()) {
    main_ = AddSheet(nullptr, frames, this);
  } else {
    main_ = new QWidget(this);
    BuildPages(main_);
  }
  addWidget(main_);
  for (veldox::Panel* panel : faces_.screen().panels()) BuildPanel(*panel);
}

QWidget* SheetStack::AddSheet(Frame* frame, const std::vector<Frame*>& frames, QWidget* parent) {
  auto* scroll = new FlowScroll(parent);
  auto* flow = new ColumnFlow(kMargin, kGap, scroll);
  for (QWidget* column : BuildFrameColumns(faces_, frames, placed_, kGap, flow, frame)) {
    flow->Add(column);
  }
  scroll->setWidget(flow);
  views_.push_back({frame, scroll, scroll, flow});
  return scroll;
}

namespace {

/// True for a page that has a button.
bool IsTurnedTo(const Screen& screen, const ScreenPage& page) {
  return std::ranges::any_of(screen.controls(), [&](const Control* control) {
    const auto* command = dynamic_cast<const Command*>(control);
    return command != nullptr && command->page() == &page;
  });
}

}  // namespace

QWidget* SheetStack::BuildPages(QWidget* page) {
  auto* pile = new QVBoxLayout(page);
  pile->setContentsMargins(0, 0, 0, 0);
  pile->setSpacing(0);
  auto* strip = new ColumnFlow(kMargin, kGap, page);
  std::vector<Frame*> frames;
  for (Frame* frame : faces_.screen().frames()) AppendFrames(*frame, frames);
  for (QWidget* column : BuildFrameColumns(faces_, frames, placed_, kGap, strip)) {
    strip->Add(column);
  }
  strip->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  strip_ = strip;
  pile->addWidget(strip);
  pages_ = new QStackedWidget(page);
  pile->addWidget(pages_, 1);
  for (ScreenPage* each : faces_.screen().pages()) {
    auto* sheet = new QWidget(pages_);
    auto* inside = new QVBoxLayout(sheet);
    inside->setContentsMargins(0, 0, 0, 0);
    inside->setSpacing(0);
    QLabel* name = MakeName(faces_.look(), sheet);
    inside->addWidget(name);
    // The page that a screen opens with, and that no button turns to, goes by the window's title.
    if (!IsTurnedTo(faces_.screen(), *each)) name->hide();
    std::vector<Frame*> own;
    AppendFrames(*each, own);
    inside->addWidget(AddSheet(each, own, sheet), 1);
    views_.back().page = sheet;
    pages_->addWidget(sheet);
    faces_.Make<SheetFace>(*each, *this, sheet, name);
  }
  return page;
}

void SheetStack::BuildPanel(veldox::Panel& panel) {
  auto* sheet = new QWidget(this);
  auto* pile = new QVBoxLayout(sheet);
  pile->setContentsMargins(0, 0, 0, 0);
  pile->setSpacing(0);
  QLabel* name = MakeName(faces_.look(), sheet);
  pile->addWidget(name);
  Command* close = panel.closingCommand();
  if (close != nullptr) placed_.push_back(close);
  std::vector<Frame*> frames;
  AppendFrames(panel, frames);
  pile->addWidget(AddSheet(&panel, frames, sheet), 1);
  views_.back().page = sheet;
  if (close != nullptr) {
    auto* row = new QHBoxLayout;
    row->setContentsMargins(kMargin, kGap, kMargin, 0);
    row->addStretch(1);
    QWidget* button = faces_.Make<CommandFace>(*close, sheet).button();
    button->setMinimumWidth(fontMetrics().horizontalAdvance(QLatin1Char('0')) * kCloseDigits);
    row->addWidget(button);
    pile->addLayout(row);
  }
  addWidget(sheet);
  faces_.Make<SheetFace>(panel, *this, sheet, name);
}

const SheetView& SheetStack::current() const {
  const auto shows = [&](const SheetView& view) {
    const bool inPages = pages_ != nullptr && currentWidget() == main_;
    return view.page == (inPages ? pages_->currentWidget() : currentWidget());
  };
  return *std::ranges::find_if(views_, shows);
}

int SheetStack::Around(const SheetView& view) const {
  int height = 0;
  if (view.page != view.scroll) {
    height += view.page->minimumSizeHint().height() - view.scroll->minimumSizeHint().height();
  }
  const bool isPage = pages_ != nullptr && pages_->indexOf(view.page) >= 0;
  if (isPage) height += strip_->sizeHint().height();
  return height;
}

int SheetStack::WantedHeight(const SheetView& view, int width) const {
  return view.flow->WantedHeight(width) + Around(view);
}

int SheetStack::WantedWidth() const {
  int width = strip_ == nullptr ? 0 : strip_->sizeHint().width();
  for (const SheetView& view : views_) width = std::max(width, view.flow->sizeHint().width());
  return width;
}

void SheetStack::Follow() {
  const Screen& screen = faces_.screen();
  QWidget* shown = main_;
  for (const SheetView& view : views_) {
    if (view.frame == nullptr) continue;
    if (view.frame == screen.topPanel()) shown = view.page;
  }
  QWidget* page = nullptr;
  for (const SheetView& view : views_) {
    const bool isPage = pages_ != nullptr && pages_->indexOf(view.page) >= 0;
    if (isPage && view.frame->visible()) page = view.page;
  }
  if (indexOf(shown) < 0) return;  // it is being built
  if (shown == currentWidget() && (page == nullptr || page == pages_->currentWidget())) return;
  // The keyboard must not jump to what stands next when a sheet goes.
  if (currentWidget() != nullptr && shown != currentWidget() &&
      currentWidget()->isAncestorOf(window()->focusWidget())) {
    window()->setFocus(Qt::OtherFocusReason);
  }
  if (page != nullptr) pages_->setCurrentWidget(page);
  setCurrentWidget(shown);
}

SheetFace::SheetFace(FaceSet& set, Frame& frame, SheetStack& stack, QWidget* page, QLabel* name)
    : Face(set, frame, page), stack_(stack), name_(name) {}

void SheetFace::Follow() {
  // Where a panel was opened from stands before its name: there its closing command leads.
  QString path;
  for (const Panel* below : control().screen().openPanels()) {
    if (below == &control()) break;
    path += ToQt(below->PlainCaption()) + QString::fromUtf8("  \u203a  ");
  }
  name_->setText(path + ToQt(control().PlainCaption()));
  widget()->setAccessibleName(ToQt(control().PlainCaption()));
  stack_.Follow();
  if (dynamic_cast<const ScreenPage*>(&control()) == nullptr) return;
  for (const auto& face : set().all()) {
    if (auto* command = dynamic_cast<CommandFace*>(face.get())) command->FollowPage();
  }
}

}  // namespace veldox
