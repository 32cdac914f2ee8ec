#include <QApplication>
#include <QDirIterator>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextBrowser>

#include "gui/desk.h"

namespace gui {
namespace {

// Goes down the page, and gives its pictures as they are drawn there.
std::vector<QImage> PicturesOf(QTextBrowser& page) {
  std::vector<QImage> pictures;
  const QTextDocument& text = *page.document();
  for (QTextBlock block = text.begin(); block.isValid(); block = block.next())
    for (auto part = block.begin(); !part.atEnd(); ++part) {
      const QTextCharFormat format = part.fragment().charFormat();
      if (!format.isImageFormat()) continue;
      page.setTextCursor(QTextCursor(block));
      page.ensureCursorVisible();
      page.grab();
      QApplication::processEvents();  // they come behind the text
      pictures.push_back(text.resource(QTextDocument::ImageResource, format.toImageFormat().name())
                             .value<QImage>());
    }
  return pictures;
}

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
  EXPECT_TRUE(Page().toPlainText().startsWith("The window"));
  EXPECT_EQ(Page().textCursor().block().text(), "The settings");
  Press(Qt::Key_F9);
  QApplication::setActiveWindow(window.get());
  Press(Qt::Key_F1);
  EXPECT_EQ(Page().textCursor().block().text(), "The raw view");
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

TEST_F(ManualTest, EveryPictureIsDrawnAndNoPageIsWiderThanItsWindow) {
  Open();
  window->OpenManual("index");
  int pictures = 0;
  for (QDirIterator pages(":/docs/manual"); pages.hasNext();) {
    const std::string page = QFileInfo(pages.next()).completeBaseName().toStdString();
    window->OpenManual(page);
    Run(1ms);
    for (const QImage& picture : PicturesOf(Page())) {
      EXPECT_GT(picture.depth(), 1) << page << " shows what stands there before it is drawn";
      ++pictures;
    }
    EXPECT_EQ(Page().horizontalScrollBar()->maximum(), 0) << page;
  }
  EXPECT_GT(pictures, 10);
}

}  // namespace
}  // namespace gui
