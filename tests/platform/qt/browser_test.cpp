#include "platform/qt/qt_browser.h"

#include <gmock/gmock.h>

#include <QDesktopServices>
#include <QObject>
#include <QUrl>
#include <array>
#include <string>
#include <vector>

using platform::qt::QtBrowser;
using testing::ElementsAre;
using testing::IsEmpty;

// Takes what the desktop would be asked to open.
class FakeDesktop : public QObject {
  Q_OBJECT

 public:
  FakeDesktop() {
    for (const char* scheme : kSchemes) QDesktopServices::setUrlHandler(scheme, this, "Take");
  }
  ~FakeDesktop() override {
    for (const char* scheme : kSchemes) QDesktopServices::unsetUrlHandler(scheme);
  }
  Q_SLOT void Take(const QUrl& url) { asked.push_back(url.toString().toStdString()); }
  std::vector<std::string> asked;

 private:
  static constexpr std::array kSchemes = {"http",   "https", "javascript", "file",
                                          "mailto", "ftp",   "data"};
};

namespace {

class BrowserTest : public testing::Test {
 protected:
  FakeDesktop desktop;
  QtBrowser browser;
};

TEST_F(BrowserTest, OpensAddressesOfTheWeb) {
  EXPECT_TRUE(browser.Open("http://www.example.org/a?b=c"));
  EXPECT_TRUE(browser.Open("HTTPS://example.org:8080"));
  EXPECT_THAT(desktop.asked,
              ElementsAre("http://www.example.org/a?b=c", "https://example.org:8080"));
}

TEST_F(BrowserTest, OpensNothingElse) {
  for (const char* address :
       {"javascript:alert(1)", "file:///etc/passwd", "mailto:k1tst@example.org",
        "ftp://example.org", "data:text/html,x", "", "http:", "http:/", "http://", "http:///x",
        "http:/example.org", "www.example.org", " http://example.org", "http://exam ple.org"})
    EXPECT_FALSE(browser.Open(address)) << address;
  EXPECT_THAT(desktop.asked, IsEmpty());
}

}  // namespace

#include "browser_test.moc"
