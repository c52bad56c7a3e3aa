#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace veldox {

/// What the sources of the program say of its formulas, in the words of their doc comments.
class FormulaNotes {
 public:
  /// Reads the headers and routines of the folders that hold screens and formulas.
  /// @param root  the folder of the sources
  static FormulaNotes FromSources(const std::filesystem::path& root);

  /// Takes the text of one source file in. @param folder  that it stands in
  void AddHeader(std::string_view text, const std::string& folder = {});
  void AddRoutines(std::string_view text);
  void AddDeclarations(std::string_view text, const std::string& folder = {});

  /// The notes of the formulas that a command works out, in the order in which it does.
  /// @param form, command  their control names; the command may be one of a panel of the form
  std::vector<std::string> Of(const std::string& form, const std::string& command) const;

 private:
  const std::string* WordsFor(const std::string& function, const std::string& folder) const;

  /// Of functions by their names, in each folder that has one so called; empty where it has no
  /// words for the handbook.
  std::map<std::string, std::map<std::string, std::string>> notes_;
  std::map<std::string, std::vector<std::string>> calls_;  ///< by "Form1::SolveStroke"
  std::map<std::string, std::string> handlers_;            ///< by "Form1.Command3"
  std::map<std::string, std::vector<std::string>> parts_;  ///< panels and pages of a form
  std::map<std::string, std::string> folders_;             ///< of forms, panels and pages
};

}  // namespace veldox
