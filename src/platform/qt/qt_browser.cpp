#include "platform/qt/qt_browser.h"

#include <QDesktopServices>
#include <QUrl>

namespace platform::qt {

bool QtBrowser::Open(const std::string& address) {
  const QUrl url(QString::fromUtf8(address.data(), static_cast<qsizetype>(address.size())),
                 QUrl::StrictMode);
  const bool ofTheWeb =
      url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https");
  return url.isValid() && ofTheWeb && !url.host().isEmpty() && QDesktopServices::openUrl(url);
}

}  // namespace platform::qt
