#include "ui/main_window.h"

#include <QAction>
#include <QCloseEvent>
#include <QMenu>
#include <QScreen>
#include <QScrollArea>
#include <QVBoxLayout>
#include <algorithm>

#include "ui/column_flow.h"
#include "ui/control_faces.h"
#include "ui/file_drop.h"
#include "ui/frame_panel.h"
#include "ui/help_bar.h"
#include "ui/launcher.h"
#include "ui/menu_rows.h"
#include "ui/preview_line.h"
#include "ui/qt_text.h"
#include "ui/screen_window.h"
#include "ui/step_keys.h"
#include "ui/title_area.h"
#include "ui/window_picture.h"
#include "ui/window_place.h"

namespace veldox {
namespace {

constexpr QSize kPreferredSize(1000, 600);
constexpr int kNarrowest = 700;
constexpr int kMargin = 10;
/// Under the line of previews, which has room of its own around its letters.
constexpr int kFootMargin = 1;

}  // namespace

/// Stands for a panel that takes the launcher's place; its widgets are made when it is
/// first shown.
class MainWindow::PanelFace : public ControlFace {
 public:
  PanelFace(MainWindow& window, std::vector<Frame*> frames)
      : window_(window), frames_(std::move(frames)) {
    Watch();
  }
  ~PanelFace() override { frame().SetFace(nullptr); }

  /// The frame that shows and goes with the panel.
  Frame& frame() const { return *frames_.front(); }
  const std::vector<Frame*>& frames() const { return frames_; }
  void Watch() { frame().SetFace(this); }
  QWidget* page = nullptr;

  void ControlChanged(Control&) override { window_.ShowPanel(*this); }
  void FocusRequested(Control&) override {}

