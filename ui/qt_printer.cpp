#include "ui/qt_printer.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFontMetricsF>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <algorithm>
#include <exception>

#include "core/pages.h"
#include "ui/qt_text.h"

namespace veldox {

namespace {

constexpr double kTwipsPerInch = 1440;
constexpr int kTwipsPerPoint = 20;

QString FamilyOf(const std::string& name) {
  return ToQt(name);
}

QFont::StyleHint HintOf(const std::string& name) {
  return name == "Courier" ? QFont::TypeWriter : QFont::SansSerif;
}

bool IsLandscape(const QPagedPaintDevice& device) {
  return device.pageLayout().orientation() == QPageLayout::Landscape;
}

/// The printer that the user has set up, kept as long as the application lives.
QPrinter& ChosenPrinter() {
  static std::unique_ptr<QPrinter> printer;
  if (printer == nullptr) {
    printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    qAddPostRoutine([] { printer.reset(); });
  }
  return *printer;
}

/// A job on a printer, with the paper as it needs it.
class PrinterJob : private PaperLayout, public PainterPageSurface {
 public:
  PrinterJob(QPrinter& printer, PageJob job)
      : PaperLayout(printer, job), PainterPageSurface(printer, job) {}
};

}  // namespace

PaperLayout::PaperLayout(QPagedPaintDevice& device, PageJob job)
    : device_(device), job_(job), before_(device.pageLayout()) {
  if (job_ != PageJob::Measured) return;
  // A long strip needs the paper to its edges, but for what printers cannot reach.
  constexpr double kNarrowestMargin = 12;  // points
  QPageLayout layout = before_;
  layout.setOrientation(QPageLayout::Landscape);
  layout.setUnits(QPageLayout::Point);
  const QMarginsF least = layout.minimumMargins();
  layout.setMargins(
      {std::max(least.left(), kNarrowestMargin), std::max(least.top(), kNarrowestMargin),
       std::max(least.right(), kNarrowestMargin), std::max(least.bottom(), kNarrowestMargin)});
  device_.setPageLayout(layout);
}

PaperLayout::~PaperLayout() {
  if (job_ != PageJob::Measured) return;
  before_.setOrientation(QPageLayout::Portrait);
  device_.setPageLayout(before_);
}

PainterPageSurface::PainterPageSurface(QPagedPaintDevice& device, PageJob job)
    : device_(device), landscape_(IsLandscape(device)) {
  if (!painter_.begin(&device_)) {
    throw CommandError(ErrorKind::File, "The printer could not be started. Nothing was printed.");
  }
  const SheetSize sheet = PageSheet(landscape_);
  const double unitsPerTwip = device_.logicalDpiX() / kTwipsPerInch;
  // Paper that holds less than the sheet gets it smaller, never cut off.
  scale_ = unitsPerTwip;
  if (job == PageJob::Report) {
    scale_ = std::min({scale_, static_cast<double>(device_.width()) / sheet.width,
                       static_cast<double>(device_.height()) / sheet.height});
  }
  painter_.scale(scale_, scale_);
}

void PainterPageSurface::PlaceText(int x, int y, const PageFont& font, std::string_view text) {
  if (text.empty()) return;
  QFont drawn(FamilyOf(font.name));
  drawn.setStyleHint(HintOf(font.name));
  drawn.setPixelSize(font.size * kTwipsPerPoint);
  drawn.setBold(font.bold);
  drawn.setHintingPreference(QFont::PreferNoHinting);
  const QString line = ToQt(std::string(text));
  const QFontMetricsF metrics(drawn);
  const double natural = metrics.horizontalAdvance(line);
  const double counted = TextWidth(font, text);
  painter_.save();
  painter_.setFont(drawn);
  painter_.translate(x, y + metrics.ascent());
  // Columns must stand where the layout put them, whatever font stands in for the named one.
  if (natural > 0 && counted > 0) painter_.scale(counted / natural, 1);
  painter_.drawText(QPointF(0, 0), line);
  painter_.restore();
}

void PainterPageSurface::PlaceLine(int fromX, int fromY, int toX, int toY, int width) {
  painter_.save();
  painter_.setRenderHint(QPainter::Antialiasing);
  painter_.setPen(QPen(Qt::black, width, Qt::SolidLine, Qt::RoundCap));
  painter_.drawLine(fromX, fromY, toX, toY);
  painter_.restore();
}

void PainterPageSurface::NewPage() {
  if (!device_.newPage()) {
    throw CommandError(ErrorKind::File, "The printer could not begin a new page.");
  }
}

void PainterPageSurface::EndJob() {
  if (!painter_.end()) {
    throw CommandError(ErrorKind::File, "The printer could not finish the job.");
  }
}

QPrinter& ChoosePrinterByDialog(QWidget* parent) {
  QPrintDialog dialog(&ChosenPrinter(), parent);
  dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);
  if (dialog.exec() != QDialog::Accepted) throw CommandError(ErrorKind::Cancelled, "");
  return ChosenPrinter();
}

std::unique_ptr<PageSurface> OpenPrinterByDialog(PageJob job, QWidget* parent) {
  return std::make_unique<PrinterJob>(ChoosePrinterByDialog(parent), job);
}

void SetUpPrinterByDialog(QWidget* parent) {
  QPrintDialog dialog(&ChosenPrinter(), parent);
  dialog.setWindowTitle(QStringLiteral("Printer Setup"));
  if (dialog.exec() != QDialog::Accepted) throw CommandError(ErrorKind::Cancelled, "");
}

void PreviewByDialog(PageJob job, const PageDrawing& draw, QWidget* parent) {
  const PaperLayout layout(ChosenPrinter(), job);
  QPrintPreviewDialog dialog(&ChosenPrinter(), parent);
  dialog.setWindowTitle(QStringLiteral("Print Preview"));
  std::exception_ptr failure;
  QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, &dialog, [&](QPrinter* printer) {
    try {
      PainterPageSurface surface(*printer, job);
      draw(surface);
    } catch (...) {
      // Nothing may pass through the toolkit's own frames.
      failure = std::current_exception();
      QMetaObject::invokeMethod(&dialog, &QDialog::reject, Qt::QueuedConnection);
    }
  });
  dialog.resize(dialog.sizeHint().expandedTo(QSize(900, 680)));
  dialog.exec();
  if (failure != nullptr) std::rethrow_exception(failure);
}

std::string DrawPdf(PageJob job, const PageDrawing& draw) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  {
    QPdfWriter writer(&buffer);
    writer.setResolution(static_cast<int>(kTwipsPerInch) / 2);
    writer.setPageLayout(ChosenPrinter().pageLayout());
    writer.setCreator(QStringLiteral("VELDOX"));
    const PaperLayout layout(writer, job);
    PainterPageSurface surface(writer, job);
    draw(surface);
  }
  return buffer.data().toStdString();
}

}  // namespace veldox
