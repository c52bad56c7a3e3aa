#include "core/files.h"

#include <array>
#include <cerrno>
#include <cstddef>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <system_error>
#include <utility>

#include "core/error.h"
#include "core/text.h"

#if defined(__unix__) || defined(__APPLE__)
#define VELDOX_POSIX_FILES
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace veldox {

namespace {

namespace fs = std::filesystem;

/// A failure of the system on the way to or from a file, not yet with the file's name.
class SystemFailure : public std::exception {
 public:
  explicit SystemFailure(std::string reason) : reason_(std::move(reason)) {}
  explicit SystemFailure(const std::error_code& error) : SystemFailure(error.message()) {}
  const std::string& reason() const { return reason_; }
  const char* what() const noexcept override { return reason_.c_str(); }

 private:
  std::string reason_;
};

[[noreturn]] void FailWithErrno(int number = errno) {
  throw SystemFailure(std::error_code(number, std::generic_category()));
}

constexpr const char* kNotPlain = "it is not a plain file";

void RequireName(const fs::path& path) {
  if (path.empty()) throw SystemFailure("the name is empty");
  if (path.native().find(fs::path::value_type{}) != fs::path::string_type::npos) {
    throw SystemFailure("the name holds a character that no file name may hold");
  }
}

/// What a path is, or where nothing is there `file_type::not_found`.
fs::file_status StatusOf(const fs::path& path) {
  std::error_code error;
  const fs::file_status status = fs::status(path, error);
  if (!fs::status_known(status)) throw SystemFailure(error);
  return status;
}

void RequirePlain(const fs::file_status& status) {
  if (fs::is_directory(status)) throw SystemFailure("it is a folder");
  if (!fs::is_regular_file(status)) throw SystemFailure(kNotPlain);
}

/// The file that a name stands for in the end, whether it is there or not.
fs::path FollowLinks(fs::path path) {
  constexpr int kMostLinks = 40;
  for (int links = 0; links < kMostLinks; ++links) {
    std::error_code error;
    if (!fs::is_symlink(fs::symlink_status(path, error))) return path;
    const fs::path next = fs::read_symlink(path, error);
    if (error) throw SystemFailure(error);
    path = path.parent_path() / next;  // an absolute link stands alone
  }
  throw SystemFailure(std::make_error_code(std::errc::too_many_symbolic_link_levels));
}

#ifdef VELDOX_POSIX_FILES

/// An open file that closes itself.
class FileHandle {
 public:
  FileHandle(const fs::path& path, int flags, mode_t mode = 0)
      : descriptor_(::open(path.c_str(), flags | O_CLOEXEC | O_NOCTTY | O_NONBLOCK, mode)) {
    if (descriptor_ < 0) FailWithErrno();
    if (::fstat(descriptor_, &status_) != 0 || !S_ISREG(status_.st_mode)) {
      const bool folder = S_ISDIR(status_.st_mode);
      ::close(descriptor_);
      throw SystemFailure(folder ? "it is a folder" : kNotPlain);
    }
  }
  FileHandle(const FileHandle&) = delete;
  FileHandle& operator=(const FileHandle&) = delete;
  ~FileHandle() {
    if (descriptor_ >= 0) ::close(descriptor_);
  }

  std::uintmax_t Size() const { return static_cast<std::uintmax_t>(status_.st_size); }

  /// Gives the file the owner, the group and the mode of another.
  void MakeLike(const struct stat& other) {
    if ((status_.st_uid != other.st_uid || status_.st_gid != other.st_gid) &&
        ::fchown(descriptor_, other.st_uid, other.st_gid) != 0) {
      throw SystemFailure("the owner of the old file cannot be kept: " +
                          std::generic_category().message(errno));
    }
    // After the owner, since a change of that takes rights away.
    if (::fchmod(descriptor_, other.st_mode & 07777U) != 0) FailWithErrno();
  }

  /// @return the number of bytes read, 0 at the end of the file
  std::size_t Read(char* to, std::size_t size) {
    for (;;) {
      const ssize_t count = ::read(descriptor_, to, size);
      if (count >= 0) return static_cast<std::size_t>(count);
      if (errno != EINTR) FailWithErrno();
    }
  }

  void WriteAll(std::string_view bytes) {
    while (!bytes.empty()) {
      const ssize_t count = ::write(descriptor_, bytes.data(), bytes.size());
      if (count >= 0) {
        bytes.remove_prefix(static_cast<std::size_t>(count));
      } else if (errno != EINTR) {
        FailWithErrno();
      }
    }
  }

  void Flush() {
    while (::fsync(descriptor_) != 0) {
      if (errno != EINTR) FailWithErrno();
    }
  }

  void Close() {
    if (::close(std::exchange(descriptor_, -1)) != 0 && errno != EINTR) FailWithErrno();
  }

 private:
  int descriptor_;
  struct stat status_ = {};
};

/// A file without the right to write is meant to be kept, though the folder's rights would let
/// another be moved over it.
void RequireWritable(const fs::path& path) {
  if (::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0) FailWithErrno();
}

/// Who may read a file that is made.
enum class Access { Usual, OwnerOnly };

/// Makes an empty file. @return false where the name is taken
bool CreateNew(const fs::path& path, Access access) {
  const int descriptor = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC,
                                access == Access::Usual ? 0666U : 0600U);
  if (descriptor < 0 && errno == EEXIST) return false;
  if (descriptor < 0) FailWithErrno();
  ::close(descriptor);
  return true;
}

/// Writes and flushes an empty file, which gets owner and mode of the target where that is there.
void WriteChecked(const fs::path& path, std::string_view bytes, const fs::path& target) {
  struct stat like = {};
  const bool replaces = ::stat(target.c_str(), &like) == 0;
  if (!replaces && errno != ENOENT) FailWithErrno();
  FileHandle file(path, O_WRONLY | O_NOFOLLOW);
  if (replaces) file.MakeLike(like);
  file.WriteAll(bytes);
  file.Flush();
  file.Close();
}

/// Lets the file's new name reach the disk. The file is whole under its name already, so that a
/// folder which cannot be flushed is no failure.
void FlushFolder(const fs::path& folder) {
  const int descriptor =
      ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor < 0) return;
  ::fsync(descriptor);
  ::close(descriptor);
}

