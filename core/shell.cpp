#include "core/shell.h"

#include <algorithm>
#include <filesystem>
#include <memory>
#include <system_error>
#include <utility>

#include "core/files.h"
#include "core/version.h"

namespace veldox {

namespace {

// clang-format off
constexpr MenuItem kMenu[] = {
    {"File", "&File", "", MenuKind::Submenu},
    {"CubicInch", "&CI", "", MenuKind::Screen, "Form1"},
    {"CompRatio", "C&R", "", MenuKind::Screen, "Form1CR"},
    {"ET_MPH", "&ET/MPH/HP", "", MenuKind::Screen, "Form3"},
    {"CAM_INFO", "Cam &Info", "", MenuKind::Screen, "Form2"},
    {"CompGauge", "C&omp Gauge", "", MenuKind::Screen, "Form12"},
    {"Blowers", "&Blowers", "", MenuKind::Screen, "Form14"},
    {"AIRFUEL", "Air Fue&l", "", MenuKind::Screen, "Form4"},
    {"SRKEXH", "2-S E&xhaust", "", MenuKind::Screen, "Form11"},
    {"GEAR", "&Gear", "", MenuKind::Screen, "Form5"},
    {"ACCELERATION", "&Acceleration", "", MenuKind::Screen, "Form13"},
    {"CHASSIS", "Cha&ssis", "", MenuKind::Screen, "Form6"},
    {"SPRINGS", "S&prings", "", MenuKind::Screen, "Form16"},
    {"WEATHER", "&Weather", "", MenuKind::Screen, "Form7"},
    {"GRAPHER", "G&rapher", "", MenuKind::Screen, "Form8"},
    {"SRKVAL", "2-S Port &Timing", "", MenuKind::Screen, "Form18"},
    {"UNIT", "&Unit Conversion", "", MenuKind::Screen, "Form9"},
    {"EQUIV", "E&quivalence Charts", "", MenuKind::Screen, "Form10"},
    {"About", "&About", "", MenuKind::Screen, "Form15"},
    {"Nitrous", "&Nitrous", "", MenuKind::Screen, "Form17"},
    {"Tools", "Tools", "", MenuKind::Submenu},
    {"Cam_Gen", "Generate Cam File", "", MenuKind::Screen, "Form33"},
    {"Graph", "&Graph / Draw Options", "File", MenuKind::Action, "", &Shell::Graph},
    {"Help", "&Help Box Options", "File", MenuKind::Submenu},
    {"Fonts", "Select Font &Style", "Help", MenuKind::Action},
    {"BoxFColor", "Select &Font Color", "Help", MenuKind::Action},
    {"BoxColor", "Select Background &Color", "Help", MenuKind::Action},
    {"User_GUI", "User Selectable Entry GUI Options", "File", MenuKind::Submenu},
    {"Classic_Lab", "Classic Label Font and Size", "User_GUI", MenuKind::Action},
    {"Classic_Comm", "Classic CommandButton Font and Size", "User_GUI", MenuKind::Action},
    {"EntryFont", "Select Font for Entry Text", "User_GUI", MenuKind::Action},
    {"EntryAlig", "Select Alignment for Entry Text", "User_GUI", MenuKind::Action},
    {"T_B_Style", "Select Entry Text Box Border Style", "User_GUI", MenuKind::Action},
    {"O_C_Style", "Select Option/Check Box Border Style - DO FIRST", "User_GUI", MenuKind::Action},
    {"LabelFont", "Select Font for Label Text", "User_GUI", MenuKind::Action},
    {"LabelColor", "Select Color for Label Text", "User_GUI", MenuKind::Action},
    {"CommandFont", "Select Font for Command Button Text", "User_GUI", MenuKind::Action},
    {"FrameColor", "Select &Background Color of Entry Frame", "User_GUI", MenuKind::Action},
    {"QuitColor", "Select Background Color of Quit / Done Buttons", "User_GUI", MenuKind::Action},
    {"SepBar1", "-", "File", MenuKind::Separator},
    {"Print", "&Print Forms", "File", MenuKind::Submenu},
    {"Print1", "&CI", "Print", MenuKind::PrintScreen, "Form1"},
    {"Print1CR", "C&R", "Print", MenuKind::PrintScreen, "Form1CR"},
    {"Print3", "&ET / MPH / HP", "Print", MenuKind::PrintScreen, "Form3"},
    {"Print2", "Cam &Info", "Print", MenuKind::PrintScreen, "Form2"},
    {"Print12", "C&ompression Gauge", "Print", MenuKind::PrintScreen, "Form12"},
    {"Print14", "&Blowers", "Print", MenuKind::PrintScreen, "Form14"},
    {"Print4", "Air Fue&l", "Print", MenuKind::PrintScreen, "Form4"},
    {"Print11", "2 Stroke E&xhaust", "Print", MenuKind::PrintScreen, "Form11"},
    {"Print5", "&Gear", "Print", MenuKind::PrintScreen, "Form5"},
    {"Print13", "&Acceleration", "Print", MenuKind::PrintScreen, "Form13"},
    {"Print6", "Cha&ssis", "Print", MenuKind::PrintScreen, "Form6"},
    {"Print16", "S&prings", "Print", MenuKind::PrintScreen, "Form16"},
    {"Print7", "&Weather", "Print", MenuKind::PrintScreen, "Form7"},
    {"Print18", "2 Stroke Port &Timing", "Print", MenuKind::PrintScreen, "Form18"},
    {"Print9", "&Unit Conversion", "Print", MenuKind::PrintScreen, "Form9"},
    {"Print10", "E&quivalence Charts", "Print", MenuKind::PrintScreen, "Form10"},
    {"Print17", "&Nitrous", "Print", MenuKind::PrintScreen, "Form17"},
    {"Print33", "Generate Cam File", "Print", MenuKind::PrintScreen, "Form33"},
    {"Print15", "About", "Print", MenuKind::PrintScreen, "Form15"},
    {"Print8", "Graph", "Print", MenuKind::PrintScreen, "Form8"},
    {"Printer", "Printer &Setup", "File", MenuKind::Action, "", &Shell::Printer},
    {"Print_CI", "Print Company Info Multi Page -- Is OFF", "File", MenuKind::Action, "", &Shell::Print_CI},
    {"Print_Head_Location", "Print Company Info - Select Location", "File", MenuKind::Action},
    {"SepBar2", "-", "File", MenuKind::Separator},
    {"Read", "&Read (Open) Parameter File", "File", MenuKind::Action, "", &Shell::Read},
    {"Write", "&Write (Save) Parameter File", "File", MenuKind::Action, "", &Shell::Write},
    {"Notes", "Edit Parameter File Notes", "File", MenuKind::Action, "", &Shell::Notes},
    {"SepBar3", "-", "File", MenuKind::Separator},
    {"Trans", "&Get Transmission Gear Ratios", "File", MenuKind::Submenu},
    {"Automatic", "A&utomatic", "Trans", MenuKind::Action},
    {"Automatic_GM", "Automatic GM", "Trans", MenuKind::Action},
    {"SepBar5", "-", "Trans", MenuKind::Separator},
    {"Quaife", "&Quaife", "Trans", MenuKind::Action},
    {"SepBar6", "-", "Trans", MenuKind::Separator},
    {"Stick34", "&Stick 3/4 Speed", "Trans", MenuKind::Action},
    {"Stick56", "S&tick 5/6/7 Speed", "Trans", MenuKind::Action},
    {"SepBar7", "-", "Trans", MenuKind::Separator},
    {"Tremec", "&Tremec", "Trans", MenuKind::Action},
    {"SepBar8", "-", "Trans", MenuKind::Separator},
    {"Motorc", "&Motorcycle", "Trans", MenuKind::Action},
    {"CoeffDrag_FrontalArea", "Get Coefficient of Drag / Frontal Area", "File", MenuKind::Submenu},
    {"CD_FA", "CD FA - American", "CoeffDrag_FrontalArea", MenuKind::Action},
    {"CD_FA_Other", "CD FA - Other", "CoeffDrag_FrontalArea", MenuKind::Action},
    {"Engine_Spec", "&Get Engine Specs - Bore Stroke Rod Length", "File", MenuKind::Submenu, "Form21"},
    {"American", "American", "Engine_Spec", MenuKind::Submenu},
    {"AMC", "AMC - Jeep - Ramble", "American", MenuKind::List, "Form21"},
    {"Buick", "Buick", "American", MenuKind::List, "Form21"},
    {"Cadillac", "Cadillac", "American", MenuKind::List, "Form21"},
    {"Chevy", "Chevy", "American", MenuKind::Submenu},
    {"Chevy_SB", "Chevy - SB", "Chevy", MenuKind::List, "Form21"},
    {"Chevy_BB", "Chevy - BB", "Chevy", MenuKind::List, "Form21"},
    {"Chevy_All", "Chevy - All Others", "Chevy", MenuKind::List, "Form21"},
    {"Chrysler", "Chrysler - Dodge - DeSoto - Plymouth", "American", MenuKind::Submenu},
    {"Chrysler_SB", "Chrysler - SB", "Chrysler", MenuKind::List, "Form21"},
    {"Chrysler_BB", "Chrysler - BB", "Chrysler", MenuKind::List, "Form21"},
    {"Chrysler_All", "Chrysler - All Others", "Chrysler", MenuKind::List, "Form21"},
    {"Cummins", "Cummins", "American", MenuKind::List, "Form21"},
    {"Ford", "Ford - Edsel - Lincoln - Mercury", "American", MenuKind::Submenu},
    {"Ford_SB", "Ford - SB", "Ford", MenuKind::List, "Form21"},
    {"Ford_BB", "Ford - BB", "Ford", MenuKind::List, "Form21"},
    {"Ford_All", "Ford - All Others", "Ford", MenuKind::List, "Form21"},
    {"Olds", "Olds", "American", MenuKind::List, "Form21"},
    {"Packard", "Packard", "American", MenuKind::List, "Form21"},
    {"Pontiac", "Pontiac", "American", MenuKind::List, "Form21"},
    {"Studebaker", "Studebaker", "American", MenuKind::List, "Form21"},
    {"Foreign", "Foreign", "Engine_Spec", MenuKind::Submenu},
    {"BMW", "BMW", "Foreign", MenuKind::List, "Form21"},
    {"Ferrari", "Ferrari", "Foreign", MenuKind::List, "Form21"},
    {"Honda", "Honda", "Foreign", MenuKind::List, "Form21"},
    {"Maserati", "Maserati", "Foreign", MenuKind::List, "Form21"},
    {"Mazda", "Mazda", "Foreign", MenuKind::List, "Form21"},
    {"Mercedes", "Mercedes", "Foreign", MenuKind::List, "Form21"},
    {"Nissan", "Nissan", "Foreign", MenuKind::List, "Form21"},
    {"Porsche", "Porsche", "Foreign", MenuKind::List, "Form21"},
    {"Toyota", "Toyota", "Foreign", MenuKind::List, "Form21"},
    {"VW", "VW", "Foreign", MenuKind::List, "Form21"},
    {"For_Other", "Other", "Foreign", MenuKind::List, "Form21"},
    {"MotorCycle", "MotorCycle - ATV - Etc...", "Engine_Spec", MenuKind::Submenu},
    {"Arctic_Cat", "Arctic Cat", "MotorCycle", MenuKind::List, "Form21"},
    {"BMWW", "BMW", "MotorCycle", MenuKind::List, "Form21"},
    {"Harley_Davidson", "Harley-Davidson", "MotorCycle", MenuKind::List, "Form21"},
    {"Hondaa", "Honda", "MotorCycle", MenuKind::List, "Form21"},
    {"Kawasaki", "Kawasaki", "MotorCycle", MenuKind::List, "Form21"},
    {"Ski_Doo", "Ski-Doo", "MotorCycle", MenuKind::List, "Form21"},
    {"Suzuki", "Suzuki", "MotorCycle", MenuKind::List, "Form21"},
    {"Yamaha", "Yamaha", "MotorCycle", MenuKind::List, "Form21"},
    {"Motor_Other", "Other", "MotorCycle", MenuKind::List, "Form21"},
    {"AirCraft", "AirCraft", "Engine_Spec", MenuKind::List, "Form21"},
    {"User_BSR", "User Bore Stroke Rod Table", "Engine_Spec", MenuKind::List, "Form21"},
    {"SepBar4", "-", "File", MenuKind::Separator},
    {"LrgScrRes", "Use Large Screen Resolution", "File", MenuKind::Action},
    {"FullScrRes", "Use Full Screen Resolution", "File", MenuKind::Action},
    {"ScrRes", "Sh&ow Screen Resolution", "File", MenuKind::Action, "", &Shell::ScrRes},
    {"SepBar54", "-", "File", MenuKind::Separator},
    {"Clear", "Clear All Data Fields on All Forms", "File", MenuKind::Action, "", &Shell::Clear},
    {"Metric", "Metric Mode -- Is OFF", "File", MenuKind::Action, "", &Shell::Metric},
    {"SepBarCN", "-", "File", MenuKind::Separator},
    {"Co_Name", "Enter Your Company Name, Address, etc", "File", MenuKind::Action},
    {"Load_Co_Name", "Load Company Name, Address, etc, Data", "File", MenuKind::Action},
    {"Exit", "E&xit", "File", MenuKind::Action, "", &Shell::Exit},
    {"CMM_Inches_MM", "Convert Cam File Inches to MM", "Tools", MenuKind::Action},
    {"CMM_MM_Inches", "Convert Cam File MM to Inches", "Tools", MenuKind::Action},
    {"Mod_Lift", "Increase / Decrease Cam Lift a Fixed %", "Tools", MenuKind::Action},
    {"Mod_Lift2", "Increase / Decrease Cam Lift a Fixed Amount", "Tools", MenuKind::Action},
    {"Cx_File", "Convert Cam Dr C\"x\" file to a CMM File / Format", "Tools", MenuKind::Action},
    {"S96_File", "Convert \"S96\" file(s) to a CMM File / Format", "Tools", MenuKind::Action},
    {"CheckT", "Convert PRT / Delimited File for Acceleration -- User Selected Fields - RPM and Torque", "Tools", MenuKind::Action},
    {"CheckT_All", "Convert PRT / Delimited File for Acceleration / Dyno Sheet -- User Selected Fields - RPM, Torque, Fuel, BSFC, and A/F", "Tools", MenuKind::Action},
    {"CheckH", "Convert PRT / Delimited File for Acceleration -- User Selected Fields - RPM and HP", "Tools", MenuKind::Action},
    {"CheckVELDOX", "Convert PRT / Delimited File for Graphing -- User Selected Fields - X-Axis and Y-Axis", "Tools", MenuKind::Action},
    {"CheckCQU", "Convert DYN (DeskTop Dyno) / CQU (Comp Cams CamQuest) / DYM (Dynomation) File for Acceleration", "Tools", MenuKind::Action},
    {"CheckAxis", "Reverse Axis for VELDOX Graphing File / PRM", "Tools", MenuKind::Action},
    {"Timing_Tape", "Print a Timing Tape - This is Close But is NOT Perfect - It is NOT a Replacement for a Store Bought Timing Tape", "Tools", MenuKind::Action},
};

constexpr LauncherItem kLauncher[] = {
    {"Engine", "CubicInch", "Engine Displacement"},
    {"Engine", "CompRatio", "Compression Ratio"},
    {"Engine", "CompGauge", "Compression Gauge, Octane"},
    {"Engine", "Engine_Spec", "Engine Finder"},
    {"Camshaft", "CAM_INFO", "Camshaft Information"},
    {"Camshaft", "Cam_Gen", "Cam Lift Curve Generator"},
    {"Air, Fuel and Exhaust", "AIRFUEL", "Air Flow, Fuel, Exhaust"},
    {"Air, Fuel and Exhaust", "Blowers", "Blowers and Turbos"},
    {"Air, Fuel and Exhaust", "Nitrous", "Nitrous"},
    {"Two-Stroke", "SRKVAL", "Port Timing"},
    {"Two-Stroke", "SRKEXH", "Expansion Chamber"},
    {"Vehicle", "ET_MPH", "ET, MPH, Horsepower"},
    {"Vehicle", "GEAR", "Gears, Tires, Speed"},
    {"Vehicle", "ACCELERATION", "Acceleration, Top Speed"},
    {"Chassis", "CHASSIS", "Corner Weights"},
    {"Chassis", "SPRINGS", "Springs and Bars"},
    {"Weather and Reference", "WEATHER", "Weather Correction"},
    {"Weather and Reference", "UNIT", "Unit Conversion"},
    {"Weather and Reference", "EQUIV", "Equivalence Charts"},
    {"Graphs and About", "GRAPHER", "Grapher"},
    {"Graphs and About", "About", "About VELDOX"},
};
// clang-format on

constexpr int kSmallestGraph = 4;  ///< hundreds of pixels
constexpr int kLargestGraph = 64;
constexpr int kLargestGraphArea = 1600;
constexpr const char* kGraphSizeNote =
    "Valid Values 4 to 64 -- Max Size of Graph is Width times Height = 1600";
constexpr int kFewestGridLines = 2;
constexpr int kMostGridLines = 400;
constexpr const char* kGridCountNote = "Valid Values 2 to 400";
constexpr int kWidestLine = 50;
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

std::span<const MenuItem> Shell::Menu() {
  return kMenu;
}

std::span<const LauncherItem> Shell::Launcher() {
  return kLauncher;
}

const MenuItem* Shell::FindMenuItem(std::string_view name) {
  const auto found = std::find_if(std::begin(kMenu), std::end(kMenu),
                                  [&](const MenuItem& item) { return item.name == name; });
  return found == std::end(kMenu) ? nullptr : found;
}

Shell::Shell(ProgramContext& context)
    : Screen(context, "Main", context.rules.messages().MessageTitle, ""), parameterFile_(context) {
  Frame12.SetVisible(false);
  Frame8.SetVisible(false);
  OptionFrame.SetVisible(false);
  for (Frame* frame : GraphOptionFrames()) frame->SetVisible(false);
  for (Field* field : {&Text11, &Text12, &Text13, &Text15, &Text16, &Text17, &Text14, &Text18,
                       &Text19, &Text20, &Text21, &Text23}) {
    field->SetIsOption();
  }
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
  Combo3.SetRows({"0 - Left", "1 - Right", "2 - Center (Default)"});
  Combo4.SetRows({"0 - None", "1 - 3d Fixed (Default)"});
  Combo5.SetRows({"0 - Flat", "1 - 3d Fixed (Default)"});
  Combo6.SetRows({"white", "black", "green", "blue", "cyan", "red", "magenta", "yellow", "brown",
                  "dark gray", "dark green", "dark red", "light gray", "light green",
                  "light yellow", "orange"});
  DetectDecimalMark();
  context().rules.BuildMessages();
  if (block().DecimalCommaMode != 0) ConvertDefaultsToComma();
  BuildVersionLines();
  DetectScreenSize();
  ProbeLargeScreenFile();
  ProbeFullScreenFile();
  InitParameterBlock();
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

void Shell::DetectScreenSize() {
  const ScreenSize size = context().host.MeasureScreen();
  if (size.width < 1020 || size.height < 700) return;
  widthLimit_ = 1000;
  heightLimit_ = 700;
  for (int i = 0; i <= 35; ++i) {
    if (size.width >= 1050 + 100 * i) widthLimit_ = 1000 + 100 * i;
  }
  for (int i = 1; i <= 23; ++i) {
    if (size.height >= 750 + 100 * i) heightLimit_ = 700 + 100 * i;
  }
}

void Shell::ProbeLargeScreenFile() {
  if (IsThere(InFolder(context().host.ProgramFolder(), kLargeScreenFile))) block().LargeScreen = 1;
}

void Shell::ProbeFullScreenFile() {
  if (IsThere(InFolder(context().host.ProgramFolder(), kFullScreenFile))) block().FullScreen = 1;
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
  Perform([&] { parameterFile_.ReadParameterFile(file); });
  TellMenuChanged();
  GraphOptionsChanged();
}

std::string Shell::MenuCaption(const MenuItem& item) const {
  const auto turned = [&](bool on) {
    std::string caption(item.caption);
    caption.resize(caption.rfind(' ') + 1);
    return caption + (on ? "ON" : "OFF");
  };
  if (item.action == &Shell::Metric) return turned(block().MetricMenuOn != 0);
  if (item.action == &Shell::Print_CI) return turned(block().PrintHeads != 0);
  return std::string(item.caption);
}

bool Shell::MenuEnabled(const MenuItem& item) {
  switch (item.kind) {
    case MenuKind::Separator: return false;
    case MenuKind::Screen:
    case MenuKind::List:
    case MenuKind::PrintScreen: return FindScreen(item.screen) != nullptr;
    case MenuKind::Action: return item.action != nullptr;
    case MenuKind::Submenu:
      return std::any_of(std::begin(kMenu), std::end(kMenu), [&](const MenuItem& child) {
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
    Perform([&] { context().host.PrintWindow(std::string(item.screen)); });
  } else {
    Perform([&] { (this->*item.action)(); });
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

void Shell::Read() {
  if (block().DataChanged == 1) {
    const Button answer = Question("Do you want to Save Your Data before Reading in New Data?",
                                   {Button::Yes, Button::No});
    block().DataChanged = 0;
    if (answer == Button::Yes) {
      try {
        Write();
      } catch (const CommandError& error) {
        // What could not be saved is still to be saved.
        if (error.kind() != ErrorKind::Cancelled) block().DataChanged = 1;
        throw;
      }
    }
  }
  const std::filesystem::path path = AskParameterFile(FileDialog::Kind::Open);
  context().HandOver(nullptr);
  const int records = parameterFile_.ReadParameterFile(path);
  TellMenuChanged();
  GraphOptionsChanged();
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
  ShowFile(path, records, " Records Written");
}

void Shell::Notes() {
  Text22.SetText(block().Notes);
  Frame12.SetVisible(true);
  Text22.Focus();
}

void Shell::SaveNotes() {
  if (Text22.text() != block().Notes) {
    block().Notes = Text22.text();
    context().rules.NoteChange();
  }
  DropNotes();
}

void Shell::DropNotes() {
  Frame12.SetVisible(false);
  ShowHelp({});
}

// ---------------------------------------------------------------- options of graphs

std::vector<Frame*> Shell::GraphOptionFrames() {
  return {&GraphFrame, &WidthFrame, &GridFrame, &CountFrame, &TextFrame, &SizeFrame, &DoneFrame};
}

std::vector<std::vector<Frame*>> Shell::Panels() {
  return {{&Frame12}, {&Frame8}, GraphOptionFrames(), {&OptionFrame}};
}

void Shell::Graph() {
  ShowGraphOptions();
  for (Frame* frame : GraphOptionFrames()) frame->SetVisible(true);
  DrawLn.Focus();
}

void Shell::CloseGraphOptions() {
  for (Frame* frame : GraphOptionFrames()) frame->SetVisible(false);
  ShowHelp({});
  GraphOptionsChanged();
}

void Shell::ShowGraphOptions() {
  const ParameterBlock& b = block();
  const auto turn = [](Command& command, std::int16_t on) {
    std::string caption = command.caption();
    caption.resize(caption.rfind(' ') + 1);
    command.SetCaption(caption + (on != 0 ? "ON" : "OFF"));
  };
  turn(Graph_Head, b.GraphHeads);
  turn(Graph_Logo, b.GraphLogo);
  turn(Graph_Line_Color, b.GraphLineColor);
  turn(Graph_Move_Grid, b.MoveGridLines);
  Solid_Line.SetCaption(b.SolidSwitch == 1 ? "Solid Line" : "Dash Line");
  const auto show = [&](Field& field, std::int16_t value) {
    field.SetText(FormatInt(value, mark()));
  };
  show(Text14, b.CustomGraphWidth);
  show(Text18, b.CustomGraphHeight);
  show(Text19, b.CustomGridLineCountx);
  show(Text20, b.CustomGridLineCounty);
  show(Text21, std::max<std::int16_t>(b.DrawLineWidth, 1));
  show(Text23, std::max<std::int16_t>(b.GraphLineWidth, 1));
}

void Shell::GraphOptionsChanged() {
  ShowGraphOptions();
  if (graphOptionsChanged_) graphOptionsChanged_();
}

void Shell::PickColorInto(std::int32_t& slot) {
  slot = RoundToInt32(ParseNumber(PickColor(), DecimalMark::Point));
  GraphOptionsChanged();
}

void Shell::Toggle(std::int16_t& slot) {
  slot = slot != 0 ? 0 : 1;
  GraphOptionsChanged();
}

void Shell::Solid_Line_Click() {
  block().SolidSwitch = block().SolidSwitch == 1 ? 0 : 1;
  GraphOptionsChanged();
}

void Shell::SetGraphSize() {
  GraphSize size{};
  ReadCount(size.width, Text14);
  ReadCount(size.height, Text18);
  const auto isValid = [](int side) { return side >= kSmallestGraph && side <= kLargestGraph; };
  if (!isValid(size.width) || !isValid(size.height) ||
      size.width * size.height > kLargestGraphArea) {
    throw CommandError(ErrorKind::InvalidArgument, kGraphSizeNote);
  }
  block().CustomGraphWidth = size.width;
  block().CustomGraphHeight = size.height;
  GraphOptionsChanged();
}

void Shell::SetGridLineCounts() {
  GridCounts counts{};
  ReadCount(counts.x, Text19);
  ReadCount(counts.y, Text20);
  const auto isValid = [](int count) {
    return count >= kFewestGridLines && count <= kMostGridLines;
  };
  if (!isValid(counts.x) || !isValid(counts.y)) {
    throw CommandError(ErrorKind::InvalidArgument, kGridCountNote);
  }
  block().CustomGridLineCountx = counts.x;
  block().CustomGridLineCounty = counts.y;
  GraphOptionsChanged();
}

void Shell::SetLineWidths() {
  std::int16_t draw = 0;
  std::int16_t curve = 0;
  ReadCount(draw, Text21);
  ReadCount(curve, Text23);
  Require(draw >= 1 && draw <= kWidestLine, Text21, "must be from 1 to 50.");
  Require(curve >= 1 && curve <= kWidestLine, Text23, "must be from 1 to 50.");
  block().DrawLineWidth = draw;
  block().GraphLineWidth = curve;
  GraphOptionsChanged();
}

void Shell::Hover(Control* control) {
  const ParameterBlock& b = block();
  const auto change = [&](std::int16_t from, const Field& to) {
    return " from " + FormatInt(from, mark()) + " to " + to.text();
  };
  if (control == &Command5) {
    Command5.SetHelp("Click Enter Button to Confirm Changing the Graph Size Width" +
                     change(b.CustomGraphWidth, Text14) + " and the Height" +
                     change(b.CustomGraphHeight, Text18) + "\r\n" + kGraphSizeNote);
  } else if (control == &Command3) {
    Command3.SetHelp("Click Enter Button to Confirm Changing the X-Axis Grid Line Count" +
                     change(b.CustomGridLineCountx, Text19) + " and the Y-Axis Grid Line Count" +
                     change(b.CustomGridLineCounty, Text20) + "\r\n" + kGridCountNote);
  }
  Screen::Hover(control);
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

void Shell::Printer() {
  context().host.SetUpPrinter();
}

void Shell::Print_CI() {
  block().PrintHeads = block().PrintHeads != 0 ? 0 : 1;
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
