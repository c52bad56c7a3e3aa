#include "ui/help_bar.h"

#include <QFontDatabase>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "ui/qt_text.h"
#include "ui/theme.h"

namespace veldox {
namespace {

constexpr int kHelpLines = 3;
constexpr int kReportLines = 16;

}  // namespace

HelpBar::HelpBar(QWidget* parent) : QWidget(parent), label_(new QLabel(this)) {
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
  painter.setBrush(colors.card);
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 6, 6);
}

HelpFace::HelpFace(FaceSet& set, Control& place, HelpBar* bar)
    : Face(set, place, bar->label()), label_(bar->label()) {}

void HelpFace::Follow() {
  Face::Follow();
  label_->setText(ToQtLines(control().caption()));
  label_->setAccessibleName(label_->text());
}

ReportPanel::ReportPanel(ReportBox& box, QWidget* parent)
    : QWidget(parent), edit_(new LinesEdit(box, this)) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(4);
  column->addWidget(edit_);
  auto* keys = new QHBoxLayout;
  keys->addStretch();
  const struct {
    const char* caption;
    char32_t key;
  } buttons[] = {{"Write to File  (.)", U'.'}, {"Print  (,)", U','}};
  for (const auto& [caption, key] : buttons) {
    auto* button = new QPushButton(QLatin1String(caption), this);
    button->setMinimumWidth(button->sizeHint().width() + 24);
    const char32_t code = key;
    connect(button, &QPushButton::clicked, edit_, [&box, code] { box.FilterKey(code); });
    keys->addWidget(button);
  }
  column->addLayout(keys);
}

void ReportPanel::showEvent(QShowEvent* event) {
  // Looked up when the first report opens: start-up does not pay for it.
  edit_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  edit_->setMinimumHeight(QFontMetrics(edit_->font()).lineSpacing() * kReportLines);
  QWidget::showEvent(event);
}

ReportFace::ReportFace(FaceSet& set, ReportBox& box, ReportPanel* panel, HelpBar* help)
    : Face(set, box, panel->edit()), box_(box), panel_(panel), help_(help) {}

void ReportFace::Follow() {
  const std::string& text = box_.text();
  const bool sentence = help_ != nullptr && std::count(text.begin(), text.end(), '\n') < kHelpLines;
  if (help_ != nullptr) {
    help_->label()->setText(sentence && box_.visible() ? ToQtLines(text) : QString());
  }
  panel_->edit()->Show(ToQtLines(text));
  panel_->setVisible(box_.visible() && !sentence && !text.empty());
}

}  // namespace veldox
