#include "ui/handbook_window.h"

#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QImage>
#include <QScrollBar>
#include <QShortcut>
#include <QTextBlock>
#include <QTextDocument>
#include <QUrl>
#include <algorithm>

#include "ui/screen_window.h"

namespace veldox {
namespace {

constexpr QSize kPreferredSize(1100, 700);
constexpr int kWidestPicture = 800;  ///< pixels
constexpr int kChaptersWidth = 210;  ///< pixels
constexpr int kMargin = 6;
/// The headings that the list shows: those of the chapters.
constexpr int kChapterLevel = 2;

}  // namespace

QString FindHandbook(const QString& programFolder) {
  const QDir folder(programFolder);
  for (const char* place : {"../share/veldox/handbook/handbook.md", "../docs/handbook.md",
                            "../../docs/handbook.md", "../../../docs/handbook.md"}) {
    QString file = QDir::cleanPath(folder.filePath(QLatin1String(place)));
    if (QFileInfo::exists(file)) return file;
  }
  return {};
}

QVariant HandbookText::loadResource(int type, const QUrl& name) {
  QVariant loaded = QTextBrowser::loadResource(type, name);
  if (type != QTextDocument::ImageResource) return loaded;
  QImage picture = loaded.value<QImage>();
  if (picture.isNull()) picture.loadFromData(loaded.toByteArray());
  if (picture.width() <= kWidestPicture) return picture;
  return picture.scaledToWidth(kWidestPicture, Qt::SmoothTransformation);
}

HandbookWindow::HandbookWindow(const QString& file)
    : chapters_(new QListWidget(this)), text_(new HandbookText(this)) {
  setObjectName(QStringLiteral("Handbook"));
  setWindowTitle(QStringLiteral("VELDOX Handbook"));
  chapters_->setFixedWidth(kChaptersWidth);
  chapters_->setAccessibleName(QStringLiteral("Chapters"));
  text_->setAccessibleName(QStringLiteral("Handbook"));
  text_->setOpenExternalLinks(false);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  row->setSpacing(kMargin);
  row->addWidget(chapters_);
  row->addWidget(text_, 1);
  text_->setSource(QUrl::fromLocalFile(file), QTextDocument::MarkdownResource);
  ListChapters();
  connect(chapters_, &QListWidget::currentRowChanged, this, [this](int chapter) { GoTo(chapter); });
  auto* close = new QShortcut(QKeySequence(Qt::Key_Escape), this);
  connect(close, &QShortcut::activated, this, &QWidget::close);
  resize(FittingSize(*this, kPreferredSize));
}

void HandbookWindow::ListChapters() {
  for (QTextBlock block = text_->document()->begin(); block.isValid(); block = block.next()) {
    const int level = block.blockFormat().headingLevel();
    if (level == 0 || level > kChapterLevel) continue;
    auto* chapter = new QListWidgetItem(block.text(), chapters_);
    chapter->setData(Qt::UserRole, block.position());
  }
}

void HandbookWindow::GoTo(int chapter) {
  const QListWidgetItem* item = chapters_->item(chapter);
  if (item == nullptr) return;
  QTextCursor cursor(text_->document());
  cursor.setPosition(item->data(Qt::UserRole).toInt());
  text_->setTextCursor(cursor);
  // The heading stands at the top.
  text_->verticalScrollBar()->setValue(text_->verticalScrollBar()->value() +
                                       text_->cursorRect().top());
}

}  // namespace veldox
