#include "airfuel/airflow_screen.h"

namespace veldox {

Form4::Form4(ProgramContext& context, Grapher& grapher, CamFiles& camFiles)
    : Screen(context, "Form4", "Air / Fuel / Exhaust Calculator", "AirFuel"),
      grapher_(grapher),
      camFiles_(camFiles) {}

void Form4::CopyFromBlock() {
  Screen::CopyFromBlock();
  TimeArea.ShowCam();
}

void Form4::TakeLashes(std::optional<double> intake, std::optional<double> exhaust) {
  TimeArea.TakeLashes(intake, exhaust);
}

}  // namespace veldox
