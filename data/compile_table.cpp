// Checks a table of published figures and turns it into source:
//
//     compile_table TABLE.tsv FUNCTION OUTPUT.cpp
//
// The table is tab separated with one line of heads: group, kind, name, the figures, source. The
// heads tell which kind of table it is. A table of several lists has the list before the group.
// What is wrong is told as "file:line: text", and nothing is written then.

#include <algorithm>
#include <charconv>
#include <fstream>
#include <iostream>
#include <map>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

/// What may stand in the cells of a column.
enum class Cell {
  Number,
  Numbers,   ///< two to ten numbers with single blanks between them
  Whole,     ///< a whole number
  Fraction,  ///< such as 3, 5/16 or 3-47/64 in lowest terms of halves down to 64ths
  Drill,     ///< a fraction, a number drill #1 to #80 or a letter drill A to Z
  Steps,     ///< what makes one unit of another, such as "- 32 * 5 / 9"
  Text,
};

/// What the figures of a column may be.
struct ColumnRule {
  std::string_view head;
  Cell cell;
  double least = 0;  ///< of each number
  double most = 0;   ///< of each number
  bool mayBeEmpty = false;
};

/// A kind of table: what stands in the kind column of its rows, and their figures.
struct Shape {
  std::string_view kind;
  std::vector<ColumnRule> columns;
  bool mayBeNameOnly = false;  ///< a row without figures is one that is not verified
};

const std::vector<Shape>& Shapes() {
  static const std::vector<Shape> shapes{
      {"engine",
       {{"bore", Cell::Number, 0.1, 100},
        {"stroke", Cell::Number, 0.1, 100},
        {"rod", Cell::Number, 0, 200},
        {"cylinders", Cell::Whole, 1, 64}},
       true},
      {"gearbox", {{"ratios", Cell::Numbers, 0.2, 20}}, true},
      {"car", {{"cd", Cell::Number, 0.05, 2}, {"area", Cell::Number, 1, 100, true}}, true},
      {"unit",
       {{"option", Cell::Whole, 0, 63},
        {"of", Cell::Whole, 0, 63, true},
        {"steps", Cell::Steps, 0, 0, true}}},
      {"conversion",
       {{"command", Cell::Whole, 1, 32},
        {"from", Cell::Whole, 0, 63},
        {"to", Cell::Whole, 0, 63},
        {"step", Cell::Number, 0.001, 10},
        {"decimals", Cell::Whole, 1, 9},
        {"values", Cell::Text},
        {"converses", Cell::Text}}},
      {"drill", {{"inches", Cell::Number, 0.001, 1}}},
      {"tap", {{"threads", Cell::Fraction}, {"drill", Cell::Drill}}},
      {"pipe tap",
       {{"threads", Cell::Fraction}, {"drill", Cell::Drill}, {"outside", Cell::Number, 0.1, 20}}},
      {"metric tap", {{"pitch", Cell::Number, 0.1, 10}, {"millimetres", Cell::Number, 0.1, 100}}},
      {"dash",
       {{"hose", Cell::Fraction, 0, 0, true},
        {"tube", Cell::Fraction},
        {"thread", Cell::Text, 0, 0, true}}},
      {"steel", {{"alloy", Cell::Text}}},
  };
  return shapes;
}

constexpr std::size_t kGroup = 0;
constexpr std::size_t kKind = 1;
constexpr std::size_t kName = 2;
constexpr std::size_t kFirstFigure = 3;
/// The head of the column before these in a table of several lists.
constexpr std::string_view kList = "list";
/// The kind of a row that stands for a group without rows; such a group may be without a name.
constexpr std::string_view kEmptyGroup = "empty group";

struct Row {
  int line;
  std::string kind;
  std::string name;
  std::vector<std::string> figures;
  std::string source;
};

struct Group {
  std::string list;
  std::string name;
  std::vector<Row> rows;
  bool isEmpty = false;
};

std::vector<std::string> Split(std::string_view line, char separator = '\t') {
  std::vector<std::string> cells;
  for (std::size_t from = 0;;) {
    const auto end = line.find(separator, from);
    cells.emplace_back(line.substr(from, end - from));
    if (end == std::string_view::npos) return cells;
    from = end + 1;
  }
}

/// Reads a number without exponent. @return false for any other text
bool ReadNumber(std::string_view text, double& value) {
  const char* end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, value, std::chars_format::fixed);
  return error == std::errc{} && stop == end;
}

