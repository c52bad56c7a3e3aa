#include "airfuel/airflow_screen.h"

namespace veldox {

Form4::Form4(ProgramContext& context)
    : Screen(context, "Form4", "Air / Fuel / Exhaust Calculator", "AirFuel") {}

}  // namespace veldox
