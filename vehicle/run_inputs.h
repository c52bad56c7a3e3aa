#pragma once

#include "core/screen_part.h"
#include "vehicle/acceleration.h"
#include "vehicle/acceleration_page.h"
#include "vehicle/acceleration_report.h"
#include "vehicle/nitrous_stages_panel.h"
#include "vehicle/shift_panel.h"

namespace veldox {

/// The car and its run as the pages of the acceleration screen tell them, for all commands that
/// work with a run: charts, graphs and road horsepower.
class RunInputs : public ScreenPart {
 public:
  RunInputs(Screen& screen, AccelerationPage& itsPage, ShiftPanel& itsShifts,
            NitrousStagesPanel& itsStages)
      : ScreenPart(screen), page(itsPage), shifts(itsShifts), stages(itsStages) {}

  /// Reads all that a run needs into the shared values and takes it from there. The torque table
  /// of the inputs is the one of the shared values itself.
  /// @throws CommandError that names the field
  AccelerationInputs ReadRun();
  /// The same for a continuously variable drive, which has no gears and no launch.
  AccelerationInputs ReadCvtRun();

  /// Keeps what a run came to in the shared values, and the centre of gravity and the wheel base
  /// that every run has.
  void KeepResult(const RunResult& result);

  /// What a run tells on the way: boxes, and the fields that it corrects.
  RunListener Listener();

  /// Works with inputs. What of them no run can be made from is told by its field.
  template <class Work>
  auto Told(const Work& work) {
    try {
      return work();
    } catch (const RunInputError& error) {
      Raise(error);
    }
  }

  AccelerationPage& page;
  ShiftPanel& shifts;
  NitrousStagesPanel& stages;

 private:
  /// @throws CommandError (InvalidArgument)
  [[noreturn]] void Raise(const RunInputError& error);
  /// Reads what runs of both kinds need.
  void ReadCar();
  /// Takes what was typed for the options, those that are switched off among them: a run needs none
  /// of their fields, and loses none.
  void KeepOptions();
  /// What of the shared values and the boxes a run takes.
  AccelerationInputs Inputs();
  /// Null for the torque table, which no field shows.
  Field* FieldOf(const RunInputError& error);
};

}  // namespace veldox
