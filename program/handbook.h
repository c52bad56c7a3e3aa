#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "program/formula_notes.h"
#include "program/program.h"

namespace veldox {

/// What people have written about a screen, by the name of its form; "Handbook" and "Main" have
/// introductions as well.
using Introductions = std::map<std::string, std::string>;

/// Takes a text apart whose introductions stand under headings "## FORM".
Introductions ParseIntroductions(std::string_view text);

/// The screens that no introduction was written for.
std::vector<std::string> WithoutIntroduction(const Shell& shell, const Introductions& written);

/// The handbook, a Markdown text of what the program itself holds: every screen with its
/// introduction, picture, fields, units, commands and formulas.
std::string ComposeHandbook(Shell& shell, const Introductions& written, const FormulaNotes& notes);

/// A script that makes the handbook's pictures in the folder it is run in.
std::string ComposePictureScript(Shell& shell);

}  // namespace veldox
