#include "airfuel/airflow_screen.h"

namespace veldox {

Form4::Form4(ProgramContext& context, Grapher& grapher)
    : Screen(context, "Form4", "Air / Fuel / Exhaust Calculator", "AirFuel"), grapher_(grapher) {}

}  // namespace veldox
