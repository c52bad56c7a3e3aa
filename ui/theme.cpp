#include "ui/theme.h"

#include <QApplication>
#include <QPainter>
#include <QProxyStyle>
#include <QPushButton>
#include <QStyleFactory>
#include <QStyleOption>

#include "ui/field_edit.h"
#include "ui/menu_rows.h"

namespace veldox {
namespace {

constexpr int kFramePadding = 10;
constexpr int kTitleGap = 6;
constexpr double kFrameRadius = 6;
constexpr double kControlRadius = 4;

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
  palette.setColor(QPalette::ToolTipBase, QColor(c.toolTip));
  palette.setColor(QPalette::ToolTipText, text);
  palette.setColor(QPalette::Link, QColor(c.link));
  palette.setColor(QPalette::PlaceholderText, Blend(QColor(c.base), text, 0.5));
  const QColor faint = Blend(window, text, 0.45);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, faint);
  }
  palette.setColor(QPalette::Disabled, QPalette::Base, window);
  palette.setColor(QPalette::Disabled, QPalette::Highlight, Blend(window, text, 0.25));
  return palette;
}

/// Fusion with flat buttons, frames as cards and fields that show their marks.
class FlatStyle : public QProxyStyle {
 public:
  FlatStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

  QPalette standardPalette() const override { return MakePalette(kLight); }

  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override {
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
      case PE_PanelButtonCommand:
        DrawButton(*option, painter);
        return;
      case PE_FrameFocusRect:
        // The button's own border tells the focus.
        if (dynamic_cast<const QPushButton*>(widget) != nullptr) return;
        break;
      default:
        break;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
  }

  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                          QPainter* painter, const QWidget* widget) const override {
    if (control == CC_GroupBox) {
      if (const auto* box = qstyleoption_cast<const QStyleOptionGroupBox*>(option)) {
        DrawFrame(*box, painter);
        return;
      }
    }
    QProxyStyle::drawComplexControl(control, option, painter, widget);
  }

  QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                       SubControl part, const QWidget* widget) const override {
    const auto* box = control == CC_GroupBox
                          ? qstyleoption_cast<const QStyleOptionGroupBox*>(option)
                          : nullptr;
    if (box == nullptr) return QProxyStyle::subControlRect(control, option, part, widget);
    const int title = box->text.isEmpty() ? 0 : box->fontMetrics.height() + kTitleGap;
    const QRect inner =
        box->rect.adjusted(kFramePadding, kFramePadding - 2, -kFramePadding, -kFramePadding);
    switch (part) {
      case SC_GroupBoxContents:
        return inner.adjusted(0, title, 0, 0);
      case SC_GroupBoxLabel:
        return QRect(inner.left(), inner.top(), inner.width(), box->fontMetrics.height());
      default:
        return box->rect;
    }
  }

  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                         const QWidget* widget) const override {
    const auto* box =
        type == CT_GroupBox ? qstyleoption_cast<const QStyleOptionGroupBox*>(option) : nullptr;
    if (box == nullptr) return QProxyStyle::sizeFromContents(type, option, contents, widget);
    return QSize(QFontMetrics(TitleFont(*box, widget)).horizontalAdvance(box->text) +
                     2 * kFramePadding,
                 contents.height() + 2 * kFramePadding);
  }

 private:
  static QFont TitleFont(const QStyleOptionGroupBox&, const QWidget* widget) {
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

  static void DrawFrame(const QStyleOptionGroupBox& box, QPainter* painter) {
    const ThemeColors colors(box.palette);
    painter->save();
    Panel(painter, box.rect, kFrameRadius, colors.card, colors.border);
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

  static void DrawButton(const QStyleOption& option, QPainter* painter) {
    const ThemeColors colors(option.palette);
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

  static void DrawField(const FieldEdit& edit, const QStyleOption& option, QPainter* painter) {
    const ThemeColors colors(option.palette);
    const bool focused = (option.state & State_HasFocus) != 0;
    QColor fill = edit.output() ? colors.outputFill : option.palette.color(QPalette::Base);
    QColor line = edit.output() ? colors.border : colors.fieldBorder;
    double width = 1;
    if (edit.mark() == Mark::Changed) fill = colors.changedFill;
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
    if (edit.mark() == Mark::Changed) {
      // A bar as well as a ground: the mark must not hang on colour alone.
      painter->setPen(Qt::NoPen);
      painter->setBrush(colors.accent);
      const QRectF field(option.rect);
      painter->drawRoundedRect(QRectF(field.left(), field.top() + 2, 3, field.height() - 4), 1.5,
                               1.5);
    }
    painter->restore();
  }
};

}  // namespace

ThemeColors::ThemeColors(const QPalette& palette) {
  const QColor window = palette.color(QPalette::Active, QPalette::Window);
  const QColor base = palette.color(QPalette::Active, QPalette::Base);
  const QColor text = palette.color(QPalette::Active, QPalette::WindowText);
  dark = window.lightness() < text.lightness();
  const QColor red(dark ? 0xff6b6b : 0xc62828);
  accent = palette.color(QPalette::Active, QPalette::Highlight);
  card = dark ? Blend(window, text, 0.045) : Blend(window, base, 0.55);
  border = Blend(window, text, 0.16);
  fieldBorder = Blend(window, text, dark ? 0.38 : 0.34);
  outputFill = Blend(card, text, dark ? 0.05 : 0.045);
  changedFill = Blend(base, accent, dark ? 0.34 : 0.2);
  errorFill = Blend(base, QColor(0xe53935), dark ? 0.26 : 0.13);
  errorBorder = red;
  mutedText = Blend(window, text, 0.68);
}

void ApplyTheme(QApplication& app, Theme theme) {
  if (dynamic_cast<FlatStyle*>(QApplication::style()) == nullptr) {
    QApplication::setStyle(new FlatStyle);
  }
  switch (theme) {
    case Theme::System:
      app.setPalette(QPalette());
      break;
    case Theme::Light:
      app.setPalette(MakePalette(kLight));
      break;
    case Theme::Dark:
      app.setPalette(MakePalette(kDark));
      break;
  }
}

}  // namespace veldox
