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

  /// Takes the text of one source file in.
  void AddHeader(std::string_view text);
  void AddRoutines(std::string_view text);
  void AddDeclarations(std::string_view text);

  /// The notes of the formulas that a command works out, in the order in which it does.
  /// @param form, command  their control names
  std::vector<std::string> Of(const std::string& form, const std::string& command) const;

 private:
  std::map<std::string, std::string> notes_;               ///< of a function, by its name
  std::map<std::string, std::vector<std::string>> calls_;  ///< by "Form1::SolveStroke"
  std::map<std::string, std::string> handlers_;            ///< by "Form1.Command3"
};

}  // namespace veldox
