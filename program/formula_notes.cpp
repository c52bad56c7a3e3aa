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

void FormulaNotes::AddHeader(std::string_view text, const std::string& folder) {
  std::istringstream stream{std::string(text)};
  std::string comment;
  bool isOpen = false;  // the last line was one of the comment
  static const std::regex kFunction(R"(^([A-Za-z_][\w:<>,&* ]*)[&* ]([A-Z]\w*)\()");
  // What these give is a report, a graph or a note on one: no formula.
  static const std::regex kNoValue(
      R"(\b(void|string|GraphCurve|GraphFrame|\w*(Plot|Report|Chart|Heads))\b)");
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
    const bool isFormula = !SpeaksOfCode(words) && !std::regex_search(found[1].str(), kNoValue);
    notes_[found[2]].emplace(folder, isFormula ? words : std::string{});
  }
}

void FormulaNotes::AddRoutines(std::string_view text) {
  static const std::regex kRoutine(
      R"(\n[\w:<>&* ]*\b(Form\w+|\w+Panel|\w+Page)::(\w+)\([^;{}]*\)[ \w]*\{)");
  const std::string whole(text);
  for (auto at = std::sregex_iterator(whole.begin(), whole.end(), kRoutine);
       at != std::sregex_iterator(); ++at) {
    const auto brace = static_cast<std::size_t>(at->position() + at->length() - 1);
    const std::size_t end = EndOfBlock(whole, brace);
    calls_[(*at)[1].str() + "::" + (*at)[2].str()] =
        CalledIn(std::string_view(whole).substr(brace, end - brace));
  }
}

void FormulaNotes::AddDeclarations(std::string_view text, const std::string& folder) {
  static const std::regex kCommand(R"re(\b(?:Command|CheckBox)\s+\w+\{\s*\w+,\s*"([^"]+)")re");
  static const std::regex kHandler(R"(&(Form\w+|\w+Panel|\w+Page)::(\w+))");
  static const std::regex kClass(R"(\nclass (Form\w+|\w+Panel|\w+Page) [^;]*\{)");
  static const std::regex kPart(R"(\n  (\w+Panel|\w+Page) \w+\{\*this)");
  const std::string whole(text);
  std::smatch made;
  if (std::regex_search(whole, made, kClass)) {
    folders_[made[1]] = folder;
    for (auto at = std::sregex_iterator(whole.begin(), whole.end(), kPart);
         at != std::sregex_iterator(); ++at) {
      parts_[made[1]].push_back((*at)[1]);
    }
  }
  for (auto at = std::sregex_iterator(whole.begin(), whole.end(), kCommand);
       at != std::sregex_iterator(); ++at) {
    const std::size_t brace = whole.find('{', static_cast<std::size_t>(at->position()));
    const std::string body = whole.substr(brace, EndOfBlock(whole, brace) - brace);
    std::smatch handler;
    if (!std::regex_search(body, handler, kHandler)) continue;
    handlers_[handler[1].str() + '.' + (*at)[1].str()] = handler[1].str() + "::" + handler[2].str();
  }
}

const std::string* FormulaNotes::WordsFor(const std::string& function,
                                          const std::string& folder) const {
  const auto found = notes_.find(function);
  if (found == notes_.end()) return nullptr;
  const auto here = found->second.find(folder);
  if (here != found->second.end()) return &here->second;
  // Of functions of other folders only one whose name says which it is.
  return found->second.size() == 1 ? &found->second.begin()->second : nullptr;
}

std::vector<std::string> FormulaNotes::Of(const std::string& form,
                                          const std::string& command) const {
  std::vector<std::string> owners{form};
  const auto parts = parts_.find(form);
  if (parts != parts_.end()) {
    owners.insert(owners.end(), parts->second.begin(), parts->second.end());
  }
  const auto owner = std::find_if(owners.begin(), owners.end(), [&](const std::string& name) {
    return handlers_.contains(name + '.' + command);
  });
  if (owner == owners.end()) return {};
  const auto folder = folders_.find(*owner);
  const std::string where = folder == folders_.end() ? std::string{} : folder->second;
  std::vector<std::string> notes;
  std::set<std::string> seen;
  // A command's own formulas, and those of the routine that it leaves its work to.
  std::vector<std::string> routines{handlers_.at(*owner + '.' + command)};
  for (std::size_t i = 0; i < routines.size() && i < 2; ++i) {
    const auto calls = calls_.find(routines[i]);
    if (calls == calls_.end()) continue;
    for (const std::string& name : calls->second) {
      const std::string* words = WordsFor(name, where);
      std::string routine = *owner;
      routine.append("::").append(name);
      // Formulas that share their words are told once.
      if (words != nullptr && !words->empty() && seen.insert(*words).second) {
        notes.push_back(*words);
      }
      if (words == nullptr && calls_.contains(routine) && calls->second.size() <= 2) {
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
    const bool isScreen =
        stem.ends_with("_screen") || stem.ends_with("_panel") || stem.ends_with("_page");
    const std::string folder = file.parent_path().filename().string();
    // Graphs and reports show what formulas say elsewhere.
    if (stem.ends_with("_graphs") || stem.ends_with("_reports")) continue;
    if (file.extension() == ".h") {
      const std::string text = Load(file);
      // What a screen says of its own routines is no formula.
      isScreen ? notes.AddDeclarations(text, folder) : notes.AddHeader(text, folder);
    } else if (file.extension() == ".cpp" && isScreen) {
      notes.AddRoutines(Load(file));
    }
  }
  return notes;
}

}  // namespace veldox
