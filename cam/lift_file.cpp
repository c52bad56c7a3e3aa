#include "cam/lift_file.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <initializer_list>
#include <memory>
#include <utility>

#include "core/error.h"
#include "core/line_reader.h"
#include "core/text.h"

namespace veldox {

namespace {

constexpr std::string_view kStepMark = "every x degrees = ";
constexpr std::string_view kIntakeMark = "intake";
constexpr std::string_view kExhaustMark = "exhaust";
constexpr std::string_view kLineEnd = "\r\n";
constexpr double kStepWithoutLine = 10;  // degrees
constexpr double kCamDoctorStep = 2;     // degrees
constexpr double kMmPerInch = 25.4;

/// The lines of a lift file that mean something.
class LiftLines {
 public:
  LiftLines(std::string_view text, const std::string& fileName, DecimalMark mark)
      : lines_(text, fileName), mark_(mark) {}

  /// Goes to the next line that is no comment and not blank. @return false at the end
  bool Next() {
    while (lines_.Next()) {
      if (!line().starts_with(';') && !Trim(line()).empty()) return true;
    }
    return false;
  }
  /// Goes to the next line, whatever stands in it. @return false at the end
  bool NextOfAll() { return lines_.Next(); }

  std::string_view line() const { return lines_.line(); }
  int number() const { return lines_.number(); }
  CommandError Refusal(const std::string& reason) const { return lines_.Refusal(reason); }

  /// A number of the line. @param what  what it is, for the refusal
  double Number(std::string_view text, const char* what) const {
    try {
      return ParseNumber(text, mark_);
    } catch (const CommandError& error) {
      throw Refusal(std::string(what) + ' ' + error.message());
    }
  }
  double Lift() const { return Number(line(), "The lift"); }

  /// A step of the file in degrees, which differences are divided by.
  double Step(std::string_view text) const {
    const double step = Number(text, "The step in degrees");
    if (step > 0) return step;
    throw Refusal("The step in degrees has to be above 0.");
  }

  /// Adds a lift to a side. @throws CommandError (File) for one more than a table takes
  void Add(double lift, LiftSide& side, std::size_t first) const {
    if (side.lifts.size() - first >= std::size_t{kMostLiftRecords}) {
      throw Refusal("The file has more than 3,600 lift records, the most that the tables take.");
    }
    side.lifts.push_back(lift);
  }

 private:
  LineReader lines_;
  DecimalMark mark_;
};

/// The text up to the next blank.
std::string_view Word(std::string_view text) {
  return text.substr(0, text.find_first_of(" \t"));
}

std::optional<double> LashOf(const LiftLines& lines, std::string_view mark, const char* what) {
  const std::size_t place = Lower(lines.line()).find(mark);
  if (place == std::string::npos) return std::nullopt;
  return lines.Number(Word(lines.line().substr(place + mark.size())), what);
}

void ReadStepLine(const LiftLines& lines, LiftFile& file) {
  file.step = lines.Step(Word(lines.line().substr(kStepMark.size())));
  file.intakeLash = LashOf(lines, "i_lash = ", "The intake lash");
  file.exhaustLash = LashOf(lines, "e_lash = ", "The exhaust lash");
}

/// What stands in a line from a column on, counted from 1.
std::string_view FromColumn(std::string_view line, std::size_t column) {
  return line.substr(std::min(column - 1, line.size()));
}

LiftFile ReadCmm(LiftLines& lines, LiftFile file, const std::string& fileName) {
  constexpr std::size_t kTitleColumn = 8;
  constexpr std::size_t kStepColumn = 9;
  constexpr std::size_t kFirst = 1;
  file.header = fileName + "  " + std::string(FromColumn(lines.line(), kTitleColumn));
  file.intake.step = file.exhaust.step = file.step;
  LiftSide* side = &file.intake;
  side->lifts.push_back(0);
  while (lines.Next()) {
    if (side == &file.intake && StartsIgnoringCase(lines.line(), kExhaustMark)) {
      side->lifts.push_back(0);
      side = &file.exhaust;
      side->lifts.push_back(0);
      const std::string_view step = Trim(FromColumn(lines.line(), kStepColumn));
      if (!step.empty()) side->step = lines.Step(Word(step));
      continue;
    }
    lines.Add(lines.Lift(), *side, kFirst);
  }
  side->lifts.push_back(0);
  file.linesRead = lines.number();
  return file;
}

/// A row of a Cam Doctor file. @return false for one without comma
bool ReadRow(const LiftLines& lines, LiftFile& file) {
  const std::size_t comma = lines.line().find(',');
  if (comma == std::string_view::npos) {
    file.hasBadRow = true;
    return false;
  }
  const double exhaust = lines.Number(lines.line().substr(comma + 1), "The exhaust lift");
  const double intake = lines.Number(lines.line().substr(0, comma), "The intake lift");
  lines.Add(intake, file.intake, 0);
  lines.Add(exhaust, file.exhaust, 0);
  return true;
}

/// The header of a Cam Doctor file as comment lines.
class CamDoctorHeader {
 public:
  explicit CamDoctorHeader(LiftLines& lines) : lines_(lines) {}

