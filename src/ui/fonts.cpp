#include "ui/fonts.h"

#include <QApplication>
#include <QFontDatabase>

namespace ui {

QFont InterfaceFont() {
  QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
  font.setPixelSize(kUsualPixels);
  return font;
}

QFont FixedFont(int pixels) {
  QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  for (const char* family : {"JetBrains Mono", "Hack", "DejaVu Sans Mono", "Noto Sans Mono"}) {
    if (!QFontDatabase::hasFamily(family)) continue;
    font = QFont(family);
    break;
  }
  font.setStyleHint(QFont::Monospace);
  font.setStyleStrategy(QFont::PreferNoShaping);  // "<-" stays two characters
  font.setPixelSize(pixels);
  return font;
}

}  // namespace ui
