#include "core/seek_screen.h"

#include <utility>
#include <vector>

#include "core/vary.h"

namespace veldox {

namespace {

/// The ends are this part of the field's number below and above it at first.
constexpr double kReach = 0.5;

}  // namespace

SeekScreen::SeekScreen(ProgramContext& context)
    : ToolScreen(context, "Seek", "Seek a Value of a Field") {}

void SeekScreen::EmptyFound() {
  Found.SetText({});
  Reached.SetText({});
}

void SeekScreen::FieldChosen(const Field& field) {
  const TidyRange range = RangeAbout(field, kReach);
  Low.SetText(FormatField(range.from, mark()));
  High.SetText(FormatField(range.to, mark()));
}

void SeekScreen::OfferResults(bool anew) {
  std::size_t depending = 0;
  const Control* before = ResultList.chosenControl();
  std::vector<Control*> results = FindResults(depending);
  Control* first = anew && depending > 0 ? results.front() : nullptr;
  ResultList.Offer(std::move(results));
  if (first != nullptr) ResultList.ChooseControl(first);
  const Control* now = ResultList.chosenControl();
  if (now != nullptr && now != before) {
    Target.SetText(static_cast<const Field*>(now)->text());
  }
  EmptyFound();
}

void SeekScreen::ChooseResult(Field& result) {
  if (ResultList.ChooseControl(&result)) Target.SetText(result.text());
}

void SeekScreen::Edited(const Control& control) {
  ToolScreen::Edited(control);
  const Control* result = ResultList.chosenControl();
  if (&control != &ResultList || result == nullptr) return;
  Target.SetText(static_cast<const Field*>(result)->text());
  EmptyFound();
}

void SeekScreen::SeekValue() {
  RefuseDryRun("It seeks by running the command.");
  RequireSeenUnits();
  Field& field = ChosenField();
  Command& command = ChosenCommand();
  Control* result = ResultList.chosenControl();
  if (result == nullptr) {
    throw CommandError(ErrorKind::InvalidArgument, "has nothing to choose from.", &ResultList);
  }
  Sought sought;
  sought.low = Read(Low);
  sought.high = Read(High);
  sought.target = Read(Target);
  if (sought.low >= sought.high) FailAt(Low, "The low end must be below the high end.");
  EmptyFound();
  std::string text;
  {
    const BusyCursor busy(context().host);
    text = Seek(field, sought, command, *result);
  }
  Found.SetCaption(NameWithUnit(field));
  Reached.SetCaption(NameWithUnit(*result));
  ShowText(Found, text);
  ShowText(Reached, static_cast<const Field*>(result)->text());
}

}  // namespace veldox
