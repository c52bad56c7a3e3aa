#include "ui/qt_pictures.h"

#include <QApplication>
#include <QBuffer>
#include <QClipboard>
#include <QImageWriter>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QPixmap>
#include <algorithm>

#include "ui/graph_view.h"
#include "ui/painter_surface.h"
#include "ui/qt_printer.h"
#include "ui/qt_text.h"
#include "ui/svg_surface.h"
#include "ui/window_manager.h"

namespace veldox {

namespace {

constexpr double kPixelsPerInch = 96;
constexpr double kPointsPerInch = 72;
constexpr int kPdfDotsPerInch = 1200;

const char* EncoderName(PictureFormat format) {
  switch (format) {
    case PictureFormat::Jpeg: return "jpg";
    case PictureFormat::Png: return "png";
    default: return "bmp";
  }
}

/// A picture in the middle of an area's upper edge, as large as fits.
QRectF Fitted(QSizeF picture, const QRectF& area) {
  const QSizeF size = picture.scaled(area.size(), Qt::KeepAspectRatio);
  return {QPointF(area.left() + (area.width() - size.width()) / 2, area.top()), size};
}

std::string PngBytes(const QImage& image) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, "PNG");
  return buffer.data().toStdString();
}

}  // namespace

Form8& QtPictures::GrapherOf(const PictureRequest& request) {
  auto* grapher = dynamic_cast<Form8*>(shell_.FindScreen(request.screen));
  if (grapher == nullptr) {
    throw CommandError(ErrorKind::File,
                       "No picture was made: " + request.screen + " has no graph.");
  }
  return *grapher;
}

QSize QtPictures::GraphSize(const PictureRequest& request) {
  const QWidget* view =
      windows_.Window(GrapherOf(request)).findChild<QWidget*>(QLatin1String(kGraphSurfaceName));
  return {request.width > 0 ? request.width : view->width(),
          request.height > 0 ? request.height : view->height()};
}

QImage QtPictures::WindowImage(const PictureRequest& request) {
  Screen* screen = shell_.FindScreen(request.screen);
  if (screen == nullptr) {
    throw CommandError(ErrorKind::File,
                       "No picture was made: there is no screen " + request.screen + '.');
  }
  QImage image = windows_.Window(*screen).grab().toImage();
  image.setDevicePixelRatio(1);
  if (request.width > 0 && request.height > 0) {
    image = image.scaled(request.width, request.height, Qt::IgnoreAspectRatio,
                         Qt::SmoothTransformation);
  }
  return image.convertToFormat(QImage::Format_RGB32);
}

void QtPictures::Draw(const PictureRequest& request, Surface& surface) {
  if (request.of == PictureRequest::Of::Graph) {
    GrapherOf(request).DrawPicture(surface, PlotTheme{});
  } else {
    surface.DrawPicture({0, 0, surface.Width(), surface.Height()}, PngBytes(WindowImage(request)));
  }
}

QImage QtPictures::Image(const PictureRequest& request) {
  if (request.of == PictureRequest::Of::Window) return WindowImage(request);
  QImage image(GraphSize(request), QImage::Format_RGB32);
  if (image.isNull()) return image;
  QPainter painter(&image);
  PainterSurface surface(painter, image.size());
  Draw(request, surface);
  return image;
}

std::string QtPictures::EncodePdf(const PictureRequest& request) {
  const bool window = request.of == PictureRequest::Of::Window;
  const QSizeF size = window ? WindowImage(request).size() : GraphSize(request);
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  {
    QPdfWriter writer(&buffer);
    writer.setCreator(QStringLiteral("VELDOX"));
    writer.setResolution(kPdfDotsPerInch);
    writer.setPageSize(QPageSize(size * (kPointsPerInch / kPixelsPerInch), QPageSize::Point,
                                 QString(), QPageSize::ExactMatch));
    writer.setPageMargins(QMarginsF());
    QPainter painter(&writer);
    painter.scale(kPdfDotsPerInch / kPixelsPerInch, kPdfDotsPerInch / kPixelsPerInch);
    PainterSurface surface(painter, size);
    Draw(request, surface);
  }
  return buffer.data().toStdString();
}

PictureResult QtPictures::EncodePicture(const PictureRequest& request) {
  if (request.format == PictureFormat::Pdf) return {EncodePdf(request), 0};
  if (request.format == PictureFormat::Svg) {
    const QSizeF size =
        request.of == PictureRequest::Of::Window ? WindowImage(request).size() : GraphSize(request);
    SvgSurface surface(size.width(), size.height());
    Draw(request, surface);
    return {surface.Document(), 0};
  }
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  QImageWriter writer(&buffer, EncoderName(request.format));
  if (request.format == PictureFormat::Jpeg) writer.setQuality(std::clamp(request.quality, 1, 100));
  if (!writer.write(Image(request))) return {{}, static_cast<int>(writer.error())};
  return {buffer.data().toStdString(), 0};
}

ScreenSize QtPictures::MeasurePicture(const std::string& bytes) {
  const QImage image = QImage::fromData(reinterpret_cast<const uchar*>(bytes.data()),
                                        static_cast<int>(bytes.size()));
  if (image.isNull()) {
    throw CommandError(ErrorKind::File,
                       "The file is no picture that can be shown, or a part of it is missing.");
  }
  return {image.width(), image.height(), qRound(image.dotsPerMeterX() * 0.0254)};
}

void QtPictures::CopyPicture(const PictureRequest& request) {
  const QImage image = Image(request);
  if (image.isNull()) {
    throw CommandError(ErrorKind::File, "The picture is too large for the clipboard.");
  }
  QGuiApplication::clipboard()->setImage(image);
}

void QtPictures::PrintPicture(const PictureRequest& request) {
  PrintOn(ChoosePrinterByDialog(QApplication::activeWindow()), request);
}

std::string QtPictures::PagesAsPdf(PageJob job, const PageDrawing& draw) {
  return DrawPdf(job, draw);
}

void QtPictures::PrintOn(QPrinter& printer, const PictureRequest& request) {
  const bool window = request.of == PictureRequest::Of::Window;
  const QImage image = window ? WindowImage(request) : QImage();
  const QSizeF size = window ? image.size() : GraphSize(request);
  QPainter painter;
  if (!painter.begin(&printer)) {
    throw CommandError(ErrorKind::File, "The printer could not be started. Nothing was printed.");
  }
  const QRectF page(0, 0, printer.width(), printer.height());
  const QRectF place = Fitted(size, page);
  if (window) {
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(place, image);
  } else {
    const double scale = printer.logicalDpiX() / kPixelsPerInch;
    painter.translate(place.topLeft());
    painter.scale(scale, scale);
    PainterSurface surface(painter, place.size() / scale);
    Draw(request, surface);
  }
  if (!painter.end()) {
    throw CommandError(ErrorKind::File, "The printer could not finish the job.");
  }
}

}  // namespace veldox
