#include "vehicle/dyno_file.h"

#include <algorithm>
#include <array>

#include "core/line_reader.h"
#include "core/parameter_block.h"
#include "core/text.h"

namespace veldox {

namespace {

constexpr std::size_t kShortestDymRow = 12;

/// What heads the table in a file of a simulation.
struct TableHead {
  std::string_view ending;
  std::string_view line;
};
constexpr std::array<TableHead, 3> kHeads = {{{".dyn", "19"}, {".cqu", "28"}, {".dym", "56"}}};
constexpr std::string_view kTextHead = "RPM  ";

bool IsHead(std::string_view line, std::string_view lowerName) {
  if (line.starts_with(kTextHead)) return true;
  return std::ranges::any_of(kHeads, [&](const TableHead& head) {
    return lowerName.ends_with(head.ending) && Trim(line) == head.line;
  });
}

/// The next word of a text, which is taken off it.
std::string_view TakeWord(std::string_view& text) {
  text = Trim(text);
  const std::size_t end = std::min(text.find_first_of(" \t"), text.size());
  const std::string_view word = text.substr(0, end);
  text.remove_prefix(end);
  return word;
}

}  // namespace

std::optional<DynoPowerFile> ParseDynoPower(std::string_view text, const std::string& fileName,
                                            DecimalMark mark) {
  const std::string name = Lower(fileName);
  const bool isDym = name.ends_with(".dym");
  LineReader lines(text, fileName);
  DynoPowerFile file;
  bool inTable = false;
  while (lines.Next()) {
    if (!inTable) {
      inTable = IsHead(lines.line(), name);
      continue;
    }
    if (isDym && file.rows.empty() && lines.line().size() < kShortestDymRow) {
      // The number was none of a head: the table stands further down.
      inTable = IsHead(lines.line(), name);
      continue;
    }
    std::string_view rest = lines.line();
    const std::string_view rpm = TakeWord(rest);
    const std::string_view power = TakeWord(rest);
    if (IsNumber(rpm, mark) && IsNumber(power, mark)) {
      file.rows.push_back({ParseNumber(rpm, mark), ParseNumber(power, mark)});
    } else if (!file.rows.empty()) {
      break;  // lines of units may stand under a head; the first text behind rows ends them
    }
  }
  file.linesRead = lines.number();
  if (file.rows.empty()) return std::nullopt;
  return file;
}

PowerLines PowerLinesOf(std::span<const std::vector<double>> rows, PowerRecord record,
                        DecimalMark mark) {
  PowerLines result;
  double last = 0;
  for (const std::vector<double>& row : rows) {
    const double rpm = row.front();
    if (!(rpm > last)) {
      ++result.left;
      continue;
    }
    if (++result.lines > kTorqueRows) {
      throw CommandError(ErrorKind::InvalidArgument,
                         "The file has more than 961 rows of rising RPM, the most that the torque "
                         "table takes.");
    }
    last = rpm;
    result.text += record == PowerRecord::Torque ? "Acceleration =" : "Accelerat HP =";
    for (const double number : row) {
      result.text += ' ';
      result.text += FormatSmart(number, mark);
    }
    result.text += "\r\n";
  }
  if (result.lines == 0) {
    throw CommandError(ErrorKind::InvalidArgument,
                       "No row of the file has an RPM above 0. Check the field numbers.");
  }
  return result;
}

}  // namespace veldox
