#include "ui/control_faces.h"

#include <QAbstractItemView>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QPointer>
#include <QScreen>
#include <QStyle>
#include <QToolTip>
#include <QWheelEvent>
#include <algorithm>

#include "core/panel.h"
#include "core/results.h"
#include "core/tool_screen.h"
#include "ui/fixed_font.h"
#include "ui/qt_text.h"
#include "ui/theme.h"

namespace veldox {
namespace {

/// Room for the longest result, which has eleven decimals.
constexpr int kFieldDigits = 13;
/// Room for the name of a control in a list of them.
constexpr int kControlDigits = 30;
/// Border and margins of a text box, and its point.
constexpr int kFieldEdges = 20;
/// Said beside the help of the command that it is true of.
constexpr const char* kAgainHelp = "Ctrl+Enter anywhere in this window does the same.";
/// Longer labels take a second line.
constexpr int kLabelDigits = 30;

int DigitsWidth(const QWidget& widget, int digits) {
  return widget.fontMetrics().horizontalAdvance(QLatin1Char('0')) * digits;
}

/// A caption for a label. A file's name, which is one long word, may break behind its signs; a
/// number without a leading zero must not.
QString LabelText(const Control& control) {
  QString text = ToQtLines(control.caption());
  constexpr QChar kNoBreakHere(0x2060);
  for (qsizetype i = 1; i + 1 < text.size(); ++i) {
    if (text[i] == QLatin1Char('.') && text[i - 1].isSpace() && text[i + 1].isDigit()) {
      text.insert(i + 1, kNoBreakHere);
    }
  }
  constexpr QChar kBreakHere(0x200b);
  constexpr qsizetype kLongWord = 24;
  if (text.size() > kLongWord && !text.contains(QLatin1Char(' '))) {
    text.replace(QLatin1Char('_'), QLatin1String("_") + QString(kBreakHere));
  }
  return text;
}

/// The widest that a label gets before it breaks its lines; large letters leave room for a field
/// and its unit beside it.
int WidestLabel(const QLabel& label) {
  return std::min(DigitsWidth(label, kLabelDigits),
                  QGuiApplication::primaryScreen()->availableSize().width() / 2);
}

QLabel* MakeLabel(const Control& control, QWidget* parent) {
  auto* label = new QLabel(ToQtLines(control.caption()), parent);
  label->setTextFormat(Qt::PlainText);
  const int widest = WidestLabel(*label);
  if (label->sizeHint().width() > widest) {
    label->setWordWrap(true);
    label->setMinimumWidth(widest);
  }
  return label;
}

Qt::Alignment QtAlignment(EntryAlignment alignment) {
  switch (alignment) {
    case EntryAlignment::Left: return Qt::AlignLeft;
    case EntryAlignment::Right: return Qt::AlignRight;
    case EntryAlignment::Center: break;
  }
  return Qt::AlignHCenter;
}

/// A list whose row the wheel turns only while it has the focus.
class CalmComboBox : public QComboBox {
 public:
  explicit CalmComboBox(QWidget* parent) : QComboBox(parent) { setFocusPolicy(Qt::StrongFocus); }

