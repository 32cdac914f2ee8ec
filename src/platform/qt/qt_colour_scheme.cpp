#include "platform/qt/qt_colour_scheme.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QGuiApplication>
#include <QPalette>
#include <utility>

namespace platform::qt {
namespace {

constexpr QLatin1String kService("org.freedesktop.portal.Desktop");
constexpr QLatin1String kPath("/org/freedesktop/portal/desktop");
constexpr QLatin1String kInterface("org.freedesktop.portal.Settings");
constexpr QLatin1String kSpace("org.freedesktop.appearance");
constexpr QLatin1String kKey("color-scheme");

constexpr uint kPrefersDark = 1;
constexpr uint kPrefersLight = 2;

ColourScheme OfPalette() {
  const bool dark = QGuiApplication::palette().color(QPalette::Window).lightness() < 128;
  return dark ? ColourScheme::Dark : ColourScheme::Light;
}

// Some portals wrap the value twice.
uint NumberIn(QVariant value) {
  while (value.canConvert<QDBusVariant>()) value = value.value<QDBusVariant>().variant();
  return value.toUInt();
}

}  // namespace

QtColourScheme::QtColourScheme(Tell tell, const QDBusConnection& bus)
    : tell_(std::move(tell)), ofPalette_(OfPalette()) {
  tell_(ofPalette_);
  if (bus.isConnected()) Ask(bus);
}

void QtColourScheme::Ask(QDBusConnection bus) {
  qRegisterMetaType<QDBusVariant>();  // else the slot can't be tied by its signature
  // From any sender: to watch for one by its name the bus would have to be asked, and waited for.
  bus.connect(QString(), kPath, kInterface, QStringLiteral("SettingChanged"), this,
              SLOT(OnSettingChanged(QString, QString, QDBusVariant)));
  auto read = QDBusMessage::createMethodCall(kService, kPath, kInterface, QStringLiteral("Read"));
  read << kSpace << kKey;
  auto* answer = new QDBusPendingCallWatcher(bus.asyncCall(read), this);
  connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
    const QDBusPendingReply<QDBusVariant> reply = *answer;
    if (reply.isValid()) Take(QVariant::fromValue(reply.value()));
    answer->deleteLater();
  });
}

void QtColourScheme::OnSettingChanged(const QString& space, const QString& key,
                                      const QDBusVariant& value) {
  if (space == kSpace && key == kKey) Take(QVariant::fromValue(value));
}

void QtColourScheme::Take(const QVariant& value) {
  const uint wish = NumberIn(value);
  tell_(wish == kPrefersDark    ? ColourScheme::Dark
        : wish == kPrefersLight ? ColourScheme::Light
                                : ofPalette_);
}

}  // namespace platform::qt
