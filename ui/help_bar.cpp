#include "ui/help_bar.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QSignalBlocker>
#include <QTextBlock>
#include <QTextDocument>
#include <QVBoxLayout>
#include <algorithm>

#include "core/files.h"
#include "core/report.h"
#include "ui/qt_printer.h"
#include "ui/qt_text.h"
#include "ui/theme.h"
#include "ui/widget_help.h"

namespace veldox {
namespace {

constexpr int kHelpLines = 3;
constexpr int kReportLines = 16;

}  // namespace

HelpBar::HelpBar(const WindowLook& look, QWidget* parent)
    : QWidget(parent), label_(new QLabel(this)), ground_(look.helpGround()) {
  look.DressHelp(*this);
  label_->setTextFormat(Qt::PlainText);
  label_->setWordWrap(true);
  label_->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  label_->setTextInteractionFlags(Qt::NoTextInteraction);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(10, 2, 10, 2);
  row->addWidget(label_);
  setFixedHeight(fontMetrics().lineSpacing() * kHelpLines + 8);
  // A long sentence must not widen the window.
  label_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
}

void HelpBar::paintEvent(QPaintEvent*) {
  const ThemeColors colors(palette());
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(colors.border);
  painter.setBrush(ground_.value_or(colors.card));
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 6, 6);
}

HelpFace::HelpFace(FaceSet& set, Control& place, HelpBar* bar)
    : Face(set, place, bar->label()), label_(bar->label()) {}

void HelpFace::Follow() {
  Face::Follow();
  const auto* box = dynamic_cast<const TextControl*>(&control());
  label_->setText(ToQtLines(box == nullptr ? control().caption() : box->text()));
  label_->setAccessibleName(label_->text());
}

ReportHeads::ReportHeads(LinesEdit& rows) : QWidget(&rows), rows_(rows) {
  hide();
  // The wheel turns the rows here as well.
  setAttribute(Qt::WA_TransparentForMouseEvents);
  connect(rows.verticalScrollBar(), &QScrollBar::valueChanged, this, &ReportHeads::Follow);
  // Scrolled by the caret, the text box moves its bar without a word.
  connect(&rows, &QPlainTextEdit::updateRequest, this, [this](const QRect& area, int dy) {
    if (dy != 0 || area == rows_.viewport()->rect()) Follow();
  });
  // The caret has moved; the rows follow it, and then the heads must not lie over it.
  connect(&rows, &QPlainTextEdit::cursorPositionChanged, this, &ReportHeads::KeepCaretInSight,
          Qt::QueuedConnection);
  connect(rows.horizontalScrollBar(), &QScrollBar::valueChanged, this,
          qOverload<>(&QWidget::update));
}

void ReportHeads::SetReport(const std::string& report) {
  lines_.clear();
  lastLine_ = -1;
  int line = 0;
  for (const MarkedLine& marked : ReportLines(report)) {
    if (marked.mark == LineMark::Heading) {
      lines_.append(ToQt(marked.text));
      lastLine_ = line;
    } else if (lastLine_ >= 0) {
      break;
    }
    ++line;
  }
  Follow();
}

void ReportHeads::Follow() {
  const bool scrolledPast = lastLine_ >= 0 && rows_.verticalScrollBar()->value() > lastLine_;
  setVisible(scrolledPast);
  if (!scrolledPast) return;
  // As many whole rows as there are heads lie under them.
  const QRect firstRow = rows_.cursorRect(rows_.cursorForPosition(QPoint(0, 0)));
  const int height = firstRow.top() + static_cast<int>(lines_.size()) * firstRow.height();
  const QRect viewport = rows_.viewport()->geometry();
  setGeometry(viewport.left(), viewport.top(), viewport.width(), height + 1);
  raise();
  update();
}

void ReportHeads::KeepCaretInSight() {
  if (!isVisible()) return;
  const QRect caret = rows_.cursorRect();
  const int hidden = height() - caret.top();
  if (hidden <= 0 || caret.height() <= 0) return;
  QScrollBar& bar = *rows_.verticalScrollBar();
  bar.setValue(bar.value() - (hidden + caret.height() - 1) / caret.height());
}

void ReportHeads::paintEvent(QPaintEvent*) {
  const ThemeColors colors(palette());
  QPainter painter(this);
  // Where the rows have a ground of their own, their heads lie on it as well.
  const QColor rowsGround = rows_.palette().color(QPalette::Base);
  const bool isOwn = rowsGround != QApplication::palette().color(QPalette::Base);
  painter.fillRect(rect(), isOwn ? rowsGround : colors.card);
  painter.setPen(colors.border);
  painter.drawLine(0, height() - 1, width(), height() - 1);
  QFont font = rows_.font();
  font.setBold(true);
  painter.setFont(font);
  painter.setPen(rows_.palette().color(QPalette::Text));
  const QFontMetrics metrics(rows_.font());
  const int left =
      static_cast<int>(rows_.document()->documentMargin()) - rows_.horizontalScrollBar()->value();
  int baseline = metrics.ascent() + 1;
  for (const QString& line : lines_) {
    painter.drawText(left, baseline, line);
    baseline += metrics.lineSpacing();
  }
}

