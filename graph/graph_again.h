#pragma once

#include <string>
#include <string_view>

#include "core/error.h"

namespace veldox {

/// Ends a "Graph Plus" that has nothing to draw again yet.
/// @param what  such as "flow graph". @throws CommandError (InvalidArgument)
[[noreturn]] inline void RefuseGraphAgain(std::string_view what) {
  throw CommandError(ErrorKind::InvalidArgument,
                     "There is no " + std::string(what) +
                         " yet that could be drawn again. Please choose one of the others first.");
}

}  // namespace veldox
