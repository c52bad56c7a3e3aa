#include "core/shell.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <memory>
#include <system_error>
#include <utility>

#include "core/build_sheet.h"
#include "core/dry_run.h"
#include "core/files.h"
#include "core/key_table.h"
#include "core/text.h"
#include "core/tool_screen.h"
#include "core/units.h"
#include "core/version.h"

namespace veldox {

namespace {

constexpr const char* kStartUpFile = "\\zxqvwu00.prm";
constexpr const char* kLargeScreenFile = "\\veldox.lrg";
constexpr const char* kFullScreenFile = "\\veldox.ful";
constexpr const char* kParameterFilter =
    "Text Files (*.txt)|*.txt|All Files (*.*)|*.*|Parameter Files (*.prm)|*.prm";
constexpr int kParameterFilterIndex = 3;

/// The colours of the program's own dark look.
constexpr PlainColors kDarkColors{0x2F2B28, 0xEAE8E6, 0xEAE8E6};

/// The caption of a recent file: its number to press, its name, and the folder it lies in.
std::string RecentCaption(int index, const Settings& settings) {
  const std::size_t at = static_cast<std::size_t>(index);
  if (at >= settings.recentFiles().size()) return {};
  const std::filesystem::path& file = settings.recentFiles()[at];
  std::string name = PathText(file.filename()) + " - " + PathText(file.parent_path());
  for (std::size_t sign = 0; (sign = name.find('&', sign)) != std::string::npos; sign += 2) {
    name.insert(sign, 1, '&');
  }
  return (index == 9 ? "1&0  " : "&" + std::to_string(index + 1) + "  ") + name;
}

bool IsThere(const std::filesystem::path& file) {
  std::error_code error;
  return std::filesystem::exists(file, error);
}

}  // namespace

Shell::Shell(ProgramContext& context)
    : Screen(context, "Main", context.rules.messages().MessageTitle, ""), parameterFile_(context) {
  appearance.SetListener([this] {
    shownAppearance_ = AppearanceOf(block());
    if (shellFace_ != nullptr && !this->context().journal.isDry()) shellFace_->AppearanceChanged();
  });
  context.rules.SetChangeListener([this] { TellTitleChanged(); });
  context.history.SetListener([this](bool putBack) {
    TellTitleChanged();
    if (putBack) ShowPutBack();
    if (putBack) this->context().current.PutBack();
    steps.Follow();
  });
  context.current.SetListener([this] {
    settings_.keptCurrent = this->context().current.forms();
    SaveSettings();
  });
}

void Shell::ShowPutBack() {
  TellMenuChanged();
  graphOptions.TellListener();
  if (AppearanceOf(block()) != shownAppearance_) appearance.TellListener();
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
  Screen* screen = FindScreen(qualifiedName.substr(0, dot));
  if (screen == nullptr) return nullptr;
  const std::string_view control = qualifiedName.substr(dot + 1);
  // It stands in the foot of the window, and in no list of the screen's.
  if (control == KeepCurrent::kSwitchName && screen != this) {
    return context().current.SwitchOf(*screen);
  }
  return screen->Find(control);
}

void Shell::Start() {
  settings_ = LoadSettings(context().host.SettingsFile());
  context().current.TurnOn(settings_.keptCurrent);
  if (shellFace_ != nullptr) shellFace_->LookChanged();
  TellMenuChanged();
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
  if (item.kind == MenuKind::RecentFile) return RecentCaption(item.index, settings_);
  if (item.action == &Shell::Metric) return SwitchCaption(item.caption, block().MetricMenuOn != 0);
  if (item.action == &Shell::Print_CI)
    return SwitchCaption(item.caption, printing.headsOnEveryPage());
  return std::string(item.caption);
}

std::optional<bool> Shell::MenuTicked(const MenuItem& item) const {
  if (item.action == &Shell::Look_Light) return settings_.look == LookChoice::Light;
  if (item.action == &Shell::Look_Dark) return settings_.look == LookChoice::Dark;
  if (item.action == &Shell::Look_Desktop) return settings_.look == LookChoice::Desktop;
  return std::nullopt;
}

bool Shell::MenuVisible(const MenuItem& item) const {
  return item.kind != MenuKind::RecentFile ||
         static_cast<std::size_t>(item.index) < settings_.recentFiles().size();
}

bool Shell::MenuEnabled(const MenuItem& item) {
  switch (item.kind) {
    case MenuKind::Separator: return false;
    case MenuKind::RecentFile: return MenuVisible(item);
    case MenuKind::Screen:
    case MenuKind::List:
    case MenuKind::PrintScreen: {
      const Screen* screen = FindScreen(item.screen);
      // A tool needs another screen to work on.
      return screen != nullptr && (!screen->IsTool() || FrontScreen() != nullptr);
    }
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

bool Shell::IsStep(const MenuItem& item) {
  if (item.kind != MenuKind::Action && item.kind != MenuKind::RecentFile) return false;
  // These open a panel or work on the file alone.
  constexpr std::array kNoSteps = {
      &Shell::Graph,       &Shell::Notes,        &Shell::EntryAlig,
      &Shell::T_B_Style,   &Shell::O_C_Style,    &Shell::Co_Name,
      &Shell::Exit,        &Shell::Write,        &Shell::Print_Head_Location,
      &Shell::Undo,        &Shell::Redo,         &Shell::Steps,
      &Shell::Build_Sheet, &Shell::Compare_File, &Shell::Compare_Files,
  };
  return std::find(kNoSteps.begin(), kNoSteps.end(), item.action) == kNoSteps.end();
}

void Shell::Choose(const MenuItem& item) {
  if (!MenuEnabled(item)) return;
  const History::Step step(context(), IsStep(item) ? History::Kind::Other : History::Kind::None,
                           std::string(item.caption));
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
  } else if (item.kind == MenuKind::RecentFile) {
    Perform([&] { OpenRecentFile(static_cast<std::size_t>(item.index)); });
  } else if (item.action != nullptr) {
    Perform([&] { (this->*item.action)(); });
  } else {
    Perform(works_.find(item.name)->second);
  }
}

Screen* Shell::FrontScreen() const {
  const std::vector<Screen*>& visited = context().visited();
  const auto last = std::find_if(visited.rbegin(), visited.rend(), [this](const Screen* screen) {
    return screen != this && screen->visible() && ToolScreen::CanWorkOn(*screen);
  });
  return last == visited.rend() ? nullptr : *last;
}

void Shell::ShowAsOpened(Screen& screen) {
  if (block().FormsCleared != 1) screen.CopyShared();
  screen.SetVisible(true);
  if (CheckBox* box = screen.MetricBox();
      block().MetricMenuOn != 0 && box != nullptr && !box->on()) {
    if (block().FormsCleared == 1) {
      screen.SwitchBlankUnits(true);
    } else {
      box->TurnOver();
    }
  }
}

void Shell::Open(Screen& screen) {
  const History::Step step(context(), History::Kind::None);
  if (auto* tool = dynamic_cast<ToolScreen*>(&screen)) tool->WorkOn(FrontScreen());
  ShowAsOpened(screen);
  if (!screen.tag().empty()) block().CurrentScreenTag = screen.tag();
  if (opened_) opened_(screen);
}

void Shell::TellMenuChanged() {
  if (shellFace_ != nullptr && !context().journal.isDry()) shellFace_->MenuChanged();
}

void Shell::TellTitleChanged() {
  if (shellFace_ != nullptr && !context().journal.isDry()) shellFace_->TitleChanged();
}

std::string Shell::WindowTitle() const {
  std::string text = title();
  if (!block().ParameterFileName.empty()) {
    const std::string& path = block().ParameterFileName;
    text += " - " + path.substr(path.find_last_of('/') + 1);
  }
  if (block().DataChanged == 1) text += " *";
  return text;
}

Button Shell::Question(const std::string& text, std::vector<Button> buttons) {
  return context().host.Ask({Icon::Question, title(), text, std::move(buttons)});
}

void Shell::Inform(const std::string& text, Icon icon) {
  context().host.Ask({icon, title(), text, {Button::OK}});
}

// ---------------------------------------------------------------- build sheet and comparison

void Shell::ShowBuildSheet(const std::vector<Screen*>& screens) {
  const std::string& path = block().ParameterFileName;
  BuildSheetHead head;
  head.fileName = path.substr(path.find_last_of('/') + 1);
  head.made = context().host.Now();
  std::string report;
  {
    const DryRun run(context());
    std::vector<const Screen*> shown;
    for (Screen* screen : screens) {
      if (std::ranges::find(shown, screen) != shown.end()) continue;
      // A screen that is closed holds older values, or none yet.
      if (!screen->visible()) ShowAsOpened(*screen);
      shown.push_back(screen);
    }
    report = BuildSheet(shown, head, block());
  }
  sheet.ShowSheet(std::move(report), "Build Sheet");
}

FileContents Shell::ContentsOfFile(const std::filesystem::path& file) {
  const std::string bytes = LoadFile(file);
  DryRun run(context());
  // Files hold inches, and what they hold shows, whatever was cleared before.
  context().HandOver(nullptr);
  block().FormsCleared = 0;
  FileFindings findings;
  parameterFile_.ReadBytes(bytes, PathText(file.filename()), &findings);
  if (!findings.failure.empty()) throw CommandError(ErrorKind::File, findings.failure);
  return OfFile(ContentsOf(parameterFile_.Compose().bytes), findings);
}

FileComparison Shell::CompareWith(const std::filesystem::path& file) {
  const FileContents there = ContentsOfFile(file);
  DryRun run(context());
  context().HandOver(nullptr);
  return Compare(ContentsOf(parameterFile_.Compose().bytes), there);
}

FileComparison Shell::CompareTwo(const std::filesystem::path& here,
                                 const std::filesystem::path& there) {
  return Compare(ContentsOfFile(here), ContentsOfFile(there));
}

KeyPlace Shell::PlaceOfKey(const KeyDifference& difference) {
  KeyPlace place;
  const KeyRow* row = FindKey(difference.key);
  if (row == nullptr) return place;
  const Control* control = FindControl(row->owner);
  const Screen* screen = control != nullptr
                             ? &control->screen()
                             : FindScreen(row->owner.substr(0, row->owner.find('.')));
  if (screen != nullptr && screen != this) place.screen = screen->title();
  place.isOption = row->form == KeyForm::Flag ||
                   (control != nullptr && (control->kind() == ControlKind::OptionGroup ||
                                           control->kind() == ControlKind::CheckBox));
  const auto* field = dynamic_cast<const Field*>(control);
  if (field == nullptr || difference.name != difference.key) return place;
  place.label = field->PlainCaption();
  // Files hold inches, and pounds.
  place.unit = UnitSign(field->unit(), false);
  return place;
}

void Shell::ShowComparison(const FileComparison& comparison, const std::string& here,
                           const std::string& there) {
  sheet.ShowSheet(
      ComparisonReport(
          comparison, here, there,
          [this](const KeyDifference& difference) { return PlaceOfKey(difference); }, mark()),
      "Comparison of Parameter Files");
}

void Shell::Compare_File() {
  const std::filesystem::path file = AskParameterFile(FileDialog::Kind::Open);
  ShowComparison(CompareWith(file), "the present values", PathText(file.filename()));
}

void Shell::Compare_Files() {
  const std::filesystem::path here = AskParameterFile(FileDialog::Kind::Open);
  const std::filesystem::path there = AskParameterFile(FileDialog::Kind::Open);
  ShowComparison(CompareTwo(here, there), PathText(here.filename()), PathText(there.filename()));
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
  TellTitleChanged();
  std::error_code error;
  const std::filesystem::path whole = std::filesystem::absolute(path, error);
  if (!error) {
    settings_.AddRecentFile(whole);
    SaveSettings();
    TellMenuChanged();
  }
  Inform(FormatValue<"#,##0">(records, mark()) + done);
}

int Shell::TakeFile(const std::filesystem::path& file) {
  const int records = parameterFile_.ReadParameterFile(file);
  // Only now that new data are there is nothing left to be saved.
  block().DataChanged = 0;
  TellTitleChanged();
  TellMenuChanged();
  graphOptions.TellChanged();
  appearance.TellChanged();
  notes.ShowNotes();
  if (read_) read_();
  context().current.PutBack();
  return records;
}

void Shell::SettleChanges() {
  if (block().DataChanged != 1) return;
  const Button answer = Question("Do you want to Save Your Data before Reading in New Data?",
                                 {Button::Yes, Button::No});
  // A save that is cancelled or fails ends the command with nothing read.
  if (answer == Button::Yes) Write();
}

void Shell::ReadFile(const std::filesystem::path& file) {
  context().HandOver(nullptr);
  const int records = TakeFile(file);
  context().history.SetTitle(PathText(file.filename()));
  ShowFile(file, records, " Records Read");
}

void Shell::Read() {
  SettleChanges();
  ReadFile(AskParameterFile(FileDialog::Kind::Open));
}

void Shell::OpenFile(const std::filesystem::path& file) {
  const History::Step step(context(), History::Kind::Other);
  Perform([&] {
    SettleChanges();
    ReadFile(file);
  });
}

void Shell::OpenRecentFile(std::size_t index) {
  const std::filesystem::path file = settings_.recentFiles().at(index);
  if (!IsThere(file)) {
    settings_.DropRecentFile(index);
    SaveSettings();
    TellMenuChanged();
    throw CommandError(
        ErrorKind::File,
        "This file is not there any more. It was taken off the list:\r\n" + PathText(file));
  }
  SettleChanges();
  ReadFile(file);
}

void Shell::ChooseLook(LookChoice look) {
  settings_.look = look;
  SaveSettings();
  TellMenuChanged();
  if (shellFace_ != nullptr) shellFace_->LookChanged();
}

PlainColors Shell::OwnColors() const {
  switch (settings_.look) {
    case LookChoice::Light: return {};
    case LookChoice::Dark: return kDarkColors;
    case LookChoice::Desktop: break;
  }
  return context().host.OwnColors();
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
  context().history.Saved();
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
  context().current.PutBack();
  Inform(
      "FORM DATA CLEARED -- You can now Print Blank Forms -- After Printing Blank Forms, Please "
      "EXIT and Reload VELDOXW",
      Icon::Warning);
}

void Shell::Metric() {
  block().MetricMenuOn = block().MetricMenuOn != 0 ? 0 : -1;
  context().history.SetTitle(MenuCaption(*FindMenuItem("Metric")));
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
  SaveSettings();
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