FindBar::FindBar(LinesEdit& text)
    : text_(text), wanted_(new QLineEdit(this)), answer_(new QLabel(this)) {
  setObjectName(QStringLiteral("FindBar"));
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  auto* label = new QLabel(QStringLiteral("&Find"), this);
  label->setBuddy(wanted_);
  wanted_->setMinimumWidth(fontMetrics().averageCharWidth() * 24);
  row->addWidget(label);
  row->addWidget(wanted_);
  for (const bool backward : {true, false}) {
    auto* button =
        new QPushButton(backward ? QStringLiteral("Previous") : QStringLiteral("Next"), this);
    connect(button, &QPushButton::clicked, this, [this, backward] { Find(backward); });
    row->addWidget(button);
  }
  row->addWidget(answer_, 1);
  connect(wanted_, &QLineEdit::returnPressed, this, [this] { Find(false); });
  connect(wanted_, &QLineEdit::textChanged, this, [this] { answer_->clear(); });
  hide();
}

void FindBar::Open() {
  show();
  wanted_->setFocus(Qt::ShortcutFocusReason);
  wanted_->selectAll();
}

void FindBar::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Escape) return QWidget::keyPressEvent(event);
  hide();
  text_.setFocus(Qt::OtherFocusReason);
}

void FindBar::Find(bool backward) {
  if (wanted_->text().isEmpty()) return;
  const auto flags = backward ? QTextDocument::FindBackward : QTextDocument::FindFlags();
  if (text_.find(wanted_->text(), flags)) {
    answer_->clear();
    return;
  }
  // Round the end of the report to its other end, once.
  const QTextCursor before = text_.textCursor();
  text_.moveCursor(backward ? QTextCursor::End : QTextCursor::Start);
  if (text_.find(wanted_->text(), flags)) {
    answer_->setText(QStringLiteral("Gone on from the other end."));
  } else {
    text_.setTextCursor(before);
    answer_->setText(QStringLiteral("Not in this report."));
  }
}

ReportPanel::ReportPanel(ReportBox& box, const WindowLook& look, QWidget* parent)
    : QWidget(parent), box_(box), look_(look), edit_(new LinesEdit(box, this)) {
  look_.DressReport(*edit_);
  heads_ = new ReportHeads(*edit_);
  find_ = new FindBar(*edit_);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(4);
  column->addWidget(edit_, 1);
  column->addWidget(find_);
  auto* keys = new QHBoxLayout;
  age_ = new QLabel(QLatin1String(kOutOfDate), this);
  QFont slanted = age_->font();
  slanted.setItalic(true);
  age_->setFont(slanted);
  age_->hide();
  keys->addWidget(age_);
  keys->addStretch();
  connect(AddButton(*keys, "Find  (Ctrl+F)", "Look for a text in this report."),
          &QPushButton::clicked, this, [this] { find_->Open(); });
  connect(AddButton(*keys, "Save as PDF", "Save the pages of this report as a PDF file."),
          &QPushButton::clicked, this, [this] { SaveAsPdf(); });
  connect(AddButton(*keys, "Preview", "Show the pages of this report as they would be printed."),
          &QPushButton::clicked, this, [this] {
            box_.screen().Perform([this] {
              box_.screen().context().host.PreviewPages(PageJob::Report, box_.Pages());
            });
          });
  connect(AddButton(*keys, "Write to File  (.)", "Write this report to a disk file."),
          &QPushButton::clicked, this, [this] { box_.FilterKey(U'.'); });
  connect(AddButton(*keys, "Print  (,)", "Print this report."), &QPushButton::clicked, this,
          [this] { box_.FilterKey(U','); });
  connect(AddButton(*keys, "Close  (any key)", "Close this report."), &QPushButton::clicked, this,
          [this] { box_.FilterKey(U' '); });
  column->addLayout(keys);
  auto* shortcut = new QShortcut(QKeySequence::Find, this);
  shortcut->setContext(Qt::WidgetWithChildrenShortcut);
  connect(shortcut, &QShortcut::activated, this, [this] { find_->Open(); });
}

QPushButton* ReportPanel::AddButton(QBoxLayout& row, const char* caption, const char* tip) {
  auto* button = new QPushButton(QLatin1String(caption), this);
  look_.DressCommand(*button, false);
  GiveHelp(*button, box_.screen(), QLatin1String(tip));
  button->setMinimumWidth(button->sizeHint().width() + 16);
  row.addWidget(button);
  return button;
}

