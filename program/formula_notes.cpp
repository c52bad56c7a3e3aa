#include "program/formula_notes.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>

namespace veldox {

namespace {

namespace fs = std::filesystem;

constexpr std::array kFolders = {"engine",  "cam",     "airfuel",  "twostroke",
                                 "vehicle", "chassis", "reference"};

std::string Load(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  std::ostringstream text;
  text << stream.rdbuf();
  return text.str();
}

bool IsWordSign(char c) {
  return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_';
}

/// The names that are called in a routine's body, each once, in their order.
std::vector<std::string> CalledIn(std::string_view body) {
  std::vector<std::string> names;
  for (std::size_t open = body.find('('); open != std::string_view::npos;
       open = body.find('(', open + 1)) {
    std::size_t begin = open;
    while (begin > 0 && IsWordSign(body[begin - 1])) --begin;
    std::string name(body.substr(begin, open - begin));
    if (name.empty() || std::find(names.begin(), names.end(), name) != names.end()) continue;
    names.push_back(std::move(name));
  }
  return names;
}

/// The end of a block that begins with a brace.
std::size_t EndOfBlock(std::string_view text, std::size_t brace) {
  int depth = 0;
  for (std::size_t i = brace; i < text.size(); ++i) {
    if (text[i] == '{') ++depth;
    if (text[i] == '}' && --depth == 0) return i;
  }
  return text.size();
}

/// True for a comment whose words are for who reads the sources: it names other routines, or is
/// of a test.
bool SpeaksOfCode(const std::string& words) {
  static const std::regex kName(R"(\b[A-Za-z]*[a-z][A-Z]\w*|`|^@|^(False|True) )");
  return std::regex_search(words, kName);
}

/// What a doc comment says before it turns to single arguments and failures.
std::string Words(const std::string& comment) {
  return comment.substr(0, comment.find(" @"));
}

}  // namespace

void FormulaNotes::AddHeader(std::string_view text) {
  std::istringstream stream{std::string(text)};
  std::string comment;
  bool isOpen = false;  // the last line was one of the comment
  static const std::regex kFunction(R"(^[A-Za-z_][\w:<>,&* ]*[&* ]([A-Z]\w*)\()");
  for (std::string line; std::getline(stream, line);) {
    if (line.starts_with("/// ")) {
      if (!isOpen) comment.clear();
      isOpen = true;
      if (!comment.empty()) comment += ' ';
      comment += line.substr(4);
      continue;
    }
    isOpen = false;
    std::smatch found;
    // Functions that follow each other without a blank line share what stands over the first,
    // where they have no words of their own.
    if (line.empty()) comment.clear();
    if (comment.empty() || !std::regex_search(line, found, kFunction)) continue;
    const std::string words = Words(comment);
    if (!SpeaksOfCode(words)) notes_.emplace(found[1], words);
  }
}

void FormulaNotes::AddRoutines(std::string_view text) {
  static const std::regex kRoutine(R"(\n[\w:<>&* ]*\b(Form\w+)::(\w+)\([^;{}]*\)[ \w]*\{)");
  const std::string whole(text);
  for (auto at = std::sregex_iterator(whole.begin(), whole.end(), kRoutine);
       at != std::sregex_iterator(); ++at) {
    const auto brace = static_cast<std::size_t>(at->position() + at->length() - 1);
    const std::size_t end = EndOfBlock(whole, brace);
    calls_[(*at)[1].str() + "::" + (*at)[2].str()] =
        CalledIn(std::string_view(whole).substr(brace, end - brace));
  }
}

void FormulaNotes::AddDeclarations(std::string_view text) {
  static const std::regex kCommand(R"(\b(?:Command|CheckBox)\s+(\w+)\{)");
  static const std::regex kHandler(R"(&(Form\w+)::(\w+))");
  const std::string whole(text);
  for (auto at = std::sregex_iterator(whole.begin(), whole.end(), kCommand);
       at != std::sregex_iterator(); ++at) {
    const auto brace = static_cast<std::size_t>(at->position() + at->length() - 1);
    const std::string body = whole.substr(brace, EndOfBlock(whole, brace) - brace);
    std::smatch handler;
    if (!std::regex_search(body, handler, kHandler)) continue;
    handlers_[handler[1].str() + '.' + (*at)[1].str()] = handler[1].str() + "::" + handler[2].str();
  }
}

std::vector<std::string> FormulaNotes::Of(const std::string& form,
                                          const std::string& command) const {
  const auto handler = handlers_.find(form + '.' + command);
  if (handler == handlers_.end()) return {};
  std::vector<std::string> notes;
  std::set<std::string> seen;
  // A command's own formulas, and those of the routine that it leaves its work to.
  std::vector<std::string> routines{handler->second};
  for (std::size_t i = 0; i < routines.size() && i < 2; ++i) {
    const auto calls = calls_.find(routines[i]);
    if (calls == calls_.end()) continue;
    for (const std::string& name : calls->second) {
      const auto note = notes_.find(name);
      std::string routine = form;
      routine.append("::").append(name);
      if (note != notes_.end() && seen.insert(name).second) notes.push_back(note->second);
      if (note == notes_.end() && calls_.contains(routine) && calls->second.size() <= 2) {
        routines.push_back(std::move(routine));
      }
    }
  }
  return notes;
}

FormulaNotes FormulaNotes::FromSources(const fs::path& root) {
  FormulaNotes notes;
  std::vector<fs::path> files;
  for (const char* folder : kFolders) {
    if (!fs::exists(root / folder)) continue;
    for (const auto& entry : fs::directory_iterator(root / folder)) files.push_back(entry.path());
  }
  std::sort(files.begin(), files.end());
  for (const fs::path& file : files) {
    const std::string stem = file.stem().string();
    const bool isScreen = stem.ends_with("_screen");
    // Graphs and reports show what formulas say elsewhere.
    if (stem.ends_with("_graphs") || stem.ends_with("_reports")) continue;
    if (file.extension() == ".h") {
      const std::string text = Load(file);
      // What a screen says of its own routines is no formula.
      isScreen ? notes.AddDeclarations(text) : notes.AddHeader(text);
    } else if (file.extension() == ".cpp" && isScreen) {
      notes.AddRoutines(Load(file));
    }
  }
  return notes;
}

}  // namespace veldox
