#include "vehicle/acceleration_screen.h"

#include <cmath>
#include <utility>

#include "vehicle/run_comparison.h"

namespace veldox {

Form13::Form13(ProgramContext& context, Grapher& grapher)
    : Screen(context, "Form13", "Acceleration / Top Speed Calculator", "Acceleration"),
      grapher_(grapher) {}

void Form13::TakeShared() {
  if (!visible() && block().FormsCleared != 1) CopyShared();
}

void Form13::TakeGearbox(const Gearbox& gearbox) {
  TakeShared();
  const auto show = [this](Field& field, double number) {
    ShowShared(field, number);
    field.SetMark(Mark::Changed);
  };
  Page.Check1.SetOn(gearbox.isAutomatic);
  Page.Check2.SetOn(gearbox.primaryDrive.has_value());
  if (gearbox.primaryDrive) show(Page.Text62, block().PrimaryDrive);
  if (gearbox.finalDrive) show(Page.Text18, block().RearGearRatio);
  Shifts.ShowRatios();
}

void Form13::TakeDrag(const DragFigures& figures) {
  TakeShared();
  Page.ShowDrag(figures.frontalArea.has_value());
}

void Form13::SolveWheelTorque() {
  ReadFields({&Page.Text45, &Page.Text18, &Page.Text47, &Page.Text49, &Page.Text51});
  const double firstGear = Shifts.ReadTransRatio(0);
  const double primary = Page.ReadPrimaryDrive();
  const ParameterBlock& b = block();
  const double torque =
      b.Torque * firstGear * b.RearGearRatio * primary * (1 - b.PercentDriveTrainPowerLoss / 100);
  Show(Page.Text46, torque);
  constexpr double kInchesPerFoot = 12;
  const double thrust = torque / (b.TireRollingRadius / kInchesPerFoot);
  Show(Page.Text48, thrust, {&Page.Text49});
  Store(Page.Text50, thrust / b.CarWeight, {&Page.Text51});
}

void Form13::RunCar() {
  ShowRun(Inputs.Told([this] {
    return ChartRun(Inputs.ReadRun(), Page.Check7.on(), mark(), Inputs.Listener());
  }),
          false);
}

void Form13::RunCvt() {
  ShowRun(
      Inputs.Told([this] { return ChartCvtRun(Inputs.ReadCvtRun(), mark(), Inputs.Listener()); }),
      true);
}

void Form13::CompareWithLastRun() {
  if (!*lastRun_) {
    throw CommandError(ErrorKind::InvalidArgument,
                       "There is no run to compare with yet. Please click \"Acceleration\" or "
                       "\"CVT\" first, then change a value and click this button.");
  }
  const LastRun& last = **lastRun_;
  const RunListener listener = Inputs.Listener();
  const RunResult now = Inputs.Told([&] {
    ListenedSink sink(listener);
    return last.isCvt ? SimulateCvtRun(Inputs.ReadCvtRun(), sink)
                      : SimulateRun(Inputs.ReadRun(), sink);
  });
  ShowReport(CompareRuns(last.result, now, mark()));
}

void Form13::ShowRun(AccelerationChart chart, bool isCvt) {
  Inputs.KeepResult(chart.result);
  // A chart that only follows an entry leaves the run to compare with.
  if (!context().current.isRunning()) lastRun_ = LastRun{chart.result, isCvt};
  ShowReport(std::move(chart.report), kAccelerationFontSize);
  // The chart is long, and what it comes to stands at its end.
  ShowHelp(SummaryOf(chart.result, mark()));
}

}  // namespace veldox
