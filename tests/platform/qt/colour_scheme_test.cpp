#include "platform/qt/qt_colour_scheme.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QDBusMessage>
#include <QPalette>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>
#include <memory>
#include <vector>

#include "platform/qt/pump.h"

namespace {

using platform::ColourScheme;
using platform::qt::QtColourScheme;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr auto kService = "org.freedesktop.portal.Desktop";
constexpr auto kPath = "/org/freedesktop/portal/desktop";
constexpr auto kInterface = "org.freedesktop.portal.Settings";
constexpr auto kAppearance = "org.freedesktop.appearance";
constexpr auto kScheme = "color-scheme";

}  // namespace

// What the desktop's portal is to the program, with one setting.
class FakePortal : public QObject {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

 public:
  Q_SLOT QDBusVariant Read(const QString& space, const QString& key, const QDBusMessage&) {
    ++asked;
    if (refuses || space != kAppearance || key != kScheme) return QDBusVariant(QString("no"));
    return QDBusVariant(QVariant::fromValue(QDBusVariant(scheme)));
  }

  uint scheme = 0;
  bool refuses = false;
  int asked = 0;
};

namespace {

// A bus of the test's own, as long as it lives.
class OwnBus {
 public:
  OwnBus() {
    daemon_.start("dbus-daemon", {"--session", "--nofork", "--print-address=1"});
    PumpUntil([this] { return daemon_.canReadLine() || daemon_.state() == QProcess::NotRunning; });
    address_ = QString::fromUtf8(daemon_.readLine()).trimmed();
  }
  ~OwnBus() {
    for (const QString& name : names_) QDBusConnection::disconnectFromBus(name);
    daemon_.kill();
    PumpUntil([this] { return daemon_.state() == QProcess::NotRunning; });
  }

  bool Runs() const { return !address_.isEmpty(); }
  QDBusConnection Connect(const QString& name) {
    names_ << name;
    return QDBusConnection::connectToBus(address_, name);
  }

 private:
  QProcess daemon_;
  QString address_;
  QStringList names_;
};

class QtColourSchemeTest : public testing::Test {
 protected:
  void SetUp() override { ASSERT_TRUE(bus.Runs()) << "dbus-daemon does not start"; }
  ~QtColourSchemeTest() override { QApplication::setPalette(before); }

  void HasPortal(uint scheme) {
    portal.scheme = scheme;
    QDBusConnection connection = bus.Connect("portal");
    ASSERT_TRUE(connection.registerObject(kPath, &portal, QDBusConnection::ExportAllSlots));
    ASSERT_TRUE(connection.registerService(kService));
  }
  void Changes(const QString& space, const QString& key, uint scheme) {
    auto change = QDBusMessage::createSignal(kPath, kInterface, "SettingChanged");
    change << space << key << QVariant::fromValue(QDBusVariant(scheme));
    bus.Connect("portal").send(change);
  }
  void Start() {
    watching = std::make_unique<QtColourScheme>([this](ColourScheme now) { told.push_back(now); },
                                                bus.Connect("program"));
  }
  bool IsTold(std::size_t times) {
    return PumpUntil([this, times] { return told.size() == times; });
  }

  const QPalette before = QApplication::palette();
  OwnBus bus;
  FakePortal portal;
  std::vector<ColourScheme> told;
  std::unique_ptr<QtColourScheme> watching;
};

TEST_F(QtColourSchemeTest, TellsTheLightnessOfThePaletteAtOnceWithoutAPortal) {
  QApplication::setPalette(QPalette(QColor(40, 40, 44)));
  Start();
  EXPECT_THAT(told, ElementsAre(ColourScheme::Dark));
  QApplication::setPalette(QPalette(QColor(240, 240, 240)));
  Start();
  EXPECT_THAT(told, ElementsAre(ColourScheme::Dark, ColourScheme::Light));
}

TEST_F(QtColourSchemeTest, TellsWhatThePortalAnswers) {
  HasPortal(1);
  QApplication::setPalette(QPalette(QColor(240, 240, 240)));
  Start();
  EXPECT_THAT(told, ElementsAre(ColourScheme::Light)) << "nothing waits for the portal";
  EXPECT_TRUE(IsTold(2));
  EXPECT_EQ(told.back(), ColourScheme::Dark);
}

TEST_F(QtColourSchemeTest, TwoIsLightAndNoPreferenceIsThePalettes) {
  HasPortal(2);
  QApplication::setPalette(QPalette(QColor(40, 40, 44)));
  Start();
  EXPECT_TRUE(IsTold(2));
  EXPECT_EQ(told.back(), ColourScheme::Light);
  Changes(kAppearance, kScheme, 0);
  EXPECT_TRUE(IsTold(3));
  EXPECT_EQ(told.back(), ColourScheme::Dark);
}

TEST_F(QtColourSchemeTest, FollowsTheChangesOfItsSettingAndOfNoOther) {
  HasPortal(2);
  QApplication::setPalette(QPalette(QColor(240, 240, 240)));
  Start();
  ASSERT_TRUE(IsTold(2));
  Changes(kAppearance, "accent-color", 1);
  Changes("org.gnome.desktop.interface", kScheme, 1);
  Changes(kAppearance, kScheme, 2);
  Changes(kAppearance, kScheme, 1);
  EXPECT_TRUE(IsTold(4));
  EXPECT_THAT(told, ElementsAre(ColourScheme::Light, ColourScheme::Light, ColourScheme::Light,
                                ColourScheme::Dark));
}

TEST_F(QtColourSchemeTest, AnAnswerThatIsNoNumberIsNoPreference) {
  portal.refuses = true;
  HasPortal(1);
  QApplication::setPalette(QPalette(QColor(240, 240, 240)));
  Start();
  EXPECT_TRUE(IsTold(2));
  EXPECT_EQ(told.back(), ColourScheme::Light);
}

TEST_F(QtColourSchemeTest, OneThatHasGoneIsNotTold) {
  HasPortal(1);
  Start();
  watching.reset();
  told.clear();
  EXPECT_TRUE(PumpUntil([this] { return portal.asked == 1; }));
  EXPECT_THAT(told, IsEmpty());
}

TEST(QtColourSchemeWithoutABusTest, ThePaletteIsAllThereIs) {
  int told = 0;
  const QtColourScheme scheme([&told](ColourScheme) { ++told; },
                              QDBusConnection("nobody is connected"));
  EXPECT_EQ(told, 1);
}

}  // namespace

#include "colour_scheme_test.moc"
