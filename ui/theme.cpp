#include "ui/theme.h"

#include <QApplication>
#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <QPolygonF>
#include <QProxyStyle>
#include <QPushButton>
#include <QStyleFactory>
#include <QStyleOption>
#include <memory>
#include <optional>

#include "ui/field_edit.h"
#include "ui/frame_panel.h"
#include "ui/menu_rows.h"

namespace veldox {
namespace {

constexpr int kFramePadding = 8;
constexpr int kTitleGap = 5;
constexpr double kFrameRadius = 6;
constexpr double kControlRadius = 4;
/// What asks for care.
constexpr QRgb kCaution = 0xffd98200;

/// `part` of b laid over a.
QColor Blend(const QColor& a, const QColor& b, double part) {
  const auto mix = [part](int from, int to) { return from + qRound((to - from) * part); };
  return QColor(mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue()));
}

struct PaletteColors {
  QRgb window, base, button, text, accent, highlightedText, toolTip, link;
};

constexpr PaletteColors kLight{0xfff2f3f5, 0xffffffff, 0xfffbfbfc, 0xff1d2126,
                               0xff2b6cb0, 0xffffffff, 0xffffffff, 0xff1f5a99};
constexpr PaletteColors kDark{0xff1f2226, 0xff15181b, 0xff31363c, 0xffe6e8ea,
                              0xff4d94d8, 0xff0c0f12, 0xff2b3036, 0xff7ab4ea};

QPalette MakePalette(const PaletteColors& c) {
  const QColor window(c.window), text(c.text), button(c.button);
  QPalette palette(text, button, Blend(button, Qt::white, 0.5), Blend(window, Qt::black, 0.4),
                   Blend(window, Qt::black, 0.25), text, Qt::white, QColor(c.base), window);
  palette.setColor(QPalette::Midlight, Blend(window, text, 0.08));
  palette.setColor(QPalette::AlternateBase, Blend(QColor(c.base), text, 0.04));
  palette.setColor(QPalette::Highlight, QColor(c.accent));
  palette.setColor(QPalette::HighlightedText, QColor(c.highlightedText));
  // What is selected where the keyboard is not stays pale.
  palette.setColor(QPalette::Inactive, QPalette::Highlight,
                   Blend(QColor(c.base), QColor(c.accent), 0.3));
  palette.setColor(QPalette::Inactive, QPalette::HighlightedText, text);
  palette.setColor(QPalette::ToolTipBase, QColor(c.toolTip));
  palette.setColor(QPalette::ToolTipText, text);
  palette.setColor(QPalette::Link, QColor(c.link));
  palette.setColor(QPalette::PlaceholderText, Blend(QColor(c.base), text, 0.64));
  const QColor faint = Blend(window, text, 0.45);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, faint);
  }
  palette.setColor(QPalette::Disabled, QPalette::Base, window);
  palette.setColor(QPalette::Disabled, QPalette::Highlight, Blend(window, text, 0.25));
  return palette;
}

QPalette PlainFusion() {
  const std::unique_ptr<QStyle> fusion(QStyleFactory::create(QStringLiteral("Fusion")));
  return fusion->standardPalette();
}

bool SameColors(const QPalette& a, const QPalette& b) {
  return a.color(QPalette::Window) == b.color(QPalette::Window) &&
         a.color(QPalette::Base) == b.color(QPalette::Base) &&
         a.color(QPalette::Highlight) == b.color(QPalette::Highlight);
}

/// Fusion with flat buttons, frames as cards and fields that show their marks.
class FlatStyle : public QProxyStyle {
 public:
  FlatStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

