#pragma once

#include <chrono>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/error.h"
#include "core/host.h"

namespace veldox {

/// What a command said and asked while it ran only to tell what it would do.
struct DryRunLog {
  std::string error;               ///< why it cannot, empty where it can
  std::vector<std::string> notes;  ///< the boxes that have OK alone
  std::string sentence;            ///< what it said in the help place last
  /// When it has to be over; nothing where it may take its time.
  std::optional<std::chrono::steady_clock::time_point> end;
  bool ranOutOfTime = false;
  bool wasRefused = false;  ///< it needs what the user would see, answer or find on the disk
};

/// All that the program asks of the world goes through here to the real host. During a dry run
/// nothing gets through that the user would see, answer or find on the disk.
class HostGate : public Host {
 public:
  explicit HostGate(Host& host) : host_(host) {}

  /// Opens (null) or closes the gate. @return the log of before
  DryRunLog* SetLog(DryRunLog* log) { return std::exchange(log_, log); }
  DryRunLog* log() const { return log_; }

  Button Ask(const Message& message) override {
    if (log_ == nullptr) return host_.Ask(message);
    if (message.buttons.size() > 1) Refuse("It asks a question first.");
    log_->notes.push_back(message.text);
    return message.buttons.front();
  }
  std::optional<std::filesystem::path> AskFile(const FileDialog& dialog) override {
    return Open(kFiles).AskFile(dialog);
  }
  std::optional<FontChoice> AskFont() override { return Open("It asks for a font.").AskFont(); }
  std::optional<std::int32_t> AskColor() override {
    return Open("It asks for a colour.").AskColor();
  }
  ClockTime Now() override { return host_.Now(); }
  DecimalMark SystemDecimalMark() override { return host_.SystemDecimalMark(); }
  std::filesystem::path ProgramFolder() override { return Open(kFiles).ProgramFolder(); }
  std::filesystem::path SettingsFile() override {
    return log_ == nullptr ? host_.SettingsFile() : std::filesystem::path{};
  }
  void ShowHandbook() override { Open("It shows the handbook.").ShowHandbook(); }
  ScreenSize MeasureScreen() override { return host_.MeasureScreen(); }
  PlainColors OwnColors() override { return host_.OwnColors(); }
  std::unique_ptr<PageSurface> OpenPrinter(PageJob job) override {
    return Open(kPrints).OpenPrinter(job);
  }
  void PreviewPages(PageJob job, const PageDrawing& draw) override {
    Open(kPrints).PreviewPages(job, draw);
  }
  void SetBusy(bool busy) override {
    if (log_ == nullptr) host_.SetBusy(busy);
  }
  std::unique_ptr<Progress> ShowProgress(const std::string& what, std::size_t all) override {
    return log_ == nullptr ? host_.ShowProgress(what, all) : nullptr;
  }
  void SetPictureMaker(PictureMaker* maker) override { host_.SetPictureMaker(maker); }
  PictureResult EncodePicture(const PictureRequest& request) override {
    return Open(kPictures).EncodePicture(request);
  }
  ScreenSize MeasurePicture(const std::string& bytes) override {
    return Open(kPictures).MeasurePicture(bytes);
  }
  void CopyPicture(const PictureRequest& request) override { Open(kPictures).CopyPicture(request); }
  std::string PagesAsPdf(PageJob job, const PageDrawing& draw) override {
    return Open(kPrints).PagesAsPdf(job, draw);
  }
  void PrintGraph() override { Open(kPrints).PrintGraph(); }
  void PrintWindow(const std::string& screen) override { Open(kPrints).PrintWindow(screen); }
  void SetUpPrinter() override { Open(kPrints).SetUpPrinter(); }

 private:
  static constexpr const char* kFiles = "It works on files.";
  static constexpr const char* kPrints = "It prints.";
  static constexpr const char* kPictures = "It works on pictures.";

  [[noreturn]] void Refuse(const char* why) const {
    if (log_->error.empty()) log_->error = why;
    log_->wasRefused = true;
    throw CommandError(ErrorKind::Cancelled, "");
  }
  Host& Open(const char* whyNot) const {
    if (log_ != nullptr) Refuse(whyNot);
    return host_;
  }

  Host& host_;
  DryRunLog* log_ = nullptr;
};

}  // namespace veldox
