#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <functional>

namespace veldox {

/// Asks the desktop's settings portal whether windows are to be dark, and hears of changes.
class DesktopPortal : public QObject {
  Q_OBJECT

 public:
  /// @param changed  is told when the answer has changed
  DesktopPortal(const QDBusConnection& bus, std::function<void()> changed);

  /// False while the portal has not answered, or says nothing of it.
  bool prefersDark() const { return prefersDark_; }

 private Q_SLOTS:
  void SettingChanged(const QDBusMessage& message);

 private:
  void Take(const QVariant& value);
  void AskAgain(const QDBusMessage& question);

  QDBusConnection bus_;
  std::function<void()> changed_;
  bool prefersDark_ = false;
};

/// True where a session bus can be reached without starting one.
bool HasSessionBus();

}  // namespace veldox
