#include <QDirIterator>
#include <QPushButton>
#include <QRegularExpression>
#include <QTextBrowser>

#include "gui/desk.h"

namespace gui {
namespace {

class ManualTest : public Desk {
 protected:
  QTextBrowser& Page() { return *Named<QTextBrowser>(*window, "Manual page"); }
};

TEST_F(ManualTest, F1OpensItAtThePageForWhatIsOnShow) {
  Open();
  Press(Qt::Key_F1);
  EXPECT_TRUE(Page().isVisible());
  EXPECT_FALSE(Page().window()->isModal());
  EXPECT_TRUE(Page().toPlainText().startsWith("The DX view"));
  program->views.Choose(program::Views::Settings);
  QApplication::setActiveWindow(window.get());
  Press(Qt::Key_F1);
  EXPECT_TRUE(Page().toPlainText().startsWith("The technical page"));
}

TEST_F(ManualTest, ContentsAndBackGoFromPageToPage) {
  Open();
  Press(Qt::Key_F1);
  const auto button = [this](const char* text) {
    for (QPushButton* each : Page().window()->findChildren<QPushButton*>())
      if (each->text() == text) return each;
    return static_cast<QPushButton*>(nullptr);
  };
  ASSERT_NE(button("&Contents"), nullptr);
  button("&Contents")->click();
  EXPECT_TRUE(Page().toPlainText().startsWith("Molva Desk"));
  button("&Back")->click();
  EXPECT_TRUE(Page().toPlainText().startsWith("The DX view"));
}

TEST_F(ManualTest, EveryLinkAndEveryPictureOfItIsThere) {
  int links = 0;
  for (QDirIterator pages(":/docs/manual"); pages.hasNext();) {
    QFile page(pages.next());
    ASSERT_TRUE(page.open(QFile::ReadOnly));
    static const QRegularExpression link(R"(\]\(([^)#]+)\))");
    for (auto found = link.globalMatch(QString::fromUtf8(page.readAll())); found.hasNext();) {
      const QString target = found.next().captured(1);
      EXPECT_TRUE(QFile::exists(QDir::cleanPath(":/docs/manual/" + target)))
          << page.fileName().toStdString() << ": " << target.toStdString();
      ++links;
    }
  }
  EXPECT_GT(links, 10);
}

}  // namespace
}  // namespace gui
