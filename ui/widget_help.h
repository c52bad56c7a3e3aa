#pragma once

#include <QString>

class QWidget;

namespace veldox {

class Screen;

/// Gives a widget that stands for no control a help sentence, as controls have theirs: it is
/// the tooltip and the accessible description, and shows in the screen's help place while the
/// pointer stands over the widget and when the keyboard comes to it.
void GiveHelp(QWidget& widget, Screen& screen, const QString& sentence);

}  // namespace veldox