  void SetBorders(bool entryBorders, bool raisedOptions) {
    entryBorders_ = entryBorders;
    raisedOptions_ = raisedOptions;
  }

  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override {
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
    // The Alt key alone leads into one menu row, not into each.
    if (hint == SH_MenuBar_AltKeyNavigation) {
      if (const auto* row = dynamic_cast<const MenuRow*>(widget)) return row->first() ? 1 : 0;
    }
    return QProxyStyle::styleHint(hint, option, widget, data);
  }

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
    switch (element) {
      case PE_PanelLineEdit:
        if (const auto* edit = dynamic_cast<const FieldEdit*>(widget)) {
          DrawField(*edit, *option, painter);
          return;
        }
        break;
      case PE_PanelButtonCommand: DrawButton(*option, painter); return;
      case PE_IndicatorCheckBox:
      case PE_IndicatorRadioButton:
        DrawIndicator(*option, element == PE_IndicatorRadioButton, painter);
        return;
      case PE_FrameFocusRect:
        // The button's own border tells the focus.
        if (dynamic_cast<const QPushButton*>(widget) != nullptr) return;
        DrawFocus(*option, painter);
        return;
      case PE_Frame:
        if (const auto* lines = dynamic_cast<const LinesEdit*>(widget);
            lines != nullptr && lines->hasFocus()) {
          DrawFocus(*option, painter);
          return;
        }
        break;
      default: break;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
  }

  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override {
    if (element == CE_MenuBarEmptyArea) {
      painter->fillRect(option->rect, option->palette.window());
      return;
    }
    if (const auto* item = element == CE_MenuBarItem
                               ? qstyleoption_cast<const QStyleOptionMenuItem*>(option)
                               : nullptr) {
      DrawMenuBarItem(*item, painter);
      return;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
  }

  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                          QPainter* painter, const QWidget* widget) const override {
    if (control == CC_GroupBox) {
      if (const auto* box = qstyleoption_cast<const QStyleOptionGroupBox*>(option)) {
        const auto* panel = dynamic_cast<const FramePanel*>(widget);
        DrawFrame(*box, panel, painter);
        return;
      }
    }
    QProxyStyle::drawComplexControl(control, option, painter, widget);
  }

  QIcon standardIcon(StandardPixmap which, const QStyleOption* option,
                     const QWidget* widget) const override {
    const ThemeColors colors(widget != nullptr ? widget->palette() : QApplication::palette());
    switch (which) {
      case SP_MessageBoxInformation: return SignIcon(colors.accent, QLatin1Char('i'));
      case SP_MessageBoxQuestion: return SignIcon(colors.accent, QLatin1Char('?'));
      case SP_MessageBoxWarning: return SignIcon(QColor(kCaution), QLatin1Char('!'));
      case SP_MessageBoxCritical: return SignIcon(QColor(0xc62828), QChar(0x00d7));
      default: return QProxyStyle::standardIcon(which, option, widget);
    }
  }

  QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                       const QWidget* widget) const override {
    const auto* box =
        control == CC_GroupBox ? qstyleoption_cast<const QStyleOptionGroupBox*>(option) : nullptr;
    if (box == nullptr) return QProxyStyle::subControlRect(control, option, part, widget);
    const int title = box->text.isEmpty() ? 0 : box->fontMetrics.height() + kTitleGap;
    const QRect inner =
        box->rect.adjusted(kFramePadding, kFramePadding - 2, -kFramePadding, -kFramePadding);
    switch (part) {
      case SC_GroupBoxContents: return inner.adjusted(0, title, 0, 0);
      case SC_GroupBoxLabel:
        return QRect(inner.left(), inner.top(), inner.width(), box->fontMetrics.height());
      default: return box->rect;
    }
  }

  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                         const QWidget* widget) const override {
    const auto* box =
        type == CT_GroupBox ? qstyleoption_cast<const QStyleOptionGroupBox*>(option) : nullptr;
    if (box == nullptr) return QProxyStyle::sizeFromContents(type, option, contents, widget);
    return QSize(QFontMetrics(TitleFont(widget)).horizontalAdvance(box->text) + 2 * kFramePadding,
                 contents.height() + 2 * kFramePadding);
  }

 private:
  static QFont TitleFont(const QWidget* widget) {
    QFont font = widget != nullptr ? widget->font() : QApplication::font();
    font.setBold(true);
    return font;
  }

  static void Panel(QPainter* painter, const QRectF& rect, double radius, const QColor& fill,
                    const QColor& line, double width = 1) {
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(line, width));
    painter->setBrush(fill);
    painter->drawRoundedRect(rect.adjusted(width / 2, width / 2, -width / 2, -width / 2), radius,
                             radius);
  }

  void DrawMenuBarItem(const QStyleOptionMenuItem& item, QPainter* painter) const {
    const bool on = (item.state & State_Enabled) != 0;
    const bool chosen = on && (item.state & State_Selected) != 0;
    painter->fillRect(item.rect, item.palette.window());
    if (chosen) {
      painter->save();
      Panel(painter, QRectF(item.rect).adjusted(1, 1, -1, -1), kControlRadius,
            item.palette.color(QPalette::Highlight), item.palette.color(QPalette::Highlight));
      painter->restore();
    }
    drawItemText(painter, item.rect,
                 Qt::AlignCenter | Qt::TextShowMnemonic | Qt::TextDontClip | Qt::TextSingleLine,
                 item.palette, on, item.text,
                 chosen ? QPalette::HighlightedText : QPalette::ButtonText);
  }

  static void DrawFrame(const QStyleOptionGroupBox& box, const FramePanel* panel,
                        QPainter* painter) {
    const ThemeColors colors(QApplication::palette());
    painter->save();
    const std::optional<QColor> chosen = panel == nullptr ? std::nullopt : panel->ground();
    if (panel != nullptr && panel->asksForCare()) {
      Panel(painter, box.rect, kFrameRadius, chosen.value_or(colors.cautionFill),
            colors.cautionBorder);
      DrawBar(painter, QRectF(box.rect).adjusted(0, kFrameRadius / 2, 0, -kFrameRadius / 2),
              colors.cautionBorder);
    } else {
      Panel(painter, box.rect, kFrameRadius, chosen.value_or(colors.card), colors.border);
    }
    if (!box.text.isEmpty()) {
      QFont font = painter->font();
      font.setBold(true);
      painter->setFont(font);
      painter->setPen(box.palette.color(QPalette::WindowText));
      const QRect label = box.rect.adjusted(kFramePadding, kFramePadding - 2, -kFramePadding, 0);
      painter->drawText(label, Qt::AlignLeft | Qt::AlignTop | Qt::TextShowMnemonic, box.text);
    }
    painter->restore();
  }

  /// A bar at the left edge: what stands out must not hang on colour alone.
  static void DrawBar(QPainter* painter, const QRectF& rect, const QColor& color) {
    painter->setPen(Qt::NoPen);
    painter->setBrush(color);
    painter->drawRoundedRect(QRectF(rect.left(), rect.top() + 2, 3, rect.height() - 4), 1.5, 1.5);
  }

  static void DrawFocus(const QStyleOption& option, QPainter* painter) {
    painter->save();
    Panel(painter, option.rect, kControlRadius, Qt::transparent, ThemeColors(option.palette).accent,
          2);
    painter->restore();
  }

  static void DrawButton(const QStyleOption& option, QPainter* painter) {
    const ThemeColors colors(QApplication::palette());
    const QColor text = option.palette.color(QPalette::ButtonText);
    const bool on = (option.state & State_Enabled) != 0;
    QColor fill = option.palette.color(QPalette::Button);
    if (!on) {
      fill = Blend(colors.card, fill, 0.3);
    } else if ((option.state & (State_Sunken | State_On)) != 0) {
      fill = Blend(fill, colors.accent, 0.3);
    } else if ((option.state & State_MouseOver) != 0) {
      fill = Blend(fill, colors.accent, 0.12);
    }
    const bool focused = on && (option.state & State_HasFocus) != 0;
    QColor line = focused ? colors.accent : colors.fieldBorder;
    if (!on) line = Blend(colors.card, text, 0.25);
    painter->save();
    Panel(painter, option.rect, kControlRadius, fill, line, focused ? 2 : 1);
    painter->restore();
  }

  /// A white sign on a coloured disc.
  static QIcon SignIcon(const QColor& color, QChar sign) {
    constexpr int kSide = 128;
    QPixmap pixmap(kSide, kSide);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawEllipse(8, 8, kSide - 16, kSide - 16);
    QFont font = QApplication::font();
    font.setPixelSize(kSide * 5 / 8);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(pixmap.rect(), Qt::AlignCenter, sign);
    return QIcon(pixmap);
  }

  void DrawIndicator(const QStyleOption& option, bool round, QPainter* painter) const {
    const ThemeColors colors(QApplication::palette());
    const bool enabled = (option.state & State_Enabled) != 0;
    const bool on = (option.state & State_On) != 0;
    const QRectF box = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
    QColor fill = enabled ? option.palette.color(QPalette::Base) : colors.card;
    QColor line = enabled ? colors.fieldBorder : colors.border;
    if (on) fill = line = enabled ? colors.accent : colors.fieldBorder;
    if ((option.state & State_HasFocus) != 0) line = colors.accent;
    QColor sign = option.palette.color(QPalette::HighlightedText);
    if (!raisedOptions_) {
      // A line in the colour of the caption and a sign in it, on whatever ground there is.
      fill = Qt::transparent;
      sign = option.palette.color(enabled ? QPalette::Active : QPalette::Disabled,
                                  QPalette::WindowText);
      if ((option.state & State_HasFocus) == 0) line = sign;
    }
    painter->save();
    Panel(painter, box, round ? box.width() / 2 : 3, fill, line);
    if (on && round) {
      painter->setPen(Qt::NoPen);
      painter->setBrush(sign);
      painter->drawEllipse(box.center(), box.width() / 5, box.width() / 5);
    } else if (on) {
      painter->setPen(QPen(sign, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
      const auto at = [&](double x, double y) {
        return QPointF(box.left() + x * box.width(), box.top() + y * box.height());
      };
      painter->drawPolyline(QPolygonF{at(0.24, 0.54), at(0.42, 0.72), at(0.76, 0.3)});
    }
    painter->restore();
  }

  void DrawField(const FieldEdit& edit, const QStyleOption& option, QPainter* painter) const {
    const ThemeColors colors(QApplication::palette());
    const bool focused = (option.state & State_HasFocus) != 0;
    QColor fill = edit.output() ? colors.outputFill : option.palette.color(QPalette::Base);
    QColor line = edit.output() ? colors.outputBorder : colors.fieldBorder;
    double width = 1;
    if (edit.plain() || !entryBorders_) line = Qt::transparent;
    if (edit.plain()) fill = Qt::transparent;
    if (edit.mark() == Mark::Changed) fill = colors.changedFill;
    if (edit.mark() == Mark::Outdated) fill = colors.cautionFill;
    if (edit.inRange()) fill = Blend(option.palette.color(QPalette::Base), colors.accent, 0.35);
    if (focused) {
      line = colors.accent;
      width = 2;
    }
    if (edit.mark() == Mark::Error) {
      fill = colors.errorFill;
      line = colors.errorBorder;
      width = 2;
    }
    painter->save();
    Panel(painter, option.rect, kControlRadius, fill, line, width);
    if (edit.mark() == Mark::Changed) DrawBar(painter, option.rect, colors.accent);
    if (edit.mark() == Mark::Outdated) DrawBar(painter, option.rect, colors.cautionBorder);
    painter->restore();
  }

  bool entryBorders_ = true;
  bool raisedOptions_ = true;
};

}  // namespace

