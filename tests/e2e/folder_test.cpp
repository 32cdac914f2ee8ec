#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <map>

#include "e2e/running.h"

namespace e2e {
namespace {

class FolderTest : public ClientTest {
 protected:
  bool Exists(const char* name) const { return QFileInfo::exists(folder + "/" + name); }
  QByteArray Content(const char* name) const {
    QFile file(folder + "/" + name);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    return file.readAll();
  }
  static unsigned ModeOf(const QString& path) {
    struct stat found = {};
    EXPECT_EQ(stat(path.toLocal8Bit().constData(), &found), 0) << path.toStdString();
    return found.st_mode & 0777U;
  }
};

TEST_F(FolderTest, AFolderThatItMakesIsItsOwnersAlone) {
  folder = temporary.path() + "/not/there";
  const auto client = StartClient();
  ASSERT_TRUE(PumpUntil([this] { return Exists("molva.cfg"); }, kPatience));
  EXPECT_EQ(ModeOf(temporary.path() + "/not"), 0700U);
  EXPECT_EQ(ModeOf(folder), 0700U);
  EXPECT_EQ(ModeOf(folder + "/molva.cfg"), 0600U);
  EXPECT_EQ(client->Terminate(), "exit code 0");
  EXPECT_EQ(proxy->Calls(), 0);
}

TEST_F(FolderTest, WithAnEmptyConfigurationTheWholeFolderStaysAsItIs) {
  const std::map<const char*, QByteArray> files = {{"molva.cfg", ""},
                                                   {"molva.cfg.bak", Configuration()},
                                                   {"molva.pwd", "secret"},
                                                   {"debug.cfg", "\"yes\"\r\n"}};
  for (const auto& [name, bytes] : files) WriteFile(name, bytes);
  const auto client = StartClient();
  ASSERT_TRUE(PumpUntil([this] { return Exists("molva.lock"); }, kPatience));
  EXPECT_EQ(client->Terminate(), "exit code 0");
  for (const auto& [name, bytes] : files) EXPECT_EQ(Content(name), bytes) << name;
  EXPECT_EQ(QDir(folder).entryList(QDir::Files | QDir::Hidden),
            QStringList({"debug.cfg", "molva.cfg", "molva.cfg.bak", "molva.lock", "molva.pwd"}));
}

TEST_F(FolderTest, TwoCopiesInOneFolderEndCleanly) {
  WriteFile("molva.cfg", Configuration());
  const auto first = StartClient();
  const auto keepsItsSettings = [this] { return Content("molva.cfg") != Configuration(); };
  ASSERT_TRUE(PumpUntil([&] { return Heard("K1TST-2") && keepsItsSettings(); }, kPatience));
  const QByteArray before = Content("molva.cfg");
  // It has no configuration yet and asks whether to make one; nobody answers.
  const auto second = StartClient();
  EXPECT_EQ(second->Terminate(), "exit code 0");
  EXPECT_FALSE(Exists("molva2.cfg"));
  EXPECT_EQ(Content("molva.cfg"), before);
  EXPECT_EQ(first->Terminate(), "exit code 0");
}

}  // namespace
}  // namespace e2e
