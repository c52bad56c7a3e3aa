// Checks a table of published figures and turns it into source:
//
//     compile_table TABLE.tsv FUNCTION OUTPUT.cpp
//
// The table is tab separated with one line of heads: group, kind, name, the figures, source.
// What is wrong is told as "file:line: text", and nothing is written then.

#include <algorithm>
#include <array>
#include <charconv>
#include <fstream>
#include <iostream>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace {

/// What the figures of a column may be.
struct ColumnRule {
  std::string_view head;
  double least;
  double most;
  bool whole;
};

constexpr std::array kRules{
    ColumnRule{"bore", 0.1, 100, false},
    ColumnRule{"stroke", 0.1, 100, false},
    ColumnRule{"rod", 0, 200, false},
    ColumnRule{"cylinders", 1, 64, true},
};

constexpr std::size_t kGroup = 0;
constexpr std::size_t kKind = 1;
constexpr std::size_t kName = 2;
constexpr std::size_t kFirstFigure = 3;

struct Row {
  std::string kind;
  std::string name;
  std::string figures;
  std::string source;
};

struct Group {
  std::string name;
  std::vector<Row> rows;
};

std::vector<std::string> Split(std::string_view line) {
  std::vector<std::string> cells;
  for (std::size_t from = 0;;) {
    const auto end = line.find('\t', from);
    cells.emplace_back(line.substr(from, end - from));
    if (end == std::string_view::npos) return cells;
    from = end + 1;
  }
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
  }

  const std::vector<Group>& groups() const { return groups_; }

 private:
  [[noreturn]] void Fail(const std::string& what) const {
    throw std::runtime_error(std::to_string(line_) + ": " + what);
  }

  void ReadHeads(std::string_view line) {
    heads_ = Split(line);
    if (heads_.size() < kFirstFigure + 2 || heads_[kGroup] != "group" || heads_[kKind] != "kind" ||
        heads_[kName] != "name" || heads_.back() != "source") {
      Fail("the heads must be group, kind, name, the figures, source");
    }
    for (std::size_t i = kFirstFigure; i + 1 < heads_.size(); ++i) {
      const auto rule = std::find_if(kRules.begin(), kRules.end(),
                                     [&](const ColumnRule& r) { return r.head == heads_[i]; });
      if (rule == kRules.end()) Fail("no such column: " + heads_[i]);
      rules_.push_back(*rule);
    }
  }

  void ReadRow(std::string_view line) {
    const std::vector<std::string> cells = Split(line);
    if (cells.size() != heads_.size()) {
      Fail(std::to_string(cells.size()) + " cells instead of " + std::to_string(heads_.size()));
    }
    for (const std::string& cell : cells) CheckText(cell);
    if (cells[kGroup].empty()) Fail("the group has no name");
    if (groups_.empty() || groups_.back().name != cells[kGroup]) {
      if (!names_.insert(cells[kGroup]).second) Fail("the group begins again: " + cells[kGroup]);
      groups_.push_back({cells[kGroup], {}});
    }
    groups_.back().rows.push_back(MakeRow(cells));
  }

  Row MakeRow(const std::vector<std::string>& cells) const {
    const bool any = std::any_of(cells.begin() + kFirstFigure, cells.end(),
                                 [](const std::string& cell) { return !cell.empty(); });
    if (cells[kKind] == "header") {
      if (any) Fail("a header has no figures and no source");
      return {"Header", cells[kName], {}, {}};
    }
    if (cells[kKind] != "engine") Fail("no such kind: " + cells[kKind]);
    if (cells[kName].empty()) Fail("the row has no name");
    if (!any) return {"NameOnly", cells[kName], {}, {}};
    if (cells.back().empty()) Fail("the figures have no source");
    std::string figures;
    for (std::size_t i = 0; i < rules_.size(); ++i) {
      CheckFigure(cells[kFirstFigure + i], rules_[i]);
      figures += (i == 0 ? "" : " ") + cells[kFirstFigure + i];
    }
    return {"Figures", cells[kName], figures, cells.back()};
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
    double value = 0;
    const char* end = cell.data() + cell.size();
    const auto [stop, error] = std::from_chars(cell.data(), end, value, std::chars_format::fixed);
    if (error != std::errc{} || stop != end) Fail(what + " is not a number");
    if (rule.whole && cell.find('.') != std::string::npos) Fail(what + " is not a whole number");
    if (!(value >= rule.least && value <= rule.most)) Fail(what + " is out of range");
  }

  std::vector<std::string> heads_;
  std::vector<ColumnRule> rules_;
  std::vector<Group> groups_;
  std::set<std::string> names_;
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

std::string Source(const Table& table, std::string_view function) {
  std::ostringstream rows;
  std::ostringstream groups;
  std::size_t count = 0;
  for (const Group& group : table.groups()) {
    groups << "    {" << Quoted(group.name) << ", {kRows + " << count << ", " << group.rows.size()
           << "}},\n";
    for (const Row& row : group.rows) {
      rows << "    {TableRow::Kind::" << row.kind << ", " << Quoted(row.name) << ", "
           << Quoted(row.figures) << ", " << Quoted(row.source) << "},\n";
    }
    count += group.rows.size();
  }
  return "// Made by compile_table.\n#include \"data/tables.h\"\n\nnamespace veldox {\nnamespace "
         "{\n\n"
         "constexpr TableRow kRows[] = {\n" +
         rows.str() + "};\n\nconstexpr TableGroup kGroups[] = {\n" + groups.str() +
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
