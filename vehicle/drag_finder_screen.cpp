#include "vehicle/drag_finder_screen.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <iterator>
#include <utility>

#include "core/files.h"
#include "core/shell.h"

namespace veldox {
namespace {

constexpr const char* kUserFile = "\\user_cdfa.prm";
constexpr std::string_view kUserGroup = "User Table";
constexpr std::string_view kAmerican = "CD_FA";
constexpr std::string_view kOther = "CD_FA_Other";
constexpr std::string_view kNotVerified = "Values not verified - add your own row in user_cdfa.prm";
constexpr PickLook kLook{"       ", " "};

/// A list of the table.
struct DragList {
  std::string_view menuItem;
  std::string_view name;  ///< in the table
};

constexpr std::array kLists{DragList{kAmerican, "american"}, DragList{kOther, "other"}};

void Append(std::vector<PickRow>& rows, std::vector<PickRow> more) {
  std::move(more.begin(), more.end(), std::back_inserter(rows));
}

void SetApart(std::vector<PickRow>& rows) {
  if (!rows.empty()) rows.push_back({PickRow::Kind::Section, std::string(kLook.apart), {}});
}

/// The makes of a list, each under its name.
std::vector<PickRow> RowsOf(const DragList& list) {
  std::vector<PickRow> rows;
  for (const TableGroup& group : DragTable()) {
    if (group.list != list.name) continue;
    SetApart(rows);
    rows.push_back(
        {PickRow::Kind::Section, std::string(group.name.empty() ? kLook.apart : group.name), {}});
    if (!group.name.empty()) rows.back().text = PickHeader(group.name, kLook);
    Append(rows, PickRowsOf(group, kNotVerified, kLook));
  }
  return rows;
}

}  // namespace

Form20::Form20(ProgramContext& context)
    : Screen(context, "Form20", "CD / Frontal Area Finder", "") {
  for (PickList* list : {&Combo1, &Combo2}) {
    list->SetHeads({"Car", "CD", "Frontal Area (sq ft)"});
  }
  Combo2.SetVisible(false);
}

std::vector<PickRow> Form20::UserRows(PickRow::Kind heading) const {
  const std::filesystem::path file = InFolder(context().host.ProgramFolder(), kUserFile);
  std::error_code error;
  if (!std::filesystem::exists(file, error)) return {};
  std::vector<PickRow> rows{{heading, PickHeader(kUserGroup, kLook), {}}};
  Append(rows, UserPickRows(DecodeText(LoadFile(file)), PathText(file.filename())));
  return rows;
}

void Form20::LoadList(std::string_view menuItem) {
  places_[list_] = Shown().place();
  list_ = std::string(menuItem);
  Combo1.SetVisible(menuItem != kOther);
  Combo2.SetVisible(menuItem == kOther);
  PickList& list = Shown();
  ShowHelp(list.help());
  std::vector<PickRow> rows;
  PickRow::Kind userHeading = PickRow::Kind::Section;
  for (const DragList& part : kLists) {
    if (menuItem == part.menuItem) rows = RowsOf(part);
  }
  if (rows.empty()) {
    userHeading = PickRow::Kind::Group;
    for (const DragList& part : kLists) {
      SetApart(rows);
      const std::string name(Shell::FindMenuItem(part.menuItem)->caption);
      rows.push_back({PickRow::Kind::Group, PickHeader(name, kLook), {}});
      Append(rows, RowsOf(part));
    }
  }
  const bool isAll = userHeading == PickRow::Kind::Group;
  list.SetCaption(isAll ? "All cars" : std::string(Shell::FindMenuItem(menuItem)->caption));
  // A file that cannot be read leaves the program's own rows.
  list.Offer(rows, places_[list_]);
  std::vector<PickRow> own = UserRows(userHeading);
  if (own.empty()) return;
  SetApart(rows);
  Append(rows, std::move(own));
  list.Offer(std::move(rows), places_[list_]);
}

void Form20::PickCar(const PickList& list) {
  const std::string row = list.chosenText();
  const DragFigures figures = ReadDragRow(row);
  block().CoefficientofDrag = figures.coefficient;
  if (figures.frontalArea) block().FrontalArea = *figures.frontalArea;
  DragFigures picked = picked_->value_or(DragFigures{});
  picked.coefficient = figures.coefficient;
  if (figures.frontalArea) picked.frontalArea = figures.frontalArea;
  picked_ = picked;
  context().rules.NoteChange();
  std::string told = row + "\r\nCoefficient of Drag " + FormatSmart(figures.coefficient, mark());
  told += figures.frontalArea
              ? ", Frontal Area " + FormatSmart(*figures.frontalArea, mark()) + " square feet."
              : ". The row has no Frontal Area: it stays " +
                    FormatSmart(block().FrontalArea, mark()) + " square feet.";
  ShowHelp(told + " O K puts this into the Acceleration screen.");
}

void Form20::Closed() {
  if (!picked_->has_value()) return;
  const DragFigures figures = **picked_;
  picked_ = std::nullopt;
  for (DragTaker* taker : takers_) taker->TakeDrag(figures);
}

}  // namespace veldox
