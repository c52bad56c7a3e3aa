#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <deque>
#include <filesystem>
#include <memory>
#include <optional>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "core/host.h"

namespace veldox {

/// A host for tests: it records what it is asked and answers from queues. A question
/// that nobody expected fails the test, and so does an answer that nobody asked for.
class TestHost : public Host {
 public:
  ~TestHost() override {
    EXPECT_TRUE(answers_.empty()) << answers_.size() << " expected message boxes did not come";
    EXPECT_TRUE(files_.empty()) << files_.size() << " expected file dialogs did not come";
    EXPECT_TRUE(fonts_.empty()) << fonts_.size() << " expected font dialogs did not come";
    EXPECT_TRUE(colors_.empty()) << colors_.size() << " expected color dialogs did not come";
    EXPECT_EQ(busyDepth_, 0) << "the hourglass was not ended";
  }

  // What is expected. Each call prepares the answer to one more box or dialog.
  void Answer(Button button) { answers_.push_back(button); }
  void AnswerFile(std::optional<std::filesystem::path> path) { files_.push_back(std::move(path)); }
  void AnswerFont(std::optional<FontChoice> font) { fonts_.push_back(std::move(font)); }
  void AnswerColor(std::optional<std::int32_t> color) { colors_.push_back(color); }

  // What happened, in order.
  std::vector<Message> messages;
  std::vector<FileDialog> fileDialogs;
  int busyCount = 0;  ///< how often the hourglass was shown

  // What the world is like.
  DecimalMark decimalMark = DecimalMark::Point;
  std::filesystem::path folder;
  ClockTime now{2024, 5, 17, 14, 3, 9};
  ScreenSize screen{1366, 768, 96};
  std::filesystem::path settingsFile;  ///< empty: nothing is kept
  int handbooks = 0;                   ///< how often the handbook was shown
  /// What a print job is drawn on; a job that nobody prepared fails the test.
  std::unique_ptr<PageSurface> printer;
  std::optional<PageJob> printJob;  ///< how the last job used the paper

  Button Ask(const Message& message) override {
    messages.push_back(message);
    const std::optional<Button> answer = Next(answers_);
    if (!answer) {
      ADD_FAILURE() << "unexpected box: " << message.title << "\n" << message.text;
      return message.buttons.back();
    }
    EXPECT_NE(std::find(message.buttons.begin(), message.buttons.end(), *answer),
              message.buttons.end())
        << "the box has no such button: " << message.text;
    return *answer;
  }
  std::optional<std::filesystem::path> AskFile(const FileDialog& dialog) override {
    fileDialogs.push_back(dialog);
    return Prepared(files_, "file dialog");
  }
  std::optional<FontChoice> AskFont() override { return Prepared(fonts_, "font dialog"); }
  std::optional<std::int32_t> AskColor() override { return Prepared(colors_, "color dialog"); }
  ClockTime Now() override { return now; }
  DecimalMark SystemDecimalMark() override { return decimalMark; }
  std::filesystem::path ProgramFolder() override { return folder; }
  ScreenSize MeasureScreen() override { return screen; }
  std::filesystem::path SettingsFile() override { return settingsFile; }
  void ShowHandbook() override { ++handbooks; }
  std::unique_ptr<PageSurface> OpenPrinter(PageJob job) override {
    printJob = job;
    if (printer != nullptr) return std::move(printer);
    ADD_FAILURE() << "unexpected print job";
    return Host::OpenPrinter(job);
  }
  void SetBusy(bool busy) override {
    busyDepth_ += busy ? 1 : -1;
    if (busy) ++busyCount;
  }

 private:
  template <class T>
  static std::optional<T> Next(std::deque<T>& queue) {
    if (queue.empty()) return std::nullopt;
    T first = std::move(queue.front());
    queue.pop_front();
    return first;
  }

  template <class T>
  static std::optional<T> Prepared(std::deque<std::optional<T>>& queue, const char* what) {
    std::optional<std::optional<T>> answer = Next(queue);
    if (!answer) {
      ADD_FAILURE() << "unexpected " << what;
      return std::nullopt;
    }
    return *std::move(answer);
  }

  std::deque<Button> answers_;
  std::deque<std::optional<std::filesystem::path>> files_;
  std::deque<std::optional<FontChoice>> fonts_;
  std::deque<std::optional<std::int32_t>> colors_;
  int busyDepth_ = 0;
};

/// A new empty folder that is gone, with all in it, when the test ends.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::random_device random;
    do {
      path_ = std::filesystem::temp_directory_path() / ("veldox-test-" + std::to_string(random()));
    } while (!std::filesystem::create_directory(path_));
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  const std::filesystem::path& path() const { return path_; }
  std::filesystem::path operator/(const std::string& name) const { return path_ / name; }

 private:
  std::filesystem::path path_;
};

}  // namespace veldox
