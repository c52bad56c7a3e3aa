#include "script/runner.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <fstream>
#include <iostream>
#include <iterator>
#include <optional>
#include <random>
#include <system_error>

#include "core/dry_run.h"
#include "core/field_copy.h"
#include "core/files.h"
#include "core/key_table.h"
#include "core/vary.h"

namespace veldox {

namespace {

/// Cuts the first word off a text, with the one blank behind it.
std::string_view TakeWord(std::string_view& text) {
  const auto blank = text.find(' ');
  const std::string_view word = text.substr(0, blank);
  text = blank == std::string_view::npos ? std::string_view{} : text.substr(blank + 1);
  return word;
}

std::vector<Key> ParseKeys(std::string_view text) {
  std::vector<Key> keys;
  for (std::size_t i = 0; i < text.size();) {
    constexpr std::array<std::pair<std::string_view, Key>, 3> kNamed{
        {{"{BS}", kBackspace}, {"{TAB}", kTab}, {"{ENTER}", kEnter}}};
    const auto named = std::find_if(kNamed.begin(), kNamed.end(), [&](const auto& key) {
      return text.substr(i, key.first.size()) == key.first;
    });
    if (named != kNamed.end()) {
      keys.push_back(named->second);
      i += named->first.size();
      continue;
    }
    // One UTF-8 character.
    const auto lead = static_cast<unsigned char>(text[i]);
    const std::size_t length = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    Key key = length == 1 ? lead : lead & (0xFFU >> (length + 1));
    for (std::size_t k = 1; k < length && i + k < text.size(); ++k) {
      key = (key << 6) | (static_cast<unsigned char>(text[i + k]) & 0x3FU);
    }
    keys.push_back(key);
    i += length;
  }
  return keys;
}

std::optional<int> ParseWhole(std::string_view text) {
  int value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return value;
}

std::string StateText(bool visible, bool enabled) {
  return std::string(visible ? "visible" : "hidden") + (enabled ? " enabled" : " disabled");
}

FontChoice ParseFont(std::string_view text) {
  FontChoice font;
  std::vector<std::string_view> pieces;
  for (std::size_t from = 0; from <= text.size();) {
    const auto end = std::min(text.find(';', from), text.size());
    pieces.push_back(text.substr(from, end - from));
    from = end + 1;
  }
  const auto size = pieces.size() == 4 ? ParseWhole(pieces[1]) : std::nullopt;
  if (!size) throw ScriptError("a font is NAME;SIZE;BOLD;ITALIC");
  const auto isOn = [](std::string_view word) {
    return word == "1" || word == "-1" || word == "BOLD" || word == "ITALIC" || word == "bold" ||
           word == "italic" || word == "on" || word == "Yes" || word == "true" || word == "True";
  };
  font.name = pieces[0];
  font.size = *size;
  font.bold = isOn(pieces[2]);
  font.italic = isOn(pieces[3]);
  return font;
}

std::optional<ScriptHost::Orientation> ParseOrientation(std::string_view text) {
  if (text == "landscape") return ScriptHost::Orientation::Landscape;
  if (text == "portrait") return ScriptHost::Orientation::Portrait;
  if (text == "cancel") return std::nullopt;
  throw ScriptError("a printer is landscape, portrait or cancel");
}

}  // namespace

ScriptRunner::ScriptRunner(Program& program, ScriptHost& host, Driver& driver,
                           std::filesystem::path folder, Print print)
    : program_(program),
      host_(host),
      driver_(driver),
      folder_(std::move(folder)),
      print_(std::move(print)) {}

bool ScriptRunner::Run(std::string_view script) {
  try {
    while (!script.empty()) {
      const auto end = script.find('\n');
      std::string_view line = script.substr(0, end);
      script = end == std::string_view::npos ? std::string_view{} : script.substr(end + 1);
      if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
      ++line_;
      if (line.find_first_not_of(" \t") == std::string_view::npos || line.front() == '#') continue;
      RunLine(line);
      // The next statement comes when nothing has been entered for a while.
      program_.context().current.Run(true);
      if (!host_.wrong.empty()) throw ScriptError(host_.wrong);
    }
    RequireNothingPrepared();
    return true;
  } catch (const ScriptError& error) {
    wrong_ = "script line " + std::to_string(line_) + ": " + error.what();
    return false;
  }
}

void ScriptRunner::RunLine(std::string_view line) {
  std::string_view rest = line;
  const std::string_view verb = TakeWord(rest);
  const auto isOneOf = [&](std::initializer_list<std::string_view> verbs) {
    return std::find(verbs.begin(), verbs.end(), verb) != verbs.end();
  };
  if (verb == "pause") {
    print_(UnescapeText(rest));
  } else if (verb == "messages") {
    PrintList(host_.messages);
  } else if (verb == "dialogs") {
    PrintList(host_.dialogs);
  } else if (verb == "pages") {
    TellPages();
  } else if (verb == "plot") {
    TellPlot();
  } else if (verb == "undo") {
    program_.context().history.Undo();
  } else if (verb == "redo") {
    program_.context().history.Redo();
  } else if (verb == "history") {
    TellHistory();
  } else if (verb == "preview") {
    TellPreview(Find<Command>(rest, "command"));
  } else if (verb == "vary") {
    TellVaried(rest);
  } else if (verb == "seek") {
    TellSought(rest);
  } else if (verb == "compare") {
    TellCompared(rest);
  } else if (verb == "sheet") {
    MakeSheet(rest);
  } else if (verb == "value") {
    TellValue(rest);
  } else if (isOneOf({"answer", "file", "font", "color", "printer"})) {
    Prepare(verb, rest);
  } else if (isOneOf({"get", "state", "rows", "show"})) {
    Tell(verb, rest);
  } else {
    const std::string_view target = TakeWord(rest);
    Touch(verb, target, rest);
  }
}

void ScriptRunner::Prepare(std::string_view verb, std::string_view text) {
  const bool cancel = text == "cancel";
  if (verb == "answer") {
    constexpr std::array<std::pair<std::string_view, Button>, 4> kButtons{
        {{"OK", Button::OK}, {"Cancel", Button::Cancel}, {"Yes", Button::Yes}, {"No", Button::No}}};
    const auto button = std::find_if(kButtons.begin(), kButtons.end(),
                                     [&](const auto& entry) { return entry.first == text; });
    if (button == kButtons.end()) throw ScriptError("no such button: " + std::string(text));
    host_.answers.push_back({button->second, line_});
  } else if (verb == "file") {
    std::optional<std::filesystem::path> path;
    if (!cancel) path = folder_ / std::filesystem::path(UnescapeText(text));
    host_.files.push_back({path, line_});
  } else if (verb == "font") {
    std::optional<FontChoice> font;
    if (!cancel) font = ParseFont(text);
    host_.fonts.push_back({font, line_});
  } else if (verb == "printer") {
    host_.printers.push_back({ParseOrientation(text), line_});
  } else {
    const auto color = ParseWhole(text);
    if (!cancel && !color) throw ScriptError("no such colour: " + std::string(text));
    host_.colors.push_back({color, line_});
  }
}

void ScriptRunner::Touch(std::string_view verb, std::string_view target, std::string_view text) {
  if (verb == "menu") {
    const MenuItem* item = Shell::FindMenuItem(target);
    if (item == nullptr) throw ScriptError("no such menu item: " + std::string(target));
    driver_.ChooseMenu(*item);
  } else if (verb == "set") {
    driver_.Set(FindField(target), UnescapeText(text));
  } else if (verb == "type") {
    Control& control = FindControl(target);
    const bool isList = control.kind() == ControlKind::PickList;
    driver_.Type(isList ? control : FindField(target), ParseKeys(UnescapeText(text)));
  } else if (verb == "leave") {
    driver_.Leave(FindField(target));
  } else if (verb == "press") {
    const std::vector<Key> keys = ParseKeys(UnescapeText(text));
    if (keys.size() != 1) throw ScriptError("press takes one key");
    driver_.Press(WithinReach(FindControl(target)), keys.front());
  } else if (verb == "check" || verb == "uncheck") {
    auto& box = Find<CheckBox>(target, "check box");
    if (box.on() != (verb == "check")) driver_.Click(box);
  } else if (verb == "choose") {
    driver_.Click(Find<OptionButton>(target, "option button"));
  } else if (verb == "select") {
    auto& list = Find<ComboList>(target, "list");
    const auto row = std::find(list.rows().begin(), list.rows().end(), UnescapeText(text));
    if (row == list.rows().end()) throw ScriptError("no such row: " + std::string(text));
    driver_.Select(list, static_cast<int>(row - list.rows().begin()));
  } else if (verb == "hover") {
    Screen* screen = program_.shell().FindScreen(target);
    if (screen != nullptr) {
      driver_.Hover(*screen, nullptr);
    } else {
      Control& control = FindControl(target);
      driver_.Hover(control.screen(), &control);
    }
  } else if (verb == "click") {
    driver_.Click(Find<Command>(target, "command"));
  } else if (verb == "picture") {
    Screen* screen = program_.shell().FindScreen(target);
    if (screen == nullptr) throw ScriptError("no such screen: " + std::string(target));
    if (!driver_.Picture(*screen, std::filesystem::path(UnescapeText(text)))) {
      throw ScriptError("no picture: it needs --windows and an open window");
    }
  } else {
    throw ScriptError("unknown verb: " + std::string(verb));
  }
}

void ScriptRunner::Tell(std::string_view verb, std::string_view target) {
  const std::string name(target);
  // The items of the menu answer by their control names as well.
  if (target.substr(0, 5) == "Main." && program_.shell().FindControl(target) == nullptr) {
    if (const MenuItem* item = Shell::FindMenuItem(target.substr(5))) {
      if (verb == "get") {
        print_(name + " = " + EscapeText(program_.shell().MenuCaption(*item)));
        return;
      }
      if (verb == "state") {
        print_(name + " = " + StateText(true, program_.shell().MenuEnabled(*item)));
        return;
      }
    }
  }
  Control& control = FindControl(target);
  if (verb == "get") {
    print_(name + " = " + EscapeText(ShownText(control)));
  } else if (verb == "state") {
    print_(name + " = " + StateText(control.Shown(), control.enabled()));
  } else if (verb == "rows") {
    const auto& rows = Find<ComboList>(target, "list").rows();
    print_(std::to_string(rows.size()));
    for (const std::string& row : rows) print_(EscapeText(row));
  } else {
    const std::string text = ShownText(control);
    for (std::size_t from = 0; from <= text.size();) {
      const auto end = std::min(text.find('\n', from), text.size());
      std::string_view line = std::string_view(text).substr(from, end - from);
      if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
      print_("| " + std::string(line));
      from = end + 1;
    }
  }
}

void ScriptRunner::TellValue(std::string_view key) {
  ParameterBlock& block = program_.context().block;
  const auto unknown = [&] { return ScriptError("no such key: " + std::string(key)); };
  const KeyRow* row = FindKey(key);
  int index = 0;
  if (row == nullptr || row->form == KeyForm::Table) {
    // An array key ends with the index of its row: "T Gear 3", "Shift RPM 1-2".
    const auto blank = key.rfind(' ');
    if (blank == std::string_view::npos) throw unknown();
    const std::string_view number = key.substr(blank + 1);
    row = FindKey(key.substr(0, blank));
    const auto parsed = ParseWhole(number.substr(0, number.find('-')));
    if (row == nullptr || row->form != KeyForm::Table || !parsed || *parsed < row->firstRow ||
        *parsed >= row->rows) {
      throw unknown();
    }
    index = *parsed;
  }
  print_(std::string(key) + " = " + EscapeText(KeyValueText(*row, block, index)));
}

void ScriptRunner::TellHistory() {
  History& history = program_.context().history;
  std::vector<std::string> steps = history.Told();
  steps.resize(history.done());
  for (const std::string& step : steps) print_(EscapeText(step));
}

void ScriptRunner::TellPreview(Command& command) {
  const Preview preview = PreviewOf(command);
  if (!preview.error.empty()) {
    print_("error: " + EscapeText(preview.error));
    return;
  }
  for (const ControlChange& change : preview.changes) {
    print_(change.control->screen().name() + '.' + change.control->name() + " : " +
           EscapeText(change.before) + " -> " + EscapeText(change.after));
  }
  if (preview.report) print_("report");
  if (preview.graph) print_("graph");
  for (const std::string& note : preview.notes) print_("note: " + EscapeText(note));
}

void ScriptRunner::TellCompared(std::string_view file) {
  try {
    const FileComparison comparison =
        program_.shell().CompareWith(folder_ / std::filesystem::path(UnescapeText(file)));
    for (const KeyDifference& difference : comparison.differences) {
      print_(difference.name + " : " + EscapeText(difference.here) + " | " +
             EscapeText(difference.there));
    }
    if (comparison.notesDiffer) print_("notes : differ");
  } catch (const CommandError& error) {
    print_("error: " + EscapeText(error.message()));
  }
}

void ScriptRunner::MakeSheet(std::string_view names) {
  std::vector<Screen*> screens;
  while (!names.empty()) {
    const std::string_view name = TakeWord(names);
    Screen* screen = program_.shell().FindScreen(name);
    if (screen == nullptr) throw ScriptError("no such screen: " + std::string(name));
    screens.push_back(screen);
  }
  if (screens.empty()) {
    for (Screen* screen : program_.shell().screens()) {
      if (screen->visible() && !screen->IsTool()) screens.push_back(screen);
    }
  }
  program_.shell().ShowBuildSheet(screens);
}

double ScriptRunner::TakeNumber(std::string_view& text) const {
  const std::string_view word = TakeWord(text);
  for (const DecimalMark mark : {program_.context().mark(), DecimalMark::Point}) {
    if (IsNumber(word, mark)) return ParseNumber(word, mark);
  }
  throw ScriptError("no number: " + std::string(word));
}

void ScriptRunner::TellVaried(std::string_view text) {
  auto& field = Find<Field>(TakeWord(text), "field");
  ValueRange range;
  range.from = TakeNumber(text);
  range.to = TakeNumber(text);
  range.by = TakeNumber(text);
  auto& command = Find<Command>(TakeWord(text), "command");
  std::vector<Control*> results;
  while (!text.empty()) results.push_back(&FindControl(TakeWord(text)));
  try {
    for (const VariedLine& line : Vary(field, range, command, results)) {
      std::string told = EscapeText(line.text);
      for (std::size_t i = 0; i < line.results.size(); ++i) {
        const bool isNumber = IsNumber(line.results[i], program_.context().mark());
        told += '\t' + (isNumber ? EscapeText(line.results[i])
                                 : "error: \"" + results[i]->name() + "\" shows no number.");
      }
      if (!line.error.empty()) told += "\terror: " + EscapeText(line.error);
      print_(told);
    }
  } catch (const CommandError& error) {
    print_("error: " + EscapeText(error.message()));
  }
}

void ScriptRunner::TellSought(std::string_view text) {
  auto& field = Find<Field>(TakeWord(text), "field");
  Sought sought;
  sought.low = TakeNumber(text);
  sought.high = TakeNumber(text);
  auto& command = Find<Command>(TakeWord(text), "command");
  Control& result = FindControl(TakeWord(text));
  sought.target = TakeNumber(text);
  try {
    print_(EscapeText(Seek(field, sought, command, result)));
  } catch (const CommandError& error) {
    print_("error: " + EscapeText(error.message()));
  }
}

void ScriptRunner::TellPages() {
  int number = 0;
  for (const Page& page : host_.pages) {
    print_("page " + std::to_string(++number) + (page.landscape ? " landscape" : " portrait"));
    for (const PlacedText& text : page.texts) {
      print_(std::to_string(text.x) + ' ' + std::to_string(text.y) + ' ' + text.font.name + ' ' +
             std::to_string(text.font.size) + (text.font.bold ? " bold " : " plain ") +
             EscapeText(text.text));
    }
  }
}

void ScriptRunner::TellPlot() {
  const PlotEngine& plot = program_.grapher().plot();
  print_("plot");
  for (const std::string& title : plot.Titles()) print_("title " + EscapeText(title));
  for (const PlotSeriesRecord& series : plot.series()) {
    if (!series.note.empty()) print_("title " + EscapeText(plot.LegendText(series)));
  }
  const auto caption = [&](const char* axis, int number) {
    if (const std::string& text = plot.Caption(number); !text.empty()) {
      print_(std::string("caption ") + axis + ' ' + EscapeText(text));
    }
  };
  caption("x", kXPointerCaption);
  caption("x", kXNameCaption);
  caption("y", kYPointerCaption);
  if (plot.hasAxes()) {
    print_("range x " + FormatShortest(plot.XLow) + ' ' + FormatShortest(plot.XHigh));
    print_("range y " + FormatShortest(plot.YLow) + ' ' + FormatShortest(plot.YHigh));
  }
  int number = 0;
  for (const PlotSeriesRecord& series : plot.series()) {
    print_("series " + std::to_string(++number) + ' ' +
           (plot.UserColor() ? std::string(kUserColorName) : series.name) + ' ' +
           std::to_string(series.points.size()) + " points");
    for (const GraphPoint& point : series.points) {
      print_(FormatShortest(point.x) + ' ' + FormatShortest(point.y));
    }
  }
}

void ScriptRunner::PrintList(std::vector<std::string>& lines) {
  for (const std::string& line : lines) print_(line);
  lines.clear();
}

void ScriptRunner::RequireNothingPrepared() const {
  const auto require = [&](const auto& prepared, const char* what) {
    if (!prepared.empty()) {
      throw ScriptError(std::string(what) + " of line " + std::to_string(prepared.front().line) +
                        " was never asked for");
    }
  };
  require(host_.answers, "the answer");
  require(host_.files, "the file");
  require(host_.fonts, "the font");
  require(host_.colors, "the colour");
  require(host_.printers, "the printer");
}

Control& ScriptRunner::FindControl(std::string_view name) {
  Control* control = program_.shell().FindControl(name);
  if (control == nullptr) throw ScriptError("no such control: " + std::string(name));
  return *control;
}

template <class T>
T& ScriptRunner::Find(std::string_view name, const char* what) {
  auto* found = dynamic_cast<T*>(&FindControl(name));
  if (found == nullptr) throw ScriptError(std::string(name) + " is no " + what);
  return *found;
}

TextControl& ScriptRunner::FindField(std::string_view name) {
  return static_cast<TextControl&>(WithinReach(Find<TextControl>(name, "field")));
}

namespace {

/// A folder of its own for a script that names none, gone when the script is over.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::random_device random;
    path_ = std::filesystem::temp_directory_path() /
            ("veldox-script-" + std::to_string(random()) + std::to_string(random()));
    std::filesystem::create_directories(path_);
  }
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
};