  /// @param first  the first line of the file
  std::string Read(std::string_view first) {
    const std::size_t comma = first.find(',');
    const std::size_t next = comma == std::string_view::npos ? comma : first.find(',', comma + 1);
    if (next == std::string_view::npos) {
      throw lines_.Refusal("The header needs PVN, ICL and ECL, with commas between them.");
    }
    Add("; PVN = ", first.substr(0, comma));
    Add("    ICL = ", first.substr(comma + 1, next - comma - 1));
    Add("    ECL = ", first.substr(next + 1));
    text_ += kLineEnd;
    AddLine({"; 0.050 Overlap = "});
    AddLine({"; Intake 0.050 Open = ", "    Close = ", "    Duration = "});
    AddLine({"; Intake Cam Lift = ", "    Valve Lift = ", "    Area = "});
    AddLine({"; Exhaust 0.050 Open = ", "    Close = ", "    Duration = "});
    AddLine({"; Exhaust Cam Lift = ", "    Valve Lift = ", "    Area = "});
    AddLine({"; "});
    return std::move(text_);
  }

 private:
  std::string_view Value() {
    if (!lines_.NextOfAll()) {
      throw lines_.Refusal(
          "The header is cut short: 14 lines have to follow the one with PVN, ICL and ECL.");
    }
    return lines_.line();
  }
  void AddLine(std::initializer_list<const char*> names) {
    for (const char* name : names) Add(name, Value());
    text_ += kLineEnd;
  }
  void Add(const char* name, std::string_view value) {
    text_ += name;
    text_ += Trim(value);
  }