 private:
  MainWindow& window_;
  std::vector<Frame*> frames_;
};

MainWindow::MainWindow(Shell& shell) : shell_(shell), faces_(shell), menu_(new MenuRows(this)) {
  setObjectName(ToQt(shell.name()));
  setWindowTitle(ToQt(shell.title()));
  for (const MenuItem& item : Shell::Menu()) {
    if (item.parent.empty()) menu_->Add(MakeAction(item, this));
  }
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(menu_);
  for (const ScreenPart* panel : shell_.Panels()) {
    panels_.push_back(std::make_unique<PanelFace>(*this, panel->frames()));
  }
  BuildBody();

  AddPictureKeys(*this, shell);
  AddStepKeys(*this, shell.context().history);
  setMinimumWidth(kNarrowest);
  AcceptFiles(*this, shell);
  resize(FittingSize(*this, kPreferredSize));
  ownSize_ = size();
  const QRect room = screen()->availableGeometry();
  move(room.center() - rect().center());
  shell_.SetShellFace(this);
}

MainWindow::~MainWindow() {
  shell_.SetShellFace(nullptr);
}

void MainWindow::BuildBody() {
  body_ = new QWidget(this);
  title_ = new TitleArea(shell_, faces_, body_);
  auto* fileName = faces_.Make<LabelFace>(shell_.Label8, body_).label();
  fileName->setAlignment(Qt::AlignHCenter);
  faces_.look().DressLabel(*fileName);
  BuildPages();
  auto* help = new HelpBar(faces_.look(), body_);
  faces_.Make<HelpFace>(shell_.Label77, help);
  auto* pile = new QVBoxLayout(body_);
  pile->setContentsMargins(kMargin, 0, kMargin, kFootMargin);
  pile->setSpacing(8);
  pile->addWidget(title_);
  pile->addWidget(fileName);
  pile->addWidget(pages_, 1);
  // What stands in the launcher's place has commands too.
  auto* foot = new QVBoxLayout;
  foot->setSpacing(0);
  foot->addWidget(help);
  foot->addWidget(MakePreviewLine(faces_, body_, CommandRole::Serves));
  pile->addLayout(foot);
  static_cast<QBoxLayout*>(layout())->addWidget(body_, 1);
}

void MainWindow::SetAppearance(const Appearance& appearance) {
  if (appearance == faces_.look().appearance()) return;
  // The controls let go first: what their widgets do while they end is not the user's doing.
  faces_.Clear();
  for (const auto& panel : panels_) panel->page = nullptr;
  pages_ = nullptr;
  delete body_;
  faces_.SetLook(WindowLook(appearance));
  BuildBody();
  body_->show();
  for (const auto& panel : panels_) {
    panel->Watch();
    if (panel->frame().visible()) ShowPanel(*panel);
  }
}

void MainWindow::BuildPages() {
  pages_ = new QStackedWidget(body_);
  auto* scroll = new QScrollArea(pages_);
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setFocusPolicy(Qt::NoFocus);
  scroll->setWidgetResizable(true);
  scroll->setWidget(new Launcher(
      shell_, [this](const MenuItem& item) { shell_.Choose(item); }, faces_.look(), scroll));
  pages_->addWidget(scroll);
}

QWidget* MainWindow::BuildReport(ReportBox& box) {
  auto* panel = new ReportPanel(box, faces_.look(), pages_);
  faces_.Make<ReportFace>(box, panel, nullptr);
  return panel;
}

QWidget* MainWindow::BuildPanel(PanelFace& panel) {
  for (Control* control : panel.frame().controls()) {
    if (control->kind() == ControlKind::ReportBox) {
      return BuildReport(static_cast<ReportBox&>(*control));
    }
  }
  // A text or a list takes all the room there is; fields stand close together.
  const auto& controls = panel.frame().controls();
  const bool takesRoom = std::any_of(controls.begin(), controls.end(), [](const Control* control) {
    return control->kind() == ControlKind::TextArea || control->kind() == ControlKind::PickList;
  });
  if (panel.frames().size() == 1 && takesRoom)
    return new FramePanel(faces_, panel.frame(), {}, pages_);
  auto* scroll = new FlowScroll(pages_);
  auto* body = new ColumnFlow(0, kMargin, scroll);
  for (QWidget* column : BuildFrameColumns(faces_, panel.frames(), {}, kMargin, body)) {
    body->Add(column);
  }
  scroll->setWidget(body);
  panel.Watch();
  return scroll;
}

void MainWindow::ShowPanel(PanelFace& panel) {
  if (!panel.frame().visible()) {
    if (pages_->currentWidget() != panel.page) return;
    // What another panel has covered is back in sight.
    const auto covered = std::find_if(panels_.begin(), panels_.end(), [&](const auto& other) {
      return other->page != nullptr && other->frame().visible();
    });
    pages_->setCurrentWidget(covered == panels_.end() ? pages_->widget(0) : (*covered)->page);
    return;
  }
  if (panel.page == nullptr) {
    panel.page = BuildPanel(panel);
    panel.page->setObjectName(ToQt(panel.frame().name()));
    pages_->addWidget(panel.page);
    OrderTabs(faces_);
  }
  pages_->setCurrentWidget(panel.page);
}

QAction* MainWindow::MakeAction(const MenuItem& item, QWidget* owner) {
  QAction* action = nullptr;
  if (item.kind == MenuKind::Submenu) {
    auto* menu = new QMenu(owner);
    menu->setToolTipsVisible(true);
    action = menu->menuAction();
    connect(menu, &QMenu::aboutToShow, this, [this, menu, name = item.name] {
      Fill(*menu, name);
      // What can be chosen depends on the screens that are open.
      for (const MenuItem& child : Shell::Menu()) {
        if (child.parent == name) ActionOf(child);
      }
    });
  } else {
    action = new QAction(owner);
    action->setSeparator(item.kind == MenuKind::Separator);
    connect(action, &QAction::triggered, this, [this, &item] { shell_.Choose(item); });
  }
  action->setObjectName(ToQt(item.name));
  UpdateAction(*action, item);
  return action;
}

void MainWindow::UpdateAction(QAction& action, const MenuItem& item) {
  if (item.kind == MenuKind::Separator) return;
  action.setText(ToQt(shell_.MenuCaption(item)));
  action.setEnabled(shell_.MenuEnabled(item));
  action.setVisible(shell_.MenuVisible(item));
  if (const std::optional<bool> ticked = shell_.MenuTicked(item)) {
    action.setCheckable(true);
    action.setChecked(*ticked);
  }
  action.setToolTip(action.isEnabled() ? QString() : QString::fromLatin1(kNotAvailable));
}

void MainWindow::Fill(QMenu& menu, std::string_view name) {
  if (!menu.isEmpty()) return;
  for (const MenuItem& item : Shell::Menu()) {
    if (item.parent == name) menu.addAction(MakeAction(item, &menu));
  }
}

QAction* MainWindow::ActionOf(const MenuItem& item) {
  const QString name = ToQt(item.name);
  if (const MenuItem* parent = Shell::FindMenuItem(item.parent); parent != nullptr) {
    QMenu* menu = ActionOf(*parent)->menu();
    Fill(*menu, parent->name);
    for (QAction* action : menu->actions()) {
      if (action->objectName() != name) continue;
      UpdateAction(*action, item);
      return action;
    }
  }
  for (const MenuRow* row : menu_->rows()) {
    for (QAction* action : row->actions()) {
      if (action->objectName() == name) return action;
    }
  }
  return nullptr;
}

void MainWindow::MenuChanged() {
  for (const MenuItem& item : Shell::Menu()) {
    if (auto* action = findChild<QAction*>(ToQt(item.name))) UpdateAction(*action, item);
  }
}

void MainWindow::AppearanceChanged() {
  if (lookChanged_) lookChanged_();
}

void MainWindow::LookChanged() {
  if (themeChanged_) themeChanged_();
}

void MainWindow::TitleChanged() {
  setWindowTitle(ToQt(shell_.WindowTitle()));
}

void MainWindow::Ended() {
  shell_.settings().places[shell_.name()] = PlaceOf(*this, size() != ownSize_);
  title_->Finish();
  close();
}

void MainWindow::closeEvent(QCloseEvent* event) {
  if (!shell_.ended()) shell_.CloseWindow();
  event->setAccepted(shell_.ended());
}

void MainWindow::changeEvent(QEvent* event) {
  if (event->type() == QEvent::WindowStateChange && isMinimized()) shell_.Minimised();
  QWidget::changeEvent(event);
}

}  // namespace veldox
