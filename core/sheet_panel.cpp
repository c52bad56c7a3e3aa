#include "core/sheet_panel.h"

#include <utility>

#include "core/shell.h"

namespace veldox {

namespace {

constexpr int kSheetFontSize = 10;
constexpr const char* kNoScreen =
    "No screen is chosen for the build sheet. Please tick one, or open the screens first.";

}  // namespace

SheetPanel::SheetPanel(Screen& screen) : ScreenPart(screen) {
  SetFrames({&SheetFrame});
  SetAreOptions();
  // A key that closes the report puts the panel away.
  Sheet.WhenChanged([this] {
    if (!Sheet.showsReport() && SheetFrame.visible()) Hide();
  });
}

void SheetPanel::ShowSheet(std::string report, std::string title) {
  SheetFrame.SetCaption(std::move(title));
  Sheet.ShowReport(std::move(report), kSheetFontSize);
  Show();
  Sheet.Focus();
}

SheetChoicePanel::SheetChoicePanel(Shell& shell) : ScreenPart(shell), shell_(shell) {
  std::vector<const MenuItem*> printed;
  for (const MenuItem& item : Shell::Menu()) {
    // The grapher and the version hold nothing that belongs to an engine.
    const bool isSheet =
        item.kind == MenuKind::PrintScreen && item.screen != "Form8" && item.screen != "Form15";
    if (isSheet) printed.push_back(&item);
  }
  for (const MenuItem* item : printed) {
    Frame& frame = boxes.size() < (printed.size() + 1) / 2 ? SheetChoiceFrame : SheetMoreFrame;
    std::string caption(item->caption);
    std::erase(caption, '&');
    boxes.push_back(
        std::make_unique<CheckBox>(frame, "Sheet_" + std::string(item->screen), caption,
                                   "What this screen holds stands in the build sheet."));
  }
  SetFrames({&SheetChoiceFrame, &SheetMoreFrame, &SheetCommandFrame});
  SetAreOptions();
}

void SheetChoicePanel::Open() {
  ChooseOpen();
  Show();
  Sheet_Make.Focus();
}

void SheetChoicePanel::ChooseOpen() {
  for (const auto& box : boxes) {
    const Screen* screen = shell_.FindScreen(box->name().substr(box->name().find('_') + 1));
    box->SetOn(screen != nullptr && screen->visible());
  }
}

void SheetChoicePanel::MakeSheet() {
  std::vector<Screen*> screens;
  for (const auto& box : boxes) {
    if (!box->on()) continue;
    Screen* screen = shell_.FindScreen(box->name().substr(box->name().find('_') + 1));
    if (screen != nullptr) screens.push_back(screen);
  }
  if (screens.empty()) throw CommandError(ErrorKind::InvalidArgument, kNoScreen);
  shell_.ShowBuildSheet(screens);
}

}  // namespace veldox
