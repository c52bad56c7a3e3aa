#include "core/parameter_file.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <type_traits>
#include <utility>
#include <variant>

#include "core/bad_records.h"
#include "core/error.h"
#include "core/files.h"
#include "core/host.h"
#include "core/line_reader.h"
#include "core/notes.h"
#include "core/numbers.h"
#include "core/text.h"
#include "core/torque_rows.h"
#include "core/units.h"

namespace veldox {

namespace {

constexpr std::string_view kLineEnd = "\r\n";
constexpr std::string_view kBlanks = " \t";

constexpr std::array<std::string_view, 7> kHeader = {
    "; A ';' in the first position of a line means that line is a comment",
    ";",
    "; The following parameters maybe in any order",
    ";",
    "; If for some reason a parameter is in the list more than once then the",
    ";   last one will be used",
    ";",
};

constexpr std::array<std::string_view, 4> kTorqueHeader = {
    ";   Data for Acceleration / Top speed calculator / Dyno Sheets",
    ";   The following parameters must be in Ascending Order by RPM",
    ";              RPM  Torque  Fuel  BSFC  A/F  SCFM BSAC",
    ";                           lb/hr      Ratio",
};

constexpr std::array<std::string_view, 3> kRoadMphHeader = {
    ";   Data for Road Horse Power",
    ";   The following parameters must be in Ascending Order by MPH",
    ";         MPH    Time",
};

constexpr std::array<std::string_view, 3> kRoadRpmHeader = {
    ";   Data for ROad Horse Power",
    ";   The following parameters must be in Ascending Order by RPM",
    ";         RPM    Time",
};

constexpr std::string_view kRoadMphKey = "Road HP";
constexpr std::string_view kRoadRpmKey = "ROad HP";
constexpr std::string_view kNotesKey = "Notes";

constexpr std::string_view kErrorTitle = "VELDOX - Error Message";
constexpr std::string_view kReadingError =
    "Error Reading Parameter File --- If you have Not edited it, email support@veldox.example";

/// Of so many lines at the beginning, one at least is a key in every parameter file.
constexpr int kProbedLines = 10;

/// The most of a line that a message shows, in characters.
constexpr std::size_t kShownCharacters = 500;

/// A part of the grid's colour as files of earlier versions give it.
struct ColorPartKey {
  std::string_view key;
  int shift;
};

constexpr std::array<ColorPartKey, 3> kGridColorKeys = {{
    {"grid color r", 0},
    {"grid color g", 8},
    {"grid color b", 16},
}};

/// Files of earlier versions know one stage of nitrous, with a key for each number:
/// they fill the columns of the first stage.
struct NitrousKey {
  std::string_view key;
  int column;
};

constexpr std::string_view kNitrousStages = "Nitrous MS";
constexpr const char* kGridColor = "Grid Color";

constexpr std::array<NitrousKey, 5> kNitrousKeys = {{
    {"nitrous hp", 1},
    {"nitrous rpm", 2},
    {"nitrous p", 3},
    {"nitrous pc", 3},
    {"nitrous full", 4},
}};

/// A text that must stay within its line of the file.
std::string OneLine(std::string text) {
  std::ranges::replace_if(
      text, [](char c) { return c == '\r' || c == '\n'; }, ' ');
  return text;
}

bool IsGearForm(TableForm form) {
  return form == TableForm::GearIndexed || form == TableForm::GearChangeRpm ||
         form == TableForm::GearChangeTime;
}

/// The key of a gear, or of the change out of it: "T Gear 3", "Shift RPM 3-4".
std::string GearKey(const KeyRow& row, int index) {
  std::string key = std::string(row.key) + ' ' + std::to_string(index);
  if (row.tableForm != TableForm::GearIndexed) key += '-' + std::to_string(index + 1);
  return key;
}

template <class ControlType>
ControlType* As(Control* control, ControlKind kind) {
  return control != nullptr && control->kind() == kind ? static_cast<ControlType*>(control)
                                                       : nullptr;
}

Field* AsField(Control* control) {
  return As<Field>(control, ControlKind::Field);
}
CheckBox* AsCheckBox(Control* control) {
  return As<CheckBox>(control, ControlKind::CheckBox);
}
OptionGroup* AsOptionGroup(Control* control) {
  return As<OptionGroup>(control, ControlKind::OptionGroup);
}

/// The number that a key holds; texts have none.
double NumberOf(const KeyRow& row, const ParameterBlock& block) {
  return std::visit(
      [&](auto member) -> double {
        if constexpr (std::is_same_v<decltype(member), std::monostate> ||
                      std::is_same_v<decltype(member), std::string ParameterBlock::*>) {
          return 0;
        } else {
          return static_cast<double>(block.*member);
        }
      },
      row.member);
}

/// @throws CommandError (Overflow) beyond the range of the member
void StoreNumber(const KeyRow& row, ParameterBlock& block, double value) {
  if (const auto* real = std::get_if<double ParameterBlock::*>(&row.member)) {
    block.** real = value;
  } else if (const auto* count = std::get_if<std::int16_t ParameterBlock::*>(&row.member)) {
    block.** count = RoundToInt16(value);
  } else if (const auto* color = std::get_if<std::int32_t ParameterBlock::*>(&row.member)) {
    block.** color = RoundToInt32(value);
  }
}

/// @throws CommandError (Overflow) for a value that the member cannot hold
void CheckRange(const KeyRow& row, double value) {
  if (std::holds_alternative<std::int16_t ParameterBlock::*>(row.member)) RoundToInt16(value);
  if (std::holds_alternative<std::int32_t ParameterBlock::*>(row.member)) RoundToInt32(value);
}

/// Where the block keeps the value of a key that is no table.
const void* PlaceOf(const KeyRow& row, ParameterBlock& block) {
  return std::visit(
      [&](auto member) -> const void* {
        if constexpr (std::is_same_v<decltype(member), std::monostate>) {
          return nullptr;
        } else {
          return &(block.*member);
        }
      },
      row.member);
}

std::string* TextOf(const KeyRow& row, ParameterBlock& block) {
  const auto* member = std::get_if<std::string ParameterBlock::*>(&row.member);
  return member == nullptr ? nullptr : &(block.**member);
}

std::int16_t* SwitchOf(const KeyRow& row, ParameterBlock& block) {
  const auto* member = std::get_if<std::int16_t ParameterBlock::*>(&row.member);
  return member == nullptr ? nullptr : &(block.**member);
}

}  // namespace

/// Builds the text of a file, record by record.
class ParameterFile::Writer {
 public:
  explicit Writer(const ParameterFile& file)
      : file_(file), block_(file.context_.block), mark_(file.context_.mark()) {}

