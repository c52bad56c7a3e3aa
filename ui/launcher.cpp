#include "ui/launcher.h"

#include <QPushButton>
#include <QResizeEvent>
#include <QVBoxLayout>
#include <algorithm>

#include "ui/face.h"
#include "ui/qt_text.h"
#include "ui/widget_help.h"

namespace veldox {
namespace {

constexpr int kGroupWidth = 210;
constexpr int kMostColumns = 4;
constexpr int kGap = 10;

}  // namespace

Launcher::Launcher(Shell& shell, const Chooser& choose, const WindowLook& look, QWidget* parent)
    : QWidget(parent), grid_(new QGridLayout(this)) {
  grid_->setContentsMargins(0, 0, 0, 0);
  grid_->setSpacing(kGap);
  std::string_view subject;
  QGroupBox* group = nullptr;
  for (const LauncherItem& item : Shell::Launcher()) {
    const MenuItem* menuItem = Shell::FindMenuItem(item.menuItem);
    if (menuItem == nullptr) continue;
    if (group == nullptr || item.subject != subject) {
      subject = item.subject;
      group = AddGroup(subject);
      look.DressLabel(*group);
    }
    auto* button = new QPushButton(ToQt(item.text), group);
    button->setObjectName(QStringLiteral("Launch_") + ToQt(item.menuItem));
    look.DressCommand(*button, false);
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    button->setMinimumHeight(button->sizeHint().height() * 5 / 4);
    button->setEnabled(shell.MenuEnabled(*menuItem));
    GiveHelp(*button, shell, ToQt(item.help));
    if (!button->isEnabled()) button->setToolTip(QLatin1String(kNotAvailable));
    connect(button, &QPushButton::clicked, this, [choose, menuItem] { choose(*menuItem); });
    group->layout()->addWidget(button);
  }
  for (QGroupBox* made : groups_) static_cast<QVBoxLayout*>(made->layout())->addStretch(1);
  Arrange(kMostColumns);
}

QGroupBox* Launcher::AddGroup(std::string_view subject) {
  auto* group = new QGroupBox(ToQt(subject), this);
  auto* column = new QVBoxLayout(group);
  column->setContentsMargins(0, 2, 0, 0);
  column->setSpacing(6);
  groups_.push_back(group);
  return group;
}

void Launcher::resizeEvent(QResizeEvent* event) {
  int width = kGroupWidth;
  for (const QGroupBox* group : groups_) width = std::max(width, group->sizeHint().width());
  Arrange(std::clamp((event->size().width() + kGap) / (width + kGap), 1, kMostColumns));
}

void Launcher::Arrange(int columns) {
  if (columns == columns_) return;
  columns_ = columns;
  const int count = static_cast<int>(groups_.size());
  for (int i = 0; i < std::max(count, kMostColumns); ++i) {
    grid_->setColumnStretch(i, i < columns ? 1 : 0);
    grid_->setRowStretch(i, 0);
  }
  for (int i = 0; i < count; ++i) {
    grid_->addWidget(groups_[static_cast<std::size_t>(i)], i / columns, i % columns);
  }
  grid_->setRowStretch((count + columns - 1) / columns, 1);
}

}  // namespace veldox
