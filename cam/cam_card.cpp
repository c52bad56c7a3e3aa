#include "cam/cam_card.h"

#include <algorithm>
#include <array>

#include "core/line_reader.h"
#include "core/text.h"

namespace veldox {

namespace {

constexpr std::array<std::string_view, 3> kCamTypes = {"Roller", "Solid", "Hyd"};
constexpr std::array<std::string_view, 3> kStandards = {"0.500-L", "0.050-L", "Seat-To"};
constexpr std::string_view kAt050 = "0.050-";

template <std::size_t N>
bool StartsWithAny(std::string_view line, const std::array<std::string_view, N>& starts) {
  return std::ranges::any_of(starts, [&](std::string_view s) { return line.starts_with(s); });
}

class CardReader {
 public:
  CardReader(std::string_view text, const std::string& fileName, DecimalMark mark)
      : lines_(text, fileName), mark_(mark) {}

  /// @param hasOwn050  the timing at 0.050 stands in a block of its own
  /// @param skipped    lines between the standard and the first lift
  void Read(CamCard& card, bool hasOwn050, int skipped) {
    while (!card.found && lines_.Next()) {
      if (StartsWithAny(lines_.line(), kCamTypes)) {
        card.caption = Trim(lines_.line());
      } else if (StartsWithAny(lines_.line(), kStandards)) {
        constexpr std::size_t kStandardLength = 7;
        card.found = true;
        card.caption = std::string(lines_.line().substr(0, kStandardLength)) + " - " + card.caption;
      }
    }
    if (!card.found) return;
    Skip(skipped);
    card.intakeValveLift = Value("The intake valve lift");
    card.exhaustValveLift = Value("The exhaust valve lift");
    Skip(2);
    ReadTiming(card);
    card.complete = true;
    if (!hasOwn050) return;
    while (lines_.Next()) {
      if (!lines_.line().starts_with(kAt050)) continue;
      // Events of two standards are no timing: those of a block that is cut short are left out.
      CamCard at050 = card;
      at050.caption = Trim(lines_.line());
      ReadTiming(at050);
      card = at050;
      return;
    }
    throw lines_.Refusal(
        "The card has no timing at 0.050: a line that begins with \"0.050-\" is "
        "missing.");
  }

  int number() const { return lines_.number(); }

 private:
  void ReadTiming(CamCard& card) {
    card.intakeOpen = Value("The intake opening");
    card.intakeClose = Value("The intake closing");
    card.exhaustOpen = Value("The exhaust opening");
    card.exhaustClose = Value("The exhaust closing");
  }
  void Skip(int lines) {
    for (; lines > 0; --lines) NextOf("The card is cut short behind its lift standard.");
  }
  void NextOf(const std::string& reason) {
    if (!lines_.Next()) throw lines_.Refusal(reason);
  }
  /// The number that stands in the next line from its second column on.
  double Value(const char* what) {
    NextOf(std::string("The card is cut short: ") + what + " is missing.");
    try {
      return ParseNumber(lines_.line().substr(std::min<std::size_t>(1, lines_.line().size())),
                         mark_);
    } catch (const CommandError& error) {
      throw lines_.Refusal(std::string(what) + ' ' + error.message());
    }
  }

  LineReader lines_;
  DecimalMark mark_;
};

}  // namespace

CamCard ParseCamCard(std::string_view text, const std::string& fileName, bool at050,
                     DecimalMark mark) {
  constexpr const char* kNothing = "---";
  constexpr int kSkipped = 3;
  constexpr int kSkippedOfSimulations = 5;
  const std::string name = Lower(fileName);
  const bool isSimulation = name.ends_with(".cqu") || name.ends_with(".dym");
  CardReader reader(text, fileName, mark);
  CamCard card;
  card.caption = kNothing;
  try {
    reader.Read(card, isSimulation && at050, isSimulation ? kSkippedOfSimulations : kSkipped);
  } catch (const CommandError& error) {
    card.fault = error;
  }
  if (!card.found) card.caption = kNothing;
  card.linesRead = reader.number();
  return card;
}

}  // namespace veldox