  Written Write() {
    written_.bytes.reserve(kUsualSize + block_.Notes.size());
    Comments(kHeader);
    for (const KeyRow& row : KeyTable()) WriteRow(row);
    WriteTorqueRows();
    WriteRoadRows(kRoadMphHeader, kRoadMphKey, block_.RoadMphRowCount, block_.RoadMph,
                  block_.RoadMphTime);
    WriteRoadRows(kRoadRpmHeader, kRoadRpmKey, block_.RoadRpmRowCount, block_.RoadRpm,
                  block_.RoadRpmTime);
    if (!block_.Notes.empty()) Record(kNotesKey, WithFileLineEnds(block_.Notes));
    // The count starts at one more than the lines of the header.
    ++written_.records;
    return std::move(written_);
  }

 private:
  static constexpr std::size_t kUsualSize = 32768;
  /// Stages of nitrous that start by gear; the others run by time.
  static constexpr int kGearStages = 7;

  void EndLine() {
    written_.bytes += kLineEnd;
    ++written_.records;
  }

  template <std::size_t N>
  void Comments(const std::array<std::string_view, N>& lines) {
    for (std::string_view line : lines) {
      written_.bytes += line;
      EndLine();
    }
  }

  void Record(std::string_view key, std::string_view value) {
    written_.bytes += key;
    written_.bytes += " = ";
    written_.bytes += value;
    EndLine();
  }

  void AppendField(double value) { written_.bytes += FormatField(value, mark_); }
  void AppendSmart(double value) { written_.bytes += FormatSmart(value, mark_); }
  void AppendInt(double value) { written_.bytes += FormatInt(value, mark_); }

  /// True for a text that the reader takes back as the value of this key, so that a
  /// typing error on a screen never spoils the file.
  bool Readable(const KeyRow& row, const std::string& text) const {
    if (!IsNumber(text, mark_)) return false;
    try {
      CheckRange(row, ParseNumber(text, mark_));
      return true;
    } catch (const CommandError&) {
      return false;
    }
  }

  /// The owning field's text where it stands for a number, else the last resort.
  std::string FieldText(const KeyRow& row, std::string lastResort) const {
    const Field* field = AsField(file_.Owner(row));
    if (field == nullptr || !Readable(row, field->text())) return lastResort;
    if (!field->screen().metric()) return OneLine(field->text());
    return FormatField(field->screen().InInches(*field, ParseNumber(field->text(), mark_)), mark_);
  }

