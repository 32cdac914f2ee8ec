#include <gmock/gmock.h>

#include <QApplication>

#include "ui/style.h"

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleMock(&argc, argv);
  QApplication application(argc, argv);
  ui::Apply(ui::Theme(ui::Theme::Kind::Light), application);
  return RUN_ALL_TESTS();
}