 protected:
  void wheelEvent(QWheelEvent* event) override {
    if (hasFocus()) {
      QComboBox::wheelEvent(event);
    } else {
      event->ignore();
    }
  }
};

}  // namespace

FieldFace::FieldFace(FaceSet& set, Field& field, QWidget* parent)
    : Face(set, field, new FieldEdit(field, parent)),
      field_(field),
      label_(MakeLabel(field, parent)),
      edit_(static_cast<FieldEdit*>(widget())),
      unit_(new QLabel(parent)) {
  set.look().DressEntry(*edit_);
  if (edit_->plain()) {
    set.look().DressPlainResult(*edit_);
  } else {
    edit_->setAlignment(QtAlignment(set.look().appearance().alignment) | Qt::AlignVCenter);
  }
  const auto* words = dynamic_cast<const TextField*>(&field);
  edit_->setFixedWidth(DigitsWidth(*edit_, words != nullptr ? words->characters() : kFieldDigits) +
                       kFieldEdges);
  label_->setBuddy(edit_);
  unit_->setTextFormat(Qt::PlainText);
}

void FieldFace::Follow() {
  Face::Follow();
  if (const QString caption = ToQtLines(field_.caption()); caption != label_->text()) {
    label_->setText(caption);
  }
  const QString unit = ToQt(UnitSign(field_.unit(), field_.screen().metric()));
  if (unit != unit_->text()) unit_->setText(unit);
  edit_->Describe(field_);
  for (QLabel* label : {label_, unit_}) {
    label->setVisible(field_.visible());
    label->setEnabled(field_.enabled());
  }
  edit_->Follow();
}

LabelFace::LabelFace(FaceSet& set, Label& label, QWidget* parent)
    : Face(set, label, MakeLabel(label, parent)), label_(static_cast<QLabel*>(widget())) {}

void LabelFace::Follow() {
  Face::Follow();
  const QString text = LabelText(control());
  if (text != label_->text()) {
    label_->setText(text);
    label_->setAccessibleName(ToQtLines(control().caption()));
    label_->setWordWrap(label_->wordWrap() ||
                        label_->fontMetrics().horizontalAdvance(text) > WidestLabel(*label_));
  }
}

CheckBoxFace::CheckBoxFace(FaceSet& set, CheckBox& box, QWidget* parent)
    : Face(set, box, new QCheckBox(ToQt(box.caption()), parent)),
      box_(box),
      widget_(static_cast<QCheckBox*>(widget())) {
  connect(widget_, &QCheckBox::clicked, this, [this] {
    if (TakesClick()) box_.Click();
    Follow();
  });
}

void CheckBoxFace::Follow() {
  Face::Follow();
  widget_->setText(ToQt(box_.caption()));
  widget_->setChecked(box_.on());
}

OptionButtonFace::OptionButtonFace(FaceSet& set, OptionButton& option, QWidget* parent)
    : Face(set, option, new QRadioButton(ToQt(option.caption()), parent)),
      option_(option),
      button_(static_cast<QRadioButton*>(widget())) {
  if (option.group().isParted()) set.ButtonsOf(option.group()).addButton(button_);
  connect(button_, &QRadioButton::clicked, this, [this] {
    if (TakesClick()) option_.Click();
    // The button that is chosen shows it, whatever came of the click.
    for (const auto& button : option_.group().buttons()) {
      if (Face* face = this->set().Of(*button)) face->Follow();
    }
  });
}

void OptionButtonFace::Follow() {
  Face::Follow();
  button_->setText(ToQt(option_.caption()));
  if (option_.on()) button_->setChecked(true);
}

OptionRowsFace::OptionRowsFace(FaceSet& set, OptionRows& rows, QWidget* parent)
    : Face(set, rows, new QWidget(parent)) {
  auto* grid = new QGridLayout(widget());
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(8);
  grid->setVerticalSpacing(3);
  int row = 0;
  const int columns = std::max(1, rows.buttonsInRow());
  if (!rows.caption().empty()) {
    QLabel* caption = MakeLabel(rows, widget());
    set.look().MakeFaint(*caption);
    grid->addWidget(caption, row++, 0, 1, columns);
  }
  int column = 0;
  for (OptionButton* option : rows.buttonsHere()) {
    auto& face = set.Make<OptionButtonFace>(*option, widget());
    buttons_.push_back(&face);
    // Members that are never shown take no cell.
    if (!option->visible()) continue;
    grid->addWidget(face.widget(), row, column);
    if (++column == columns) {
      column = 0;
      ++row;
    }
  }
  grid->setColumnStretch(columns, 1);
}

void OptionRowsFace::Follow() {
  Face::Follow();
  for (OptionButtonFace* button : buttons_) button->Follow();
}

ComboFace::ComboFace(FaceSet& set, ComboList& list, QWidget* parent)
    : Face(set, list, new CalmComboBox(parent)),
      list_(list),
      label_(MakeLabel(list, parent)),
      combo_(static_cast<QComboBox*>(widget())) {
  label_->setBuddy(combo_);
  set.look().DressEntry(*combo_);
  if (dynamic_cast<const ControlList*>(&list) != nullptr) {
    // Its rows are those of one screen and then of another; the box stays as wide.
    combo_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    combo_->setFixedWidth(DigitsWidth(*combo_, kControlDigits));
  }
  connect(combo_, &QComboBox::activated, this, [this](int row) { list_.Pick(row); });
}

void ComboFace::Follow() {
  Face::Follow();
  QStringList rows;
  for (const std::string& row : list_.rows()) rows.append(ToQt(row));
  bool same = rows.size() == combo_->count();
  for (int i = 0; same && i < combo_->count(); ++i) same = rows[i] == combo_->itemText(i);
  if (!same) {
    combo_->clear();
    combo_->addItems(rows);
    // What is longer than the box is whole in its list.
    combo_->view()->setMinimumWidth(combo_->view()->sizeHintForColumn(0) +
                                    combo_->style()->pixelMetric(QStyle::PM_ScrollBarExtent));
  }
  combo_->setCurrentIndex(list_.chosen());
  label_->setVisible(list_.visible());
}

CommandFace::CommandFace(FaceSet& set, Command& command, QWidget* parent)
    : Face(set, command, new QPushButton(ToQt(command.caption()), parent)),
      command_(command),
      button_(static_cast<QPushButton*>(widget())) {
  set.look().DressCommand(*button_, command.role() == CommandRole::Closes ||
                                        &command == command.screen().QuitCommand());
  // The page in sight is told by its button.
  button_->setCheckable(command.page() != nullptr);
  connect(button_, &QPushButton::clicked, this, [this] {
    // Which page is in sight is not the button's to say.
    FollowPage();
    if (!TakesClick()) return;
    const QPointer<Face> self = this;
    command_.Click();
    // What it would do now is another thing.
    if (self && (button_->underMouse() || button_->hasFocus())) this->set().PointAt(&command_);
  });
}

void CommandFace::Follow() {
  Face::Follow();
  button_->setText(ToQt(control().caption()));
  FollowPage();
}

void CommandFace::FollowPage() {
  if (const ScreenPage* page = command_.page()) button_->setChecked(page->visible());
}

bool CommandFace::eventFilter(QObject* watched, QEvent* event) {
  if (watched == button_ && event->type() == QEvent::ToolTip && command_.isNextCalculation()) {
    const QString help = button_->toolTip();
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(),
                       help + QLatin1String(help.isEmpty() ? "" : "\n") + QLatin1String(kAgainHelp),
                       button_);
    return true;
  }
  if (watched == button_) {
    if (event->type() == QEvent::Enter) set().PointAt(&command_);
    if (event->type() == QEvent::Leave || event->type() == QEvent::FocusOut) set().PointAt(nullptr);
    if (event->type() == QEvent::FocusIn &&
        CameByKeyboard(static_cast<QFocusEvent*>(event)->reason())) {
      set().PointAt(&command_);
    }
  }
  return Face::eventFilter(watched, event);
}

TextAreaFace::TextAreaFace(FaceSet& set, TextControl& area, QWidget* parent)
    : Face(set, area, new LinesEdit(area, parent)),
      area_(area),
      edit_(static_cast<LinesEdit*>(widget())) {
  set.look().DressEntry(*edit_);
  // Results and tables have their numbers under each other.
  if (area.rule() == KeyRule::OutputOnly || dynamic_cast<const NumberLines*>(&area) != nullptr)
    edit_->setFont(FixedPitchFont(edit_->font()));
}

void TextAreaFace::Follow() {
  Face::Follow();
  edit_->Show(ToQtLines(area_.text()));
}

}  // namespace veldox