std::optional<std::string> LoadScript(const std::string& file) {
  if (file == "-") {
    return std::string(std::istreambuf_iterator<char>(std::cin), std::istreambuf_iterator<char>());
  }
  std::ifstream stream(file, std::ios::binary);
  if (!stream) return std::nullopt;
  return std::string(std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>());
}

}  // namespace

int RunScriptFile(const ScriptArguments& arguments, const DriverMaker& makeDriver) {
  const std::optional<std::string> script = LoadScript(arguments.file);
  if (!script) {
    std::fprintf(stderr, "veldox-script: cannot read the script %s\n", arguments.file.c_str());
    return 2;
  }
  std::optional<TemporaryFolder> temporary;
  ScriptHost::Settings settings;
  if (arguments.folder) {
    settings.folder = std::filesystem::absolute(*arguments.folder);
  } else {
    settings.folder = temporary.emplace().path();
  }
  settings.mark = arguments.decimalComma ? DecimalMark::Comma : DecimalMark::Point;
  settings.date = arguments.date;
  const std::filesystem::path scriptFolder =
      arguments.file == "-" ? std::filesystem::current_path()
                            : std::filesystem::absolute(arguments.file).parent_path();

  ScriptHost host(std::move(settings));
  Program program(host);
  const std::unique_ptr<Driver> driver = makeDriver(program);
  program.Start();
  ScriptRunner runner(program, host, *driver, scriptFolder, [](std::string_view line) {
    std::fwrite(line.data(), 1, line.size(), stdout);
    std::fputc('\n', stdout);
  });
  const bool done = runner.Run(DecodeText(*script));
  std::fflush(stdout);
  if (!done) std::fprintf(stderr, "%s\n", runner.wrong().c_str());
  return done ? 0 : 2;
}

}  // namespace veldox
