#include "ui/fonts.h"

#include <QApplication>
#include <QFontDatabase>

namespace ui {
namespace {

constexpr int kPixels = 13;

}  // namespace

QFont InterfaceFont() {
  QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
  font.setPixelSize(kPixels);
  return font;
}

QFont FixedFont() {
  QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  for (const char* family : {"JetBrains Mono", "Hack", "DejaVu Sans Mono", "Noto Sans Mono"}) {
    if (!QFontDatabase::hasFamily(family)) continue;
    font = QFont(family);
    break;
  }
  font.setStyleHint(QFont::Monospace);
  font.setStyleStrategy(QFont::PreferNoShaping);  // "<-" stays two characters
  font.setPixelSize(kPixels);
  return font;
}

}  // namespace ui