  void WriteRow(const KeyRow& row) {
    const double value = NumberOf(row, block_);
    Control* const owner = file_.Owner(row);
    switch (row.form) {
      case KeyForm::Comment:
        written_.bytes += row.key;
        EndLine();
        return;
      case KeyForm::Number:
        Record(row.key, value == 0 && KeepsTextAtZero(AsField(owner))
                            ? FieldText(row, FormatSmart(0, mark_))
                            : FormatSmart(value, mark_));
        return;
      case KeyForm::NumberOrField:
        Record(row.key,
               value != 0 ? FormatSmart(value, mark_) : FieldText(row, FormatSmart(0, mark_)));
        return;
      case KeyForm::Integer:
        if (value == 0 && KeepsTextAtZero(AsField(owner))) {
          Record(row.key, FieldText(row, FormatInt(0, mark_)));
        } else {
          WriteInteger(row, AsOptionGroup(owner), value);
        }
        return;
      case KeyForm::IntegerOrField:
        Record(row.key, value != 0 ? FormatInt(value, mark_) : FieldText(row, FormatInt(0, mark_)));
        return;
      case KeyForm::FieldText:
        // A value whose screen is not there, or whose form was cleared, is kept as it was read.
        Record(row.key, !HasText(AsField(owner)) && value != 0
                            ? FormatField(value, mark_)
                            : FieldText(row, FormatSmart(0, mark_)));
        return;
      case KeyForm::FieldLiteral: {
        const Field* field = AsField(owner);
        const std::string& text = field != nullptr ? field->text() : *TextOf(row, block_);
        Record(row.key, Trim(text).empty() ? FormatSmart(0, mark_) : OneLine(text));
        return;
      }
      case KeyForm::Flag: Record(row.key, FormatInt(value != 0 ? 1 : 0, mark_)); return;
      case KeyForm::Text: Record(row.key, OneLine(*TextOf(row, block_))); return;
      case KeyForm::YesNo: Record(row.key, IsOn(owner, value) ? "Yes" : "No"); return;
      case KeyForm::OnOff: Record(row.key, IsOn(owner, value) ? "ON" : "OFF"); return;
      case KeyForm::Table:
        for (int i = row.firstRow; i < row.rows; ++i) WriteTableRow(row, i);
        return;
    }
  }

  /// True for a field whose text stands as long as its value is 0, which nobody has set then.
  static bool KeepsTextAtZero(const Field* field) {
    return field != nullptr && Screen::SharedPlace(*field) != nullptr &&
           (field->holds().zeroKeepsText() || !Screen::ShowsAtOpening(*field));
  }

  /// False where no field tells the value: it is not there, or cleared.
  bool HasText(const Field* field) const {
    return field != nullptr && !(block_.FormsCleared == 1 && field->text().empty());
  }

  void WriteInteger(const KeyRow& row, const OptionGroup* group, double value) {
    if (group == nullptr) {
      Record(row.key, FormatInt(value, mark_));
    } else if (group->chosen() >= 0) {
      Record(row.key, FormatInt(group->chosen(), mark_));
    }
  }

  static bool IsOn(Control* owner, double value) {
    const CheckBox* box = AsCheckBox(owner);
    return box != nullptr ? box->on() : value != 0;
  }

  /// A number of a table: what its field says where the file tells the fields of a table, and
  /// where that is a number. A field that the user has left empty is 0.
  double CellOf(const KeyRow& row, int index, int column) const {
    const double& value = row.cell(block_, index, column);
    const Field* field = AsField(file_.OwnerOf(row, &value));
    if (field == nullptr) return value;
    const bool tellsFields = row.tableForm == TableForm::Fields ||
                             row.tableForm == TableForm::Smart || row.tableForm == TableForm::Pairs;
    if (!tellsFields && (value != 0 || !KeepsTextAtZero(field))) return value;
    if (field->text().empty() && block_.FormsCleared == 0) return 0;
    if (!IsNumber(field->text(), mark_)) return value;
    return field->screen().InInches(*field, ParseNumber(field->text(), mark_));
  }

  void WriteTableRow(const KeyRow& row, int index) {
    const auto cell = [&](int column) { return CellOf(row, index, column); };
    written_.bytes += IsGearForm(row.tableForm) ? GearKey(row, index) : std::string(row.key);
    written_.bytes += " = ";
    switch (row.tableForm) {
      case TableForm::Fields: AppendField(cell(0)); break;
      case TableForm::Smart:
      case TableForm::GearIndexed:
      case TableForm::GearChangeTime: AppendSmart(cell(0)); break;
      case TableForm::GearChangeRpm: AppendInt(cell(0)); break;
      case TableForm::NitrousStages:
        if (index < kGearStages) {
          AppendInt(cell(0));
        } else {
          AppendField(cell(0));
        }
        AppendFurtherFields(row, index);
        break;
      case TableForm::Pairs:
        AppendField(cell(0));
        AppendFurtherFields(row, index);
        break;
      case TableForm::None: break;
    }
    EndLine();
  }

  void AppendFurtherFields(const KeyRow& row, int index) {
    for (int column = 1; column < row.rowWidth; ++column) {
      written_.bytes += ' ';
      AppendField(CellOf(row, index, column));
    }
  }

  static std::size_t Rows(std::int16_t count) {
    return static_cast<std::size_t>(std::clamp<int>(count, 0, kTorqueRows));
  }

