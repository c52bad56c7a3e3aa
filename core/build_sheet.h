#pragma once

#include <span>
#include <string>

#include "core/host.h"
#include "core/parameter_block.h"
#include "core/screen.h"

namespace veldox {

/// What stands over the screens of a build sheet.
struct BuildSheetHead {
  std::string fileName;  ///< of the parameter file; empty where nothing has been read or saved
  ClockTime made;
};

/// A sheet for the engine's folder: the company, the file, the notes, and what each screen holds,
/// frame by frame, with labels, values and units in two columns. No label is cut: what is too long
/// for a column takes a line of its own. Tables stand as tables.
/// @return a report
std::string BuildSheet(std::span<const Screen* const> screens, const BuildSheetHead& head,
                       const ParameterBlock& block);

}  // namespace veldox
