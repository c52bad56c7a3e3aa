#include "core/shell.h"

#include <algorithm>
#include <filesystem>
#include <memory>
#include <system_error>
#include <utility>

#include "core/files.h"
#include "core/text.h"
#include "core/version.h"

namespace veldox {

namespace {

constexpr const char* kStartUpFile = "\\zxqvwu00.prm";
constexpr const char* kLargeScreenFile = "\\veldox.lrg";
constexpr const char* kFullScreenFile = "\\veldox.ful";
constexpr const char* kParameterFilter =
    "Text Files (*.txt)|*.txt|All Files (*.*)|*.*|Parameter Files (*.prm)|*.prm";
constexpr int kParameterFilterIndex = 3;

bool IsThere(const std::filesystem::path& file) {
  std::error_code error;
  return std::filesystem::exists(file, error);
}

}  // namespace

Shell::Shell(ProgramContext& context)
    : Screen(context, "Main", context.rules.messages().MessageTitle, ""), parameterFile_(context) {
  appearance.SetListener([this] {
    if (shellFace_ != nullptr) shellFace_->AppearanceChanged();
  });
}

Screen* Shell::FindScreen(std::string_view screenName) {
  if (screenName == name()) return this;
  const auto found = std::find_if(screens_.begin(), screens_.end(),
                                  [&](const Screen* s) { return s->name() == screenName; });
  return found == screens_.end() ? nullptr : *found;
}

Control* Shell::FindControl(std::string_view qualifiedName) {
  const auto dot = qualifiedName.find('.');
  if (dot == std::string_view::npos) return nullptr;
  const Screen* screen = FindScreen(qualifiedName.substr(0, dot));
  return screen == nullptr ? nullptr : screen->Find(qualifiedName.substr(dot + 1));
}

void Shell::Start() {
  block().DataChanged = 0;
  appearance.FillLists();
  DetectDecimalMark();
  context().rules.BuildMessages();
  if (block().DecimalCommaMode != 0) ConvertDefaultsToComma();
  BuildVersionLines();
  scaling_.DetectScreenSize(context().host.MeasureScreen());
  ProbeLargeScreenFile();
  ProbeFullScreenFile();
  InitParameterBlock();
  appearance.TellChanged();
  parameterFile_.BindOwners([this](std::string_view name) { return FindControl(name); }, screens_);
  SetVisible(true);
  ReadStartUpFile();
}

void Shell::DetectDecimalMark() {
  if (context().host.SystemDecimalMark() != DecimalMark::Comma) return;
  block().DecimalCommaMode = 1;
  Inform("Program Set for Decimal Point to be >>,<< [Comma] ");
}

void Shell::ConvertDefaultsToComma() {
  Screen::ConvertDefaultsToComma();
  for (Screen* screen : screens_) screen->ConvertDefaultsToComma();
}

void Shell::BuildVersionLines() {
  versionLine_ = "Version: " + std::to_string(kVersionMajor) + '.' + std::to_string(kVersionMinor) +
                 '.' + std::to_string(kVersionRevision);
  dateLine_ = kProgramDate;
}

void Shell::ProbeScreenFile(const char* marker, std::string_view menuItem) {
  if (IsThere(InFolder(context().host.ProgramFolder(), marker))) Choose(*FindMenuItem(menuItem));
}

void Shell::ProbeLargeScreenFile() {
  ProbeScreenFile(kLargeScreenFile, "LrgScrRes");
}

void Shell::ProbeFullScreenFile() {
  ProbeScreenFile(kFullScreenFile, "FullScrRes");
}

void Shell::SetScreenSize(ScreenScaling::Mode mode) {
  if (!scaling_.detected()) scaling_.DetectScreenSize(context().host.MeasureScreen());
  block().LargeScreen = mode == ScreenScaling::Mode::Large ? 1 : 0;
  block().FullScreen = mode == ScreenScaling::Mode::Full ? 1 : 0;
}

void Shell::InitParameterBlock() {
  auto fresh = std::make_unique<ParameterBlock>();
  fresh->DecimalCommaMode = block().DecimalCommaMode;
  fresh->LargeScreen = block().LargeScreen;
  fresh->FullScreen = block().FullScreen;
  block() = *fresh;
}

void Shell::ReadStartUpFile() {
  const std::filesystem::path file = InFolder(context().host.ProgramFolder(), kStartUpFile);
  if (!IsThere(file)) return;
  Perform([&] { TakeFile(file); });
}

std::string Shell::MenuCaption(const MenuItem& item) const {
  if (item.action == &Shell::Metric) return SwitchCaption(item.caption, block().MetricMenuOn != 0);
  if (item.action == &Shell::Print_CI)
    return SwitchCaption(item.caption, printing.headsOnEveryPage());
  return std::string(item.caption);
}

bool Shell::MenuEnabled(const MenuItem& item) {
  switch (item.kind) {
    case MenuKind::Separator: return false;
    case MenuKind::Screen:
    case MenuKind::List:
    case MenuKind::PrintScreen: return FindScreen(item.screen) != nullptr;
    case MenuKind::Action:
      if (item.action == &Shell::LrgScrRes || item.action == &Shell::FullScrRes) {
        return scaling_.detected();
      }
      return item.action != nullptr || works_.contains(item.name);
    case MenuKind::Submenu:
      return std::any_of(Menu().begin(), Menu().end(), [&](const MenuItem& child) {
        return child.parent == item.name && MenuEnabled(child);
      });
  }
  return false;
}

void Shell::Choose(const MenuItem& item) {
  if (!MenuEnabled(item)) return;
  if (item.kind == MenuKind::Screen) {
    Open(*FindScreen(item.screen));
  } else if (item.kind == MenuKind::List || item.kind == MenuKind::Submenu) {
    Screen* screen = FindScreen(item.screen);
    if (screen == nullptr) return;  // a submenu of its own items alone
    // A list that cannot be read leaves the screen's list empty; it is shown all the same.
    screen->Perform([&] { screen->LoadList(item.name); });
    Open(*screen);
  } else if (item.kind == MenuKind::PrintScreen) {
    Perform([&] { printing.PrintScreen(std::string(item.screen)); });
  } else if (item.action != nullptr) {
    Perform([&] { (this->*item.action)(); });
  } else {
    Perform(works_.find(item.name)->second);
  }
}

void Shell::Open(Screen& screen) {
  if (block().FormsCleared != 1) screen.CopyShared();
  screen.SetVisible(true);
  if (CheckBox* box = screen.MetricBox();
      block().MetricMenuOn != 0 && box != nullptr && !box->on()) {
    if (block().FormsCleared == 1) {
      screen.SwitchBlankUnits(true);
    } else {
      box->Click();
    }
  }
  if (!screen.tag().empty()) block().CurrentScreenTag = screen.tag();
  if (opened_) opened_(screen);
}

void Shell::TellMenuChanged() {
  if (shellFace_ != nullptr) shellFace_->MenuChanged();
}

Button Shell::Question(const std::string& text, std::vector<Button> buttons) {
  return context().host.Ask({Icon::Question, title(), text, std::move(buttons)});
}

void Shell::Inform(const std::string& text, Icon icon) {
  context().host.Ask({icon, title(), text, {Button::OK}});
}

std::filesystem::path Shell::AskParameterFile(FileDialog::Kind kind) {
  const auto path = context().host.AskFile(
      {kind, kParameterFilter, kParameterFilterIndex, context().host.ProgramFolder()});
  if (!path) throw CommandError(ErrorKind::Cancelled, "");
  return *path;
}

void Shell::ShowFile(const std::filesystem::path& path, int records, const char* done) {
  block().ParameterFileName = PathText(path);
  Label8.SetCaption("Parameter File -- " + PathText(path.filename()));
  Inform(FormatValue<"#,##0">(records, mark()) + done);
}

int Shell::TakeFile(const std::filesystem::path& file) {
  const int records = parameterFile_.ReadParameterFile(file);
  // Only now that new data are there is nothing left to be saved.
  block().DataChanged = 0;
  TellMenuChanged();
  graphOptions.TellChanged();
  appearance.TellChanged();
  notes.ShowNotes();
  return records;
}

void Shell::Read() {
  if (block().DataChanged == 1) {
    const Button answer = Question("Do you want to Save Your Data before Reading in New Data?",
                                   {Button::Yes, Button::No});
    // A save that is cancelled or fails ends the command with nothing read.
    if (answer == Button::Yes) Write();
  }
  const std::filesystem::path path = AskParameterFile(FileDialog::Kind::Open);
  context().HandOver(nullptr);
  const int records = TakeFile(path);
  ShowFile(path, records, " Records Read");
}

void Shell::Write() {
  const std::filesystem::path path = AskParameterFile(FileDialog::Kind::Save);
  int records = 0;
  // Files hold inches.
  context().HandOver(nullptr);
  {
    const BusyCursor busy(context().host);
    records = parameterFile_.Write(path);
  }
  block().DataChanged = 0;
  ShowFile(path, records, " Records Written");
}

void Shell::Hover(Control* control) {
  graphOptions.RefreshHelp(control);
  Screen::Hover(control);
}

void Shell::Edited(const Control& control) {
  appearance.Picked(control);
  company.Typed(control);
}

void Shell::ClearFields() {
  // The main form's own boxes hold options and notes, not data of a calculator.
}

void Shell::Clear() {
  const Button answer = Question(
      "This Function will Clear All Data Fields on All Forms! Make Sure you have Saved your data.",
      {Button::OK, Button::Cancel});
  if (answer == Button::Cancel) return;
  block().FormsCleared = 1;
  for (Screen* screen : screens_) screen->ClearFields();
  Inform(
      "FORM DATA CLEARED -- You can now Print Blank Forms -- After Printing Blank Forms, Please "
      "EXIT and Reload VELDOXW",
      Icon::Warning);
}

void Shell::Metric() {
  block().MetricMenuOn = block().MetricMenuOn != 0 ? 0 : -1;
  TellMenuChanged();
}

void Shell::Print_CI() {
  printing.ToggleHeadsOnEveryPage();
  TellMenuChanged();
}

void Shell::ScrRes() {
  const ScreenSize size = context().host.MeasureScreen();
  Inform("Screen Resolution: " + std::to_string(size.width) + " X " + std::to_string(size.height) +
         "   <-->   Screen DPI: " + std::to_string(size.dpi));
}

void Shell::CloseWindow() {
  Perform([this] {
    block().ExitFromWindowClose = kWindowCloseMarker;
    Exit();
  });
}

void Shell::Exit() {
  if (block().ExitInProgress != 0) return;
  block().ExitInProgress = 1;
  // However Exit ends, the program can be asked to end again.
  struct Guard {
    ParameterBlock& block;
    ~Guard() {
      block.ExitInProgress = 0;
      block.ExitFromWindowClose = 0;
    }
  } const guard{block()};
  if (block().DataChanged == 1) {
    std::vector<Button> buttons{Button::Yes, Button::No};
    if (block().ExitFromWindowClose != kWindowCloseMarker) buttons.push_back(Button::Cancel);
    const Button answer = Question("Do you want to Save Your Data before Exiting VELDOX?", buttons);
    if (answer == Button::Cancel) return;
    if (answer == Button::Yes) Write();
  }
  titleAnimation_.Finish();
  for (Screen* screen : screens_) screen->SetVisible(false);
  ended_ = true;
  if (shellFace_ != nullptr) shellFace_->Ended();
}

FontChoice Shell::PickFont() {
  const auto choice = context().host.AskFont();
  if (!choice) throw CommandError(ErrorKind::Cancelled, "");
  return *choice;
}

std::string Shell::PickColor() {
  const auto color = context().host.AskColor();
  if (!color) throw CommandError(ErrorKind::Cancelled, "");
  return std::to_string(*color);
}

}  // namespace veldox
