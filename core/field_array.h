#pragma once

#include <algorithm>
#include <cstddef>
#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

#include "core/screen.h"

namespace veldox {

/// The texts that the rows of an array have on a fresh screen: one for all rows, or one for
/// each; rows behind the last one given have that one.
class RowTexts {
 public:
  // NOLINTNEXTLINE(google-explicit-constructor): written as a plain literal in a declaration
  RowTexts(const char* all) : texts_{all} {}
  RowTexts(std::initializer_list<const char*> each) : texts_(each.begin(), each.end()) {}

  std::string Of(int row) const {
    if (texts_.empty()) return {};
    return texts_[std::min(static_cast<std::size_t>(row), texts_.size() - 1)];
  }

 private:
  std::vector<std::string> texts_;
};

/// Fields with an index, declared in one statement: `FieldArray Text48{Frame8, "Text48", 16, ...}`
/// makes Text48(0) to Text48(15), each a field of its own by that name. As columns of a `Table`
/// they stand in its rows, else under each other.
class FieldArray {
 public:
  /// @param label  of the whole; a member is called "label, row N" in messages, N from 1
  /// @param entry  what it holds is the column's first row (`HoldsColumn`); every member holds
  ///               the row of its index
  /// @param firstIndex  in the name of the first member, which is row 0 all the same
  FieldArray(Frame& frame, const std::string& name, int count, std::string label,
             const RowTexts& texts, const Entry& entry, const std::string& help = {},
             int firstIndex = 0);

  int count() const { return static_cast<int>(fields_.size()); }
  const std::string& name() const { return name_; }
  const std::string& label() const { return label_; }
  /// A member by its row, from 0. @throws CommandError (IndexOutOfRange)
  Field& operator[](int index) const;

  /// All members in the order of their indexes.
  const std::vector<std::unique_ptr<Field>>& fields() const { return fields_; }

 private:
  std::string name_;
  std::string label_;
  std::vector<std::unique_ptr<Field>> fields_;
};

/// The name of a member of a control array: "Text48(3)".
std::string MemberName(const std::string& array, int index);

/// Controls of one name with indexes, which need not follow each other.
template <class C>
class ControlArray {
 public:
  const std::string& name() const { return name_; }
  /// A member by its index. @throws CommandError (IndexOutOfRange)
  C& operator[](int index) const {
    for (const Member& member : members_) {
      if (member.index == index) return *member.control;
    }
    throw CommandError(ErrorKind::IndexOutOfRange,
                       name_ + " has no member of index " + std::to_string(index) + '.');
  }

 protected:
  explicit ControlArray(std::string name) : name_(std::move(name)) {}
  void Add(int index, std::unique_ptr<C> control) {
    members_.push_back({index, std::move(control)});
  }

 private:
  struct Member {
    int index;
    std::unique_ptr<C> control;
  };
  std::string name_;
  std::vector<Member> members_;
};

/// Labels with an index: `LabelArray Label2{Frame8, "Label2", {{50, "Lift"}, {51, "Flow"}}}`.
class LabelArray : public ControlArray<Label> {
 public:
  struct Member {
    int index;
    const char* caption;
  };
  LabelArray(Frame& frame, std::string name, std::initializer_list<Member> members);
};

/// Commands with an index, each with its caption, help and routine:
/// `CommandArray CommandF3{Frame3, "CommandF3", {{0, "&Size", "...", &Form4::SizeInjector}}}`.
/// A routine that serves several of them takes the index.
class CommandArray : public ControlArray<Command> {
 public:
  struct Member {
    template <class S, class... Arguments>
    Member(int i, const char* itsCaption, const char* itsHelp, void (S::*handler)(Arguments...),
           CommandRole role = CommandRole::Calculates)
        : index(i), caption(itsCaption), help(itsHelp), work(handler, role) {}
    Member(int i, const char* itsCaption, const char* itsHelp, CommandWork itsWork)
        : index(i), caption(itsCaption), help(itsHelp), work(std::move(itsWork)) {}
    /// The member stands in another frame than the array.
    Member In(Frame& other) && {
      frame = &other;
      return std::move(*this);
    }

    int index;
    const char* caption;
    const char* help;
    CommandWork work;
    Frame* frame = nullptr;
  };
  CommandArray(Frame& frame, std::string name, std::initializer_list<Member> members);
};

}  // namespace veldox
