#include "ui/fixed_font.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QStringList>
#include <algorithm>
#include <string_view>

namespace veldox {
namespace {

/// A font of the same size in another family.
QFont InFamily(const QFont& wanted, const QString& family) {
  QFont font(wanted);
  font.setFamilies({family});
  font.setStyleHint(QFont::Monospace);
  font.setFixedPitch(true);
  return font;
}

}  // namespace

bool IsFixedPitch(const QFont& font) {
  // What a font says of itself is not always true; what columns need is that widths are equal.
  constexpr std::string_view kTried = "0123456789 .,-+|>^iIlMW";
  const QFontMetricsF metrics(font);
  const double width = metrics.horizontalAdvance(QLatin1Char(kTried.front()));
  return std::ranges::all_of(kTried, [&](char c) {
    return qAbs(metrics.horizontalAdvance(QLatin1Char(c)) - width) < 0.01;
  });
}

QFont FixedPitchFont(const QFont& wanted) {
  if (IsFixedPitch(wanted)) return wanted;
  const QFont byHint = InFamily(wanted, QStringLiteral("monospace"));
  if (IsFixedPitch(byHint)) return byHint;
  for (const QString& family : QFontDatabase::families()) {
    if (!QFontDatabase::isFixedPitch(family)) continue;
    const QFont tried = InFamily(wanted, family);
    if (IsFixedPitch(tried)) return tried;
  }
  return byHint;
}

}  // namespace veldox
