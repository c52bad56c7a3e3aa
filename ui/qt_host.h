#pragma once

#include <QPointer>
#include <QWidget>

#include "core/host.h"

namespace veldox {

/// The world through the desktop's own dialogs.
class QtHost : public Host {
 public:
  Button Ask(const Message& message) override;
  std::optional<std::filesystem::path> AskFile(const FileDialog& dialog) override;
  std::optional<FontChoice> AskFont() override;
  std::optional<std::int32_t> AskColor() override;
  ClockTime Now() override;
  DecimalMark SystemDecimalMark() override;
  std::filesystem::path ProgramFolder() override;
  std::filesystem::path SettingsFile() override;
  void ShowHandbook() override;
  ScreenSize MeasureScreen() override;
  PlainColors OwnColors() override;
  std::unique_ptr<PageSurface> OpenPrinter(PageJob job) override;
  void PreviewPages(PageJob job, const PageDrawing& draw) override;
  void PrintGraph() override;
  void PrintWindow(const std::string& screen) override;
  void SetUpPrinter() override;
  void SetBusy(bool busy) override;
  std::unique_ptr<Progress> ShowProgress(const std::string& what, std::size_t all) override;

 private:
  QPointer<QWidget> handbook_;  ///< while it is open
};

}  // namespace veldox
