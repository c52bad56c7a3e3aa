#include "cam/cam_tools.h"

#include <string>
#include <utility>

#include "cam/timing_tape.h"
#include "core/files.h"

namespace veldox {

namespace {

constexpr const char* kCmmFilter = "Cam Lift Files (*.cmm)|*.cmm|All Files (*.*)|*.*";
constexpr const char* kS96Filter = "S96 Lift Files (*.s96)|*.s96|All Files (*.*)|*.*";
constexpr const char* kPdfFilter = "PDF Files (*.pdf)|*.pdf|All Files (*.*)|*.*";
constexpr double kConvertedStep = 2;  // degrees

std::span<const double> UpTo(const LiftColumn& lifts, std::int16_t count) {
  return {lifts.data(), static_cast<std::size_t>(count)};
}

/// The header of a file as the comment lines of the one it becomes.
std::string CommentsOf(const LiftFile& file) {
  if (file.format == LiftFormat::CamDoctor) return file.header;
  return "; " + file.header + "\r\n";
}

}  // namespace

void LiftAmountPanel::Open(LiftEdit edit, std::function<void()> tool) {
  const bool isFactor = edit == LiftEdit::Multiply;
  if (edit != edit_) {
    edit_ = edit;
    Text25.SetText(FormatValue<"0.0">(isFactor ? 1 : 0, mark()));
  }
  Frame14.SetCaption(isFactor ? "Increase / Decrease Cam Lift a Fixed %"
                              : "Increase / Decrease Cam Lift a Fixed Amount");
  Text25.SetCaption(isFactor ? "Multiply by, 1.05 = 5 % more" : "Add to every lift");
  Text25.SetHelp(isFactor ? "Every lift of the file is multiplied by this number; 0.95 makes it 5 "
                            "% less."
                          : "This much is added to every lift of the file, in the unit of the "
                            "file; with a minus sign it is taken off.");
  EntryPanel::Open(std::move(tool));
}

void LiftAmountPanel::ReadEntries() {
  const double amount = Read(Text25);
  Require(edit_ != LiftEdit::Multiply || amount != 0, Text25,
          "has to be other than 0: no lift would be left.");
  amount_ = amount;
}

void TimingTapePanel::ReadEntries() {
  const double diameter = Read(Text18);
  Require(diameter > 0 && diameter <= kLargestBalancer, Text18,
          "has to be above 0 and not more than 100 inches.");
  block().BalancerDiameter = diameter;
}

PageDrawing TimingTapePanel::Tape() const {
  return [diameter = block().BalancerDiameter, decimals = mark()](PageSurface& surface) {
    PrintTimingTape(surface, diameter, decimals);
  };
}

void TimingTapePanel::TellLength() const {
  constexpr double kTwipsPerInch = 1440;
  const double length = TimingTapeOf(block().BalancerDiameter).length();
  if (length <= kLongestOnLetter) return;
  FileDialogs(screen().context())
      .Tell("The tape is " + FormatValue<"0.0">(length / kTwipsPerInch, mark()) +
            " inches long. Paper that is 11 inches wide does not hold its end; please set up "
            "longer paper.");
}

void TimingTapePanel::Print() const {
  TellLength();
  Tape()(*host().OpenPrinter(PageJob::Measured));
}

void TimingTapePanel::Preview() {
  ReadEntries();
  host().PreviewPages(PageJob::Measured, Tape());
}

void TimingTapePanel::SavePdf() {
  ReadEntries();
  TellLength();
  const FileDialogs dialogs(screen().context());
  const std::filesystem::path path = dialogs.AskFile(FileDialog::Kind::Save, kPdfFilter);
  SaveFile(path, host().PagesAsPdf(PageJob::Measured, Tape()));
}

CamTools::CamTools(Shell& shell, CamFiles& files)
    : FileDialogs(shell.context()), shell_(shell), files_(files), liftAmount(shell), tape(shell) {
  const auto edits = [this](LiftEdit edit) { return [this, edit] { EditCmmFile(edit, 0); }; };
  const auto asksAmount = [this](LiftEdit edit) {
    return [this, edit] {
      liftAmount.Open(edit, [this, edit] { EditCmmFile(edit, liftAmount.amount()); });
    };
  };
  shell.AddPanel(liftAmount);
  shell.AddPanel(tape);
  shell.SetWork("CMM_Inches_MM", edits(LiftEdit::InchesToMm));
  shell.SetWork("CMM_MM_Inches", edits(LiftEdit::MmToInches));
  shell.SetWork("Mod_Lift", asksAmount(LiftEdit::Multiply));
  shell.SetWork("Mod_Lift2", asksAmount(LiftEdit::Add));
  shell.SetWork("Cx_File", [this] { ConvertCxFile(); });
  shell.SetWork("S96_File", [this] { ConvertS96File(); });
  shell.SetWork("Timing_Tape", [this] { tape.Open([this] { tape.Print(); }); });
}

void CamTools::SaveConverted(std::string_view text, std::optional<int> linesRead,
                             const std::string& note) const {
  SaveFile(AskFile(FileDialog::Kind::Save, kCmmFilter), text);
  std::string told = CountText(LinesOf(text), kRecordsWritten);
  if (linesRead) told = CountText(*linesRead, kRecordsRead) + "\r\n" + told;
  if (!note.empty()) told += "\r\n" + note;
  Tell(told);
}

void CamTools::EditCmmFile(LiftEdit edit, double amount) {
  const std::filesystem::path path = AskFile(FileDialog::Kind::Open, kCmmFilter);
  const EditedLiftFile file =
      EditLifts(TextOf(path), PathText(path.filename()), edit, amount, mark());
  const bool changesUnit = edit == LiftEdit::InchesToMm || edit == LiftEdit::MmToInches;
  SaveConverted(file.text, file.lines,
                changesUnit && file.hasLashes
                    ? "The step line is copied as it stands: its lashes are still in the old unit."
                    : "");
}

void CamTools::ConvertCxFile() {
  // Valve lifts come from ratios and lashes in inches.
  context().HandOver(nullptr);
  const std::optional<LiftFile> file = files_.ReadCamLiftFile(shell_);
  if (!file) return;
  // A screen that shows millimetres has been told of the file, which is written as it was read.
  files_.ConvertTables(false);
  const std::int16_t count = block().IntakeLiftCount;
  const std::string text =
      CmmText({CommentsOf(*file), FormatInt(kConvertedStep, mark()),
               UpTo(block().IntakeCamLift, count), UpTo(block().ExhaustCamLift, count)},
              mark());
  std::string note;
  const auto tellStep = [&](const char* side, double step) {
    if (step == kConvertedStep) return;
    note += std::string("The ") + side + " was given every " + FormatSmart(step, mark()) +
            " degrees; the new file says 2.\r\n";
  };
  tellStep("intake", file->intake.step);
  tellStep("exhaust", file->exhaust.step);
  if (const int more = block().ExhaustLiftCount - count; more > 0) {
    note += "The exhaust has " + std::to_string(more) +
            " records more than the intake. They are not in the new file.\r\n";
  }
  if (!note.empty()) note.resize(note.size() - 2);
  SaveConverted(text, std::nullopt, note);
}

void CamTools::ConvertS96File() {
  context().HandOver(nullptr);
  const auto read = [this](const std::filesystem::path& path) {
    return ParseS96(TextOf(path), PathText(path.filename()), mark());
  };
  const std::filesystem::path intakePath = AskFile(FileDialog::Kind::Open, kS96Filter);
  LiftColumnFile intake = read(intakePath);
  Tell("Please Select Exhaust Lift S96 on next screen or Click Cancel if NONE WANTED");
  LiftFile file;
  file.format = LiftFormat::S96;
  file.step = intake.side.step;
  file.intake = std::move(intake.side);
  file.exhaust.step = file.step;
  int linesRead = intake.linesRead;
  if (const auto path = context().host.AskFile(
          {FileDialog::Kind::Open, kS96Filter, 1, context().host.ProgramFolder()})) {
    LiftColumnFile exhaust = read(*path);
    file.exhaust = std::move(exhaust.side);
    linesRead += exhaust.linesRead;
  }
  files_.StoreTables(file, PathText(intakePath.filename()), false);
  block().CurrentFileName = PathText(intakePath);
  SaveConverted(CmmText({"", FormatInt(kConvertedStep, mark()),
                         UpTo(block().IntakeCamLift, block().IntakeLiftCount),
                         UpTo(block().ExhaustCamLift, block().ExhaustLiftCount)},
                        mark()),
                linesRead, "");
}

}  // namespace veldox
