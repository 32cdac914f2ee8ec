#include "ui/fonts.h"

#include <QApplication>
#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>

#include "platform/qt/qt_text.h"

namespace ui {
namespace {

// What the font says of itself, and what it does: there are fonts of signs that say so too.
bool IsFixed(const QString& family) {
  if (QFontDatabase::isPrivateFamily(family) || !QFontDatabase::isFixedPitch(family)) return false;
  const QFontMetricsF metrics(QFont(family, kUsualPixels));
  return metrics.horizontalAdvance(QLatin1Char('i')) == metrics.horizontalAdvance(QLatin1Char('W'));
}

// "Monospace" stands for another one.
bool IsAlias(const QString& family) { return QFontInfo(QFont(family)).family() != family; }

}  // namespace

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

QFont FixedFont(const program::SpotFont& wanted, int pixels) {
  QFont font = FixedFont(pixels);
  const QString family = platform::qt::TextOf(wanted.family);
  if (!family.isEmpty() && IsFixed(family)) font.setFamilies({family});
  font.setBold(wanted.bold);
  font.setItalic(wanted.italic);
  return font;
}

QStringList FixedFamilies() {
  QStringList families = QFontDatabase::families(QFontDatabase::Latin);
  families.removeIf([](const QString& family) { return !IsFixed(family) || IsAlias(family); });
  return families;
}

}  // namespace ui
