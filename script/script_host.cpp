#include "script/script_host.h"

#include <algorithm>
#include <chrono>
#include <ctime>

namespace veldox {

namespace {

const char* IconName(Icon icon) {
  switch (icon) {
    case Icon::None: return "none";
    case Icon::Information: return "information";
    case Icon::Warning: return "warning";
    case Icon::Question: return "question";
    case Icon::Error: return "error";
  }
  return "none";
}

const char* ButtonName(Button button) {
  switch (button) {
    case Button::OK: return "OK";
    case Button::Cancel: return "Cancel";
    case Button::Yes: return "Yes";
    case Button::No: return "No";
  }
  return "OK";
}

/// Takes the next prepared answer; nothing (Cancel) when none was prepared.
template <class T>
T Take(std::deque<ScriptHost::Prepared<T>>& prepared) {
  if (prepared.empty()) return {};
  T answer = std::move(prepared.front().answer);
  prepared.pop_front();
  return answer;
}

/// A printer that leaves its pages with the host when the job has ended.
class ScriptPrinter : public PageRecorder {
 public:
  ScriptPrinter(ScriptHost& host, bool landscape) : PageRecorder(landscape), host_(host) {}
  void EndJob() override {
    PageRecorder::EndJob();
    host_.pages = PageRecorder::pages();
  }

 private:
  ScriptHost& host_;
};

}  // namespace

std::string EscapeText(std::string_view text) {
  std::string line;
  line.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    switch (text[i]) {
      case '\r':
        if (i + 1 < text.size() && text[i + 1] == '\n') ++i;
        line += "\\n";
        break;
      case '\n': line += "\\n"; break;
      case '\t': line += "\\t"; break;
      case '\\': line += "\\\\"; break;
      default: line += text[i];
    }
  }
  return line;
}

std::string UnescapeText(std::string_view text) {
  std::string result;
  result.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '\\' || i + 1 == text.size()) {
      result += text[i];
      continue;
    }
    switch (text[++i]) {
      case 'n': result += "\r\n"; break;
      case 't': result += '\t'; break;
      case '\\': result += '\\'; break;
      default: result += '\\'; result += text[i];
    }
  }
  return result;
}

Button ScriptHost::Ask(const Message& message) {
  Button button = message.buttons.front();
  // Only a box that leaves a choice takes a prepared answer.
  if (message.buttons.size() > 1 && !answers.empty()) {
    const Prepared<Button> prepared = answers.front();
    answers.pop_front();
    if (std::find(message.buttons.begin(), message.buttons.end(), prepared.answer) !=
        message.buttons.end()) {
      button = prepared.answer;
    } else if (wrong.empty()) {
      wrong = std::string("the box has no button ") + ButtonName(prepared.answer) + ": " +
              EscapeText(message.text);
    }
  }
  messages.push_back("message [" + message.title + "] " + IconName(message.icon) + ": " +
                     EscapeText(message.text) + " -> " + ButtonName(button));
  return button;
}

std::optional<std::filesystem::path> ScriptHost::AskFile(const FileDialog& dialog) {
  dialogs.push_back(std::string(dialog.kind == FileDialog::Kind::Open ? "open " : "save ") +
                    dialog.filter + ' ' + std::to_string(dialog.filterIndex));
  return Take(files);
}

std::optional<FontChoice> ScriptHost::AskFont() {
  return Take(fonts);
}

std::optional<std::int32_t> ScriptHost::AskColor() {
  return Take(colors);
}

std::unique_ptr<PageSurface> ScriptHost::OpenPrinter(PageJob job) {
  ChoosePrinter();
  const bool landscape = job == PageJob::Measured || orientation_ == Orientation::Landscape;
  if (job == PageJob::Measured) orientation_ = Orientation::Portrait;
  return std::make_unique<ScriptPrinter>(*this, landscape);
}

void ScriptHost::PreviewPages(PageJob job, const PageDrawing& draw) {
  dialogs.emplace_back("preview");
  ScriptPrinter printer(*this, job == PageJob::Measured || orientation_ == Orientation::Landscape);
  draw(printer);
}

void ScriptHost::PrintGraph() {
  ChoosePrinter();
  Host::PrintGraph();
}

void ScriptHost::PrintWindow(const std::string& screen) {
  ChoosePrinter();
  Host::PrintWindow(screen);
}

void ScriptHost::ChoosePrinter() {
  // Where none was prepared, the dialog is left by OK.
  if (printers.empty()) return;
  const std::optional<Orientation> answer = Take(printers);
  if (!answer) throw CommandError(ErrorKind::Cancelled, "");
  orientation_ = *answer;
}

ClockTime ScriptHost::Now() {
  if (settings_.date) return *settings_.date;
  const std::time_t now = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
  const std::tm local = *std::localtime(&now);  // NOLINT(concurrency-mt-unsafe): one thread
  return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday,
          local.tm_hour,        local.tm_min,     local.tm_sec};
}

}  // namespace veldox
