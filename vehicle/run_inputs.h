#pragma once

#include "core/screen_part.h"
#include "vehicle/acceleration_page.h"
#include "vehicle/nitrous_stages_panel.h"
#include "vehicle/shift_panel.h"

namespace veldox {

struct AccelerationInputs;

/// The car and its run as the pages of the acceleration screen tell them, for all commands that
/// work with a run: charts, graphs and road horsepower.
class RunInputs : public ScreenPart {
 public:
  RunInputs(Screen& screen, AccelerationPage& itsPage, ShiftPanel& itsShifts,
            NitrousStagesPanel& itsStages)
      : ScreenPart(screen), page(itsPage), shifts(itsShifts), stages(itsStages) {}

  /// Reads all that a run needs into the shared values and takes it from there.
  /// @throws CommandError that names the field, for what no car can run with
  AccelerationInputs ReadRun();
  /// The same for a continuously variable drive, which has no gears.
  AccelerationInputs ReadCvtRun();
  /// @throws CommandError (InvalidArgument) where the torque table has fewer than two points or
  ///         does not rise in RPM
  void RequireTorqueTable() const;

  AccelerationPage& page;
  ShiftPanel& shifts;
  NitrousStagesPanel& stages;
};

}  // namespace veldox
