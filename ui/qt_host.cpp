#include "ui/qt_host.h"

#include <QApplication>
#include <QCloseEvent>
#include <QColorDialog>
#include <QDateTime>
#include <QDir>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDialog>
#include <QFontInfo>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLocale>
#include <QMessageBox>
#include <QProgressDialog>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStandardPaths>
#include <algorithm>
#include <vector>

#include "ui/handbook_window.h"
#include "ui/qt_printer.h"
#include "ui/qt_text.h"
#include "ui/theme.h"
#include "ui/window_look.h"

namespace veldox {
namespace {

QMessageBox::Icon QtIcon(Icon icon) {
  switch (icon) {
    case Icon::Information: return QMessageBox::Information;
    case Icon::Warning: return QMessageBox::Warning;
    case Icon::Question: return QMessageBox::Question;
    case Icon::Error: return QMessageBox::Critical;
    case Icon::None: break;
  }
  return QMessageBox::NoIcon;
}

QMessageBox::StandardButton QtButton(Button button) {
  switch (button) {
    case Button::OK: return QMessageBox::Ok;
    case Button::Cancel: return QMessageBox::Cancel;
    case Button::Yes: return QMessageBox::Yes;
    case Button::No: return QMessageBox::No;
  }
  return QMessageBox::Ok;
}

/// A box that is left by its buttons only, where none of them means that nothing is done:
/// Escape and the close box do not stand for a No.
class AnsweredBox : public QMessageBox {
 public:
  AnsweredBox(const std::vector<veldox::Button>& buttons, QWidget* parent)
      : QMessageBox(parent),
        canEscape_(buttons.size() < 2 || std::find(buttons.begin(), buttons.end(),
                                                   veldox::Button::Cancel) != buttons.end()) {}

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_Escape && !canEscape_) return;
    QMessageBox::keyPressEvent(event);
  }
  void closeEvent(QCloseEvent* event) override {
    if (!canEscape_) {
      event->ignore();
      return;
    }
    QMessageBox::closeEvent(event);
  }

 private:
  bool canEscape_;
};

/// Lets a text that is higher than the screen scroll inside its box.
void KeepOnScreen(QMessageBox& box) {
  const QSize room = box.screen()->availableSize();
  auto* text = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
  if (text == nullptr || box.sizeHint().height() < room.height() * 9 / 10) return;
  auto* scroll = new QScrollArea(&box);
  scroll->setFrameShape(QFrame::NoFrame);
  box.layout()->replaceWidget(text, scroll);
  scroll->setWidget(text);
  scroll->setWidgetResizable(true);
  text->setWordWrap(true);
  const int bar = scroll->verticalScrollBar()->sizeHint().width();
  scroll->setMinimumSize(std::min(room.width() / 2, text->sizeHint().width() + bar + 16),
                         room.height() * 6 / 10);
}

struct FileKind {
  QString filter;     ///< as the toolkit writes it: Name (*.x *.y)
  QString extension;  ///< ".x", empty for all files
};

/// The kinds of a filter written "Name (*.x)|*.x|Name2 (*.y)|*.y".
std::vector<FileKind> SplitFilter(const std::string& filter) {
  std::vector<FileKind> kinds;
  const QStringList parts = ToQt(filter).split(QLatin1Char('|'));
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    QString name = parts[i];
    if (const qsizetype bracket = name.indexOf(QLatin1String(" (")); bracket > 0) {
      name.truncate(bracket);
    }
    const QStringList patterns = parts[i + 1].split(QLatin1Char(';'), Qt::SkipEmptyParts);
    FileKind kind{name + QLatin1String(" (") + patterns.join(QLatin1Char(' ')) + QLatin1Char(')'),
                  {}};
    const QString first = patterns.isEmpty() ? QString() : patterns.first().trimmed();
    if (first.startsWith(QLatin1String("*.")) && !first.endsWith(QLatin1Char('*'))) {
      kind.extension = first.mid(1);
    }
    kinds.push_back(std::move(kind));
  }
  return kinds;
}

