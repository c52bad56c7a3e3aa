#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace veldox {

/// Saves bytes under a name so that the old file survives any failure: they are written to a
/// file of their own beside it, flushed to the disk, and only then moved over it. Owner and mode
/// of the old file are kept. What was written before a failure stays beside it under the name
/// plus ".part", or ".part2" and so on where that name is taken.
/// @throws CommandError (File) with the name and the system's reason
void SaveFile(const std::filesystem::path& path, std::string_view bytes);

/// All bytes of a file. @throws CommandError (File) with the name and the reason, also
/// for a file beyond kLargestFile
std::string LoadFile(const std::filesystem::path& path);

/// The largest file that is read, in bytes.
inline constexpr std::uintmax_t kLargestFile = 256ULL << 20;

/// Text of a file's bytes as UTF-8: UTF-16 where its byte order mark says so, else UTF-8, and
/// bytes that are none are Windows-1252. A byte order mark is left out.
std::string DecodeText(std::string bytes);

/// A file in a folder; the "\" that leads its name is the path separator.
std::filesystem::path InFolder(const std::filesystem::path& folder, std::string_view name);

/// A path as UTF-8 text, for messages and labels.
std::string PathText(const std::filesystem::path& path);

}  // namespace veldox
