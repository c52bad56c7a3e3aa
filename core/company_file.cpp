#include "core/company_file.h"

#include <algorithm>
#include <vector>

#include "core/line_reader.h"

namespace veldox {

namespace {

constexpr std::string_view kLineEnd = "\r\n";

constexpr std::array<std::string_view, 5> kPrefixes = {
    "Company Name = ", "Company Address = ", "Company City = ", "Company Phone = ",
    "Company WebSite = "};

/// A text that must stay within its line of the file.
std::string OneLine(std::string text) {
  std::ranges::replace_if(
      text, [](char c) { return c == '\r' || c == '\n'; }, ' ');
  return text;
}

}  // namespace

std::string ComposeCompanyFile(const CompanyTexts& texts) {
  std::string file;
  for (std::size_t i = 0; i < texts.size(); ++i) {
    file += kPrefixes[i];
    file += OneLine(texts[i]);
    file += kLineEnd;
  }
  return file;
}

void ReadCompanyFile(std::string_view text, const std::string& fileName, CompanyTexts& texts,
                     const std::function<void(int, std::string_view)>& bad) {
  LineReader lines(text, fileName);
  std::vector<int> blanks;
  while (lines.Next()) {
    const std::string_view line = lines.line();
    if (line.empty()) {
      blanks.push_back(lines.number());
      continue;
    }
    // Only now is it known that they do not stand at the end.
    for (const int number : blanks) bad(number, {});
    blanks.clear();
    const auto* const prefix = std::ranges::find_if(
        kPrefixes, [&](std::string_view each) { return line.starts_with(each); });
    if (prefix == kPrefixes.end()) {
      bad(lines.number(), line);
    } else {
      texts[static_cast<std::size_t>(prefix - kPrefixes.begin())] = line.substr(prefix->size());
    }
  }
}

}  // namespace veldox
