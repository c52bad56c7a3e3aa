#pragma once

#include <QListWidget>
#include <QString>
#include <QTextBrowser>
#include <QWidget>

namespace veldox {

/// Where the handbook lies: beside an installed program, or in the folder it was built in. Empty
/// where it is in neither.
QString FindHandbook(const QString& programFolder);

/// The text of the handbook, with pictures no wider than the window.
class HandbookText : public QTextBrowser {
 public:
  explicit HandbookText(QWidget* parent) : QTextBrowser(parent) {}
  QVariant loadResource(int type, const QUrl& name) override;
};

/// Shows the handbook: its chapters at the left, its text beside them.
class HandbookWindow : public QWidget {
 public:
  /// @param file  the handbook, a Markdown text
  explicit HandbookWindow(const QString& file);

  const QListWidget& chapters() const { return *chapters_; }
  const HandbookText& text() const { return *text_; }

 private:
  void ListChapters();
  void GoTo(int chapter);

  QListWidget* chapters_;
  HandbookText* text_;
};

}  // namespace veldox