  LiftLines& lines_;
  std::string text_;
};

/// @param first  the first line that is no comment
LiftFile ReadCamDoctor(LiftLines& lines, LiftFile file, const std::string& first) {
  constexpr std::string_view kPlusMark = "cam pro plus";
  file.format = LiftFormat::CamDoctor;
  file.step = file.intake.step = file.exhaust.step = kCamDoctorStep;
  if (Lower(first).find(kPlusMark) != std::string::npos) {
    // Of these files a first row that is none is passed over.
    if (lines.Next()) ReadRow(lines, file);
  } else {
    file.header = CamDoctorHeader(lines).Read(first);
  }
  while (lines.Next() && ReadRow(lines, file)) {
  }
  // The closing zero stands behind the last row, and the count one further.
  for (LiftSide* side : {&file.intake, &file.exhaust}) side->lifts.insert(side->lifts.end(), 2, 0);
  file.linesRead = lines.number();
  return file;
}

/// Writes a table's records, a line each.
void AppendRecords(std::string& text, std::span<const double> lifts, DecimalMark mark) {
  for (const double lift : lifts) {
    text += LiftText(lift, mark);
    text += kLineEnd;
  }
}

/// Lifts of one side as the tables take them.
struct Tables {
  LiftColumn cam{};
  LiftColumn valve{};
};

Tables TablesOf(const LiftSide& side, const ValveGear& gear) {
  Tables tables;
  if (side.lifts.size() > tables.cam.size()) {
    throw CommandError(ErrorKind::IndexOutOfRange,
                       "The lift tables take 3,600 records. There are more of them.");
  }
  std::ranges::copy(side.lifts, tables.cam.begin());
  // The start of the lobe and the closing zeros stay 0.
  std::ranges::transform(side.lifts, tables.valve.begin(),
                         [&](double lift) { return lift == 0 ? 0 : ValveLiftOf(lift, gear); });
  if (!std::ranges::all_of(tables.valve, [](double lift) { return std::isfinite(lift); })) {
    throw CommandError(ErrorKind::Overflow, "A lift of the file is too large for a valve lift.");
  }
  return tables;
}

}  // namespace

bool IsCamDoctorName(std::string_view fileName) {
  const std::string name = Lower(fileName);
  const auto endsWith = [&](int number) { return name.ends_with('c' + std::to_string(number)); };
  for (int number = 1; number <= 12; ++number) {
    if (endsWith(number)) return true;
  }
  return false;
}

std::optional<LiftFile> ParseLiftFile(std::string_view text, const std::string& fileName,
                                      DecimalMark mark) {
  LiftLines lines(text, fileName, mark);
  LiftFile file;
  file.step = kStepWithoutLine;
  if (!lines.Next()) return std::nullopt;
  const std::string first(lines.line());
  const bool hasStep = StartsIgnoringCase(first, kStepMark);
  if (hasStep) {
    ReadStepLine(lines, file);
    if (!lines.Next()) return std::nullopt;
  }
  if (StartsIgnoringCase(lines.line(), kIntakeMark)) {
    return ReadCmm(lines, std::move(file), fileName);
  }
  if (hasStep || !IsCamDoctorName(fileName)) return std::nullopt;
  return ReadCamDoctor(lines, std::move(file), first);
}

LiftColumnFile ParseS96(std::string_view text, const std::string& fileName, DecimalMark mark) {
  constexpr std::size_t kFirst = 1;
  LiftLines lines(text, fileName, mark);
  LiftColumnFile file{{{0}, kCamDoctorStep}, 0};
  while (lines.Next()) {
    if (const double lift = lines.Lift(); lift != 0) lines.Add(lift, file.side, kFirst);
  }
  file.side.lifts.push_back(0);
  file.linesRead = lines.number();
  return file;
}

void StoreLifts(const LiftFile& file, const std::string& title, ParameterBlock& block) {
  ParameterBlock& b = block;
  const double intakeLash = file.intakeLash.value_or(b.IntakeLash);
  const double exhaustLash = file.exhaustLash.value_or(b.ExhaustLash);
  const ValveGear intake{b.RockerArmRatio, intakeLash, b.RockerArmRatio};
  // Files of the program's own format take the intake ratio for the exhaust lifts, and the exhaust
  // ratio for the lash alone.
  const ValveGear exhaust{
      file.format == LiftFormat::Cmm ? b.RockerArmRatio : b.ExhaustRockerArmRatio, exhaustLash,
      b.ExhaustRockerArmRatio};
  const auto intakeTables = std::make_unique<Tables>(TablesOf(file.intake, intake));
  const auto exhaustTables = std::make_unique<Tables>(TablesOf(file.exhaust, exhaust));
  b.IntakeCamLift = intakeTables->cam;
  b.IntakeValveLift = intakeTables->valve;
  b.IntakeLiftCount = static_cast<std::int16_t>(file.intake.count());
  b.ExhaustCamLift = exhaustTables->cam;
  b.ExhaustValveLift = exhaustTables->valve;
  b.ExhaustLiftCount = static_cast<std::int16_t>(file.exhaust.count());
  b.IntakeLash = intakeLash;
  b.ExhaustLash = exhaustLash;
  b.CamStepDegrees = {file.step, file.intake.step, file.exhaust.step};
  b.LiftsOfCamDoctor = file.format == LiftFormat::CamDoctor ? 1 : 0;
  b.CamFileHeader = file.header;
  b.CamFileTitle = title;
}

std::string LiftText(double lift, DecimalMark mark) {
  return FormatValue<"0.0#######">(lift, mark);
}

std::string CmmText(const CmmContents& contents, DecimalMark mark) {
  std::string text = contents.comments;
  const auto addLine = [&](std::string_view line) {
    text += line;
    text += kLineEnd;
  };
  addLine(std::string(kStepMark) + contents.step);
  addLine(kIntakeMark);
  AppendRecords(text, contents.intake, mark);
  if (contents.exhaust) {
    addLine(kExhaustMark);
    AppendRecords(text, *contents.exhaust, mark);
  }
  return text;
}

std::string S96Text(std::span<const std::string> records, std::size_t nose) {
  constexpr const char* kPadding = "0.00000000";
  constexpr auto kFlank = static_cast<std::size_t>(kS96NoseLine) - 1;
  constexpr auto kLines = static_cast<std::size_t>(kS96Lines);
  if (nose > kFlank || nose + (kLines - kFlank) < records.size()) {
    throw CommandError(ErrorKind::InvalidArgument,
                       "A flank is longer than 180 degrees. An S96 file holds 180 degrees before "
                       "the nose and 180 behind it.");
  }
  const std::size_t before = kFlank - nose;
  std::string text;
  for (std::size_t line = 0; line < kLines; ++line) {
    const bool isRecord = line >= before && line - before < records.size();
    text += isRecord ? records[line - before] : kPadding;
    text += kLineEnd;
  }
  return text;
}

EditedLiftFile EditLifts(std::string_view text, const std::string& fileName, LiftEdit edit,
                         double amount, DecimalMark mark) {
  constexpr std::array<std::string_view, 3> kCopied = {kIntakeMark, kExhaustMark, "every"};
  const auto edited = [&](double lift) {
    switch (edit) {
      case LiftEdit::InchesToMm: return lift * kMmPerInch;
      case LiftEdit::MmToInches: return lift * (1 / kMmPerInch);
      case LiftEdit::Multiply: return lift * std::abs(amount);
      case LiftEdit::Add: return lift + amount;
    }
    return lift;
  };
  LiftLines lines(text, fileName, mark);
  EditedLiftFile file;
  while (lines.NextOfAll()) {
    const std::string_view line = lines.line();
    if (static_cast<std::size_t>(lines.number()) > kMostEditedLines) {
      throw lines.Refusal("The file has more than 7,202 lines, the most that are converted.");
    }
    const bool isCopied = line.starts_with(';') || Trim(line).empty() ||
                          std::ranges::any_of(kCopied, [&](std::string_view start) {
                            return StartsIgnoringCase(line, start);
                          });
    if (isCopied) {
      file.text += line;
      const std::string lower = Lower(line);
      file.hasLashes = file.hasLashes || (lower.starts_with(kStepMark) &&
                                          lower.find("_lash = ") != std::string::npos);
    } else {
      const double lift = edited(lines.Lift());
      if (!std::isfinite(lift)) throw lines.Refusal("The lift becomes too large for a number.");
      file.text += FormatValue<"0.0#####">(lift, mark);
    }
    file.text += kLineEnd;
  }
  file.lines = lines.number();
  return file;
}

}  // namespace veldox
