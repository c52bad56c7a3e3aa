#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace veldox {

/// A text of the program (UTF-8) for the toolkit.
inline QString ToQt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// A text of the toolkit for the program.
inline std::string FromQt(const QString& text) {
  return text.toStdString();
}

/// A text over several lines for a widget, which knows line feeds alone.
inline QString ToQtLines(std::string_view text) {
  QString lines = ToQt(text);
  lines.remove(QLatin1Char('\r'));
  return lines;
}

/// The text of a widget with the line ends of the program, CR LF.
inline std::string FromQtLines(QString text) {
  text.replace(QLatin1Char('\n'), QLatin1String("\r\n"));
  return FromQt(text);
}

}  // namespace veldox
