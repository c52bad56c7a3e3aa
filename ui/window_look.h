#pragma once

#include <QColor>
#include <QFont>
#include <optional>

#include "core/appearance.h"

class QLabel;
class QPushButton;
class QWidget;

namespace veldox {

/// The fonts and colours of one window. Where nothing was chosen its parts stay as the desktop and
/// the program's own style have them. A window that is to look otherwise is filled anew.
class WindowLook {
 public:
  explicit WindowLook(Appearance appearance = {}, double scale = 1);

  const Appearance& appearance() const { return appearance_; }
  /// How much larger than usual the letters are.
  double scale() const { return scale_; }

  /// A window that holds the others: letters in which nothing is chosen.
  void DressWindow(QWidget& window) const;
  /// A frame with the labels, option and check boxes in it.
  void DressFrame(QWidget& frame) const;
  /// A label outside frames: its letters alone, since its ground is not the frames'.
  void DressLabel(QWidget& label) const;
  /// A label that is less than others where no colour says how it is to look.
  void MakeFaint(QLabel& label) const;
  /// A text box or list.
  void DressEntry(QWidget& entry) const;
  /// A result that stands on its frame without a box, as labels do.
  void DressPlainResult(QWidget& result) const;
  /// @param closes  the button puts away what it stands in
  void DressCommand(QPushButton& button, bool closes) const;
  void DressHelp(QWidget& help) const;
  /// The letters of reports, in columns.
  QFont ReportFont() const;
  void DressReport(QWidget& report) const;

  std::optional<QColor> frameGround() const;
  std::optional<QColor> helpGround() const;

 private:
  QFont FontOf(const FontLook& look) const;

  Appearance appearance_;
  double scale_;
  bool isPlain_;  ///< neither font, colour nor size is chosen
};

/// The number of a colour as the toolkit has it; nothing for kNoColor.
std::optional<QColor> ToQColor(ColorCode color);
/// The reverse.
ColorCode FromQColor(const QColor& color);

}  // namespace veldox