std::string ReadChecked(const fs::path& path) {
  FileHandle file(path, O_RDONLY);
  const auto tooLarge = [] {
    return SystemFailure("it is larger than " + std::to_string(kLargestFile >> 20) + " MB");
  };
  if (file.Size() > kLargestFile) throw tooLarge();

  // One byte more than the size tells the end, and a file that grows meanwhile.
  constexpr std::size_t kStep = 65536;
  std::string bytes(static_cast<std::size_t>(file.Size()) + 1, '\0');
  std::size_t size = 0;
  while (const std::size_t count = file.Read(bytes.data() + size, bytes.size() - size)) {
    size += count;
    if (size > kLargestFile) throw tooLarge();
    if (size == bytes.size()) bytes.resize(size + kStep);
  }
  bytes.resize(size);
  return bytes;
}

#else

void RequireWritable(const fs::path&) {}

void FlushFolder(const fs::path&) {}

enum class Access { Usual, OwnerOnly };

bool CreateNew(const fs::path& path, Access /*access*/) {
  std::error_code error;
  if (fs::exists(path, error)) return false;
  errno = 0;
  if (!std::ofstream(path, std::ios::binary)) FailWithErrno(errno != 0 ? errno : EIO);
  return true;
}

void WriteChecked(const fs::path& path, std::string_view bytes, const fs::path& target) {
  errno = 0;
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.flush();
  file.close();
  if (!file) FailWithErrno(errno != 0 ? errno : EIO);
  std::error_code error;
  const fs::file_status old = fs::status(target, error);
  if (!fs::exists(old)) return;
  fs::permissions(path, old.permissions(), error);
  if (error) throw SystemFailure(error);
}