/// Reads a whole number of digits alone.
bool ReadCount(std::string_view text, int& value) {
  const char* end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, value);
  return error == std::errc{} && stop == end && value >= 0;
}

bool IsFraction(std::string_view text) {
  const auto dash = text.find('-');
  const auto slash = text.find('/');
  int whole = 0;
  if (slash == std::string_view::npos) return ReadCount(text, whole);
  int over = 0;
  int under = 0;
  if (dash != std::string_view::npos && !(ReadCount(text.substr(0, dash), whole) && whole > 0)) {
    return false;
  }
  const auto from = dash == std::string_view::npos ? 0 : dash + 1;
  return slash > from && ReadCount(text.substr(from, slash - from), over) &&
         ReadCount(text.substr(slash + 1), under) && over % 2 == 1 && over < under &&
         (under == 2 || under == 4 || under == 8 || under == 16 || under == 32 || under == 64);
}

bool IsDrill(std::string_view text) {
  if (text.size() == 1 && text.front() >= 'A' && text.front() <= 'Z') return true;
  int number = 0;
  if (!text.starts_with('#')) return IsFraction(text);
  return ReadCount(text.substr(1), number) && number >= 1 && number <= 80;
}

bool AreSteps(std::string_view text) {
  const std::vector<std::string> words = Split(text, ' ');
  for (std::size_t i = 0; i < words.size(); ++i) {
    double value = 0;
    const bool isSign = words[i].size() == 1 && words[i].find_first_of("+-*/") == 0;
    if (i % 2 == 0 ? !isSign : !(ReadNumber(words[i], value) && value != 0)) return false;
  }
  return words.size() % 2 == 0;
}

class Table {
 public:
  explicit Table(std::istream& file) {
    std::string line;
    while (std::getline(file, line)) {
      ++line_;
      if (!line.empty() && line.back() == '\r') line.pop_back();
      if (line_ == 1) {
        ReadHeads(line);
      } else {
        ReadRow(line);
      }
    }
    if (groups_.empty()) throw std::runtime_error("has no rows");
    if (shape_->kind == "unit") CheckUnits();
  }

  const std::vector<Group>& groups() const { return groups_; }

 private:
  [[noreturn]] void Fail(const std::string& what) const {
    throw std::runtime_error(std::to_string(line_) + ": " + what);
  }

  void ReadHeads(std::string_view line) {
    heads_ = Split(line);
    hasLists_ = heads_.front() == kList;
    if (hasLists_) heads_.erase(heads_.begin());
    if (heads_.size() < kFirstFigure + 2 || heads_[kGroup] != "group" || heads_[kKind] != "kind" ||
        heads_[kName] != "name" || heads_.back() != "source") {
      Fail("the heads must be group, kind, name, the figures, source");
    }
    const std::vector<std::string> figures(heads_.begin() + kFirstFigure, heads_.end() - 1);
    for (const std::string& head : figures) {
      const bool known = std::any_of(Shapes().begin(), Shapes().end(), [&](const Shape& shape) {
        return std::any_of(shape.columns.begin(), shape.columns.end(),
                           [&](const ColumnRule& rule) { return rule.head == head; });
      });
      if (!known) Fail("no such column: " + head);
    }
    for (const Shape& shape : Shapes()) {
      if (std::equal(figures.begin(), figures.end(), shape.columns.begin(), shape.columns.end(),
                     [](const std::string& head, const ColumnRule& r) { return head == r.head; })) {
        shape_ = &shape;
      }
    }
    if (shape_ == nullptr) Fail("no kind of table has these columns");
  }

  void ReadRow(std::string_view line) {
    std::vector<std::string> cells = Split(line);
    const std::size_t expected = heads_.size() + (hasLists_ ? 1 : 0);
    if (cells.size() != expected) {
      Fail(std::to_string(cells.size()) + " cells instead of " + std::to_string(expected));
    }
    for (const std::string& cell : cells) CheckText(cell);
    std::string list;
    if (hasLists_) {
      list = std::move(cells.front());
      cells.erase(cells.begin());
      if (list.empty()) Fail("the list has no name");
      BeginList(list);
    }
    if (cells[kKind] == kEmptyGroup) {
      if (std::any_of(cells.begin() + kName, cells.end(),
                      [](const std::string& cell) { return !cell.empty(); })) {
        Fail("an empty group has no name of a row and no figures");
      }
      BeginGroup(list, cells[kGroup], true);
      return;
    }
    if (cells[kGroup].empty()) Fail("the group has no name");
    if (groups_.empty() || groups_.back().isEmpty || groups_.back().list != list ||
        groups_.back().name != cells[kGroup]) {
      BeginGroup(list, cells[kGroup], false);
    }
    groups_.back().rows.push_back(MakeRow(cells));
  }

