#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/numbers.h"

namespace veldox {

/// A graph script of a curve: round limits of the axes, and an "x = " and a "y = " line for each
/// row of two numbers. Lines end with CR LF.
/// @param rows  one at least
std::string GraphScriptOf(std::span<const std::vector<double>> rows, DecimalMark mark);

struct ReversedScript {
  std::string text;  ///< lines end with CR LF
  int linesRead = 0;
};

/// Turns the axes of a graph script: what was X becomes Y, limits, scales, shifts, grid lines and
/// the names of the axes among them. Other lines are copied.
/// @throws CommandError (File) with line and reason
ReversedScript ReverseAxes(std::string_view text, const std::string& fileName);

}  // namespace veldox
