#include "graph/image_export.h"

#include <array>
#include <chrono>
#include <cstddef>

#include "core/error.h"
#include "core/files.h"

namespace veldox {

namespace {

constexpr int kBestQuality = 100;

std::string Encode(Host& host, const PictureRequest& request, const char* failure) {
  const PictureResult result = host.EncodePicture(request);
  if (result.error != 0) {
    throw CommandError(ErrorKind::File, failure + std::to_string(result.error));
  }
  return result.bytes;
}

}  // namespace

std::string PictureTimeText(const ClockTime& time) {
  constexpr std::array<const char*, 7> kDays = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                                "Thursday", "Friday", "Saturday"};
  constexpr std::array<const char*, 12> kMonths = {"January",   "February", "March",    "April",
                                                   "May",       "June",     "July",     "August",
                                                   "September", "October",  "November", "December"};
  const std::chrono::year_month_day date{std::chrono::year(time.year),
                                         std::chrono::month(static_cast<unsigned>(time.month)),
                                         std::chrono::day(static_cast<unsigned>(time.day))};
  if (!date.ok()) throw CommandError(ErrorKind::File, "The system's clock gives no date.");
  const std::chrono::weekday day{std::chrono::sys_days(date)};
  return std::string(kDays[day.c_encoding()]) + '_' +
         kMonths[static_cast<std::size_t>(time.month - 1)] + '_' + std::to_string(time.day) + '_' +
         std::to_string(time.year) + '_' + std::to_string(time.hour) + '_' +
         std::to_string(time.minute) + '_' + std::to_string(time.second);
}

std::filesystem::path GraphPictureFile(Host& host, std::string_view extension) {
  return host.ProgramFolder() /
         ("VELDOX_Graph_" + PictureTimeText(host.Now()) + std::string(extension));
}

PictureFormat FormatOfFile(const std::filesystem::path& file) {
  std::string extension = PathText(file.extension());
  for (char& c : extension) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  if (extension.empty() || extension == ".bmp") return PictureFormat::Bmp;
  if (extension == ".jpg" || extension == ".jpeg") return PictureFormat::Jpeg;
  if (extension == ".png") return PictureFormat::Png;
  if (extension == ".svg") return PictureFormat::Svg;
  if (extension == ".pdf") return PictureFormat::Pdf;
  throw CommandError(ErrorKind::File,
                     PathText(file) +
                         " cannot be saved: a picture's name ends in .bmp, .jpg, .png, .svg or "
                         ".pdf.");
}

std::filesystem::path SaveWindowAsJpeg(const Screen& screen, std::string_view name) {
  Host& host = screen.context().host;
  std::string begin = screen.block().CurrentScreenTag;
  if (name != begin) {
    if (!begin.empty()) begin += '_';
    begin += name;
  }
  std::filesystem::path file =
      host.ProgramFolder() / (begin + '_' + PictureTimeText(host.Now()) + ".jpg");
  const PictureRequest request{
      PictureRequest::Of::Window, screen.name(), PictureFormat::Jpeg, 0, 0, kBestQuality};
  SaveFile(file, Encode(host, request, "Cannot save the image. GDI+ Error:"));
  return file;
}

void SaveImageFile(Host& host, const std::filesystem::path& file, int width, int height,
                   int quality) {
  const PictureRequest request{
      PictureRequest::Of::Graph, "Form8", FormatOfFile(file), width, height, quality};
  SaveFile(file, Encode(host, request, "Can not save image(GDI+ Error).:"));
}

}  // namespace veldox