  void BeginList(const std::string& list) {
    if (!groups_.empty() && groups_.back().list == list) return;
    if (!lists_.insert(list).second) Fail("the list begins again: " + list);
  }

  void BeginGroup(const std::string& list, const std::string& name, bool isEmpty) {
    if (!name.empty() && !names_.emplace(list, name).second) {
      Fail("the group begins again: " + name);
    }
    groups_.push_back({list, name, {}, isEmpty});
  }

  Row MakeRow(const std::vector<std::string>& cells) const {
    const bool any = std::any_of(cells.begin() + kFirstFigure, cells.end(),
                                 [](const std::string& cell) { return !cell.empty(); });
    if (cells[kKind] == "header") {
      if (any) Fail("a header has no figures and no source");
      return {line_, "Header", cells[kName], {}, {}};
    }
    if (cells[kKind] != shape_->kind) Fail("no such kind: " + cells[kKind]);
    if (cells[kName].empty()) Fail("the row has no name");
    if (!any) {
      if (!shape_->mayBeNameOnly) Fail("the row has no figures");
      return {line_, "NameOnly", cells[kName], {}, {}};
    }
    if (cells.back().empty()) Fail("the figures have no source");
    std::vector<std::string> figures(cells.begin() + kFirstFigure, cells.end() - 1);
    for (std::size_t i = 0; i < figures.size(); ++i) CheckFigure(figures[i], shape_->columns[i]);
    return {line_, "Figures", cells[kName], std::move(figures), cells.back()};
  }

  void CheckText(const std::string& cell) const {
    if (cell.find('|') != std::string::npos) Fail("a cell holds a \"|\": " + cell);
    if (!cell.empty() && (cell.front() == ' ' || cell.back() == ' ')) {
      Fail("a cell begins or ends with a blank: \"" + cell + '"');
    }
    if (std::any_of(cell.begin(), cell.end(), [](char c) { return c < ' ' || c > '~'; })) {
      Fail("a cell holds a sign beyond plain ASCII: " + cell);
    }
  }

  void CheckFigure(const std::string& cell, const ColumnRule& rule) const {
    const std::string what = std::string(rule.head) + " \"" + cell + '"';
    if (cell.empty() && rule.mayBeEmpty) return;
    double value = 0;
    switch (rule.cell) {
      case Cell::Number:
      case Cell::Whole:
        if (!ReadNumber(cell, value)) Fail(what + " is not a number");
        if (rule.cell == Cell::Whole && cell.find('.') != std::string::npos) {
          Fail(what + " is not a whole number");
        }
        if (!(value >= rule.least && value <= rule.most)) Fail(what + " is out of range");
        break;
      case Cell::Numbers: CheckNumbers(what, Split(cell, ' '), rule); break;
      case Cell::Fraction:
        if (!IsFraction(cell)) Fail(what + " is not a fraction in lowest terms");
        break;
      case Cell::Drill:
        if (!IsDrill(cell)) Fail(what + " is not a drill");
        break;
      case Cell::Steps:
        if (!AreSteps(cell)) Fail(what + " are not signs and numbers");
        break;
      case Cell::Text:
        if (cell.empty()) Fail(what + " is not told");
        break;
    }
  }

  [[noreturn]] void FailOfWord(const std::string& what, const std::string& word) const {
    Fail(what + ": \"" + word + "\" is not a number");
  }

  void CheckNumbers(const std::string& what, const std::vector<std::string>& words,
                    const ColumnRule& rule) const {
    constexpr std::size_t kFewest = 2;
    constexpr std::size_t kMost = 10;
    if (words.size() < kFewest || words.size() > kMost) {
      Fail(what + " are not 2 to 10 numbers");
    }
    for (const std::string& word : words) {
      double value = 0;
      if (!ReadNumber(word, value)) FailOfWord(what, word);
      if (!(value >= rule.least && value <= rule.most)) Fail(what + " is out of range");
    }
  }

