#include <gmock/gmock.h>

#include <QApplication>

#include "ui/style.h"

int main(int argc, char** argv) {
  // Three screens that differ in their scale, the usual one first.
  qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" MOLVA_SCREENS);
  testing::InitGoogleMock(&argc, argv);
  QApplication application(argc, argv);
  QApplication::setCursorFlashTime(0);  // a caret would blink by the real clock
  ui::Apply(ui::Theme(ui::Theme::Kind::Light), application);
  return RUN_ALL_TESTS();
}