  /// False where whole numbers would make two speeds the same, of which the reader drops one.
  bool RisesInWholeNumbers(const TorqueColumn& speeds, std::size_t rows) const {
    const auto whole = [&](std::size_t i) {
      return ParseNumber(FormatInt(speeds[i], mark_), mark_);
    };
    constexpr double kExactWholes = 1e14;
    for (std::size_t i = 1; i < rows; ++i) {
      // A rise by 1 outlives the rounding.
      if (speeds[i] - speeds[i - 1] >= 1 && speeds[i] < kExactWholes) continue;
      if (!(whole(i) > whole(i - 1))) return false;
    }
    return true;
  }

  void WriteTorqueRows() {
    Comments(kTorqueHeader);
    const std::size_t rows = Rows(block_.AccelRowCount);
    const bool wholeRpm = RisesInWholeNumbers(block_.AccelRpm, rows);
    for (std::size_t i = 0; i < rows; ++i) {
      written_.bytes += kTorqueKeys[0].key;
      written_.bytes += " = ";
      written_.bytes +=
          wholeRpm ? FormatInt(block_.AccelRpm[i], mark_) : FormatShortest(block_.AccelRpm[i]);
      written_.bytes += ' ';
      written_.bytes += FormatValue<"0.0#">(block_.AccelTorque[i], mark_);
      if (block_.AccelFuel[i] > 0) {
        for (const TorqueColumn* column :
             {&block_.AccelFuel, &block_.AccelBsfc, &block_.AccelAirFuel, &block_.AccelScfm,
              &block_.AccelBsac}) {
          written_.bytes += ' ';
          AppendSmart((*column)[i]);
        }
      }
      EndLine();
    }
  }

  void WriteRoadRows(const std::array<std::string_view, 3>& header, std::string_view key,
                     std::int16_t count, const TorqueColumn& speeds, const TorqueColumn& times) {
    if (count <= 0) return;
    Comments(header);
    for (std::size_t i = 0; i < Rows(count); ++i) {
      written_.bytes += key;
      written_.bytes += " = ";
      AppendField(speeds[i]);
      written_.bytes += ' ';
      AppendField(times[i]);
      EndLine();
    }
  }

  const ParameterFile& file_;
  ParameterBlock& block_;
  DecimalMark mark_;
  Written written_;
};

/// Takes a file's text apart, line by line.
class ParameterFile::Reader {
 public:
  Reader(ParameterFile& file, std::string_view text, const std::string& fileName,
         FileFindings* findings)
      : file_(file),
        findings_(findings),
        context_(file.context_),
        block_(file.context_.block),
        mark_(file.context_.mark()),
        fileName_(fileName),
        text_(text),
        lines_(text, NameWithoutFolder(fileName)),
        badRecords_(file.context_.host, std::string(kErrorTitle),
                    [this](int count, const std::string& first) {
                      return RecordNumber(count) +
                             " more records of this file are invalid. The first of them:" +
                             std::string(kLineEnd) + first;
                    }) {
    const auto table = KeyTable();
    nextRow_.reserve(table.size());
    for (const KeyRow& row : table) {
      nextRow_.push_back(row.firstRow);
      longestKey_ = std::max(longestKey_, row.key.size());
      if (IsGearForm(row.tableForm)) gearRows_.push_back(&row);
    }
  }

  /// @throws CommandError (File) for what is no parameter file
  void RequireParameterFile() const {
    const auto refuse = [&](const char* reason) {
      throw CommandError(ErrorKind::File, "This is no parameter file: " + std::string(reason) +
                                              std::string(kLineEnd) + lines_.File());
    };
    if (text_.find('\0') != std::string_view::npos) refuse("it holds NUL bytes, as no text does.");
    std::string_view rest = text_;
    for (int probed = 0; probed < kProbedLines && !rest.empty();) {
      const std::size_t end = std::min(rest.find('\n'), rest.size());
      std::string_view line = rest.substr(0, end);
      rest.remove_prefix(std::min(end + 1, rest.size()));
      if (line.ends_with('\r')) line.remove_suffix(1);
      if (SaysNothing(line)) continue;
      if (IsKeyLine(line)) return;
      if (++probed == kProbedLines) refuse("none of its first ten lines begins with a key.");
    }
  }

  void Run() {
    const Styles styles = StylesOf(block_);
    block_.Notes.clear();
    block_.AccelRowCount = 0;
    block_.RoadMphRowCount = 0;
    block_.RoadRpmRowCount = 0;
    try {
      while (NextLine()) {
        if (!ReadLine()) break;
      }
    } catch (const CommandError& error) {
      failure_ = error;
      // Notes are taken whole or not at all.
      if (inNotes_) block_.Notes.clear();
    }
    badRecords_.TellFurther();
    if (zeroStyles_ == kStyleKeys && !namesFont_) {
      // So do files tell it that were written before there was a choice.
      block_.EntryBoxAlignment = styles.alignment;
      block_.EntryBoxStyle = styles.entry;
      block_.OptionCheckBoxStyle = styles.option;
    }
    if (block_.AccelRowCount == 0) block_.AccelRowCount = kDefaultTorqueRows;
  }

