#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace veldox {

/// Saves bytes under a name so that the old file survives any failure: they are written
/// beside it under the name plus ".part", flushed to the disk, and only then moved over
/// it. What was written before a failure stays in the ".part" file.
/// @throws CommandError (File) with the name and the system's reason
void SaveFile(const std::filesystem::path& path, std::string_view bytes);

/// All bytes of a file. @throws CommandError (File) with the name and the reason, also
/// for a file beyond kLargestFile
std::string LoadFile(const std::filesystem::path& path);

/// The largest file that is read, in bytes.
inline constexpr std::uintmax_t kLargestFile = 256ULL << 20;

/// Text of a file's bytes as UTF-8: bytes that are no UTF-8 are Windows-1252. A byte
/// order mark is left out.
std::string DecodeText(std::string bytes);

/// A file in a folder; the "\" that leads its name is the path separator.
std::filesystem::path InFolder(const std::filesystem::path& folder, std::string_view name);

/// A path as UTF-8 text, for messages and labels.
std::string PathText(const std::filesystem::path& path);

}  // namespace veldox
