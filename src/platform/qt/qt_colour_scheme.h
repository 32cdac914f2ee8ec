#pragma once

#include <QDBusConnection>
#include <QDBusVariant>
#include <QObject>
#include <functional>

#include "platform/colour_scheme.h"

namespace platform::qt {

// What the desktop has: as its portal says, else by the lightness of the palette that the
// application has when this is made.
class QtColourScheme : public QObject {
  Q_OBJECT

 public:
  using Tell = std::function<void(ColourScheme)>;

  // Tells what the palette has at once, then what the portal answers, then each change. Asks the
  // portal on the given bus; nothing waits for it.
  explicit QtColourScheme(Tell tell, const QDBusConnection& bus = QDBusConnection::sessionBus());

 private:
  Q_SLOT void OnSettingChanged(const QString& space, const QString& key, const QDBusVariant& value);
  void Ask(QDBusConnection bus);
  void Take(const QVariant& value);

  Tell tell_;
  ColourScheme ofPalette_;
};

}  // namespace platform::qt