  int records() const { return lines_.number(); }

  /// Shows what ended the reading, if anything did. The messages of errors begin with
  /// the verb, here as for a field.
  void TellFailure() const {
    if (!failure_) return;
    if (findings_ != nullptr) {
      findings_->failure = failure_->kind() == ErrorKind::File
                               ? failure_->message()
                               : "Record # " + RecordNumber(records()) + " of " +
                                     NameWithoutFolder(fileName_) + " cannot be read: \"" +
                                     Clipped(line_, kShownCharacters) + "\". The value " +
                                     Clipped(failure_->message(), kShownCharacters);
      return;
    }
    std::string text(kReadingError);
    text += kLineEnd;
    if (failure_->kind() == ErrorKind::File) {
      text += failure_->message();  // which tells file and record itself
    } else {
      text += fileName_;
      text += kLineEnd;
      text += "Record # ";
      text += RecordNumber(records());
      text += kLineEnd;
      text += "Data --> ";
      text += Clipped(line_, kShownCharacters);
      text += kLineEnd;
      text += "The value ";
      text += Clipped(failure_->message(), kShownCharacters);
    }
    context_.host.Ask(
        {Icon::Warning, context_.rules.messages().MessageTitle, std::move(text), {Button::OK}});
  }

 private:
  static constexpr std::int16_t kDefaultTorqueRows = 11;
  static constexpr std::size_t kMostNumbers = 7;

  /// What the lists of the appearance say.
  struct Styles {
    std::int16_t alignment;
    std::int16_t entry;
    std::int16_t option;
  };
  static constexpr std::size_t kStyleKeys = 3;

  struct Numbers {
    std::array<double, kMostNumbers> values{};
    std::size_t count = 0;
  };

  static Styles StylesOf(const ParameterBlock& block) {
    return {block.EntryBoxAlignment, block.EntryBoxStyle, block.OptionCheckBoxStyle};
  }

  /// Watches for files that were written before the appearance could be chosen.
  void NoteStyle(const KeyRow& row, double number) {
    const void* place = PlaceOf(row, block_);
    const bool isStyle = place == &block_.EntryBoxAlignment || place == &block_.EntryBoxStyle ||
                         place == &block_.OptionCheckBoxStyle;
    if (isStyle && number == 0) ++zeroStyles_;
  }

  static std::string NameWithoutFolder(const std::string& fileName) {
    const std::filesystem::path path(std::u8string(fileName.begin(), fileName.end()));
    return PathText(path.filename());
  }

  bool NextLine() {
    const bool there = lines_.Next();
    line_ = lines_.line();
    return there;
  }

  static bool SaysNothing(std::string_view line) {
    return line.starts_with(';') || Trim(line).empty();
  }

  /// What stands before " =".
  static std::string_view KeyOf(std::string_view line) {
    const std::size_t end = line.find(" =");
    return end == std::string_view::npos ? std::string_view{} : line.substr(0, end);
  }

  /// True for a line that begins with a key, whatever its value.
  bool IsKeyLine(std::string_view line) const {
    const std::string_view key = KeyOf(line);
    const auto isKey = [&](const auto& entry) { return SameIgnoringCase(key, entry.key); };
    return SameIgnoringCase(key, kNotesKey) || key == kRoadMphKey || key == kRoadRpmKey ||
           (!key.empty() && key.size() <= longestKey_ && FindKey(key) != nullptr) ||
           std::ranges::any_of(kTorqueKeys, isKey) || std::ranges::any_of(kGridColorKeys, isKey) ||
           std::ranges::any_of(kNitrousKeys, isKey) ||
           std::ranges::any_of(
               gearRows_, [&](const KeyRow* row) { return StartsIgnoringCase(line, row->key); });
  }

  /// False when the user has had enough.
  bool ReadLine() {
    if (inNotes_) {
      if (block_.Notes.size() + kLineEnd.size() + line_.size() > kMostNoteBytes) {
        throw lines_.Refusal(kNotesTooLong);
      }
      block_.Notes += kLineEnd;
      block_.Notes += line_;
      return true;
    }
    if (SaysNothing(line_)) return true;
    const std::string_view key = KeyOf(line_);
    const std::string_view value = key.empty() ? std::string_view{} : line_.substr(key.size() + 2);
    if (SameIgnoringCase(key, kNotesKey)) {
      BeginNotes(value);
      return true;
    }
    // The road tables are told apart by their case alone.
    if (line_.starts_with("Road") || line_.starts_with("ROad")) {
      if (key == kRoadMphKey) {
        ReadRoadRow(key, value, block_.RoadMphRowCount, block_.RoadMph, block_.RoadMphTime);
        return true;
      }
      if (key == kRoadRpmKey) {
        ReadRoadRow(key, value, block_.RoadRpmRowCount, block_.RoadRpm, block_.RoadRpmTime);
        return true;
      }
      return AskAboutLine();
    }
    if (ReadKey(key, value) || ReadOlderKey(key, value) || ReadGearLine()) return true;
    return AskAboutLine();
  }

