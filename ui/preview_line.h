#pragma once

#include <QLabel>
#include <QTimer>
#include <chrono>
#include <map>

#include "core/dry_run.h"
#include "ui/face.h"

namespace veldox {

/// The line under the help place that tells what the command would change on which the pointer
/// rests, or that has the keyboard.
class PreviewLine : public QLabel {
 public:
  /// @param most  the last role of commands that are told: those behind it are not
  explicit PreviewLine(QWidget* parent, CommandRole most = CommandRole::Calculates);

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

  CommandRole most_;
  Command* command_ = nullptr;
  QString standing_;
  Preview preview_;
  QTimer rest_;
  /// How long the last dry run of a command took, for those that take long.
  std::map<const Command*, std::chrono::microseconds> slow_;
};

/// Makes the line of a window, told by its faces.
PreviewLine* MakePreviewLine(FaceSet& faces, QWidget* parent,
                             CommandRole most = CommandRole::Calculates);

}  // namespace veldox
