#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "core/host.h"
#include "core/screen.h"

namespace veldox {

/// A date by the pattern "dddd_mmmm_d_yyyy", then hour, minute and second:
/// "Friday_May_17_2024_14_3_9".
std::string PictureTimeText(const ClockTime& time);

/// The default file of a graph picture in the program's folder.
/// @param extension  with its point, such as ".bmp"
std::filesystem::path GraphPictureFile(Host& host, std::string_view extension);

/// The picture format that a file's extension stands for; BMP where it has none.
/// @throws CommandError (File) for an extension that is no picture's
PictureFormat FormatOfFile(const std::filesystem::path& file);

/// Saves a window as JPEG in the program's folder, under the tag of the screen opened
/// last, the name when it differs from the tag, and the date.
/// @return the file. @throws CommandError (File)
std::filesystem::path SaveWindowAsJpeg(const Screen& screen, std::string_view name);

/// Saves the graph's picture; the extension decides the format.
/// @param width, height  pixels
/// @param quality  of JPEG, 1 to 100
/// @throws CommandError (File)
void SaveImageFile(Host& host, const std::filesystem::path& file, int width, int height,
                   int quality);

}  // namespace veldox