  /// Everything behind the key and the character that follows its "=" is a note, to the letter.
  void BeginNotes(std::string_view value) {
    inNotes_ = true;
    std::size_t skipped = value.empty() ? 0 : 1;
    while (skipped < value.size() && IsContinuationByte(value[skipped])) ++skipped;
    block_.Notes = value.substr(skipped);
  }

  bool ReadKey(std::string_view key, std::string_view value) {
    if (key.empty() || key.size() > longestKey_) return false;
    const KeyRow* row = FindKey(key);
    if (row == nullptr || IsGearForm(row->tableForm)) return false;
    const bool missing = Trim(value).empty();
    if (row->blankBehindEquals && !value.starts_with(' ')) return false;
    if (std::string* text = TextOf(*row, block_)) {
      *text = Trim(value);
      namesFont_ = namesFont_ || !text->empty();
      // What was written for want of a text is none.
      Field* const field = AsField(file_.Owner(*row));
      if (field != nullptr && *text != FormatSmart(0, mark_)) field->SetText(*text);
    } else if (row->form == KeyForm::Table) {
      ReadTableRow(*row, missing ? "0" : value);
      return true;
    } else {
      ReadValue(*row, missing ? "0" : Trim(value));
    }
    Note(std::string(row->key));
    return true;
  }

  /// A record was read.
  void Note(std::string name) const {
    if (findings_ != nullptr) findings_->records.push_back(std::move(name));
  }
  void NoteRow(std::string_view key, int number) const {
    Note(std::string(key) + ' ' + std::to_string(number));
  }

  void ReadValue(const KeyRow& row, std::string_view value) {
    Control* const owner = file_.Owner(row);
    if (row.form == KeyForm::YesNo || row.form == KeyForm::OnOff) {
      const bool on = IsOn(value);
      if (CheckBox* box = AsCheckBox(owner)) box->SetOn(on);
      if (std::int16_t* slot = SwitchOf(row, block_)) *slot = on ? row.onValue : std::int16_t{0};
      return;
    }
    const double number = HeldNumber(row, ParseNumber(value, mark_));
    if (OptionGroup* group = AsOptionGroup(owner)) {
      if (!group->Choose(RoundToInt16(number))) {
        throw CommandError(ErrorKind::IndexOutOfRange, "is none of the options that there are.");
      }
    }
    StoreNumber(row, block_, number);
    ShowAtOnce(row, PlaceOf(row, block_), number);
  }

  /// What a key holds of the number that stands in the file. One that it cannot hold is told, and
  /// the nearest takes its place.
  double HeldNumber(const KeyRow& row, double number) {
    if (row.form == KeyForm::Flag) return number != 0 ? 1 : 0;
    if (row.nearest == nullptr) return number;
    NoteStyle(row, number);
    const double held = row.nearest(number);
    if (held != number) TellBadRecord({Button::OK});
    return held;
  }

  /// Shows a value that was read: on all screens that are open, so that none of their commands
  /// puts an old text back, and in the field of its key where no opener does. After Clear the
  /// forms stay blank.
  void ShowAtOnce(const KeyRow& row, const void* place, double number) const {
    if (block_.FormsCleared == 1) return;
    const Control* owner = file_.OwnerOf(row, place);
    const bool isPlain = row.form == KeyForm::Number || row.form == KeyForm::Integer;
    if (owner != nullptr && isPlain && Screen::ShowsAtOpening(*owner)) owner = nullptr;
    const auto [first, last] = file_.holders_.equal_range(place);
    for (auto holder = first; holder != last; ++holder) {
      Control* const control = holder->second;
      if (control == owner || control->screen().visible()) {
        control->screen().ShowShared(*control, number);
      }
    }
  }

  static bool IsOn(std::string_view value) {
    for (std::string_view on : {"yes", "on", "-1", "1"}) {
      if (SameIgnoringCase(value, on)) return true;
    }
    for (std::string_view off : {"no", "off", "0"}) {
      if (SameIgnoringCase(value, off)) return false;
    }
    throw CommandError(ErrorKind::InvalidArgument, "must be Yes or No, ON or OFF.");
  }

  void ReadTableRow(const KeyRow& row, std::string_view value) {
    const auto width = static_cast<std::size_t>(row.rowWidth);
    // Stages of nitrous have lost their last number in some files.
    const Numbers numbers =
        ReadNumbers(value, row.tableForm == TableForm::NitrousStages ? width - 1 : width, width);
    int& next = RowsRead(row);
    if (next >= row.rows) ThrowTableIsFull();
    const bool isGiven = !row.columnOf.empty() && RowsRead(*FindKey(row.columnOf)) > next;
    for (std::size_t i = 0; i < width && !isGiven; ++i) {
      StoreCell(row, next, static_cast<int>(i), numbers.values[i]);
    }
    ++next;
    NoteRow(row.key, next - row.firstRow);
  }