std::vector<QWidget*> ReportPanel::TabChain() const {
  std::vector<QWidget*> chain{edit_};
  for (QLineEdit* line : find_->findChildren<QLineEdit*>()) chain.push_back(line);
  for (QPushButton* button : find_->findChildren<QPushButton*>()) chain.push_back(button);
  for (QPushButton* button : findChildren<QPushButton*>(QString(), Qt::FindDirectChildrenOnly)) {
    chain.push_back(button);
  }
  return chain;
}

void ReportPanel::SaveAsPdf() {
  box_.screen().Perform([this] {
    Host& host = box_.screen().context().host;
    const auto path =
        host.AskFile({FileDialog::Kind::Save, "PDF Files (*.pdf)|*.pdf|All Files (*.*)|*.*", 1,
                      host.ProgramFolder()});
    if (path) SaveFile(*path, host.PagesAsPdf(PageJob::Report, box_.Pages()));
  });
}

void ReportPanel::Follow() {
  const bool isOutdated = box_.mark() == Mark::Outdated;
  age_->setVisible(isOutdated);
  edit_->setAccessibleDescription(isOutdated ? QLatin1String(kOutOfDate) : QString());
  if (box_.text() == shown_) return;
  // A report that is made anew by itself stays scrolled to what the user reads.
  const QScrollBar& bar = *edit_->verticalScrollBar();
  const bool isAnew = !shown_.empty() && box_.screen().context().current.isRunning();
  const int scrolled = bar.value();
  const bool wasAtEnd = scrolled == bar.maximum();
  // The caret, which goes back to the beginning, is not brought into sight then.
  const QSignalBlocker caret(isAnew ? edit_ : nullptr);
  shown_ = box_.text();
  edit_->Show(ToQtLines(box_.text()));
  SetOff(SetOffColumns(ReportLines(box_.report())));
  heads_->SetReport(box_.report());
  edit_->moveCursor(QTextCursor::Start);
  if (isAnew) edit_->verticalScrollBar()->setValue(wasAtEnd ? bar.maximum() : scrolled);
  find_->hide();
}

void ReportPanel::SetOff(const std::vector<SetOffColumn>& columns) {
  constexpr int kTint = 48;  // of 255: the text on it stays as easy to read
  QColor tint = ThemeColors(palette()).accent;
  tint.setAlpha(kTint);
  QList<QTextEdit::ExtraSelection> cells;
  for (const SetOffColumn& column : columns) {
    QTextBlock row = edit_->document()->findBlockByNumber(static_cast<int>(column.firstLine));
    for (std::size_t line = column.firstLine; line < column.endLine && row.isValid(); ++line) {
      const int length = row.length() - 1;  // without the line break
      QTextEdit::ExtraSelection cell;
      cell.cursor = QTextCursor(row);
      cell.cursor.setPosition(row.position() + std::min(static_cast<int>(column.begin), length));
      cell.cursor.setPosition(row.position() + std::min(static_cast<int>(column.end), length),
                              QTextCursor::KeepAnchor);
      cell.format.setBackground(tint);
      cells.push_back(cell);
      row = row.next();
    }
  }
  edit_->setExtraSelections(cells);
}

void ReportPanel::showEvent(QShowEvent* event) {
  // Looked up when the first report opens: start-up does not pay for it.
  edit_->setFont(look_.ReportFont());
  // Large letters leave the frames their room.
  edit_->setMinimumHeight(std::min(QFontMetrics(edit_->font()).lineSpacing() * kReportLines,
                                   screen()->availableSize().height() * 2 / 5));
  QWidget::showEvent(event);
}

void ReportPanel::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  heads_->Follow();
}

ReportFace::ReportFace(FaceSet& set, ReportBox& box, ReportPanel* panel, HelpBar* help)
    : Face(set, box, panel->edit()), box_(box), panel_(panel), help_(help) {}

void ReportFace::Follow() {
  const std::string& text = box_.text();
  const bool sentence = help_ != nullptr && std::count(text.begin(), text.end(), '\n') < kHelpLines;
  if (help_ != nullptr) {
    const bool shows = sentence && box_.visible();
    help_->label()->setText(ToQtLines(shows ? text : box_.sentence()));
  }
  const bool shows = box_.visible() && !sentence && !text.empty();
  // The keyboard must not jump to what stands next when the panel goes.
  if (!shows && panel_->isAncestorOf(QApplication::focusWidget())) {
    panel_->window()->setFocus(Qt::OtherFocusReason);
  }
  panel_->setVisible(shows);
  panel_->Follow();
}

}  // namespace veldox
