#include "chassis/corner_weights_screen.h"

namespace veldox {

Form6::Form6(ProgramContext& context) : Screen(context, "Form6", "Corner Weights", "Chassis") {}

}  // namespace veldox
