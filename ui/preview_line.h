#pragma once

#include <QLabel>
#include <QTimer>
#include <chrono>
#include <map>

#include "core/dry_run.h"

namespace veldox {

/// The line under the help place that tells what the command would change on which the pointer
/// rests, or that has the keyboard.
class PreviewLine : public QLabel {
 public:
  explicit PreviewLine(QWidget* parent);

  /// The pointer or the keyboard has come to a command; null when it has left.
  void Follow(Command* command);
  /// What it tells while no command is pointed at.
  void SetStanding(const QString& text);
  /// The command it tells of has run.
  void FollowAgain() { Follow(command_); }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void Run(bool mayTakeLong);
  void Tell();

  Command* command_ = nullptr;
  QString standing_;
  Preview preview_;
  QTimer rest_;
  /// How long the last dry run of a command took, for those that take long.
  std::map<const Command*, std::chrono::microseconds> slow_;
};

}  // namespace veldox
