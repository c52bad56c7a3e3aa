#pragma once

#include <functional>

#include "cam/cam_files.h"
#include "core/entry_panel.h"
#include "core/kept.h"
#include "core/shell.h"

namespace veldox {

/// Asks by how much the lifts of a file are changed.
class LiftAmountPanel final : public EntryPanel {
 public:
  explicit LiftAmountPanel(Screen& screen) : EntryPanel(screen, Frame14, Text25) { SetUp(); }

  /// @param edit  Multiply or Add
  void Open(LiftEdit edit, std::function<void()> tool);
  /// What was entered last.
  double amount() const { return amount_; }

 private:
  void ReadEntries() override;
  Kept<LiftEdit> edit_{screen(), LiftEdit::Multiply};
  Kept<double> amount_{screen()};

 public:
  Frame Frame14{screen(), "Frame14", "Increase / Decrease Cam Lift"};
  Field Text25{Frame14, "Text25", "Multiply by, 1.05 = 5 % more", "1.0", KeyRule::SignedReal};
  Command Command16{Frame14, "Command16", "E N T E R",
                    "Pick the cam file, and the file that the changed lifts go to.", Enters()};
  Command Command17{Frame14, "Command17", "Cancel", "Close this panel and change nothing.",
                    Cancels()};
};

/// Asks for the balancer that a timing tape is printed for.
class TimingTapePanel final : public EntryPanel {
 public:
  explicit TimingTapePanel(Screen& screen) : EntryPanel(screen, Frame13, Text18) { SetUp(); }

  /// Prints the tape of the diameter that was entered last. @throws CommandError (Cancelled, File)
  void Print() const;

 private:
  void ReadEntries() override;
  void Preview();
  void SavePdf();
  PageDrawing Tape() const;
  /// Tells of a tape that is longer than usual paper.
  void TellLength() const;
  Host& host() const { return screen().context().host; }

 public:
  Frame Frame13{screen(), "Frame13", "Print Timing Tape"};
  Field Text18{Frame13,
               "Text18",
               "Balancer Diameter",
               "6.75",
               {KeyRule::UnsignedReal, Unit::Length},
               "The diameter of the harmonic balancer that the tape goes round, in inches."};
  Command Command13{Frame13, "Command13", "E N T E R",
                    "Print the timing tape. Print it at 100 %, not fitted to the page.", Enters()};
  Command Command18{Frame13, "Command18", "Preview", "Show the timing tape as it would be printed.",
                    CommandWork([this] { Preview(); })};
  Command Command19{Frame13, "Command19", "Save as PDF", "Save the timing tape as a PDF file.",
                    CommandWork([this] { SavePdf(); })};
  Command Command20{Frame13, "Command20", "Cancel", "Close this panel and print nothing.",
                    Cancels()};
};

/// The tools of the main form's menu that convert cam files without a screen, and the timing tape.
class CamTools : public FileDialogs {
 public:
  /// Puts the tools behind their menu items.
  CamTools(Shell& shell, CamFiles& files);

 private:
  void EditCmmFile(LiftEdit edit, double amount);
  void ConvertCxFile();
  void ConvertS96File();
  /// Asks where a converted file goes, saves it and tells the lines and a note.
  /// @param linesRead  nothing where they have been told
  void SaveConverted(std::string_view text, std::optional<int> linesRead,
                     const std::string& note) const;

  Shell& shell_;
  CamFiles& files_;

 public:
  LiftAmountPanel liftAmount;
  TimingTapePanel tape;
};

}  // namespace veldox
