#include "ui/desktop_portal.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QFileInfo>
#include <QStandardPaths>
#include <utility>

namespace veldox {
namespace {

constexpr const char* kService = "org.freedesktop.portal.Desktop";
constexpr const char* kPath = "/org/freedesktop/portal/desktop";
constexpr const char* kInterface = "org.freedesktop.portal.Settings";
constexpr const char* kSpace = "org.freedesktop.appearance";
constexpr const char* kKey = "color-scheme";
/// What the portal answers where the user wants dark windows.
constexpr uint kDark = 1;
/// A portal that runs answers at once; the first window does not wait for one that has to start.
constexpr int kPatience = 250;  ///< milliseconds

QVariant Unwrapped(QVariant value) {
  while (value.canConvert<QDBusVariant>()) value = value.value<QDBusVariant>().variant();
  return value;
}

}  // namespace

bool HasSessionBus() {
  if (!qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS")) return true;
  const QString folder = qEnvironmentVariable("XDG_RUNTIME_DIR");
  return !folder.isEmpty() && QFileInfo::exists(folder + QStringLiteral("/bus"));
}

DesktopPortal::DesktopPortal(const QDBusConnection& bus, std::function<void()> changed)
    : bus_(bus), changed_(std::move(changed)) {
  if (!bus_.isConnected()) return;
  // The slot takes the message whole: a slot with its arguments is not found where nothing has
  // been sent before.
  bus_.connect(QLatin1String(kService), QLatin1String(kPath), QLatin1String(kInterface),
               QStringLiteral("SettingChanged"), this, SLOT(SettingChanged(QDBusMessage)));
  QDBusMessage question =
      QDBusMessage::createMethodCall(QLatin1String(kService), QLatin1String(kPath),
                                     QLatin1String(kInterface), QStringLiteral("Read"));
  question << QString::fromLatin1(kSpace) << QString::fromLatin1(kKey);
  const QDBusMessage answer = bus_.call(question, QDBus::Block, kPatience);
  if (answer.type() == QDBusMessage::ReplyMessage && !answer.arguments().isEmpty()) {
    prefersDark_ = Unwrapped(answer.arguments().front()).toUInt() == kDark;
  } else if (answer.errorName() == QLatin1String("org.freedesktop.DBus.Error.NoReply") ||
             answer.errorName() == QLatin1String("org.freedesktop.DBus.Error.Timeout")) {
    AskAgain(question);
  }
}

void DesktopPortal::AskAgain(const QDBusMessage& question) {
  auto* watcher = new QDBusPendingCallWatcher(bus_.asyncCall(question), this);
  connect(watcher, &QDBusPendingCallWatcher::finished, this,
          [this](QDBusPendingCallWatcher* finished) {
            const QDBusPendingReply<QDBusVariant> reply = *finished;
            if (reply.isValid()) Take(reply.value().variant());
            finished->deleteLater();
          });
}

void DesktopPortal::SettingChanged(const QDBusMessage& message) {
  // The space of the setting, its key, its value.
  const QVariantList said = message.arguments();
  if (said.size() == 3 && said[0] == QLatin1String(kSpace) && said[1] == QLatin1String(kKey)) {
    Take(said[2]);
  }
}

void DesktopPortal::Take(const QVariant& value) {
  const bool dark = Unwrapped(value).toUInt() == kDark;
  if (dark == prefersDark_) return;
  prefersDark_ = dark;
  changed_();
}

}  // namespace veldox