  /// How many lines of an array key were read: the row that its next one fills.
  int& RowsRead(const KeyRow& row) {
    return nextRow_[static_cast<std::size_t>(&row - KeyTable().data())];
  }

  void StoreCell(const KeyRow& row, int index, int column, double number) const {
    double& cell = row.cell(block_, index, column);
    cell = number;
    ShowAtOnce(row, &cell, number);
  }

  [[noreturn]] static void ThrowTableIsFull() {
    throw CommandError(ErrorKind::IndexOutOfRange, "is beyond the last row of its table.");
  }

  /// The numbers of a line, with blanks between them.
  Numbers ReadNumbers(std::string_view text, std::size_t fewest, std::size_t most) const {
    Numbers numbers;
    text = Trim(text);
    while (!text.empty()) {
      if (numbers.count == most) {
        throw CommandError(ErrorKind::InvalidArgument, "holds more numbers than the record has.");
      }
      const std::size_t end = std::min(text.find_first_of(kBlanks), text.size());
      numbers.values[numbers.count++] = ParseNumber(text.substr(0, end), mark_);
      text = Trim(text.substr(end));
    }
    if (numbers.count < fewest) {
      throw CommandError(ErrorKind::NotANumber, "holds fewer numbers than the record has.");
    }
    return numbers;
  }

  /// Keys that only files of earlier versions have, and the rows of the torque table.
  bool ReadOlderKey(std::string_view key, std::string_view value) {
    for (const TorqueKey& torque : kTorqueKeys) {
      if (SameIgnoringCase(key, torque.key)) {
        ReadTorqueRow(value, torque.unit);
        return true;
      }
    }
    const auto number = [&] { return Trim(value).empty() ? 0.0 : ParseNumber(value, mark_); };
    for (const ColorPartKey& part : kGridColorKeys) {
      if (SameIgnoringCase(key, part.key)) {
        const std::int32_t level = RoundToInt32(number());
        if (level < 0 || level > 255) {
          throw CommandError(ErrorKind::Overflow, "must be from 0 to 255 for a part of a color.");
        }
        block_.GridColor = (block_.GridColor & ~(255 << part.shift)) | (level << part.shift);
        Note(kGridColor);
        return true;
      }
    }
    for (const NitrousKey& nitrous : kNitrousKeys) {
      if (SameIgnoringCase(key, nitrous.key)) {
        StoreCell(*FindKey(kNitrousStages), 0, nitrous.column, number());
        NoteRow(kNitrousStages, 1);
        return true;
      }
    }
    return false;
  }

  void ReadTorqueRow(std::string_view value, TorqueUnit unit) {
    const auto [numbers, count] = ReadNumbers(value, 2, kMostNumbers);
    const double rpm = numbers[0];
    const auto row = static_cast<std::size_t>(block_.AccelRowCount);
    if (row > 0 && !(rpm > block_.AccelRpm[row - 1])) {
      TellBadRecord({Button::OK});
      return;
    }
    if (row >= kTorqueRows) ThrowTableIsFull();
    block_.AccelTorque[row] = TorqueInPoundFeet(numbers[1], unit, rpm);
    block_.AccelRpm[row] = rpm;
    block_.AccelFuel[row] = numbers[2];
    block_.AccelBsfc[row] = numbers[3];
    block_.AccelAirFuel[row] = numbers[4];
    block_.AccelScfm[row] = numbers[5];
    block_.AccelBsac[row] = numbers[6];
    ++block_.AccelRowCount;
    NoteRow(kTorqueKeys[0].key, block_.AccelRowCount);
  }

  void ReadRoadRow(std::string_view key, std::string_view value, std::int16_t& rows,
                   TorqueColumn& speeds, TorqueColumn& times) {
    const Numbers numbers = ReadNumbers(value, 2, 2);
    const auto row = static_cast<std::size_t>(rows);
    if (row >= kTorqueRows) ThrowTableIsFull();
    speeds[row] = numbers.values[0];
    times[row] = numbers.values[1];
    ++rows;
    NoteRow(key, rows);
  }

  /// Lines with an index: the word, the gear, for shifts "-" and the next gear, "=".
  bool ReadGearLine() {
    for (const KeyRow* row : gearRows_) {
      if (!StartsIgnoringCase(line_, row->key)) continue;
      const std::string_view text = line_.substr(row->key.size());
      const std::size_t equals = text.find('=');
      if (equals == std::string_view::npos) {
        throw CommandError(ErrorKind::InvalidArgument, "has no \"=\" before it.");
      }
      const int index = GearIndex(Trim(text.substr(0, std::min(text.find('-'), equals))));
      if (index < row->firstRow || index >= row->rows) {
        throw CommandError(ErrorKind::IndexOutOfRange, "belongs to a gear that is not there.");
      }
      const std::string_view value = Trim(text.substr(equals + 1));
      StoreCell(*row, index, 0, value.empty() ? 0 : ParseNumber(value, mark_));
      Note(GearKey(*row, index));
      return true;
    }
    return false;
  }

