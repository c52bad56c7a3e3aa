#include "cam/timing_tape.h"

#include <cmath>
#include <string>

namespace veldox {

namespace {

constexpr double kTwipsPerInch = 1440;
constexpr int kDegreesPerCoarse = 10;

/// Marks and numbers of a tape on a page.
class TapePrinter {
 public:
  TapePrinter(PageSurface& surface, const TimingTape& tape)
      : surface_(surface),
        tape_(tape),
        label_{"Tahoma", tape.labelSize},
        tick_{"Courier", tape.tickSize} {}

  void PlaceLabel(int x, int y, const std::string& text) { surface_.PlaceText(x, y, label_, text); }
  void PlaceScale(int y) {
    for (int i = 0; i <= tape_.coarseCount; ++i) {
      PlaceLabel(Place(i, tape_.coarse), y, std::to_string(i * kDegreesPerCoarse));
    }
  }
  void PlaceCoarse(int y) { PlaceMarks(y, tape_.coarse, tape_.coarseCount); }
  void PlaceFine(int y) { PlaceMarks(y, tape_.fine, tape_.fineCount); }

  /// Two marks of a known distance.
  void PlaceCheckBar(int y) {
    constexpr int kInches = 4;
    constexpr int kTextGap = 600;  // twips
    constexpr int kTextDrop = 120;
    const PageFont mark{"Courier", 20};
    surface_.PlaceText(0, y, mark, "|");
    surface_.PlaceText(static_cast<int>(kInches * kTwipsPerInch), y, mark, "|");
    surface_.PlaceText(kTextGap, y + kTextDrop, {"Tahoma", 10},
                       "Print at 100 %: these two marks are 4 inches apart.");
  }

 private:
  void PlaceMarks(int y, double distance, int count) {
    for (int i = 0; i <= count; ++i) surface_.PlaceText(Place(i, distance), y, tick_, "|");
  }
  static int Place(int i, double distance) { return static_cast<int>(std::lround(i * distance)); }

  PageSurface& surface_;
  const TimingTape& tape_;
  PageFont label_;
  PageFont tick_;
};

}  // namespace

TimingTape TimingTapeOf(double diameter) {
  constexpr double kHalfTurn = 360.0 / 2;
  TimingTape tape;
  double arc = diameter * kPi / kHalfTurn;  // inches of 2 degrees
  tape.fine = arc * kTwipsPerInch;
  tape.coarse = tape.fine * 5;
  if (diameter < 4) {
    tape.labelSize = 13, tape.tickSize = 36, tape.coarseCount = 18, tape.fineCount = 90;
  } else if (diameter <= 6.7) {
    tape.labelSize = 16, tape.tickSize = 39, tape.coarseCount = 18, tape.fineCount = 90;
  } else if (diameter <= 10) {
    tape.labelSize = 19, tape.tickSize = 42, tape.coarseCount = 12, tape.fineCount = 60;
  } else {
    tape.labelSize = 20, tape.tickSize = 44, tape.coarseCount = 11, tape.fineCount = 110;
    arc = diameter * kPi / 360;  // of 1 degree
    tape.fine = arc * kTwipsPerInch;
    tape.coarse = tape.fine * 10;
  }
  return tape;
}

void PrintTimingTape(PageSurface& surface, double diameter, DecimalMark mark) {
  const TimingTape tape = TimingTapeOf(diameter);
  TapePrinter printer(surface, tape);
  printer.PlaceLabel(2000, 1550, "Balancer Diameter = " + FormatSmart(diameter, mark));
  printer.PlaceScale(2125);
  printer.PlaceCoarse(2500);
  printer.PlaceFine(2950);
  printer.PlaceFine(3700);
  printer.PlaceCoarse(4200);
  printer.PlaceScale(5100);
  printer.PlaceCheckBar(6200);
  surface.EndJob();
}

}  // namespace veldox
