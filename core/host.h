#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/error.h"
#include "core/numbers.h"
#include "core/page_surface.h"

namespace veldox {

enum class Icon { None, Information, Warning, Question, Error };
enum class Button { OK, Cancel, Yes, No };

/// A message box. The first button is the default one.
struct Message {
  Icon icon = Icon::Information;
  std::string title;
  std::string text;
  std::vector<Button> buttons{Button::OK};
};

/// A question for a file name. The filter is written "Name (*.x)|*.x|Name2 (*.y)|*.y";
/// the index of the chosen entry counts from 1.
struct FileDialog {
  enum class Kind { Open, Save };
  Kind kind = Kind::Open;
  std::string filter;
  int filterIndex = 1;
  std::filesystem::path folder;
};

struct FontChoice {
  std::string name;
  int size = 0;
  bool bold = false;
  bool italic = false;
};

struct ScreenSize {
  int width = 0;   ///< pixels
  int height = 0;  ///< pixels
  int dpi = 96;
  double scale = 1;  ///< pixels of the screen to one of a window's
};

/// What windows show where the user has chosen no colour, each as red + 256 * green +
/// 65536 * blue. The numbers are those of the program's own light look.
struct PlainColors {
  std::int32_t ground = 0xFBFAF9;  ///< of frames and of the help place
  std::int32_t text = 0x26211D;
  std::int32_t buttonText = 0x26211D;
};

enum class PictureFormat { Bmp, Jpeg, Png, Svg, Pdf };

/// What a picture is made of, and how.
struct PictureRequest {
  enum class Of {
    Window,  ///< a screen's window as it shows
    Graph,   ///< the grapher's surface, drawn anew at the size asked for
  };
  Of of = Of::Graph;
  std::string screen;  ///< form name of the screen
  PictureFormat format = PictureFormat::Bmp;
  int width = 0;   ///< pixels; 0: as it shows
  int height = 0;  ///< pixels; 0: as it shows
  int quality = 100;
};

struct PictureResult {
  std::string bytes;
  int error = 0;  ///< the encoder's number of what failed, 0 for nothing
};

/// How a print job uses the paper.
enum class PageJob {
  Report,    ///< in the orientation that is set up; a sheet that the paper cannot hold gets smaller
  Measured,  ///< landscape and true to size; the printer is set to portrait again afterwards
};
/// Draws the pages of a job, its end among them.
using PageDrawing = std::function<void(PageSurface&)>;

/// Makes pictures of windows and of the graph. There is one while windows are shown.
class PictureMaker {
 public:
  PictureMaker() = default;
  PictureMaker(const PictureMaker&) = delete;
  PictureMaker& operator=(const PictureMaker&) = delete;
  virtual ~PictureMaker() = default;

  /// A picture as the bytes of its file.
  virtual PictureResult EncodePicture(const PictureRequest& request) = 0;
  /// The size of a picture from the bytes of its file.
  /// @throws CommandError (File) when they are no picture
  virtual ScreenSize MeasurePicture(const std::string& bytes) = 0;
  /// Puts a picture on the clipboard. @throws CommandError (File)
  virtual void CopyPicture(const PictureRequest& request) = 0;
  /// Prints a picture on a page of the printer that the user chooses.
  /// @throws CommandError (File, Cancelled)
  virtual void PrintPicture(const PictureRequest& request) = 0;
  /// The pages of a print job as the bytes of a PDF file.
  /// @throws CommandError (File), and what the drawing throws
  virtual std::string PagesAsPdf(PageJob job, const PageDrawing& draw) = 0;
};

/// A moment of the local clock.
struct ClockTime {
  int year = 0, month = 0, day = 0, hour = 0, minute = 0, second = 0;
};

/// Tells the user how far something is that takes long.
class Progress {
 public:
  Progress() = default;
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;
  virtual ~Progress() = default;

  /// @param done  of all that there is to do
  /// @return false where the user does not want to go on
  virtual bool GoOn(std::size_t done) = 0;
};

/// All that the program asks of the world. The windows answer with real dialogs,
/// a script with prepared answers.
class Host {
 public:
  Host() = default;
  Host(const Host&) = delete;
  Host& operator=(const Host&) = delete;
  virtual ~Host() = default;