std::string ReadChecked(const fs::path& path) {
  std::error_code error;
  if (fs::file_size(path, error) > kLargestFile && !error) {
    throw SystemFailure("it is larger than " + std::to_string(kLargestFile >> 20) + " MB");
  }
  errno = 0;
  std::ifstream file(path, std::ios::binary);
  std::string bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  if (!file.is_open() || file.bad()) FailWithErrno(errno != 0 ? errno : EIO);
  return bytes;
}

#endif

/// Makes a file under the first of some names that nothing has yet. @return its name
template <class NameOf>
fs::path MakeNew(Access access, NameOf nameOf) {
  constexpr int kMostNames = 1000;
  for (int attempt = 0; attempt < kMostNames; ++attempt) {
    fs::path path = nameOf(attempt);
    if (CreateNew(path, access)) return path;
  }
  throw SystemFailure(std::make_error_code(std::errc::file_exists));
}

/// A name that no other program thinks of, and short whatever the target is called.
std::string TemporaryName() {
  constexpr int kLetters = 12;
  std::random_device random;
  std::uniform_int_distribution<int> letter('a', 'z');
  std::string name = "veldox-";
  for (int i = 0; i < kLetters; ++i) name += static_cast<char>(letter(random));
  return name + ".tmp";
}

/// Puts what a failure left of a file beside the target, under a name that nothing has yet.
/// @return that name; an empty one where there was nothing to keep
fs::path KeepPart(const fs::path& temporary, const fs::path& target) {
  std::error_code error;
  if (fs::file_size(temporary, error) == 0 || error) {
    fs::remove(temporary, error);
    return {};
  }
  try {
    fs::path part = MakeNew(Access::OwnerOnly, [&](int taken) {
      fs::path name = target;
      name += taken == 0 ? ".part" : ".part" + std::to_string(taken + 1);
      return name;
    });
    fs::rename(temporary, part, error);
    if (!error) return part;
    fs::remove(part, error);
  } catch (const SystemFailure&) {
    // It stays where it is, and the message tells where.
  }
  return temporary;
}

/// The number of bytes of the UTF-8 character that a text begins with; 0 where it begins with
/// none: a stray or missing continuation byte, an overlong form, a surrogate, a code too high.
std::size_t CharacterSize(std::string_view text) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const auto continues = [&](std::size_t i, unsigned low = 0x80, unsigned high = 0xBF) {
    return i < text.size() && byte(i) >= low && byte(i) <= high;
  };
  const unsigned lead = byte(0);
  if (lead < 0x80) return 1;
  if (lead >= 0xC2 && lead <= 0xDF) return continues(1) ? 2 : 0;
  if (lead >= 0xE0 && lead <= 0xEF) {
    const bool second = continues(1, lead == 0xE0 ? 0xA0 : 0x80, lead == 0xED ? 0x9F : 0xBF);
    return second && continues(2) ? 3 : 0;
  }
  if (lead >= 0xF0 && lead <= 0xF4) {
    const bool second = continues(1, lead == 0xF0 ? 0x90 : 0x80, lead == 0xF4 ? 0x8F : 0xBF);
    return second && continues(2) && continues(3) ? 4 : 0;
  }
  return 0;
}

bool IsUtf8(std::string_view text) {
  while (!text.empty()) {
    const std::size_t size = CharacterSize(text);
    if (size == 0) return false;
    text.remove_prefix(size);
  }
  return true;
}

/// Unicode of the Windows-1252 bytes 0x80 to 0x9F; all others stand for themselves, as do the
/// five to which the code page gives no character.
constexpr std::array<char16_t, 32> kWindows1252 = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

std::string FromWindows1252(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size() + bytes.size() / 8);
  for (const char c : bytes) {
    const unsigned byte = static_cast<unsigned char>(c);
    AppendUtf8(text, byte >= 0x80 && byte < 0xA0 ? kWindows1252[byte - 0x80] : byte);
  }
  return text;
}

