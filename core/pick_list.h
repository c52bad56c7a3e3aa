#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/error.h"
#include "core/screen.h"
#include "data/tables.h"

namespace veldox {

/// A row of a pick list.
struct PickRow {
  enum class Kind {
    Group,     ///< heads a group with all its sections
    Section,   ///< heads the rows below it; blank, it sets them apart
    Choice,    ///< can be picked
    NameOnly,  ///< a name that has nothing to pick
  };
  Kind kind;
  std::string text;
  std::string note;  ///< said of the row while the pointer stands over it
};

/// Where a user left a pick list.
struct PickPlace {
  int picked = -1;  ///< index of the row picked last, -1 for none
  int top = 0;      ///< index of the first row in sight
};

/// The sign between the name of a row and its figures.
inline constexpr char kFiguresSign = '|';

/// How the headings of a list stand.
struct PickLook {
  std::string_view indent = "      ";
  std::string_view apart = " ";  ///< a heading without a name
};

/// The heading of a group of rows, as lists show it.
std::string PickHeader(std::string_view name, const PickLook& look = {});

/// The rows of a group of a table: "name | figures" where there are figures, the name alone
/// where they are not verified, and blanks for a header without a name.
/// @param notVerified  note of the rows without figures
/// @param look  how headings stand
std::vector<PickRow> PickRowsOf(const TableGroup& group, std::string_view notVerified,
                                const PickLook& look = {});

/// The rows of a table that a user keeps in a text file: "name | figures" can be picked, all other
/// lines are headings.
/// @param fileName  what the notes of the rows call the file
/// @throws CommandError (File) as LineReader does
std::vector<PickRow> UserPickRows(std::string_view text, const std::string& fileName);

/// The words behind the sign of a row: where the figures are apart.
/// @param most  the last word takes the rest of the row
std::vector<std::string> PickedFigures(std::string_view row, std::size_t most);

/// Ends a pick with what is wrong with its row. @throws CommandError (of the kind)
/// @param what  the figure at fault, as a message begins
/// @param why  the rest of the message
[[noreturn]] void FailAtRow(ErrorKind kind, std::string_view what, std::string_view row,
                            const std::string& why);

/// A figure of a row, which has a point whatever the system has.
/// @param largest  what every figure of its kind is far below
/// @throws CommandError that tells figure and row, for what is no number, not above 0 or too large
double ReadFigure(std::string_view figure, std::string_view what, std::string_view row,
                  double largest);

/// A long list that a user narrows by typing and picks from. A row is shown when it holds
/// every word typed, wherever they stand in it or in the headings over it; headings stay
/// with the rows they head. Case makes no difference, nor do point and comma.
class PickList : public ComboList {
 public:
  /// @param handler  runs when a row is picked, also the one that was picked last
  template <class S>
  PickList(Frame& frame, std::string name, std::string caption, std::string help,
           void (S::*handler)())
      : PickList(frame, std::move(name), std::move(caption), std::move(help),
                 HandlerOf(frame, handler)) {}

  PickList(Frame& frame, std::string name, std::string caption, std::string help, Handler handler);

  /// Heads of the columns in which windows show the rows: one of the names, then one for each
  /// figure.
  void SetHeads(std::vector<std::string> heads) { heads_ = std::move(heads); }
  const std::vector<std::string>& heads() const { return heads_; }

  /// Puts other rows into the list, all of them in sight and none picked, at the place where
  /// they were left.
  void Offer(std::vector<PickRow> rows, PickPlace place = {});
  const std::vector<PickRow>& all() const { return all_; }
  const PickPlace& place() const { return place_; }
  /// The face has been moved to another row. Of no meaning while the list is narrowed.
  void SetTop(int index);

  /// Shows the rows that hold all of these words, separated by blanks.
  void Narrow(std::string words);
  const std::string& words() const { return words_; }
  /// Indexes of the rows in sight, one for each of `rows()`.
  const std::vector<int>& shown() const { return shown_; }
  /// A row in sight. @param row  index into `rows()`
  const PickRow& RowAt(int row) const {
    return all_[static_cast<std::size_t>(shown_[static_cast<std::size_t>(row)])];
  }
  /// Rows by name, headings left out.
  int count() const { return count_; }
  int shownCount() const { return shownCount_; }
  /// Counts up whenever the rows in sight are others.
  unsigned edition() const { return edition_; }
  /// Counts up whenever the list as a whole is another.
  unsigned offers() const { return offers_; }

  /// The row that Enter picks: the one picked last, the first that was found, or where the
  /// arrow keys went; -1 for none.
  int current() const { return current_; }
  /// Moves the current row over so many rows that can be picked, down or (below 0) up.
  void MoveCurrent(int by);

  /// The first row in sight that can be picked; -1 for none.
  int first() const;
  /// What is told of a row in sight: the row as it stands and its note.
  std::string Told(int row) const;

  std::string chosenText() const override;
  void PutBack() override;
  /// Picks a row in sight; nothing for one that has nothing to pick.
  void Choose(int row) override;
  /// The pointer stands over a row in sight (below 0: over none).
  void HoverRow(int row);

 private:
  /// The row picked from a list, which is another when other rows are offered.
  struct Picked {
    int index = -1;
    unsigned offer = 0;
    bool SameAs(const Picked& other) const { return index == other.index && offer == other.offer; }
  };
  /// Which rows are in sight tells where the user is.
  Aspect rowAspect() const override { return Aspect::Place; }
  /// Index of the row picked since the rows were put into the list, -1 for none.
  int picked() const { return picked_.offer == offers_ ? picked_.index : -1; }
  int RowOf(int index) const;
  void ShowRows();
  void Step(int by);
  void PrepareSearch();
  void FindRows(const std::vector<std::string_view>& words);

  Handler handler_;
  std::vector<std::string> heads_;
  std::vector<PickRow> all_;
  std::vector<std::string> searched_;  ///< what the words are looked for in, a text a row
  std::vector<int> shown_;
  std::string words_;
  PickPlace place_;
  Picked picked_;
  int current_ = -1;
  int count_ = 0;
  int shownCount_ = 0;
  unsigned edition_ = 0;
  unsigned offers_ = 0;
};

}  // namespace veldox
