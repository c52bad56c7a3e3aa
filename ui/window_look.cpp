#include "ui/window_look.h"

#include <QApplication>
#include <QFontDatabase>
#include <QFontInfo>
#include <QLabel>
#include <QPushButton>
#include <utility>

#include "ui/fixed_font.h"
#include "ui/qt_text.h"

namespace veldox {
namespace {

constexpr ColorCode kPartMask = 0xFF;

/// Gives a widget a colour of its own; all others still follow the desktop. What is disabled stays
/// pale.
void SetColor(QWidget& widget, QPalette::ColorRole role, const std::optional<QColor>& color) {
  if (!color) return;
  QPalette palette = widget.palette();
  palette.setColor(QPalette::Active, role, *color);
  palette.setColor(QPalette::Inactive, role, *color);
  widget.setPalette(palette);
}

}  // namespace

std::optional<QColor> ToQColor(ColorCode color) {
  if (color == kNoColor) return std::nullopt;
  return QColor(color & kPartMask, (color >> 8) & kPartMask, (color >> 16) & kPartMask);
}

ColorCode FromQColor(const QColor& color) {
  return color.red() + 256 * color.green() + 65536 * color.blue();
}

WindowLook::WindowLook(Appearance appearance, double scale)
    : appearance_(std::move(appearance)), scale_(scale) {
  Appearance own;
  // These are the style's affair, and the text boxes'.
  own.alignment = appearance_.alignment;
  own.entryBorder = appearance_.entryBorder;
  own.raisedOptions = appearance_.raisedOptions;
  isPlain_ = scale_ == 1 && appearance_ == own;
}

QFont WindowLook::FontOf(const FontLook& look) const {
  const QFont base = QApplication::font();
  const double size = base.pointSizeF() > 0 ? base.pointSizeF() : QFontInfo(base).pointSizeF();
  QFont font = base;
  // Each is said, chosen or not: nothing may come from the widget around.
  font.setFamilies(look.name.empty() ? base.families() : QStringList(ToQt(look.name)));
  font.setPointSizeF((look.size > 0 ? look.size : size) * scale_);
  font.setBold(look.bold || base.bold());
  font.setItalic(look.italic || base.italic());
  return font;
}

void WindowLook::DressWindow(QWidget& window) const {
  if (!isPlain_) window.setFont(FontOf({}));
}

void WindowLook::DressFrame(QWidget& frame) const {
  if (isPlain_) return;
  frame.setFont(FontOf(appearance_.label));
  SetColor(frame, QPalette::WindowText, ToQColor(appearance_.labelText));
}

void WindowLook::DressLabel(QWidget& label) const {
  if (!isPlain_) label.setFont(FontOf(appearance_.label));
}

void WindowLook::MakeFaint(QLabel& label) const {
  if (appearance_.labelText == kNoColor && appearance_.frameGround == kNoColor) {
    label.setForegroundRole(QPalette::PlaceholderText);
  }
}

void WindowLook::DressEntry(QWidget& entry) const {
  if (!isPlain_) entry.setFont(FontOf(appearance_.entry));
}

void WindowLook::DressPlainResult(QWidget& result) const {
  if (isPlain_) return;
  result.setFont(FontOf(appearance_.label));
  SetColor(result, QPalette::Text, ToQColor(appearance_.labelText));
}

void WindowLook::DressCommand(QPushButton& button, bool closes) const {
  if (isPlain_) return;
  button.setFont(FontOf(appearance_.command));
  if (closes) SetColor(button, QPalette::Button, ToQColor(appearance_.quitGround));
}

void WindowLook::DressHelp(QWidget& help) const {
  if (isPlain_) return;
  help.setFont(FontOf(appearance_.help));
  SetColor(help, QPalette::WindowText, ToQColor(appearance_.helpText));
}

QFont WindowLook::ReportFont() const {
  QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  const FontLook& look = appearance_.help;
  if (!look.name.empty()) font.setFamilies({ToQt(look.name)});
  if (look.size > 0) font.setPointSizeF(look.size);
  if (scale_ != 1) font.setPointSizeF(QFontInfo(font).pointSizeF() * scale_);
  if (look.bold) font.setBold(true);
  if (look.italic) font.setItalic(true);
  return FixedPitchFont(font);
}

void WindowLook::DressReport(QWidget& report) const {
  SetColor(report, QPalette::Text, ToQColor(appearance_.helpText));
  SetColor(report, QPalette::Base, helpGround());
}

std::optional<QColor> WindowLook::frameGround() const {
  return ToQColor(appearance_.frameGround);
}

std::optional<QColor> WindowLook::helpGround() const {
  return ToQColor(appearance_.helpGround);
}

}  // namespace veldox
