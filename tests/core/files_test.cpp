#include "core/files.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "core/error.h"

#if defined(__unix__) || defined(__APPLE__)
#define VELDOX_POSIX_FILES
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#endif

namespace veldox {
namespace {

namespace fs = std::filesystem;

using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

/// A folder of its own for each test, gone afterwards.
class FileTest : public testing::Test {
 protected:
  void SetUp() override {
    const testing::TestInfo& info = *testing::UnitTest::GetInstance()->current_test_info();
    std::random_device random;
    folder_ = fs::temp_directory_path() /
              (std::string("veldox_") + info.name() + std::to_string(random()));
    fs::create_directory(folder_);
  }
  void TearDown() override { fs::remove_all(folder_); }

  const fs::path& folder() const { return folder_; }

  fs::path Put(const fs::path& name, std::string_view bytes) const {
    fs::path path = folder_ / name;
    std::ofstream(path, std::ios::binary)
        .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return path;
  }

  static std::string Get(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  }

  std::ptrdiff_t FileCount() const {
    return std::distance(fs::directory_iterator(folder_), fs::directory_iterator());
  }

 private:
  fs::path folder_;
};

class SaveFileTest : public FileTest {};
class LoadFileTest : public FileTest {};

/// The message of a failure that must be one of files; empty where none happened.
template <class Work>
std::string FailureText(Work work) {
  try {
    work();
  } catch (const CommandError& error) {
    EXPECT_EQ(error.kind(), ErrorKind::File);
    return error.message();
  }
  return {};
}

std::string SaveFailure(const fs::path& path, std::string_view bytes = "new") {
  return FailureText([&] { SaveFile(path, bytes); });
}

std::string LoadFailure(const fs::path& path) {
  return FailureText([&] { LoadFile(path); });
}

fs::path PartOf(fs::path path) {
  return path += ".part";
}

TEST_F(SaveFileTest, MakesAFile) {
  const fs::path path = folder() / "engine.prm";
  SaveFile(path, "Bore = 4\r\n");
  EXPECT_EQ(Get(path), "Bore = 4\r\n");
  EXPECT_EQ(FileCount(), 1);
}

TEST_F(SaveFileTest, ReplacesAFileByALongerAndAShorterOne) {
  const fs::path path = Put("engine.prm", "old text");
  const std::string longer(3'000'000, 'x');
  SaveFile(path, longer);
  EXPECT_EQ(Get(path), longer);
  SaveFile(path, "");
  EXPECT_EQ(Get(path), "");
  EXPECT_EQ(FileCount(), 1);
}

TEST_F(SaveFileTest, KeepsEveryByte) {
  std::string bytes;
  for (int i = 0; i < 512; ++i) bytes += static_cast<char>(i % 256);
  const fs::path path = folder() / "bytes";
  SaveFile(path, bytes);
  EXPECT_EQ(Get(path), bytes);
  EXPECT_EQ(LoadFile(path), bytes);
}

TEST_F(SaveFileTest, TakesANameWithoutAFolder) {
  const fs::path before = fs::current_path();
  fs::current_path(folder());
  SaveFile("plain.txt", "text");
  fs::current_path(before);
  EXPECT_EQ(Get(folder() / "plain.txt"), "text");
}

TEST_F(SaveFileTest, TakesNamesBeyondAscii) {
  const fs::path path = folder() / fs::path(u8"Kurbelwelle Größe.prm");
  SaveFile(path, "text");
  EXPECT_EQ(Get(path), "text");
}

TEST_F(SaveFileTest, LeavesTheUsersOwnFilesAlone) {
  const fs::path path = Put("a.txt", "old");
  Put("a.txt.part", "a file of the user's own");
  SaveFile(path, "new");
  EXPECT_EQ(Get(path), "new");
  EXPECT_EQ(Get(PartOf(path)), "a file of the user's own");
  EXPECT_EQ(FileCount(), 2);
}

TEST_F(SaveFileTest, TakesANameAsLongAsTheSystemAllows) {
  const fs::path path = folder() / std::string(255, 'n');
  SaveFile(path, "text");
  EXPECT_EQ(Get(path), "text");
  EXPECT_EQ(FileCount(), 1);
}

TEST_F(SaveFileTest, RefusesAnEmptyName) {
  EXPECT_THAT(SaveFailure(""), HasSubstr("the name is empty"));
}

TEST_F(SaveFileTest, RefusesANameWithANul) {
  const fs::path path = folder() / std::string("a\0b", 3);
  EXPECT_THAT(SaveFailure(path), HasSubstr("no file name may hold"));
  EXPECT_EQ(FileCount(), 0);
}

TEST_F(SaveFileTest, RefusesAFolder) {
  EXPECT_THAT(SaveFailure(folder()),
              AllOf(HasSubstr("it is a folder"), HasSubstr(PathText(folder()))));
  EXPECT_THAT(SaveFailure(folder() / ""), HasSubstr("it is a folder"));
  EXPECT_THAT(SaveFailure(folder() / "."), HasSubstr("it is a folder"));
  EXPECT_EQ(FileCount(), 0);
}

TEST_F(SaveFileTest, NamesTheFileWhoseFolderIsMissing) {
  const fs::path path = folder() / "no" / fs::path(u8"ä.txt");
  const std::string message = SaveFailure(path);
  EXPECT_THAT(message, AllOf(HasSubstr("\"" + PathText(path) + "\" could not be written: "),
                             HasSubstr("No such file"), Not(HasSubstr(".part"))));
}

#ifdef VELDOX_POSIX_FILES

TEST_F(SaveFileTest, KeepsThePermissionsOfTheOldFile) {
  const fs::path path = Put("secret.prm", "old");
  fs::permissions(path, fs::perms::owner_read | fs::perms::owner_write);
  SaveFile(path, "new");
  EXPECT_EQ(fs::status(path).permissions(), fs::perms::owner_read | fs::perms::owner_write);
  fs::permissions(path, fs::perms(0666));  // more than the usual mask of a new file
  SaveFile(path, "newer");
  EXPECT_EQ(fs::status(path).permissions(), fs::perms(0666));
  EXPECT_EQ(Get(path), "newer");
}

TEST_F(SaveFileTest, GivesANewFileTheUsualPermissions) {
  const mode_t mask = ::umask(0027);
  SaveFile(folder() / "new.txt", "text");
  ::umask(mask);
  EXPECT_EQ(fs::status(folder() / "new.txt").permissions(), fs::perms(0640));
}

TEST_F(SaveFileTest, WritesTheFileBehindALink) {
  fs::create_directory(folder() / "data");
  const fs::path target = Put("data/real.txt", "old");
  const fs::path relative = folder() / "relative.txt";
  const fs::path absolute = folder() / "absolute.txt";
  fs::create_symlink("data/real.txt", relative);
  fs::create_symlink(relative, absolute);
  SaveFile(relative, "one");
  EXPECT_EQ(Get(target), "one");
  SaveFile(absolute, "two");
  EXPECT_EQ(Get(target), "two");
  EXPECT_TRUE(fs::is_symlink(relative));
  EXPECT_TRUE(fs::is_symlink(absolute));
  EXPECT_EQ(FileCount(), 3);
}

TEST_F(SaveFileTest, MakesTheFileThatALinkLacks) {
  const fs::path link = folder() / "link.txt";
  fs::create_symlink("later.txt", link);
  SaveFile(link, "text");
  EXPECT_TRUE(fs::is_symlink(link));
  EXPECT_EQ(Get(folder() / "later.txt"), "text");
}

TEST_F(SaveFileTest, RefusesLinksInACircle) {
  fs::create_symlink("b", folder() / "a");
  fs::create_symlink("a", folder() / "b");
  EXPECT_THAT(SaveFailure(folder() / "a"), HasSubstr("could not be written"));
  EXPECT_EQ(FileCount(), 2);
}

TEST_F(SaveFileTest, RefusesDevicesAndPipes) {
  if (fs::exists("/dev/full")) {
    EXPECT_THAT(SaveFailure("/dev/full"), HasSubstr("it is not a plain file"));
    EXPECT_TRUE(fs::is_character_file("/dev/full"));
    EXPECT_FALSE(fs::exists("/dev/full.part"));
  }
  const fs::path pipe = folder() / "pipe";
  ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
  EXPECT_THAT(SaveFailure(pipe), HasSubstr("it is not a plain file"));
  EXPECT_TRUE(fs::is_fifo(pipe));
}

TEST_F(SaveFileTest, KeepsTheOwnerOfTheOldFile) {
  // Only an administrator may give a file away; another user's own files stay the user's.
  const bool gives = ::geteuid() == 0;
  const uid_t user = gives ? 1234 : ::geteuid();
  const gid_t group = gives ? 2345 : ::getegid();
  const fs::path path = Put("a.txt", "old");
  ASSERT_EQ(::chown(path.c_str(), user, group), 0);
  ASSERT_EQ(::chmod(path.c_str(), 0640), 0);
  SaveFile(path, "new");
  struct stat status = {};
  ASSERT_EQ(::stat(path.c_str(), &status), 0);
  EXPECT_EQ(status.st_uid, user);
  EXPECT_EQ(status.st_gid, group);
  EXPECT_EQ(status.st_mode & 07777U, 0640U);
  EXPECT_EQ(Get(path), "new");
}

TEST_F(SaveFileTest, TwoProgramsNeverShareAFileOnTheWay) {
  // Each of them saves one letter many times: whoever looks finds letters of one kind only.
  const fs::path path = Put("a.txt", std::string(50'000, 'x'));
  std::vector<pid_t> programs;
  for (const char letter : {'a', 'b', 'c'}) {
    const pid_t program = ::fork();
    ASSERT_GE(program, 0);
    if (program == 0) {
      int failures = 0;
      for (int round = 0; round < 40; ++round) {
        try {
          SaveFile(path, std::string(50'000, letter));
        } catch (const CommandError&) {
          ++failures;
        }
      }
      ::_exit(failures == 0 ? 0 : 1);
    }
    programs.push_back(program);
  }
  for (int round = 0; round < 500; ++round) {
    const std::string bytes = LoadFile(path);
    ASSERT_EQ(bytes.size(), 50'000U);
    ASSERT_EQ(bytes.find_first_not_of(bytes.front()), std::string::npos);
  }
  for (const pid_t program : programs) {
    int status = 0;
    ASSERT_EQ(::waitpid(program, &status, 0), program);
    EXPECT_EQ(status, 0);
  }
  EXPECT_EQ(FileCount(), 1);
}

/// For as long as it lives, no file can grow beyond a number of bytes: a full disk.
class FullDisk {
 public:
  explicit FullDisk(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
    ::getrlimit(RLIMIT_FSIZE, &before_);
    rlimit limit = before_;
    limit.rlim_cur = bytes;
    ::setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FullDisk() {
    ::setrlimit(RLIMIT_FSIZE, &before_);
    (void)std::signal(SIGXFSZ, handler_);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;

 private:
  rlimit before_ = {};
  void (*handler_)(int);
};

TEST_F(SaveFileTest, LeavesTheOldFileWhenTheDiskIsFull) {
  const fs::path path = Put("engine.prm", "old");
  const std::string bytes(100'000, 'n');
  std::string message;
  {
    const FullDisk full(40'000);
    message = SaveFailure(path, bytes);
  }
  EXPECT_THAT(message, AllOf(HasSubstr("\"" + PathText(path) + "\" could not be written: "),
                             HasSubstr("File too large"),
                             EndsWith("What was written of it stands in \"" +
                                      PathText(PartOf(path)) + "\".")));
  EXPECT_EQ(Get(path), "old");
  EXPECT_EQ(Get(PartOf(path)), bytes.substr(0, 40'000));
  SaveFile(path, bytes);  // there is room again
  EXPECT_EQ(Get(path), bytes);
  EXPECT_EQ(Get(PartOf(path)), bytes.substr(0, 40'000));
  EXPECT_EQ(FileCount(), 2);
}

TEST_F(SaveFileTest, KeepsAPartUnderAFreeName) {
  const fs::path path = Put("engine.prm", "old");
  Put("engine.prm.part", "a file of the user's own");
  fs::create_directory(folder() / "engine.prm.part2");
  ASSERT_EQ(::mkfifo((folder() / "engine.prm.part3").c_str(), 0600), 0);
  std::string message;
  {
    const FullDisk full(40);
    message = SaveFailure(path, std::string(100, 'n'));
  }
  const fs::path part = folder() / "engine.prm.part4";
  EXPECT_THAT(message, EndsWith("stands in \"" + PathText(part) + "\"."));
  EXPECT_EQ(Get(part), std::string(40, 'n'));
  EXPECT_EQ(Get(PartOf(path)), "a file of the user's own");
  EXPECT_EQ(Get(path), "old");
  EXPECT_EQ(FileCount(), 5);
}

TEST_F(SaveFileTest, MakesNoFileWhenTheDiskIsFull) {
  const fs::path path = folder() / "engine.prm";
  {
    const FullDisk full(0);
    EXPECT_THAT(SaveFailure(path),
                AllOf(HasSubstr("could not be written"), Not(HasSubstr("stands in"))));
  }
  EXPECT_EQ(FileCount(), 0);
}

/// Acts as a user without rights of an administrator, who may write anywhere.
class PlainUser {
 public:
  PlainUser() {
    if (::geteuid() == 0) dropped_ = ::seteuid(65534) == 0;
  }
  ~PlainUser() {
    if (dropped_ && ::seteuid(0) != 0) std::abort();
  }
  PlainUser(const PlainUser&) = delete;
  PlainUser& operator=(const PlainUser&) = delete;

 private:
  bool dropped_ = false;
};

TEST_F(SaveFileTest, RefusesAFolderWithoutTheRightToWrite) {
  const fs::path path = Put("a.txt", "old");
  fs::permissions(path, fs::perms(0666));
  fs::permissions(folder(), fs::perms(0555));
  {
    const PlainUser user;
    EXPECT_THAT(SaveFailure(path),
                AllOf(HasSubstr("Permission denied"), Not(HasSubstr("stands in"))));
    EXPECT_THAT(SaveFailure(folder() / "b.txt"), HasSubstr("Permission denied"));
  }
  fs::permissions(folder(), fs::perms(0755));
  EXPECT_EQ(Get(path), "old");
  EXPECT_EQ(FileCount(), 1);
}

/// True for a file of the user that the program runs for.
bool IsOwn(const fs::path& path) {
  struct stat status = {};
  return ::stat(path.c_str(), &status) == 0 && status.st_uid == ::geteuid();
}

TEST_F(SaveFileTest, RefusesAFileWhoseOwnerCannotBeKept) {
  const fs::path path = Put("a.txt", "old");
  fs::permissions(path, fs::perms(0666));
  fs::permissions(folder(), fs::perms(0777));
  {
    const PlainUser user;
    const bool isOwn = IsOwn(path);  // where no administrator has made it
    EXPECT_THAT(SaveFailure(path),
                isOwn ? testing::Matcher<std::string>("")
                      : AllOf(HasSubstr("the owner of the old file cannot be kept"),
                              Not(HasSubstr("stands in"))));
    EXPECT_EQ(Get(path), isOwn ? "new" : "old");
  }
  EXPECT_EQ(FileCount(), 1);
}

TEST_F(SaveFileTest, RefusesAFileWithoutTheRightToWrite) {
  const fs::path path = Put("a.txt", "old");
  fs::permissions(path, fs::perms(0444));
  fs::permissions(folder(), fs::perms(0777));
  {
    const PlainUser user;
    EXPECT_THAT(SaveFailure(path), HasSubstr("Permission denied"));
  }
  EXPECT_EQ(Get(path), "old");
  EXPECT_EQ(FileCount(), 1);
}

TEST_F(LoadFileTest, RefusesAFileWithoutTheRightToRead) {
  const fs::path path = Put("a.txt", "secret");
  fs::permissions(path, fs::perms::none);
  const PlainUser user;
  EXPECT_THAT(LoadFailure(path), HasSubstr("Permission denied"));
}

TEST_F(LoadFileTest, RefusesDevicesAndDoesNotWaitOnAPipe) {
  const fs::path pipe = folder() / "pipe";
  ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
  EXPECT_THAT(LoadFailure(pipe), HasSubstr("it is not a plain file"));
  EXPECT_THAT(LoadFailure("/dev/null"), HasSubstr("it is not a plain file"));
}

TEST_F(LoadFileTest, FollowsALink) {
  Put("real.txt", "text");
  fs::create_symlink("real.txt", folder() / "link.txt");
  EXPECT_EQ(LoadFile(folder() / "link.txt"), "text");
  fs::create_symlink("missing.txt", folder() / "dangling.txt");
  EXPECT_THAT(LoadFailure(folder() / "dangling.txt"), HasSubstr("No such file"));
}

TEST_F(LoadFileTest, ReadsAFileThatTellsNoSize) {
  ASSERT_TRUE(fs::exists("/proc/self/status")) << "is /proc mounted?";
  EXPECT_THAT(LoadFile("/proc/self/status"), HasSubstr("Name:"));
}

#endif

TEST_F(LoadFileTest, ReadsAllBytes) {
  EXPECT_EQ(LoadFile(Put("empty", "")), "");
  EXPECT_EQ(LoadFile(Put("nul", std::string_view("a\0b\r\n", 5))), std::string("a\0b\r\n", 5));
  const std::string large(1'000'001, 'x');
  EXPECT_EQ(LoadFile(Put("large", large)), large);
}

TEST_F(LoadFileTest, RefusesWhatIsNoPlainFile) {
  EXPECT_THAT(LoadFailure(""), HasSubstr("the name is empty"));
  EXPECT_THAT(LoadFailure(folder()), HasSubstr("it is a folder"));
  const fs::path missing = folder() / fs::path(u8"fehlt ü.txt");
  EXPECT_THAT(LoadFailure(missing),
              AllOf(HasSubstr("\"" + PathText(missing) + "\" could not be read: "),
                    HasSubstr("No such file")));
  EXPECT_THAT(LoadFailure(Put("file", "text") / "below"), HasSubstr("could not be read"));
}

TEST_F(LoadFileTest, RefusesAFileBeyondTheLargest) {
  const fs::path path = Put("large", "");
  fs::resize_file(path, kLargestFile + 1);  // takes no room on the disk
  EXPECT_THAT(LoadFailure(path), HasSubstr("it is larger than 256 MB"));
}

TEST(DecodeText, KeepsUtf8) {
  for (const std::string text : {"", "Bore = 4\r\n", "\xC3\xA4", "\xE2\x82\xAC", "\xF0\x9F\x98\x80",
                                 "\xED\x9F\xBF", "\xEE\x80\x80", "\xF4\x8F\xBF\xBF", "\xC2\x80",
                                 "\xE0\xA0\x80", "\xF0\x90\x80\x80", "a\x7F"}) {
    EXPECT_EQ(DecodeText(text), text);
  }
}

TEST(DecodeText, DropsTheByteOrderMark) {
  EXPECT_EQ(DecodeText("\xEF\xBB\xBF"
                       "Bore"),
            "Bore");
  EXPECT_EQ(DecodeText("\xEF\xBB\xBF"), "");
  EXPECT_EQ(DecodeText("\xEF\xBB\xBF\xE4"), "\xC3\xA4");
  EXPECT_EQ(DecodeText("a\xEF\xBB\xBF"), "a\xEF\xBB\xBF");
}

TEST(DecodeText, ReadsUtf16WithItsMark) {
  using std::string_literals::operator""s;
  EXPECT_EQ(DecodeText("\xFF\xFE"
                       "B\0\xE4\0\xAC\x20\r\0\n\0"s),
            "B\xC3\xA4\xE2\x82\xAC\r\n");
  EXPECT_EQ(DecodeText("\xFE\xFF"
                       "\0B\0\xE4\x20\xAC\0\r\0\n"s),
            "B\xC3\xA4\xE2\x82\xAC\r\n");
  // A character beyond 16 bits is a pair.
  EXPECT_EQ(DecodeText("\xFF\xFE\x3D\xD8\x00\xDE"s), "\xF0\x9F\x98\x80");
  EXPECT_EQ(DecodeText("\xFF\xFE"), "");
}

TEST(DecodeText, TakesBrokenUtf16WithoutHarm) {
  using std::string_literals::operator""s;
  constexpr const char* kReplacement = "\xEF\xBF\xBD";
  EXPECT_EQ(DecodeText("\xFF\xFE\x3D\xD8"s), kReplacement);            // half a pair at the end
  EXPECT_EQ(DecodeText("\xFF\xFE\x3D\xD8x\0"s), kReplacement + "x"s);  // and before a letter
  EXPECT_EQ(DecodeText("\xFF\xFE\x00\xDEx\0"s), kReplacement + "x"s);
  EXPECT_EQ(DecodeText("\xFF\xFEx\0y"s), "x"s + kReplacement);  // half a character
}

TEST(DecodeText, KeepsAnEmbeddedNul) {
  EXPECT_EQ(DecodeText(std::string("a\0b", 3)), std::string("a\0b", 3));
  EXPECT_EQ(DecodeText(std::string("a\0\xE4", 3)), std::string("a\0\xC3\xA4", 4));
}

TEST(DecodeText, TakesOtherBytesForWindows1252) {
  EXPECT_EQ(DecodeText("Gr\xF6\xDF"
                       "e 90\xB0"),
            "Gr\xC3\xB6\xC3\x9F"
            "e 90\xC2\xB0");
  EXPECT_EQ(DecodeText("\x80 5"), "\xE2\x82\xAC 5");                // euro sign
  EXPECT_EQ(DecodeText("\x93x\x94"), "\xE2\x80\x9Cx\xE2\x80\x9D");  // curly quotes
  EXPECT_EQ(DecodeText("\x96\x99\x9F"), "\xE2\x80\x93\xE2\x84\xA2\xC5\xB8");
  EXPECT_EQ(DecodeText("\xA0\xFF"), "\xC2\xA0\xC3\xBF");
}

TEST(DecodeText, KeepsTheNumberOfBytesWithoutACharacter) {
  EXPECT_EQ(DecodeText("\x81\x8D\x8F\x90\x9D"), "\xC2\x81\xC2\x8D\xC2\x8F\xC2\x90\xC2\x9D");
}

TEST(DecodeText, TakesBrokenUtf8AsAWholeForWindows1252) {
  EXPECT_EQ(DecodeText("\xC3\xA4\xE4"), "\xC3\x83\xC2\xA4\xC3\xA4");
  // Cut short, overlong, a surrogate, beyond the last code, a stray continuation byte.
  for (const std::string text :
       {"\xC3", "\xE2\x82", "\xF0\x9F\x98", "\xC0\x80", "\xC1\xBF", "\xE0\x9F\xBF", "\xED\xA0\x80",
        "\xF0\x8F\xBF\xBF", "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xFF", "\x80", "\xC3x"}) {
    const std::string decoded = DecodeText(text);
    EXPECT_NE(decoded, text);
    EXPECT_EQ(DecodeText(decoded), decoded);  // it is UTF-8 now
  }
}

TEST(DecodeText, TakesAnyBytesWithoutHarm) {
  std::mt19937_64 random(1);
  for (int i = 0; i < 20000; ++i) {
    std::string bytes(random() % 12, '\0');
    for (char& c : bytes)
      c = static_cast<char>(random() % 2 == 0 ? random() : 0x80 + random() % 0x48);
    if (bytes.starts_with("\xEF\xBB\xBF")) continue;
    const std::string decoded = DecodeText(bytes);
    ASSERT_EQ(DecodeText(decoded), decoded);
    ASSERT_GE(decoded.size(), bytes.size());
  }
}

TEST(PathText, IsUtf8) {
  EXPECT_EQ(PathText(fs::path(u8"/data/Größe.prm")),
            "/data/Gr\xC3\xB6\xC3\x9F"
            "e.prm");
  EXPECT_EQ(PathText(""), "");
#ifdef VELDOX_POSIX_FILES
  EXPECT_EQ(PathText("/data/Gr\xF6\xDF"
                     "e.prm"),
            "/data/Gr\xC3\xB6\xC3\x9F"
            "e.prm");
#endif
}

}  // namespace
}  // namespace veldox
