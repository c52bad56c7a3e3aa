#pragma once

#include <QPagedPaintDevice>
#include <QPainter>
#include <QPrinter>
#include <memory>
#include <string>

#include "core/host.h"
#include "core/page_surface.h"
#include "core/screen.h"

namespace veldox {

/// How the paper of a device lies for a job; afterwards it lies as the job leaves it.
class PaperLayout {
 public:
  PaperLayout(QPagedPaintDevice& device, PageJob job);
  PaperLayout(const PaperLayout&) = delete;
  PaperLayout& operator=(const PaperLayout&) = delete;
  ~PaperLayout();

 private:
  QPagedPaintDevice& device_;
  PageJob job_;
  QPageLayout before_;
};

/// Pages on a printer, a PDF or a preview. The sheet of a report's layout is fitted into what the
/// device can print on; texts are set to the widths that the layout counted on.
class PainterPageSurface : public PageSurface {
 public:
  /// @throws CommandError (File) when the device cannot be drawn on
  PainterPageSurface(QPagedPaintDevice& device, PageJob job);

  bool landscape() const override { return landscape_; }
  void PlaceText(int x, int y, const PageFont& font, std::string_view text) override;
  void PlaceLine(int fromX, int fromY, int toX, int toY, int width) override;
  void NewPage() override;
  void EndJob() override;

 private:
  QPagedPaintDevice& device_;
  QPainter painter_;
  bool landscape_;
  double scale_ = 1;  ///< device units a twip
};

/// Lets the user choose a printer; it stays chosen. @throws CommandError (Cancelled)
QPrinter& ChoosePrinterByDialog(QWidget* parent);

/// Lets the user choose a printer and begins a job on it.
/// @throws CommandError (Cancelled, File)
std::unique_ptr<PageSurface> OpenPrinterByDialog(PageJob job, QWidget* parent);

/// The platform's dialog for printer, paper and orientation; what is chosen stays chosen.
/// @throws CommandError (Cancelled)
void SetUpPrinterByDialog(QWidget* parent);

/// Shows the pages of a job as they would be printed. @throws what the drawing throws
void PreviewByDialog(PageJob job, const PageDrawing& draw, QWidget* parent);

/// The pages of a job as the bytes of a PDF file.
/// @throws CommandError (File), and what the drawing throws
std::string DrawPdf(PageJob job, const PageDrawing& draw);

}  // namespace veldox
