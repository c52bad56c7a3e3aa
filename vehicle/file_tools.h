#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "core/delimited_file.h"
#include "core/file_dialogs.h"
#include "core/shell.h"
#include "vehicle/dyno_file.h"

namespace veldox {

/// The tools of the main form's menu that convert power curves and graph files without a screen.
class FileTools : public FileDialogs {
 public:
  /// Puts the tools behind their menu items.
  explicit FileTools(Shell& shell);

 private:
  /// Asks for the fields and then runs a conversion of a delimited file.
  void AddDelimitedTool(Shell& shell, const char* menuItem, void (FileTools::*convert)());
  DelimitedRows ReadDelimited(std::span<const int> columns) const;

  void CheckT();
  void CheckT_All();
  void CheckH();
  void CheckVELDOX();
  void CheckAxis();
  /// `CheckCQU`
  void ReadDynoPowerFile();

  /// Saves rows as lines of a parameter file.
  void SavePower(const DelimitedRows& file, PowerRecord record) const;
  /// What is told of rows that could not be taken.
  std::string IncompleteNote(const DelimitedRows& file) const;
  void Save(const std::string& text, int linesRead, const std::string& note = {}) const;

  DelimitedColumnsPanel& panel_;
};

}  // namespace veldox
