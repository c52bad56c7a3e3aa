#pragma once

#include <QColor>
#include <QPalette>

#include "core/appearance.h"

class QApplication;

namespace veldox {

/// Which colours the windows take. The program follows the desktop; tests and pictures
/// ask for one of the others.
enum class Theme {
  System,          ///< the desktop's colours; light where it names none
  SystemElseDark,  ///< the same, dark where it names none
  Light,
  Dark,
};

/// Gives the application its style and colours. May be called again to switch.
void ApplyTheme(QApplication& app, Theme theme);

/// Draws the borders of text boxes and the signs of option and check boxes as the user has chosen.
void ApplyBorders(const Appearance& appearance);

/// Colours derived from a palette, so that they hold in light and dark alike.
struct ThemeColors {
  explicit ThemeColors(const QPalette& palette);

  bool dark;             ///< the palette's windows are dark
  QColor card;           ///< ground of a frame
  QColor border;         ///< line around frames
  QColor fieldBorder;    ///< line around what takes input
  QColor outputBorder;   ///< line around fields that show results
  QColor outputFill;     ///< ground of fields that show results
  QColor changedFill;    ///< ground of fields that the last command changed
  QColor errorFill;      ///< ground of the field that is wrong
  QColor errorBorder;    ///< line around the field that is wrong
  QColor cautionFill;    ///< ground of frames that ask for care
  QColor cautionBorder;  ///< line around them
  QColor accent;         ///< focus and changed marks
};

}  // namespace veldox
