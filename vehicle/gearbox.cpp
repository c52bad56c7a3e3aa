#include "vehicle/gearbox.h"

#include <string>

#include "core/error.h"
#include "core/numbers.h"
#include "core/pick_list.h"

namespace veldox {

namespace {

/// Far beyond every gear, and far within what the screens can hold.
constexpr double kLargestRatio = 1000;
/// One name has 117 teeth misprinted: its own ratio of 1.8281 is 117 to 64.
constexpr std::string_view kMisprintedTeeth = " PT-177/64";
constexpr std::int16_t kTeethMeant = 117;

class RowReader {
 public:
  explicit RowReader(std::string_view row)
      : row_(row), name_(row.substr(0, row.find(kFiguresSign))) {}

  /// The text behind a tag of the name, up to the next blank; nothing without the tag.
  std::optional<std::string_view> Tag(std::string_view tag) const {
    const auto at = name_.find(tag);
    if (at == std::string_view::npos) return {};
    const std::string_view rest = name_.substr(at + tag.size());
    return rest.substr(0, rest.find(' '));
  }

  double Ratio(std::string_view text, std::string_view what) const {
    return ReadFigure(text, what, row_, kLargestRatio);
  }

  std::optional<double> RatioOf(std::string_view tag, std::string_view what) const {
    const auto text = Tag(tag);
    return text ? std::optional(Ratio(*text, what)) : std::nullopt;
  }

  std::optional<ToothCounts> TeethOf(std::string_view tag, std::string_view what) const {
    const auto text = Tag(tag);
    if (!text) return {};
    const auto slash = text->find('/');
    if (slash == std::string_view::npos) {
      Fail(ErrorKind::InvalidArgument, what, "must be two numbers with a \"/\" between them.");
    }
    return ToothCounts{Teeth(text->substr(0, slash), what), Teeth(text->substr(slash + 1), what)};
  }

  [[noreturn]] void Fail(ErrorKind kind, std::string_view what, const std::string& why) const {
    FailAtRow(kind, what, row_, why);
  }

 private:
  std::int16_t Teeth(std::string_view text, std::string_view what) const {
    const double count = Ratio(text, what);
    if (count != Floor(count)) Fail(ErrorKind::InvalidArgument, what, "must be whole numbers.");
    return RoundToInt16(count);
  }

  std::string_view row_;
  std::string_view name_;
};

}  // namespace

Gearbox ReadGearbox(std::string_view row, bool isAutomatic) {
  const RowReader reader(row);
  Gearbox gearbox;
  gearbox.isAutomatic = isAutomatic;
  gearbox.primaryDrive = reader.RatioOf(" P-", "The primary drive");
  gearbox.finalDrive = reader.RatioOf(" S-", "The secondary drive");
  gearbox.primaryTeeth = reader.TeethOf(" PT-", "The primary teeth");
  gearbox.finalTeeth = reader.TeethOf(" ST-", "The secondary teeth");
  if (gearbox.primaryTeeth && row.find(kMisprintedTeeth) != std::string_view::npos) {
    gearbox.primaryTeeth->driven = kTeethMeant;
  }
  const std::vector<std::string> figures = PickedFigures(row, row.size());
  if (figures.empty() || figures.size() > kMostGears) {
    reader.Fail(ErrorKind::InvalidArgument, "The gears",
                "must be 1 to " + std::to_string(kMostGears) + " ratios behind the \"|\".");
  }
  for (const std::string& figure : figures) {
    const std::string what = "Gear " + std::to_string(gearbox.ratios.size() + 1);
    gearbox.ratios.push_back(reader.Ratio(figure, what));
  }
  return gearbox;
}

}  // namespace veldox
