#include <gtest/gtest.h>

#include <QIcon>
#include <QImage>
#include <QPixmap>

namespace {

TEST(IconTest, IsDrawnInEverySizeThatDesktopsAskFor) {
  const QIcon icon(QStringLiteral(":/molva-desk.svg"));
  for (const int size : {16, 24, 32, 48, 64, 128, 256}) {
    const QImage image = icon.pixmap(QSize(size, size), 1.0).toImage();
    ASSERT_EQ(image.size(), QSize(size, size));
    EXPECT_EQ(image.pixelColor(0, 0).alpha(), 0) << size << ": its corners are round";
    EXPECT_EQ(image.pixelColor(size / 2, size / 2).alpha(), 255) << size;
  }
}

}  // namespace
