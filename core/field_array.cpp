#include "core/field_array.h"

#include <utility>

namespace veldox {

std::string MemberName(const std::string& array, int index) {
  return array + '(' + std::to_string(index) + ')';
}

FieldArray::FieldArray(Frame& frame, const std::string& name, int count, std::string label,
                       const RowTexts& texts, const Entry& entry, const std::string& help,
                       int firstIndex)
    : name_(name), label_(std::move(label)) {
  fields_.reserve(static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i) {
    Entry member = entry;
    member.holds = entry.holds.InRow(i);
    fields_.push_back(std::make_unique<Field>(frame, MemberName(name, firstIndex + i),
                                              label_ + ", row " + std::to_string(i + 1),
                                              texts.Of(i), member, help));
  }
}

Field& FieldArray::operator[](int index) const {
  if (index < 0 || index >= count()) {
    throw CommandError(ErrorKind::IndexOutOfRange,
                       '"' + label_ + "\" has no row " + std::to_string(index + 1) + '.');
  }
  return *fields_[static_cast<std::size_t>(index)];
}

LabelArray::LabelArray(Frame& frame, std::string name, std::initializer_list<Member> members)
    : ControlArray(std::move(name)) {
  for (const Member& member : members) {
    Add(member.index,
        std::make_unique<Label>(frame, MemberName(this->name(), member.index), member.caption));
  }
}

CommandArray::CommandArray(Frame& frame, std::string name, std::initializer_list<Member> members)
    : ControlArray(std::move(name)) {
  for (const Member& member : members) {
    Frame& place = member.frame != nullptr ? *member.frame : frame;
    Add(member.index,
        std::make_unique<Command>(place, MemberName(this->name(), member.index), member.caption,
                                  member.help, member.work, member.index));
  }
}

}  // namespace veldox
