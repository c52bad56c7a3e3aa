#pragma once

#include <array>

#include "core/company_file.h"
#include "core/results.h"
#include "core/screen_part.h"

namespace veldox {

/// The company block that heads printed pages, entered in the launcher's place. Its texts are kept
/// in company files (*.dcn) alone.
class CompanyPanel : public ScreenPart {
 public:
  explicit CompanyPanel(Screen& screen);

  void Open();
  /// Reads a company file that the user chooses. @throws CommandError (File, Cancelled)
  void Load();
  /// The user has typed into a control.
  void Typed(const Control& control);

 private:
  void Save();
  CompanyTexts Texts() const;
  void SetTexts(const CompanyTexts& texts);
  std::array<Field*, 5> Fields() { return {&Text94, &Text95, &Text96, &Text97, &Text98}; }

 public:
  Frame CompanyFrame{screen(), "CompanyFrame", "Enter Your Company Name, Address, etc"};
  Field Text94{CompanyFrame,     "Text94",
               "Company Name",   "",
               KeyRule::AnyText, "The first line at the head of printed pages, in large letters."};
  Field Text95{CompanyFrame, "Text95",         "Street Address",
               "",           KeyRule::AnyText, "The second line at the head of printed pages."};
  Field Text96{CompanyFrame, "Text96",         "City, State, Zip",
               "",           KeyRule::AnyText, "The third line at the head of printed pages."};
  Field Text97{CompanyFrame, "Text97",         "Phone, Fax, Email",
               "",           KeyRule::AnyText, "The fourth line at the head of printed pages."};
  Field Text98{CompanyFrame, "Text98",         "WebSite",
               "",           KeyRule::AnyText, "The fifth line at the head of printed pages."};
  Command Save_Co_Name{CompanyFrame, "Save_Co_Name", "Save",
                       "Save these lines to a Company Data File, to be loaded again at any time.",
                       [this] { Save(); }};
  Command Exit_Co_Name{CompanyFrame, "Exit_Co_Name", "Exit",
                       "Close this panel. The lines are printed as they stand here until the "
                       "Program ends.",
                       CommandWork([this] { Hide(); }, CommandRole::Closes)};
};

/// Where the company block stands on a printed page, chosen in the launcher's place.
class CompanyPlacePanel : public ScreenPart {
 public:
  explicit CompanyPlacePanel(Screen& screen);

  void Open();

 public:
  Frame Frame95{screen(), "Frame95", "Print Company Info - Select Location"};
  OptionGroup Option4{Frame95,
                      "Option4",
                      "",
                      {{0, "Left", "Print the Company Info at the Left of the Page."},
                       {1, "Center", "Print the Company Info in the Middle of the Page."},
                       {2, "Right", "Print the Company Info at the Right of the Page."}},
                      0,
                      3};
  Command Exit_Sel_Co_Name{Frame95, "Exit_Sel_Co_Name", "Exit", "Close this panel.",
                           CommandWork([this] { Hide(); }, CommandRole::Closes)};
};

}  // namespace veldox
