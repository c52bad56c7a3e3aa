#include "ui/widget_help.h"

#include <QFocusEvent>
#include <QWidget>

#include "core/screen.h"
#include "ui/face.h"
#include "ui/qt_text.h"

namespace veldox {
namespace {

/// Watches a widget, which owns it.
class HelpFilter : public QObject {
 public:
  HelpFilter(QWidget& widget, Screen& screen, const QString& sentence)
      : QObject(&widget), screen_(screen), sentence_(FromQt(sentence)) {
    widget.installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    switch (event->type()) {
      case QEvent::Enter: screen_.ShowHelp(sentence_); break;
      case QEvent::Leave: screen_.Hover(nullptr); break;
      case QEvent::FocusIn:
        if (CameByKeyboard(static_cast<QFocusEvent*>(event)->reason())) {
          screen_.ShowHelp(sentence_);
        }
        break;
      default: break;
    }
    return QObject::eventFilter(watched, event);
  }

 private:
  Screen& screen_;
  std::string sentence_;
};

}  // namespace

void GiveHelp(QWidget& widget, Screen& screen, const QString& sentence) {
  widget.setToolTip(sentence);
  widget.setAccessibleDescription(sentence);
  new HelpFilter(widget, screen, sentence);
}

}  // namespace veldox