/// Text of UTF-16. A half pair, and a byte that is left over, becomes the sign for that.
std::string FromUtf16(std::string_view bytes, bool highFirst) {
  constexpr unsigned kReplacement = 0xFFFD;
  const auto byte = [&](std::size_t i) { return unsigned{static_cast<unsigned char>(bytes[i])}; };
  const auto unit = [&](std::size_t i) {
    return highFirst ? byte(i) << 8 | byte(i + 1) : byte(i + 1) << 8 | byte(i);
  };
  const auto isHalf = [](unsigned code, unsigned first) { return (code & 0xFC00U) == first; };
  std::string text;
  text.reserve(bytes.size() / 2 + bytes.size() / 8);
  std::size_t i = 0;
  for (; i + 1 < bytes.size(); i += 2) {
    unsigned code = unit(i);
    if (isHalf(code, 0xD800) && i + 3 < bytes.size() && isHalf(unit(i + 2), 0xDC00)) {
      code = 0x10000 + ((code & 0x3FFU) << 10 | (unit(i + 2) & 0x3FFU));
      i += 2;
    } else if (isHalf(code, 0xD800) || isHalf(code, 0xDC00)) {
      code = kReplacement;
    }
    AppendUtf8(text, code);
  }
  if (i < bytes.size()) AppendUtf8(text, kReplacement);
  return text;
}

}  // namespace

void SaveFile(const fs::path& path, std::string_view bytes) {
  fs::path part;
  try {
    RequireName(path);
    if (!path.has_filename()) throw SystemFailure("it is a folder");
    const fs::path target = FollowLinks(path);
    const fs::file_status old = StatusOf(target);
    if (fs::exists(old)) {
      RequirePlain(old);
      RequireWritable(target);
    }
    // What replaces a file that few may read is at no time there for more.
    const fs::path temporary = MakeNew(fs::exists(old) ? Access::OwnerOnly : Access::Usual,
                                       [&](int) { return target.parent_path() / TemporaryName(); });
    try {
      WriteChecked(temporary, bytes, target);
      std::error_code error;
      fs::rename(temporary, target, error);
      if (error) throw SystemFailure(error);
    } catch (const SystemFailure&) {
      part = KeepPart(temporary, target);
      throw;
    }
    FlushFolder(target.parent_path());
  } catch (const SystemFailure& failure) {
    std::string message =
        "The file \"" + PathText(path) + "\" could not be written: " + failure.reason() + ".";
    if (!part.empty()) {
      message += " What was written of it stands in \"" + PathText(part) + "\".";
    }
    throw CommandError(ErrorKind::File, std::move(message));
  }
}

std::string LoadFile(const fs::path& path) {
  try {
    RequireName(path);
    const fs::file_status status = StatusOf(path);
    if (!fs::exists(status)) FailWithErrno(ENOENT);
    RequirePlain(status);
    return ReadChecked(path);
  } catch (const SystemFailure& failure) {
    throw CommandError(ErrorKind::File, "The file \"" + PathText(path) +
                                            "\" could not be read: " + failure.reason() + ".");
  }
}

std::string DecodeText(std::string bytes) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  constexpr std::string_view kLowFirst = "\xFF\xFE";
  constexpr std::string_view kHighFirst = "\xFE\xFF";
  if (bytes.starts_with(kLowFirst) || bytes.starts_with(kHighFirst)) {
    return FromUtf16(std::string_view(bytes).substr(kLowFirst.size()),
                     bytes.starts_with(kHighFirst));
  }
  if (bytes.starts_with(kByteOrderMark)) bytes.erase(0, kByteOrderMark.size());
  return IsUtf8(bytes) ? std::move(bytes) : FromWindows1252(bytes);
}

std::filesystem::path InFolder(const std::filesystem::path& folder, std::string_view name) {
  return folder / std::filesystem::path(name.substr(1));
}

std::string PathText(const fs::path& path) {
  const std::u8string text = path.u8string();
  std::string bytes(text.begin(), text.end());
  // Where the system's names are bytes, an old one may hold another character set.
  return IsUtf8(bytes) ? bytes : FromWindows1252(bytes);
}

}  // namespace veldox
