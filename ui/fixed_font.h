#pragma once

#include <QFont>

namespace veldox {

/// True when all letters, signs and blanks of a font are equally wide, so that columns of text
/// stand under each other.
bool IsFixedPitch(const QFont& font);

/// A font of one width for reports: the wanted one where it is that, else a family of the
/// system that is, in the same size. Some desktops name any font as their "fixed" one.
QFont FixedPitchFont(const QFont& wanted);

}  // namespace veldox