bool ConfirmOverwrite(const QString& file) {
  QMessageBox box(
      QMessageBox::Warning, QStringLiteral("Save"),
      QFileInfo(file).fileName() + QStringLiteral(" already exists.\nDo you want to replace it?"),
      QMessageBox::Yes | QMessageBox::No, QApplication::activeWindow());
  box.setDefaultButton(QMessageBox::No);
  return box.exec() == QMessageBox::Yes;
}

}  // namespace

Button QtHost::Ask(const Message& message) {
  AnsweredBox box(message.buttons, QApplication::activeWindow());
  box.setIcon(QtIcon(message.icon));
  box.setWindowTitle(ToQt(message.title));
  box.setTextFormat(Qt::PlainText);
  box.setText(ToQtLines(message.text));
  for (const Button button : message.buttons) box.addButton(QtButton(button));
  if (!message.buttons.empty()) box.setDefaultButton(QtButton(message.buttons.front()));
  KeepOnScreen(box);
  // A long command may have put up the hourglass; the box has to be answered first.
  const bool busy = QGuiApplication::overrideCursor() != nullptr;
  if (busy) QGuiApplication::setOverrideCursor(Qt::ArrowCursor);
  const int answer = box.exec();
  if (busy) QGuiApplication::restoreOverrideCursor();
  for (const Button button : message.buttons) {
    if (QtButton(button) == answer) return button;
  }
  return message.buttons.empty() ? Button::OK : message.buttons.back();
}

