#include "core/pick_list.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "core/line_reader.h"
#include "core/text.h"

namespace veldox {
namespace {

/// Source of the rows that the program was made with.
constexpr std::string_view kGiven = "given";
/// A tip shows no more of a row.
constexpr std::size_t kToldCharacters = 200;
/// Messages quote no more of a row.
constexpr std::size_t kQuotedRow = 120;

bool IsName(const PickRow& row) {
  return row.kind == PickRow::Kind::Choice || row.kind == PickRow::Kind::NameOnly;
}

/// A text as it is searched: in small letters, with points for commas.
std::string Folded(std::string_view text) {
  std::string folded(text);
  for (char& c : folded) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    if (c == ',') c = '.';
  }
  return folded;
}

std::vector<std::string_view> Words(std::string_view text) {
  std::vector<std::string_view> words;
  for (std::size_t from = 0; from < text.size();) {
    const auto end = std::min(text.find_first_of(" \t", from), text.size());
    if (end > from) words.push_back(text.substr(from, end - from));
    from = end + 1;
  }
  return words;
}

}  // namespace

std::string PickHeader(std::string_view name, const PickLook& look) {
  return std::string(look.indent) + "-- " + std::string(name) + " --";
}

std::vector<PickRow> PickRowsOf(const TableGroup& group, std::string_view notVerified,
                                const PickLook& look) {
  std::vector<PickRow> rows;
  rows.reserve(group.rows.size());
  for (const TableRow& row : group.rows) {
    const std::string name(row.name);
    switch (row.kind) {
      case TableRow::Kind::Header:
        rows.push_back({PickRow::Kind::Section,
                        name.empty() ? std::string(look.apart) : PickHeader(name, look),
                        {}});
        break;
      case TableRow::Kind::NameOnly:
        rows.push_back({PickRow::Kind::NameOnly, name, std::string(notVerified)});
        break;
      case TableRow::Kind::Figures:
        rows.push_back({PickRow::Kind::Choice,
                        name + ' ' + kFiguresSign + ' ' + std::string(row.figures),
                        "Source: " + (row.source == kGiven ? "the program's own table"
                                                           : std::string(row.source))});
        break;
    }
  }
  return rows;
}

std::vector<PickRow> UserPickRows(std::string_view text, const std::string& fileName) {
  std::vector<PickRow> rows;
  LineReader lines(text, fileName);
  while (lines.Next()) {
    const bool picks = lines.line().find(kFiguresSign) != std::string_view::npos;
    rows.push_back(
        {picks ? PickRow::Kind::Choice : PickRow::Kind::Section, std::string(lines.line()),
         picks ? "Source: " + fileName + ", line " + std::to_string(lines.number()) : ""});
  }
  return rows;
}

std::vector<std::string> PickedFigures(std::string_view row, std::size_t most) {
  std::vector<std::string> figures;
  const auto sign = row.find(kFiguresSign);
  if (sign == std::string_view::npos) return figures;
  constexpr std::string_view kBlanks = " \t";
  std::string_view rest = row.substr(sign + 1);
  while (figures.size() < most) {
    rest.remove_prefix(std::min(rest.find_first_not_of(kBlanks), rest.size()));
    if (rest.empty()) break;
    const auto end = figures.size() + 1 == most
                         ? rest.find_last_not_of(kBlanks) + 1
                         : std::min(rest.find_first_of(kBlanks), rest.size());
    figures.emplace_back(rest.substr(0, end));
    rest.remove_prefix(end);
  }
  return figures;
}

void FailAtRow(ErrorKind kind, std::string_view what, std::string_view row,
               const std::string& why) {
  throw CommandError(kind,
                     std::string(what) + " of the row \"" + Clipped(row, kQuotedRow) + "\" " + why);
}

double ReadFigure(std::string_view figure, std::string_view what, std::string_view row,
                  double largest) {
  double value = 0;
  try {
    value = ParseNumber(figure, DecimalMark::Point);
  } catch (const CommandError& error) {
    FailAtRow(error.kind(), what, row, error.message());
  }
  if (value <= 0) FailAtRow(ErrorKind::InvalidArgument, what, row, "must be above 0.");
  if (value > largest) FailAtRow(ErrorKind::InvalidArgument, what, row, "is too large.");
  return value;
}

PickList::PickList(Frame& frame, std::string name, std::string caption, std::string help,
                   Handler handler)
    : ComboList(frame, ControlKind::PickList, std::move(name), std::move(caption), std::move(help)),
      handler_(std::move(handler)) {}

void PickList::Offer(std::vector<PickRow> rows, PickPlace place) {
  Assign(all_, std::move(rows), Aspect::Place);
  Assign(searched_, std::vector<std::string>{}, Aspect::Place);
  Assign(words_, std::string{}, Aspect::Place);
  const int size = static_cast<int>(all_.size());
  Assign(place_,
         PickPlace{place.picked < size ? place.picked : -1,
                   std::clamp(place.top, 0, std::max(size - 1, 0))},
         Aspect::Place);
  Assign(count_, static_cast<int>(std::count_if(all_.begin(), all_.end(), IsName)), Aspect::Place);
  Assign(offers_, offers_ + 1, Aspect::Place);
  ShowRows();
}