  /// Shows a message box and waits for the answer.
  virtual Button Ask(const Message& message) = 0;
  /// Asks for a file; nothing when the dialog was cancelled. Saving over an existing
  /// file has been confirmed when this returns.
  virtual std::optional<std::filesystem::path> AskFile(const FileDialog& dialog) = 0;
  virtual std::optional<FontChoice> AskFont() = 0;
  /// The chosen colour as red + 256 * green + 65536 * blue.
  virtual std::optional<std::int32_t> AskColor() = 0;
  virtual ClockTime Now() = 0;
  /// The decimal separator of the system's settings.
  virtual DecimalMark SystemDecimalMark() = 0;
  /// Where the start-up file, user tables and marker files lie and dialogs begin.
  virtual std::filesystem::path ProgramFolder() = 0;
  /// Where the program keeps what it remembers of its desktop; empty where it keeps nothing.
  virtual std::filesystem::path SettingsFile() { return {}; }
  /// Shows the handbook. @throws CommandError (File) where it is not there
  virtual void ShowHandbook() {
    throw CommandError(ErrorKind::File, "The handbook can be shown only while windows are shown.");
  }
  virtual ScreenSize MeasureScreen() = 0;
  /// The colours that windows have now where none is chosen.
  virtual PlainColors OwnColors() { return {}; }
  /// Begins a print job on the printer that is set up.
  /// @throws CommandError (File) when there is none, (Cancelled) when the user does not want to
  virtual std::unique_ptr<PageSurface> OpenPrinter(PageJob /*job*/) {
    throw CommandError(ErrorKind::File, "No printer is set up on this computer.");
  }
  /// Shows the pages of a print job as they would be printed.
  /// @throws CommandError (File), and what the drawing throws
  virtual void PreviewPages(PageJob /*job*/, const PageDrawing& /*draw*/) {
    throw CommandError(ErrorKind::File, "Pages can be previewed only while windows are shown.");
  }
  /// Shows or ends the hourglass.
  virtual void SetBusy(bool busy) = 0;
  /// Shows how far something is, as long as the answer lives and where it takes long.
  /// @param all  how much there is to do
  /// @return null where nobody looks on
  virtual std::unique_ptr<Progress> ShowProgress(const std::string& /*what*/, std::size_t /*all*/) {
    return nullptr;
  }

  // Pictures need windows. Without them they are refused.

  /// Who makes the pictures; null when the windows have gone.
  virtual void SetPictureMaker(PictureMaker* maker) { pictures_ = maker; }
  /// A picture as the bytes of its file. @throws CommandError (File)
  virtual PictureResult EncodePicture(const PictureRequest& request);
  /// The size of a picture from the bytes of its file.
  /// @throws CommandError (File) when they are no picture
  virtual ScreenSize MeasurePicture(const std::string& bytes);
  /// Puts the picture on the clipboard. @throws CommandError (File)
  virtual void CopyPicture(const PictureRequest& request);
  /// The pages of a print job as the bytes of a PDF file. @throws CommandError (File)
  virtual std::string PagesAsPdf(PageJob job, const PageDrawing& draw);
  /// Prints the grapher's surface. @throws CommandError (File, Cancelled)
  virtual void PrintGraph();
  /// Prints a screen's window as it shows. @param screen  its form name
  /// @throws CommandError (File, Cancelled)
  virtual void PrintWindow(const std::string& screen);
  /// Lets the user choose printer, paper and orientation.
  /// @throws CommandError (File, Cancelled)
  virtual void SetUpPrinter();

 protected:
  /// @throws CommandError (File) with the message where no pictures can be made
  PictureMaker& Pictures(const char* message) const {
    if (pictures_ == nullptr) throw CommandError(ErrorKind::File, message);
    return *pictures_;
  }

 private:
  PictureMaker* pictures_ = nullptr;
};

inline PictureResult Host::EncodePicture(const PictureRequest& request) {
  return Pictures("Pictures can be made only while windows are shown.").EncodePicture(request);
}

inline ScreenSize Host::MeasurePicture(const std::string& bytes) {
  return Pictures("Pictures can be read only while windows are shown.").MeasurePicture(bytes);
}

inline void Host::CopyPicture(const PictureRequest& request) {
  Pictures("There is no clipboard without windows.").CopyPicture(request);
}

inline std::string Host::PagesAsPdf(PageJob job, const PageDrawing& draw) {
  return Pictures("A PDF can be made only while windows are shown.").PagesAsPdf(job, draw);
}

inline void Host::PrintGraph() {
  throw CommandError(ErrorKind::File, "There is no printer here that a graph can be printed on.");
}

inline void Host::PrintWindow(const std::string& /*screen*/) {
  throw CommandError(ErrorKind::File, "There is no printer here that a screen can be printed on.");
}

inline void Host::SetUpPrinter() {
  throw CommandError(ErrorKind::File, "There is no printer here that can be set up.");
}

/// Keeps the hourglass on while it lives.
class BusyCursor {
 public:
  explicit BusyCursor(Host& host) : host_(host) { host_.SetBusy(true); }
  ~BusyCursor() { host_.SetBusy(false); }
  BusyCursor(const BusyCursor&) = delete;
  BusyCursor& operator=(const BusyCursor&) = delete;

 private:
  Host& host_;
};

}  // namespace veldox
