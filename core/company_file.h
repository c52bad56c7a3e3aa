#pragma once

#include <array>
#include <functional>
#include <string>
#include <string_view>

namespace veldox {

/// Name, street, city, phone and web site that head printed pages, in this order.
using CompanyTexts = std::array<std::string, 5>;

/// The text of a company file (*.dcn): a line each, in their order.
std::string ComposeCompanyFile(const CompanyTexts& texts);

/// Takes the lines of a company file into the texts, in whatever order they stand. Texts that the
/// file does not tell stay. Blank lines at the end are no records.
/// @param text      the file, decoded
/// @param fileName  the name that refusals tell
/// @param bad       is told every line that is no record, and its number
/// @throws CommandError (File) for a line that is too long, or is none of a text
void ReadCompanyFile(std::string_view text, const std::string& fileName, CompanyTexts& texts,
                     const std::function<void(int number, std::string_view line)>& bad);

}  // namespace veldox
