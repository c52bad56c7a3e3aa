#include "vehicle/gearbox_finder_screen.h"

#include <algorithm>
#include <array>
#include <utility>

#include "core/files.h"
#include "core/shell.h"
#include "core/text.h"

namespace veldox {
namespace {

constexpr const char* kUserFile = "\\user_trans.prm";
constexpr std::string_view kUserList = "User_Trans";
constexpr std::string_view kAllLists = "Trans";
constexpr std::string_view kNotVerified =
    "Values not verified - add your own row in user_trans.prm";
constexpr PickLook kLook{"       ", "  "};
/// How many rows stand above the one in use when a list is shown for the first time.
constexpr int kRowsAbove = 5;

/// A list of the table.
struct GearboxList {
  std::string_view menuItem;
  std::string_view name;  ///< in the table
  char kind;              ///< 'A' for automatic transmissions, 'M' for all others
};

constexpr std::array kLists{
    GearboxList{"Automatic", "AutomaticList1", 'A'},
    GearboxList{"Automatic_GM", "AutomaticList2", 'A'},
    GearboxList{"Quaife", "ManualList4", 'M'},
    GearboxList{"Stick34", "ManualList1", 'M'},
    GearboxList{"Stick56", "ManualList2", 'M'},
    GearboxList{"Tremec", "ManualList3", 'M'},
    GearboxList{"Motorc", "MotorcycleList", 'M'},
};

/// What the menu calls a list.
std::string CaptionOf(std::string_view menuItem) {
  std::string caption(Shell::FindMenuItem(menuItem)->caption);
  std::erase(caption, '&');
  return caption;
}

std::vector<PickRow> RowsOf(const GearboxList& list) {
  for (const TableGroup& group : GearboxTable()) {
    if (group.name == list.name) return PickRowsOf(group, kNotVerified, kLook);
  }
  return {};
}

std::vector<PickRow> RowsOfAllLists() {
  std::vector<PickRow> rows;
  for (const GearboxList& list : kLists) {
    if (!rows.empty()) rows.push_back({PickRow::Kind::Section, std::string(kLook.apart), {}});
    rows.push_back({PickRow::Kind::Group, PickHeader(CaptionOf(list.menuItem), kLook), {}});
    std::vector<PickRow> ofList = RowsOf(list);
    std::move(ofList.begin(), ofList.end(), std::back_inserter(rows));
  }
  return rows;
}

}  // namespace

Form19::Form19(ProgramContext& context) : Screen(context, "Form19", "Trans Ratio Finder", "") {
  Combo1.SetHeads(
      {"Transmission", "1st", "2nd", "3rd", "4th", "5th", "6th", "7th", "8th", "9th", "10th"});
}

bool Form19::IsInUse(const PickRow& row) const {
  if (row.kind != PickRow::Kind::Choice) return false;
  const std::vector<std::string> figures = PickedFigures(row.text, kMostGears + 1);
  if (figures.size() > kMostGears) return false;
  for (std::size_t i = 0; i < kMostGears; ++i) {
    const bool has = i < figures.size();
    if (has && !IsNumber(figures[i], DecimalMark::Point)) return false;
    if (block().TGear[i] != (has ? ParseNumber(figures[i], DecimalMark::Point) : 0)) return false;
  }
  return true;
}

void Form19::Offer(std::vector<PickRow> rows) {
  PickPlace place = places_[list_];
  const auto isInUse = [this](const PickRow& row) { return IsInUse(row); };
  const bool stays = place.picked >= 0 && static_cast<std::size_t>(place.picked) < rows.size() &&
                     isInUse(rows[static_cast<std::size_t>(place.picked)]);
  if (!stays) {
    const auto found = std::find_if(rows.begin(), rows.end(), isInUse);
    place.picked = found == rows.end() ? -1 : static_cast<int>(found - rows.begin());
    if (place.picked >= 0) place.top = std::max(place.picked - kRowsAbove, 0);
  }
  Combo1.Offer(std::move(rows), place);
}

void Form19::LoadList(std::string_view menuItem) {
  places_[list_] = Combo1.place();
  list_ = std::string(menuItem);
  ShowHelp(Combo1.help());
  if (menuItem == kUserList) {
    Combo1.SetCaption(CaptionOf(kUserList));
    ReadUserRows();
    return;
  }
  if (menuItem == kAllLists) {
    Combo1.SetCaption("All transmissions");
    Offer(RowsOfAllLists());
    return;
  }
  for (const GearboxList& list : kLists) {
    if (list.menuItem != menuItem) continue;
    Combo1.SetCaption(CaptionOf(menuItem));
    Offer(RowsOf(list));
  }
}

void Form19::ReadUserRows() {
  // A file that cannot be read leaves the list empty.
  Combo1.Offer({});
  const std::filesystem::path file = InFolder(context().host.ProgramFolder(), kUserFile);
  Offer(UserPickRows(DecodeText(LoadFile(file)), PathText(file.filename())));
}

bool Form19::PickedIsAutomatic() const {
  const std::vector<PickRow>& rows = Combo1.all();
  // Where all lists are shown, the heading above tells which one the row is of.
  std::string heading;
  for (int i = Combo1.place().picked; i >= 0 && heading.empty(); --i) {
    const PickRow& row = rows[static_cast<std::size_t>(i)];
    if (row.kind == PickRow::Kind::Group) heading = row.text;
  }
  const auto list = std::find_if(kLists.begin(), kLists.end(), [&](const GearboxList& l) {
    return heading.empty() ? l.menuItem == *list_
                           : PickHeader(CaptionOf(l.menuItem), kLook) == heading;
  });
  return list != kLists.end() && list->kind == 'A';
}

void Form19::StoreGearbox(const Gearbox& gearbox) {
  ParameterBlock& b = block();
  if (gearbox.primaryDrive) b.PrimaryDrive = *gearbox.primaryDrive;
  b.UsePrimaryDrive = gearbox.primaryDrive ? 1 : 0;
  if (gearbox.finalDrive) b.RearGearRatio = *gearbox.finalDrive;
  if (gearbox.primaryTeeth) {
    b.RearSprocket = gearbox.primaryTeeth->driven;
    b.FrontSprocket = gearbox.primaryTeeth->driving;
  }
  if (gearbox.finalTeeth) {
    b.RingGear = gearbox.finalTeeth->driven;
    b.PinionGear = gearbox.finalTeeth->driving;
  }
  b.AutomaticTrans = gearbox.isAutomatic ? 1 : 0;
  for (std::size_t i = 0; i < b.TGear.size(); ++i) {
    b.TGear[i] = i < gearbox.ratios.size() ? gearbox.ratios[i] : 0;
  }
}

void Form19::PickGearbox() {
  const std::string row = Combo1.chosenText();
  const Gearbox gearbox = ReadGearbox(row, PickedIsAutomatic());
  StoreGearbox(gearbox);
  context().rules.NoteChange();
  for (GearboxTaker* taker : takers_) taker->TakeGearbox(gearbox);
  std::string told = row + "\r\n" + (gearbox.isAutomatic ? "Automatic" : "Manual") +
                     " transmission of " + std::to_string(gearbox.ratios.size()) +
                     " gears, now in the screens that work with gears.";
  if (gearbox.primaryDrive) {
    told += " Primary Drive " + FormatSmart(*gearbox.primaryDrive, mark()) + '.';
  }
  if (gearbox.finalDrive) {
    told += " Rear Gear Ratio " + FormatSmart(*gearbox.finalDrive, mark()) + '.';
  }
  ShowHelp(told);
}

}  // namespace veldox