std::optional<std::filesystem::path> QtHost::AskFile(const FileDialog& dialog) {
  const std::vector<FileKind> kinds = SplitFilter(dialog.filter);
  const bool save = dialog.kind == FileDialog::Kind::Save;
  QFileDialog box(QApplication::activeWindow(),
                  save ? QStringLiteral("Save") : QStringLiteral("Open"),
                  QFile::decodeName(dialog.folder.c_str()));
  box.setAcceptMode(save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  box.setFileMode(save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  QStringList filters;
  for (const FileKind& kind : kinds) filters.append(kind.filter);
  box.setNameFilters(filters);
  if (dialog.filterIndex >= 1 && dialog.filterIndex <= filters.size()) {
    box.selectNameFilter(filters[dialog.filterIndex - 1]);
  }
  while (box.exec() == QDialog::Accepted && !box.selectedFiles().isEmpty()) {
    QString file = box.selectedFiles().first();
    // The suffix is put on here and not by the dialog, so that the file which is really
    // written is the one asked about.
    if (save && QFileInfo(file).suffix().isEmpty()) {
      const qsizetype chosen = filters.indexOf(box.selectedNameFilter());
      const QString extension =
          chosen < 0 ? QString() : kinds[static_cast<std::size_t>(chosen)].extension;
      if (!extension.isEmpty()) {
        file += extension;
        if (QFileInfo::exists(file) && !ConfirmOverwrite(file)) continue;
      }
    }
    return std::filesystem::path(QFile::encodeName(QDir::toNativeSeparators(file)).toStdString());
  }
  return std::nullopt;
}

std::optional<FontChoice> QtHost::AskFont() {
  bool chosen = false;
  const QFont font = QFontDialog::getFont(&chosen, QApplication::activeWindow());
  if (!chosen) return std::nullopt;
  return FontChoice{FromQt(font.family()), QFontInfo(font).pointSize(), font.bold(), font.italic()};
}

std::optional<std::int32_t> QtHost::AskColor() {
  const QColor color = QColorDialog::getColor(Qt::white, QApplication::activeWindow());
  if (!color.isValid()) return std::nullopt;
  return FromQColor(color);
}

ClockTime QtHost::Now() {
  const QDateTime now = QDateTime::currentDateTime();
  const QDate date = now.date();
  const QTime time = now.time();
  return {date.year(), date.month(), date.day(), time.hour(), time.minute(), time.second()};
}

DecimalMark QtHost::SystemDecimalMark() {
  return QLocale::system().decimalPoint() == QLatin1String(",") ? DecimalMark::Comma
                                                                : DecimalMark::Point;
}

std::filesystem::path QtHost::ProgramFolder() {
  QString folder = QCoreApplication::applicationDirPath();
  if (!QFileInfo(folder).isWritable()) {
    folder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    QDir().mkpath(folder);
  }
  return std::filesystem::path(QFile::encodeName(folder).toStdString());
}

std::filesystem::path QtHost::SettingsFile() {
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation);
  if (folder.isEmpty()) return {};
  return std::filesystem::path(
      QFile::encodeName(folder + QStringLiteral("/settings.txt")).toStdString());
}

void QtHost::ShowHandbook() {
  const QString file = FindHandbook(QCoreApplication::applicationDirPath());
  if (file.isEmpty()) {
    throw CommandError(ErrorKind::File,
                       "The handbook is not there: handbook.md lies neither beside the installed "
                       "program nor in the folder docs.");
  }
  if (handbook_ == nullptr) {
    handbook_ = new HandbookWindow(file);
    handbook_->setAttribute(Qt::WA_DeleteOnClose);
    // The program ends with its main window.
    handbook_->setAttribute(Qt::WA_QuitOnClose, false);
  }
  handbook_->show();
  handbook_->raise();
  handbook_->activateWindow();
}

ScreenSize QtHost::MeasureScreen() {
  const QScreen* screen = QGuiApplication::primaryScreen();
  if (screen == nullptr) return {};
  const double scale = screen->devicePixelRatio();
  return {qRound(screen->geometry().width() * scale), qRound(screen->geometry().height() * scale),
          qRound(screen->logicalDotsPerInch() * scale), scale};
}

PlainColors QtHost::OwnColors() {
  const QPalette palette = QApplication::palette();
  return {FromQColor(ThemeColors(palette).card), FromQColor(palette.color(QPalette::WindowText)),
          FromQColor(palette.color(QPalette::ButtonText))};
}

std::unique_ptr<PageSurface> QtHost::OpenPrinter(PageJob job) {
  return OpenPrinterByDialog(job, QApplication::activeWindow());
}

void QtHost::PreviewPages(PageJob job, const PageDrawing& draw) {
  PreviewByDialog(job, draw, QApplication::activeWindow());
}

void QtHost::PrintGraph() {
  PictureRequest request;
  request.screen = "Form8";
  Pictures("The graph cannot be printed: its window has gone.").PrintPicture(request);
}

void QtHost::PrintWindow(const std::string& screen) {
  PictureRequest request;
  request.of = PictureRequest::Of::Window;
  request.screen = screen;
  Pictures("The screen cannot be printed: its window has gone.").PrintPicture(request);
}

void QtHost::SetUpPrinter() {
  SetUpPrinterByDialog(QApplication::activeWindow());
}

void QtHost::SetBusy(bool busy) {
  if (busy) {
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  } else {
    QGuiApplication::restoreOverrideCursor();
  }
}

namespace {

/// A bar with Cancel, which comes into sight where something takes more than half a second.
class ProgressBox : public Progress {
 public:
  ProgressBox(const QString& what, std::size_t all)
      : box_(what, QStringLiteral("Cancel"), 0, static_cast<int>(all),
             QApplication::activeWindow()) {
    constexpr int kQuiet = 500;  // milliseconds
    box_.setObjectName(QStringLiteral("Progress"));
    box_.setWindowTitle(QGuiApplication::applicationDisplayName());
    box_.setWindowModality(Qt::ApplicationModal);
    box_.setMinimumDuration(kQuiet);
    since_.start();
  }

  bool GoOn(std::size_t done) override {
    // A bar that moves more often is not seen better, and slows down what it tells of.
    constexpr qint64 kFrame = 40;  // milliseconds
    if (since_.elapsed() < kFrame) return true;
    since_.restart();
    box_.setValue(static_cast<int>(done));
    return !box_.wasCanceled();
  }

 private:
  QProgressDialog box_;
  QElapsedTimer since_;
};

}  // namespace

std::unique_ptr<Progress> QtHost::ShowProgress(const std::string& what, std::size_t all) {
  return std::make_unique<ProgressBox>(ToQt(what), all);
}

}  // namespace veldox