  /// One or two digits.
  static int GearIndex(std::string_view text) {
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    if (text.empty() || text.size() > 2 || !std::ranges::all_of(text, isDigit)) {
      throw CommandError(ErrorKind::NotANumber,
                         "needs a gear of one or two digits before its \"=\".");
    }
    int index = 0;
    for (char digit : text) index = index * 10 + (digit - '0');
    return index;
  }

  std::string RecordNumber(int number) const { return FormatValue<"#,##0">(number, mark_); }

  std::string InvalidRecord() const {
    return "Invalid Input Record # - " + RecordNumber(records()) + "   Data --> " +
           Clipped(line_, kShownCharacters) + std::string(kLineEnd) + lines_.File();
  }

  /// Tells a line that is no key; false when the user leaves the reading.
  bool AskAboutLine() {
    if (findings_ != nullptr) {
      const std::string_view key = KeyOf(line_);
      const std::string_view value = key.empty() ? line_ : line_.substr(key.size() + 2);
      findings_->unknown.emplace_back(key.empty() ? "?" : key, Trim(value));
      return true;
    }
    return TellBadRecord({Button::OK, Button::Cancel}) != Button::Cancel;
  }

  Button TellBadRecord(std::vector<Button> buttons) {
    return badRecords_.Tell(InvalidRecord(), std::move(buttons));
  }

  ParameterFile& file_;
  FileFindings* findings_;
  ProgramContext& context_;
  ParameterBlock& block_;
  DecimalMark mark_;
  const std::string& fileName_;
  std::string_view text_;
  LineReader lines_;
  std::string_view line_;
  bool inNotes_ = false;
  BadRecords badRecords_;
  std::size_t zeroStyles_ = 0;  // keys of the appearance's lists that say 0
  bool namesFont_ = false;
  std::optional<CommandError> failure_;
  std::size_t longestKey_ = 0;
  std::vector<const KeyRow*> gearRows_;
  std::vector<int> nextRow_;  // of every array key: the row that its next line fills
};

void ParameterFile::BindOwners(const ControlFinder& find, std::span<Screen* const> screens) {
  owners_.clear();
  holders_.clear();
  for (const Screen* screen : screens) {
    for (Control* control : screen->controls()) {
      if (const void* place = Screen::SharedPlace(*control)) holders_.emplace(place, control);
    }
  }
  for (const KeyRow& row : KeyTable()) {
    Control* const owner = find(row.owner);
    owners_.push_back(owner);
    if (owner != nullptr) owner->SetInFile();
    std::int16_t* const slot = SwitchOf(row, context_.block);
    if (slot == nullptr) continue;
    if (CheckBox* box = AsCheckBox(owner)) box->Bind(*slot);
    if (OptionGroup* group = AsOptionGroup(owner)) group->Bind(*slot);
  }
}

Control* ParameterFile::Owner(const KeyRow& row) const {
  return owners_.empty() ? nullptr : owners_[static_cast<std::size_t>(&row - KeyTable().data())];
}

Control* ParameterFile::OwnerOf(const KeyRow& row, const void* place) const {
  if (row.form != KeyForm::Table) return Owner(row);
  // A table is owned by a screen; each of its numbers by the field there that holds it.
  const std::string_view screen = row.owner.substr(0, row.owner.find('.'));
  const auto [first, last] = holders_.equal_range(place);
  const auto found = std::find_if(
      first, last, [&](const auto& holder) { return holder.second->screen().name() == screen; });
  return found == last ? nullptr : found->second;
}

ParameterFile::Written ParameterFile::Compose() const {
  return Writer(*this).Write();
}

int ParameterFile::Write(const std::filesystem::path& path) const {
  const BusyCursor busy(context_.host);
  const Written written = Compose();
  SaveFile(path, written.bytes);
  return written.records;
}

int ParameterFile::ReadParameterFile(const std::filesystem::path& path) {
  std::string text;
  {
    const BusyCursor busy(context_.host);
    try {
      text = DecodeText(LoadFile(path));
    } catch (const CommandError& error) {
      throw CommandError(ErrorKind::File, std::string(kReadingError) + std::string(kLineEnd) +
                                              Clipped(error.message(), kShownCharacters));
    }
  }
  return ReadText(text, PathText(path), nullptr);
}

int ParameterFile::ReadBytes(std::string_view bytes, const std::string& fileName,
                             FileFindings* findings) {
  return ReadText(DecodeText(std::string(bytes)), fileName, findings);
}

int ParameterFile::ReadText(std::string_view text, const std::string& fileName,
                            FileFindings* findings) {
  Reader reader(*this, text, fileName, findings);
  reader.RequireParameterFile();
  {
    const BusyCursor busy(context_.host);
    reader.Run();
  }
  reader.TellFailure();
  return reader.records();
}

}  // namespace veldox