ThemeColors::ThemeColors(const QPalette& palette) {
  const QColor window = palette.color(QPalette::Active, QPalette::Window);
  const QColor base = palette.color(QPalette::Active, QPalette::Base);
  const QColor text = palette.color(QPalette::Active, QPalette::Text);
  dark = window.lightness() < text.lightness();
  const QColor red(dark ? 0xff6b6b : 0xc62828);
  accent = palette.color(QPalette::Active, QPalette::Highlight);
  card = dark ? Blend(window, text, 0.045) : Blend(window, base, 0.55);
  border = Blend(window, text, 0.16);
  fieldBorder = Blend(window, text, 0.48);
  outputBorder = Blend(window, text, 0.3);
  outputFill = Blend(card, text, dark ? 0.07 : 0.065);
  changedFill = Blend(base, accent, dark ? 0.34 : 0.2);
  cautionFill = Blend(card, QColor(kCaution), dark ? 0.13 : 0.1);
  cautionBorder = Blend(card, QColor(kCaution), 0.8);
  errorFill = Blend(base, QColor(0xe53935), dark ? 0.26 : 0.13);
  errorBorder = red;
}

void ApplyBorders(const Appearance& appearance) {
  auto* style = dynamic_cast<FlatStyle*>(QApplication::style());
  if (style == nullptr) return;
  style->SetBorders(appearance.entryBorder, appearance.raisedOptions);
  for (QWidget* widget : QApplication::allWidgets()) widget->update();
}

void ApplyTheme(QApplication& app, Theme theme) {
  if (dynamic_cast<FlatStyle*>(QApplication::style()) == nullptr) {
    QApplication::setStyle(new FlatStyle);
  }
  switch (theme) {
    case Theme::System:
    case Theme::SystemElseDark: {
      app.setPalette(QPalette());
      const QPalette plain = PlainFusion();
      // A desktop that names no colours of its own hands on the plain grey ones.
      if (!SameColors(QApplication::palette(), plain)) break;
      const bool isDark = theme == Theme::SystemElseDark || ThemeColors(plain).dark;
      app.setPalette(MakePalette(isDark ? kDark : kLight));
      break;
    }
    case Theme::Light: app.setPalette(MakePalette(kLight)); break;
    case Theme::Dark: app.setPalette(MakePalette(kDark)); break;
  }
}

}  // namespace veldox
