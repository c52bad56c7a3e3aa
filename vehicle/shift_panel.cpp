#include "vehicle/shift_panel.h"

namespace veldox {

ShiftPanel::ShiftPanel(Screen& screen) : ScreenPart(screen) {
  Gears.DimRows([this](int gear) { return !IsInGearbox(gear); });
  Shifts.DimRows([this](int shift) { return !IsInGearbox(shift); });
}

void ShiftPanel::Open() {
  Frame4.Open();
  Text2[0].Focus();
}

bool ShiftPanel::IsInGearbox(int gear) const {
  for (int i = 0; i <= gear; ++i) {
    const std::string& ratio = Text2[i].text();
    if (IsNumber(ratio, mark()) && ParseNumber(ratio, mark()) == 0) return false;
  }
  return true;
}

double ShiftPanel::ReadTransRatio(int gear) {
  ReadFields({&Text2[gear]});
  return block().TGear[static_cast<std::size_t>(gear)];
}

void ShiftPanel::ReadGearTables() {
  double below = kMostUsual;
  for (int i = 0; i < kRunGears; ++i) {
    const double ratio = ReadTransRatio(i);
    if (ratio == 0 && i > 0) {
      // Nobody drives in the gears behind the gearbox.
      TakeTyped(FieldsFrom(i));
      return;
    }
    Require(ratio > 0, Text2[i], "must be above 0.");
    Require(IsOfUsualSize(ratio), Text2[i], kMustBeUsual);
    Require(ratio <= below, Text2[i], "must not be above the ratio of the gear below it.");
    below = ratio;
    ReadFields({&Text32[i], &Text13[i]});
    if (i < kRunGears - 1) ReadFields({&Text22[i], &Text52[i]});
  }
}

void ShiftPanel::KeepGearTables() {
  TakeTyped(FieldsFrom(0));
}

std::vector<Field*> ShiftPanel::FieldsFrom(int gear) {
  std::vector<Field*> fields;
  for (int i = gear; i < kRunGears; ++i) {
    fields.insert(fields.end(), {&Text2[i], &Text32[i], &Text13[i]});
    if (i < kRunGears - 1) fields.insert(fields.end(), {&Text22[i], &Text52[i]});
  }
  return fields;
}

void ShiftPanel::ShowRatios() {
  for (int i = 0; i < kRunGears; ++i) {
    screen().ShowShared(Text2[i], block().TGear[static_cast<std::size_t>(i)]);
    Text2[i].SetMark(Mark::Changed);
  }
}

}  // namespace veldox