  /// Every unit stands once and comes of a unit by steps, but for those that others come of.
  void CheckUnits() {
    std::map<std::string, std::string> cameOf;
    const auto forEachUnit = [&](const auto& check) {
      for (const Group& group : groups_) {
        for (const Row& row : group.rows) {
          if (row.kind != "Figures") continue;
          line_ = row.line;
          check(row.figures[0], row.figures[1], row.figures[2]);
        }
      }
    };
    forEachUnit([&](const std::string& option, const std::string& of, const std::string& steps) {
      if (!cameOf.emplace(option, of).second) Fail("the option stands twice: " + option);
      if (of.empty() != steps.empty()) Fail("a unit comes of another by steps, or of none");
    });
    forEachUnit([&](const std::string& option, const std::string& of, const std::string&) {
      std::size_t count = 0;
      for (std::string unit = of; !unit.empty(); unit = cameOf.at(unit)) {
        if (cameOf.count(unit) == 0) Fail("no unit has the option " + unit);
        if (++count > cameOf.size()) Fail("the unit comes of itself: " + option);
      }
    });
  }

  std::vector<std::string> heads_;
  const Shape* shape_ = nullptr;
  std::vector<Group> groups_;
  std::set<std::pair<std::string, std::string>> names_;  ///< of groups, behind their lists
  std::set<std::string> lists_;
  bool hasLists_ = false;
  int line_ = 0;
};

std::string Quoted(std::string_view text) {
  std::string quoted = "\"";
  for (const char c : text) {
    if (c == '"' || c == '\\') quoted += '\\';
    quoted += c;
  }
  return quoted + '"';
}

std::string Joined(const std::vector<std::string>& cells) {
  std::string joined;
  for (const std::string& cell : cells) {
    if (!cell.empty()) joined += (joined.empty() ? "" : " ") + cell;
  }
  return joined;
}

std::string Source(const Table& table, std::string_view function) {
  std::ostringstream cells;
  std::ostringstream rows;
  std::ostringstream groups;
  std::size_t cellCount = 0;
  std::size_t count = 0;
  for (const Group& group : table.groups()) {
    groups << "    {" << Quoted(group.name) << ", {kRows + " << count << ", " << group.rows.size()
           << '}' << (group.list.empty() ? "" : ", " + Quoted(group.list)) << "},\n";
    for (const Row& row : group.rows) {
      rows << "    {TableRow::Kind::" << row.kind << ", " << Quoted(row.name) << ", "
           << Quoted(Joined(row.figures)) << ", " << Quoted(row.source) << ", {kCells + "
           << cellCount << ", " << row.figures.size() << "}},\n";
      for (const std::string& cell : row.figures) cells << "    " << Quoted(cell) << ",\n";
      cellCount += row.figures.size();
    }
    count += group.rows.size();
  }
  // One more cell, since an array without any cannot be.
  return "// Made by compile_table.\n#include \"data/tables.h\"\n\nnamespace veldox {\nnamespace "
         "{\n\n"
         "constexpr std::string_view kCells[] = {\n" +
         cells.str() + "    {},\n};\n\nconstexpr TableRow kRows[] = {\n" + rows.str() +
         "};\n\nconstexpr TableGroup kGroups[] = {\n" + groups.str() +
         "};\n\n}  // namespace\n\nstd::span<const TableGroup> " + std::string(function) +
         "() {\n  return kGroups;\n}\n\n}  // namespace veldox\n";
}

}  // namespace

int main(int count, char** arguments) {
  if (count != 4) {
    std::cerr << "usage: compile_table TABLE.tsv FUNCTION OUTPUT.cpp\n";
    return 2;
  }
  try {
    std::ifstream file(arguments[1], std::ios::binary);
    if (!file) throw std::runtime_error("0: cannot be read");
    const std::string source = Source(Table(file), arguments[2]);
    std::ofstream output(arguments[3], std::ios::binary | std::ios::trunc);
    output << source << std::flush;
    if (!output) {
      std::cerr << arguments[3] << ": cannot be written\n";
      return 1;
    }
  } catch (const std::exception& error) {
    std::cerr << arguments[1] << ':' << error.what() << '\n';
    return 1;
  }
  return 0;
}
