#include "engine/engine_finder_screen.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include "core/files.h"
#include "core/shell.h"
#include "core/text.h"

namespace veldox {
namespace {

constexpr const char* kUserFile = "\\user_bsr.prm";
constexpr std::string_view kUserList = "User_BSR";
constexpr std::string_view kAllMakes = "Engine_Spec";
constexpr std::string_view kNotVerified = "Values not verified - add your own row in user_bsr.prm";
/// Messages quote no more of a row.
constexpr std::size_t kQuotedRow = 120;
/// Far beyond every engine, and far within what the displacement screen can hold.
constexpr double kLargestFigure = 10000;

enum FigureIndex : std::size_t { kBore, kStroke, kRodLength, kCylinders, kFigures };

/// The menu entry of a make is its name with "_" for blanks.
std::string MenuItemOf(const TableGroup& group) {
  std::string item(group.name);
  std::replace(item.begin(), item.end(), ' ', '_');
  return item;
}

/// The name of a make as the menu has it, told apart from the others.
std::string MakeName(const TableGroup& group) {
  const MenuItem* item = Shell::FindMenuItem(MenuItemOf(group));
  const MenuItem* parent = item == nullptr ? nullptr : Shell::FindMenuItem(item->parent);
  if (parent == nullptr) return std::string(group.name);
  std::string caption(item->caption);
  const bool isCar = parent->name != "MotorCycle";
  if (isCar && caption != "Other") return caption;
  return std::string(parent->caption.substr(0, parent->caption.find(' '))) + " - " + caption;
}

std::vector<PickRow> RowsOfAllMakes() {
  std::vector<PickRow> rows;
  for (const TableGroup& group : EngineTable()) {
    if (!rows.empty()) rows.push_back({PickRow::Kind::Section, " ", {}});
    rows.push_back({PickRow::Kind::Group, PickHeader(MakeName(group)), {}});
    std::vector<PickRow> ofGroup = PickRowsOf(group, kNotVerified);
    std::move(ofGroup.begin(), ofGroup.end(), std::back_inserter(rows));
  }
  return rows;
}

}  // namespace

Form21::Form21(ProgramContext& context, Form1& form1)
    : Screen(context, "Form21", "Select Engine - Bore - Stroke - Rod Length - Number of Cylinders",
             ""),
      form1_(form1) {
  Combo1.SetHeads({"Engine", "Bore (in)", "Stroke (in)", "Rod Length (in)", "Cylinders"});
}

void Form21::LoadList(std::string_view menuItem) {
  places_[list_] = Combo1.place();
  list_ = std::string(menuItem);
  ShowHelp(Combo1.help());
  if (menuItem == kUserList) {
    Combo1.SetCaption(std::string(Shell::FindMenuItem(kUserList)->caption));
    ReadUserRows();
    return;
  }
  if (menuItem == kAllMakes) {
    Combo1.SetCaption("All makes");
    Combo1.Offer(RowsOfAllMakes(), places_[list_]);
    return;
  }
  for (const TableGroup& group : EngineTable()) {
    if (MenuItemOf(group) != menuItem) continue;
    Combo1.SetCaption(MakeName(group));
    Combo1.Offer(PickRowsOf(group, kNotVerified), places_[list_]);
  }
}

void Form21::ReadUserRows() {
  // A file that cannot be read leaves the list empty.
  Combo1.Offer({});
  const std::filesystem::path file = InFolder(context().host.ProgramFolder(), kUserFile);
  Combo1.Offer(UserPickRows(DecodeText(LoadFile(file)), PathText(file.filename())), places_[list_]);
}

std::vector<Form21::Figure> Form21::FiguresOf(const std::string& row) const {
  constexpr std::array<const char*, kFigures> kNames{"Bore", "Stroke", "Rod Length",
                                                     "Number of Cylinders"};
  const std::string where = "the row \"" + Clipped(row, kQuotedRow) + '"';
  std::vector<Figure> figures;
  for (std::string& text : PickedFigures(row, kFigures)) {
    const std::size_t index = figures.size();
    const auto fail = [&](ErrorKind kind, const std::string& what) {
      std::string message(kNames[index]);
      message.append(" of ").append(where).append(" ").append(what);
      throw CommandError(kind, std::move(message));
    };
    // The list has points, the fields have what the system has.
    if (mark() == DecimalMark::Comma) std::replace(text.begin(), text.end(), '.', ',');
    double value = 0;
    try {
      value = ParseNumber(text, mark());
    } catch (const CommandError& error) {
      fail(error.kind(), error.message());
    }
    if (index == kRodLength ? value < 0 : value <= 0) {
      fail(ErrorKind::InvalidArgument,
           index == kRodLength ? "must not be below 0." : "must be above 0.");
    }
    if (value > kLargestFigure) fail(ErrorKind::InvalidArgument, "is too large.");
    if (index == kCylinders && value != Floor(value)) {
      fail(ErrorKind::InvalidArgument, "must be a whole number.");
    }
    figures.push_back({std::move(text), value});
  }
  if (figures.empty()) {
    throw CommandError(ErrorKind::InvalidArgument,
                       "There are no figures behind the \"|\" of " + where + '.');
  }
  return figures;
}

void Form21::PickEngine() {
  const std::string row = Combo1.chosenText();
  const std::vector<Figure> figures = FiguresOf(row);
  // A closed screen may hold old values: it takes the shared ones as if it opened, so that its
  // command puts nothing back.
  if (!form1_.visible() && block().FormsCleared != 1) form1_.CopyShared();
  const std::array<Field*, kFigures> fields{&form1_.Text1, &form1_.Text3, &form1_.Text4,
                                            &form1_.Text2};
  for (std::size_t i = 0; i < figures.size(); ++i) {
    fields[i]->Edit(i == kBore ? FormatValue<"0.00000">(figures[i].value, mark())
                               : figures[i].text);
  }
  if (!form1_.Command1.Click()) return;
  for (std::size_t i = 0; i < figures.size(); ++i) fields[i]->SetMark(Mark::Changed);
  std::string told = row + "\r\nEngine Size " + form1_.Text6.text() +
                     (form1_.metric() ? " cc" : " cubic inches") +
                     ", now in the Engine Displacement screen.";
  if (form1_.metric()) {
    told += " That screen shows millimetres: these inches stand there as millimetres.";
  } else if (figures.size() <= kRodLength || figures[kRodLength].value == 0) {
    told += " The list does not know the Rod Length: please enter it there.";
  }
  ShowHelp(told);
}

}  // namespace veldox
