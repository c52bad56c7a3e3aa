#pragma once

#include <string>
#include <utility>

#include "core/delimited_file.h"
#include "core/entry_panel.h"
#include "core/kept.h"

namespace veldox {

/// Which columns of a delimited file the conversion tools take.
class DelimitedColumnsPanel final : public EntryPanel {
 public:
  explicit DelimitedColumnsPanel(Screen& screen) : EntryPanel(screen, Frame8, Text13) { SetUp(); }

  /// Shows the panel for a tool. @param title  what the tool does
  void Open(std::string title, std::function<void()> tool) {
    Frame8.SetCaption(std::move(title));
    EntryPanel::Open(std::move(tool));
  }

  /// The columns that were entered last.
  struct Columns {
    std::string delimiter;  ///< empty: blanks
    int x = 0;              ///< from 1, as the others
    int y = 0;
    int fuel = 0;
    int bsfc = 0;
    int airFuel = 0;
  };
  const Columns& columns() const { return columns_; }

 private:
  void ReadEntries() override;
  int ReadColumn(Field& field) const;
  Kept<Columns> columns_{screen()};

 public:
  Frame Frame8{screen(), "Frame8", "Fields of a Delimited File"};
  Field Text13{Frame8,
               "Text13",
               "Field for X Axis or RPM",
               "1",
               KeyRule::Digits,
               "Which field of a line holds the RPM, or the value of the X axis; the first is 1."};
  Field Text12{Frame8,
               "Text12",
               "Field for Y Axis / Torque / HP",
               "2",
               KeyRule::Digits,
               "Which field of a line holds the torque or horsepower, or the value of the Y axis."};
  Field Text11{Frame8,
               "Text11",
               "Field Separator / Delimiter --  Use A CAPITAL T for a TAB",
               "",
               KeyRule::AnyText,
               "What stands between the fields, such as a comma. Left empty, fields are separated "
               "by any number of blanks or tabs."};
  Field Text15{Frame8, "Text15",        "Field for Fuel lbs/hr",
               "3",    KeyRule::Digits, "Used for a Dyno Sheet only."};
  Field Text16{Frame8, "Text16",        "Field for BSFC",
               "4",    KeyRule::Digits, "Used for a Dyno Sheet only."};
  Field Text17{Frame8, "Text17",        "Field for Air / Fuel Ratio",
               "5",    KeyRule::Digits, "Used for a Dyno Sheet only."};
  Command Command14{Frame8, "Command14", "E N T E R",
                    "Pick the file, and the file that the converted lines go to.", Enters()};
  Command Command15{Frame8, "Command15", "Cancel", "Close this panel and convert nothing.",
                    Cancels()};
};

}  // namespace veldox
