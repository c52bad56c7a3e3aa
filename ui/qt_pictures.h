#pragma once

#include <QImage>
#include <QPrinter>

#include "core/host.h"
#include "core/shell.h"
#include "graph/grapher_screen.h"

namespace veldox {

class WindowManager;

/// Pictures of the program's windows, and of the graph drawn anew.
class QtPictures : public PictureMaker {
 public:
  QtPictures(Shell& shell, WindowManager& windows) : shell_(shell), windows_(windows) {}

  PictureResult EncodePicture(const PictureRequest& request) override;
  ScreenSize MeasurePicture(const std::string& bytes) override;
  void CopyPicture(const PictureRequest& request) override;
  void PrintPicture(const PictureRequest& request) override;
  std::string PagesAsPdf(PageJob job, const PageDrawing& draw) override;

  /// Paints a picture on a page, as large as fits. @throws CommandError (File)
  void PrintOn(QPrinter& printer, const PictureRequest& request);

 private:
  QImage Image(const PictureRequest& request);
  /// The pixels of a screen's window, which is built when it was never opened.
  QImage WindowImage(const PictureRequest& request);
  Form8& GrapherOf(const PictureRequest& request);
  /// The size that a graph is drawn at, in pixels.
  QSize GraphSize(const PictureRequest& request);
  void Draw(const PictureRequest& request, Surface& surface);
  std::string EncodePdf(const PictureRequest& request);

  Shell& shell_;
  WindowManager& windows_;
};

}  // namespace veldox