void PickList::SetTop(int index) {
  if (words_.empty() && index >= 0 && static_cast<std::size_t>(index) < all_.size()) {
    Assign(place_, PickPlace{place_.picked, index}, Aspect::Place);
  }
}

void PickList::Narrow(std::string words) {
  if (words == words_) return;
  Assign(words_, std::move(words), Aspect::Place);
  ShowRows();
  HoverRow(words_.empty() ? -1 : current_);
}

void PickList::PrepareSearch() {
  if (!searched_.empty()) return;
  // A row is found by its headings as well.
  std::string group;
  std::string section;
  searched_.reserve(all_.size());
  for (const PickRow& row : all_) {
    searched_.push_back(Folded(row.text));
    if (row.kind == PickRow::Kind::Group) {
      group = searched_.back();
      section.clear();
    } else if (row.kind == PickRow::Kind::Section) {
      section = searched_.back();
    } else {
      searched_.back().append("\n").append(section).append("\n").append(group);
    }
  }
}

void PickList::FindRows(const std::vector<std::string_view>& words) {
  PrepareSearch();
  // From the end, so that a heading knows whether any of its rows is shown.
  bool inSection = false;
  bool inGroup = false;
  for (std::size_t i = all_.size(); i-- > 0;) {
    bool show = false;
    switch (all_[i].kind) {
      case PickRow::Kind::Group:
        show = inGroup;
        inGroup = inSection = false;
        break;
      case PickRow::Kind::Section:
        show = inSection && all_[i].text.find_first_not_of(' ') != std::string::npos;
        inSection = false;
        break;
      case PickRow::Kind::Choice:
      case PickRow::Kind::NameOnly:
        show = std::all_of(words.begin(), words.end(), [&](std::string_view word) {
          return searched_[i].find(word) != std::string::npos;
        });
        if (show) {
          inSection = inGroup = true;
          ++shownCount_;
        }
        break;
    }
    if (show) shown_.push_back(static_cast<int>(i));
  }
  std::reverse(shown_.begin(), shown_.end());
}

int PickList::RowOf(int index) const {
  const auto found = std::lower_bound(shown_.begin(), shown_.end(), index);
  const bool inSight = index >= 0 && found != shown_.end() && *found == index;
  return inSight ? static_cast<int>(found - shown_.begin()) : -1;
}

void PickList::PutBack() {
  SetChosen(RowOf(picked()));
  TellFace();
}

void PickList::ShowRows() {
  const std::string folded = Folded(words_);
  const std::vector<std::string_view> wanted = Words(folded);
  for (int* number : {&shownCount_, &current_}) {
    screen().context().journal.Keep(*number, this, Aspect::Place);
  }
  screen().context().journal.Keep(shown_, this, Aspect::Place);
  shown_.clear();
  shownCount_ = 0;
  if (wanted.empty()) {
    shown_.resize(all_.size());
    std::iota(shown_.begin(), shown_.end(), 0);
    shownCount_ = count_;
  } else {
    FindRows(wanted);
  }
  std::vector<std::string> texts;
  texts.reserve(shown_.size());
  for (int row = 0; row < static_cast<int>(shown_.size()); ++row) texts.push_back(RowAt(row).text);
  Replace(std::move(texts), RowOf(picked()));
  current_ = RowOf(place_.picked);
  if (!wanted.empty()) {
    current_ = -1;
    Step(1);
  }
  Assign(edition_, edition_ + 1, Aspect::Place);
  Changed();
}

void PickList::MoveCurrent(int by) {
  Step(by);
  Changed();
  HoverRow(current_);
}

int PickList::first() const {
  for (int row = 0; row < static_cast<int>(shown_.size()); ++row) {
    if (RowAt(row).kind == PickRow::Kind::Choice) return row;
  }
  return -1;
}

std::string PickList::Told(int row) const {
  const PickRow& told = RowAt(row);
  if (told.kind != PickRow::Kind::Choice) return told.note;
  return Clipped(told.text, kToldCharacters) + "\r\n" + told.note;
}

void PickList::Step(int by) {
  const int step = by < 0 ? -1 : 1;
  const int rowCount = static_cast<int>(rows().size());
  int left = by * step;
  for (int row = current_ < 0 && by < 0 ? rowCount : current_; left > 0 && HasRow(row + step);) {
    row += step;
    if (RowAt(row).kind != PickRow::Kind::Choice) continue;
    current_ = row;
    --left;
  }
}

std::string PickList::chosenText() const {
  return picked() < 0 ? std::string{} : all_[static_cast<std::size_t>(picked())].text;
}

void PickList::Choose(int row) {
  if (!HasRow(row) || RowAt(row).kind != PickRow::Kind::Choice) return;
  const History::Step step(*this, History::Kind::Other);
  const int index = shown_[static_cast<std::size_t>(row)];
  Assign(picked_, Picked{index, offers_}, isOption() ? Aspect::Place : Aspect::Data);
  Assign(place_, PickPlace{index, place_.top}, Aspect::Place);
  Assign(current_, row, Aspect::Place);
  SetChosen(row);
  Changed();
  if (handler_ != nullptr) screen().Perform(handler_);
}

void PickList::HoverRow(int row) {
  screen().ShowHelp(HasRow(row) ? Told(row) : help());
}

}  // namespace veldox
