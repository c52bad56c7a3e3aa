#include "vehicle/file_tools.h"

#include <array>

#include "core/files.h"
#include "graph/graph_conversion.h"

namespace veldox {

namespace {

constexpr const char* kDelimitedFilter =
    "Printer Files (*.prt)|*.prt|CSV Files (*.csv)|*.csv|Text Files (*.txt)|*.txt|All Files "
    "(*.*)|*.*";
constexpr const char* kDynoFilter =
    "DYN Files (*.dyn)|*.dyn|CQU Files (*.cqu)|*.cqu|DYM Files (*.dym)|*.dym|Text Files "
    "(*.txt)|*.txt|All Files (*.*)|*.*|Parameter Files (*.prm)|*.prm";
constexpr const char* kParameterFilter =
    "Text Files (*.txt)|*.txt|All Files (*.*)|*.*|Parameter Files (*.prm)|*.prm";
constexpr int kParameterFilterIndex = 3;

}  // namespace

FileTools::FileTools(Shell& shell) : FileDialogs(shell.context()), panel_(shell.delimitedColumns) {
  AddDelimitedTool(shell, "CheckT", &FileTools::CheckT);
  AddDelimitedTool(shell, "CheckT_All", &FileTools::CheckT_All);
  AddDelimitedTool(shell, "CheckH", &FileTools::CheckH);
  AddDelimitedTool(shell, "CheckVELDOX", &FileTools::CheckVELDOX);
  shell.SetWork("CheckCQU", [this] { ReadDynoPowerFile(); });
  shell.SetWork("CheckAxis", [this] { CheckAxis(); });
}

void FileTools::AddDelimitedTool(Shell& shell, const char* menuItem, void (FileTools::*convert)()) {
  const std::string title(Shell::FindMenuItem(menuItem)->caption);
  shell.SetWork(menuItem, [this, title, convert] {
    panel_.Open(title, [this, convert] { (this->*convert)(); });
  });
}

DelimitedRows FileTools::ReadDelimited(std::span<const int> columns) const {
  const std::filesystem::path path = AskFile(FileDialog::Kind::Open, kDelimitedFilter);
  return ParseDelimited(TextOf(path), PathText(path.filename()), panel_.columns().delimiter,
                        columns, mark());
}

void FileTools::CheckT() {
  const auto& c = panel_.columns();
  const DelimitedRows file = ReadDelimited(std::array{c.x, c.y});
  SavePower(file, PowerRecord::Torque);
}

void FileTools::CheckT_All() {
  const auto& c = panel_.columns();
  const DelimitedRows file = ReadDelimited(std::array{c.x, c.y, c.fuel, c.bsfc, c.airFuel});
  SavePower(file, PowerRecord::Torque);
}

void FileTools::CheckH() {
  const auto& c = panel_.columns();
  const DelimitedRows file = ReadDelimited(std::array{c.x, c.y});
  SavePower(file, PowerRecord::Horsepower);
}

void FileTools::CheckVELDOX() {
  const auto& c = panel_.columns();
  const DelimitedRows file = ReadDelimited(std::array{c.x, c.y});
  Save(GraphScriptOf(file.rows, mark()), file.linesRead, IncompleteNote(file));
}

void FileTools::CheckAxis() {
  const std::filesystem::path path =
      AskFile(FileDialog::Kind::Open, kParameterFilter, kParameterFilterIndex);
  const ReversedScript script = ReverseAxes(TextOf(path), PathText(path.filename()));
  Save(script.text, script.linesRead);
}

void FileTools::ReadDynoPowerFile() {
  const std::filesystem::path path = AskFile(FileDialog::Kind::Open, kDynoFilter);
  const auto file = ParseDynoPower(TextOf(path), PathText(path.filename()), mark());
  if (!file) return Tell(kNoHorsePower, Icon::Warning);
  SavePower({file->rows, file->linesRead}, PowerRecord::Horsepower);
}

std::string FileTools::IncompleteNote(const DelimitedRows& file) const {
  if (file.incomplete == 0) return {};
  return "\r\nLines passed over, since not all of their fields hold numbers: " +
         FormatInt(file.incomplete, mark());
}

void FileTools::SavePower(const DelimitedRows& file, PowerRecord record) const {
  const PowerLines power = PowerLinesOf(file.rows, record, mark());
  std::string note = IncompleteNote(file);
  if (power.left > 0) {
    note += "\r\nRows left out, since their RPM does not rise: " + FormatInt(power.left, mark());
  }
  Save(power.text, file.linesRead, note);
}

void FileTools::Save(const std::string& text, int linesRead, const std::string& note) const {
  SaveFile(AskFile(FileDialog::Kind::Save, kParameterFilter, kParameterFilterIndex), text);
  Tell(CountText(linesRead, kRecordsRead) + "\r\n" + CountText(LinesOf(text), kRecordsWritten) +
       note);
}

}  // namespace veldox
