#include "core/file_comparison.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <map>
#include <set>
#include <sstream>
#include <utility>

#include "core/key_table.h"
#include "core/report.h"
#include "core/text.h"

namespace veldox {

namespace {

constexpr std::string_view kNotesKey = "Notes";
constexpr std::string_view kLacking = "-";

/// Tables that stand in the file beside those of the key table, a line each point.
constexpr std::string_view kPointKeys[] = {"Acceleration", "Road HP", "ROad HP"};

/// True for a key whose rows are told apart by their order alone.
bool HasRows(std::string_view key) {
  if (std::ranges::find(kPointKeys, key) != std::end(kPointKeys)) return true;
  const KeyRow* row = FindKey(key);
  return row != nullptr && row->form == KeyForm::Table;
}

/// What names of both sides are matched by. The road tables differ in their case alone.
std::string Matched(const std::string& name) {
  return name.starts_with("Ro") || name.starts_with("RO") ? name : Lower(name);
}

std::vector<std::string> WordsOf(const std::string& text) {
  std::istringstream words(text);
  return {std::istream_iterator<std::string>(words), {}};
}

/// True for a number, and for the numbers of a table's row.
bool HoldsNumbers(const std::string& value, DecimalMark mark) {
  const std::vector<std::string> words = WordsOf(value);
  return !words.empty() && std::ranges::all_of(words, [mark](const std::string& word) {
    return IsNumber(word, mark);
  });
}

/// True for values that are the same, whatever their form: ".016" and "0.016" are.
bool SameValue(const std::string& one, const std::string& other) {
  if (one == other) return true;
  const auto same = [](const std::string& left, const std::string& right) {
    if (left == right) return true;
    for (const DecimalMark mark : {DecimalMark::Point, DecimalMark::Comma}) {
      if (IsNumber(left, mark) && IsNumber(right, mark)) {
        const double ours = ParseNumber(left, mark);
        const double theirs = ParseNumber(right, mark);
        // A field's text may have digits more than the writer gives the number that was read.
        return ours == theirs || FormatSmart(ours, mark) == right ||
               FormatSmart(theirs, mark) == left;
      }
    }
    return false;
  };
  return std::ranges::equal(WordsOf(one), WordsOf(other), same);
}

std::optional<double> NumberIn(const std::string& value, DecimalMark mark) {
  if (!IsNumber(value, mark)) return std::nullopt;
  return ParseNumber(value, mark);
}

}  // namespace

FileContents ContentsOf(std::string_view text) {
  FileContents contents;
  std::map<std::string, int> rows;
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    std::string_view line = text.substr(0, end);
    const std::string_view rest =
        end == std::string_view::npos ? std::string_view{} : text.substr(end + 1);
    if (line.ends_with('\r')) line.remove_suffix(1);
    const std::size_t equals = line.find(" =");
    const std::string_view key =
        equals == std::string_view::npos ? std::string_view{} : line.substr(0, equals);
    if (Lower(key) == Lower(kNotesKey)) {
      contents.notes = Trim(text.substr(equals + 2));
      while (contents.notes.ends_with('\n') || contents.notes.ends_with('\r')) {
        contents.notes.pop_back();
      }
      return contents;
    }
    text = rest;
    if (key.empty() || line.front() == ';') continue;
    FileRecord record;
    const KeyRow* row = FindKey(key);
    record.key = row != nullptr ? row->key : key;
    record.name = record.key;
    record.value = Trim(line.substr(equals + 2));
    if (HasRows(record.key)) record.name += ' ' + std::to_string(++rows[record.key]);
    contents.records.push_back(std::move(record));
  }
  return contents;
}

FileContents OfFile(const FileContents& state, const FileFindings& findings) {
  std::set<std::string> inFile;
  for (const std::string& name : findings.records) inFile.insert(Matched(name));
  FileContents contents;
  std::ranges::copy_if(
      state.records, std::back_inserter(contents.records),
      [&](const FileRecord& record) { return inFile.contains(Matched(record.name)); });
  for (const auto& [key, value] : findings.unknown) contents.records.push_back({key, key, value});
  contents.notes = state.notes;
  return contents;
}

FileComparison Compare(const FileContents& here, const FileContents& there) {
  std::map<std::string, const FileRecord*> known;
  for (const FileRecord& record : there.records) known[Matched(record.name)] = &record;
  std::set<std::string> ours;
  for (const FileRecord& record : here.records) ours.insert(Matched(record.name));
  std::vector<std::string> theirs;
  theirs.reserve(there.records.size());
  std::ranges::transform(there.records, std::back_inserter(theirs),
                         [](const FileRecord& record) { return Matched(record.name); });
  std::map<std::string, std::size_t> placeOfTheirs;
  for (std::size_t i = 0; i < theirs.size(); ++i) placeOfTheirs[theirs[i]] = i;

  FileComparison comparison;
  std::vector<KeyDifference>& differences = comparison.differences;
  // What only the other side has stands where that has it, in front of what both have next.
  std::size_t next = 0;
  const auto addTheirs = [&](std::size_t end) {
    for (; next < end; ++next) {
      const FileRecord& record = there.records[next];
      if (ours.contains(theirs[next])) continue;
      differences.push_back({record.name, record.key, std::string(kLacking), record.value});
    }
  };
  for (const FileRecord& record : here.records) {
    const std::string name = Matched(record.name);
    const auto place = placeOfTheirs.find(name);
    if (place != placeOfTheirs.end()) addTheirs(place->second);
    const auto found = known.find(name);
    const std::string other(found == known.end() ? kLacking : found->second->value);
    if (!SameValue(record.value, other)) {
      differences.push_back({record.name, record.key, record.value, other});
    }
  }
  addTheirs(theirs.size());
  comparison.notesDiffer = here.notes != there.notes;
  return comparison;
}

