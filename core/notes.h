#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace veldox {

/// The most that the notes of a parameter file may hold, in bytes, line ends counted as CR LF.
inline constexpr std::size_t kMostNoteBytes = 1U << 20;

inline constexpr const char* kNotesTooLong =
    "The notes are longer than 1 MB, the most that they may hold.";

/// The notes with CR LF at every line's end, however they were entered.
std::string WithFileLineEnds(std::string_view notes);

/// Why a text cannot be the notes; empty where it can. What this takes, the file gives back.
std::string ReasonAgainstNotes(std::string_view text);

}  // namespace veldox