namespace {

constexpr std::size_t kLabelWidth = 42;
constexpr std::size_t kUnitWidth = 8;
constexpr std::size_t kValueWidth = 15;
constexpr std::size_t kPercentWidth = 12;

/// A cell that keeps a blank before it, however long it is.
std::string Cell(const std::string& text, std::size_t width) {
  return ' ' + RightAligned(text, width - 1);
}

/// Writes the rows of a comparison.
class ComparisonWriter {
 public:
  explicit ComparisonWriter(DecimalMark mark) : mark_(mark), report_(mark) {}

  void Head(const std::string& here, const std::string& there) {
    report_.Add("Comparison of Parameter Files").EndLine(LineMark::Bold);
    report_.Add("Here:  " + here).EndLine();
    report_.Add("There: " + there).EndLine();
  }

  void Section(const std::string& title, bool hasPercent) {
    report_.EndLine();
    report_.Add(title).EndLine(LineMark::Bold);
    std::string heads = LeftAligned("", kLabelWidth) + LeftAligned("", kUnitWidth) +
                        Cell("Here", kValueWidth) + Cell("There", kValueWidth);
    if (hasPercent) heads += Cell("Difference", kPercentWidth);
    report_.Add(heads).EndLine(LineMark::Bold);
  }

  void Row(const std::string& label, const std::string& unit, const KeyDifference& difference) {
    std::string line = "  " + label;
    if (line.size() > kLabelWidth) {
      report_.Add(line).EndLine();  // no label is cut
      line.clear();
    }
    line = LeftAligned(line, kLabelWidth) + LeftAligned(unit, kUnitWidth);
    line += Cell(difference.here, kValueWidth) + Cell(difference.there, kValueWidth);
    line += Cell(Percent(difference), kPercentWidth);
    line.erase(line.find_last_not_of(' ') + 1);
    report_.Add(line).EndLine();
  }

  void Line(const std::string& text) { report_.Add(text).EndLine(); }
  void Space() { report_.EndLine(); }
  std::string Finish() { return report_.Finish(); }

 private:
  std::string Percent(const KeyDifference& difference) const {
    const auto here = NumberIn(difference.here, mark_);
    const auto there = NumberIn(difference.there, mark_);
    if (!here || !there || *here == 0) return {};
    const double percent = (*there - *here) / std::abs(*here) * 100;
    if (!std::isfinite(percent)) return {};
    return (percent > 0 ? "+" : "") + FormatValue<"0.00">(percent, mark_) + " %";
  }

  DecimalMark mark_;
  ReportWriter report_;
};

}  // namespace

std::string ComparisonReport(
    const FileComparison& comparison, const std::string& here, const std::string& there,
    const std::function<KeyPlace(const KeyDifference& difference)>& placeOf, DecimalMark mark) {
  ComparisonWriter writer(mark);
  writer.Head(here, there);
  struct Placed {
    KeyPlace place;
    const KeyDifference* difference;
  };
  std::vector<std::pair<std::string, std::vector<Placed>>> screens;
  std::vector<Placed> options;
  for (const KeyDifference& difference : comparison.differences) {
    KeyPlace place = placeOf(difference);
    const auto isNumberOrNone = [&](const std::string& value) {
      return value == kLacking || HoldsNumbers(value, mark);
    };
    if (place.isOption || !isNumberOrNone(difference.here) || !isNumberOrNone(difference.there)) {
      options.push_back({std::move(place), &difference});
      continue;
    }
    auto screen =
        std::ranges::find(screens, place.screen, [](const auto& entry) { return entry.first; });
    if (screen == screens.end()) screen = screens.insert(screens.end(), {place.screen, {}});
    screen->second.push_back({std::move(place), &difference});
  }
  const auto labelOf = [](const Placed& placed) {
    const std::string& name = placed.difference->name;
    return placed.place.label.empty() ? name : placed.place.label;
  };
  for (const auto& [title, rows] : screens) {
    writer.Section(title.empty() ? "Values without a Screen" : title, true);
    for (const Placed& placed : rows) {
      writer.Row(labelOf(placed), placed.place.unit, *placed.difference);
    }
  }
  if (!options.empty()) {
    writer.Section("Options and Texts", false);
    for (const Placed& placed : options)
      writer.Row(placed.difference->name, {}, *placed.difference);
  }
  writer.Space();
  if (comparison.notesDiffer) writer.Line("The notes differ.");
  const std::size_t count = comparison.differences.size();
  writer.Line(count == 0
                  ? "No key differs."
                  : std::to_string(count) + (count == 1 ? " key differs." : " keys differ."));
  return writer.Finish();
}

}  // namespace veldox
