#include "ui/style.h"

#include <QApplication>
#include <QPalette>
#include <QWidget>

#include "ui/desk_style.h"
#include "ui/fonts.h"

namespace ui {
namespace {

// The colours of a theme, or of what stands on a ground, by their tokens.
template <class Colours>
QPalette PaletteOf(const Colours& colours) {
  QPalette palette;
  palette.setColor(QPalette::Window, colours[Token::Panel]);
  palette.setColor(QPalette::WindowText, colours[Token::Text]);
  palette.setColor(QPalette::Base, colours[Token::Ground]);
  palette.setColor(QPalette::AlternateBase, colours[Token::Panel]);
  palette.setColor(QPalette::Text, colours[Token::Text]);
  palette.setColor(QPalette::PlaceholderText, colours[Token::DimText]);
  palette.setColor(QPalette::Button, colours[Token::Panel]);
  palette.setColor(QPalette::ButtonText, colours[Token::Text]);
  palette.setColor(QPalette::Highlight, colours[Token::Selection]);
  palette.setColor(QPalette::HighlightedText, colours[Token::Text]);
  palette.setColor(QPalette::Mid, colours[Token::Line]);
  palette.setColor(QPalette::Link, colours[Token::Accent]);
  palette.setColor(QPalette::ToolTipBase, colours[Token::Panel]);
  palette.setColor(QPalette::ToolTipText, colours[Token::Text]);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    palette.setColor(QPalette::Disabled, role, colours[Token::DimText]);
  return palette;
}

// {name} stands for the theme's colour of that name.
constexpr const char* kSheet = R"(
QWidget#LinkBar { background: {panel}; border-bottom: 1px solid {line}; }
QWidget#ConditionsBar { background: {alarm}; border-bottom: 1px solid {line}; }
QFrame#FindBar { background: {panel}; border: 1px solid {line}; border-radius: 4px; }
QWidget#StatusLine { background: {panel}; border-top: 1px solid {line}; }
QWidget#StatusLine QLabel { color: {dim}; }
QWidget#CommandRow { background: {panel}; }
QLabel { color: {text}; }
QLabel[dim="true"] { color: {dim}; }
QLabel[bad="true"], QLabel[tint="bad"] { color: {bad}; }
QLabel[caution="true"] { color: {caution}; }
QLabel[tint="good"] { color: {good}; }
QLabel[tint="accent"] { color: {accent}; }
QLabel[heading="true"] { font-weight: 600; }
QDialog { background: {panel}; }
QCheckBox, QRadioButton { color: {text}; spacing: 8px; }
QCheckBox:disabled, QRadioButton:disabled { color: {dim}; }
QPushButton { background: {ground}; color: {text}; border: 1px solid {line}; border-radius: 4px;
              padding: 5px 12px; }
QPushButton:hover { border-color: {dim}; }
QPushButton:focus { border-color: {accent}; }
QPushButton:pressed { background: {selection}; }
QPushButton:disabled { color: {dim}; background: {panel}; }
QPushButton[primary="true"], QPushButton:checked { color: {accent}; border-color: {accent}; font-weight: 600; }
QPushButton[primary="true"]:focus, QPushButton:checked:focus { background: {selection}; }
QPushButton[primary="true"]:disabled { color: {dim}; border-color: {line}; font-weight: 400; }
QLineEdit { background: {ground}; border: 1px solid {line}; border-radius: 4px;
            padding: 5px 8px; selection-background-color: {selection};
            selection-color: {text}; }
QLineEdit:focus { border-color: {accent}; }
QLineEdit:disabled { background: {panel}; color: {dim}; }
QLineEdit[bad="true"] { color: {bad}; }
QPlainTextEdit { background: {ground}; color: {text}; border: none;
                 selection-background-color: {selection}; selection-color: {text}; }
QPlainTextEdit:focus { border: 1px solid {accent}; }
QTabBar { background: {panel}; border: none; }
QTabBar::tab { color: {text}; background: transparent; padding: 8px 14px; margin: 0; border: none;
               border-bottom: 2px solid transparent; }
QTabBar::tab:hover:!selected:!disabled { border-bottom-color: {line}; }
QTabBar::tab:selected { background: {ground}; border-bottom-color: {accent}; }
QTabBar::tab:focus { background: {selection}; }
QTabBar::tab:disabled { color: {dim}; }
QTreeView { background: {ground}; color: {text}; border: none; outline: none; }
QTreeView[framed="true"] { border: 1px solid {line}; border-radius: 4px; }
QTreeView[framed="true"]:focus { border-color: {accent}; }
QTreeView::item { height: 24px; padding: 0 5px; border: none; }
QTreeView::item:selected { background: {selection}; color: {text}; }
QHeaderView::section { background: {panel}; color: {dim}; border: none;
                       border-bottom: 1px solid {line}; padding: 6px 8px; }
QListWidget { background: {ground}; color: {text}; border: 1px solid {line}; border-radius: 4px;
              outline: none; }
QListWidget:focus { border-color: {accent}; }
QDialog QListWidget::item { padding: 2px 4px; }
QListWidget::item:selected { background: {selection}; color: {text}; }
QProgressBar { background: {ground}; border: 1px solid {line}; border-radius: 4px; }
QProgressBar::chunk { background: {accent}; border-radius: 3px; }
QFrame#DropPanel { background: {panel}; border: 1px solid {line}; border-radius: 4px; }
QMenu { background: {panel}; color: {text}; border: 1px solid {line}; padding: 4px; }
QMenu::item { padding: 5px 16px 5px 28px; border-radius: 4px; }
QMenu::item:disabled { color: {dim}; }
QMenu::separator { height: 1px; background: {line}; margin: 4px 8px; }
QMenuBar { background: {panel}; color: {text}; border-bottom: 1px solid {line}; }
QMenuBar::item { padding: 4px 10px; }
QMenuBar::item:selected { background: {selection}; }
QTextBrowser { background: {ground}; color: {text}; border: 1px solid {line}; border-radius: 4px; }
QMenu::item:selected { background: {selection}; }
QListWidget#BandRail { background: {panel}; border: none; border-right: 1px solid {line};
                      outline: none; padding-top: 6px; }
QPushButton#Below { background: {panel}; color: {accent}; border-color: {accent}; }
QSplitter::handle { background: {line}; }
QSplitter::handle:hover { background: {accent}; }
QAbstractScrollArea::corner { background: transparent; border: none; }
QScrollBar:vertical { background: transparent; width: 12px; margin: 0; }
QScrollBar:horizontal { background: transparent; height: 12px; margin: 0; }
QScrollBar::handle { background: {handle}; border-radius: 4px; margin: 2px; min-height: 24px;
                     min-width: 24px; }
QScrollBar::handle:hover { background: {accent}; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }
QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }
QToolTip { background: {panel}; color: {text}; border: 1px solid {line}; padding: 4px; }
)";

struct Name {
  const char* name;
  Token token;
};

constexpr std::array kNames = {
    Name{"{ground}", Token::Ground},       Name{"{panel}", Token::Panel},
    Name{"{line}", Token::Line},           Name{"{text}", Token::Text},
    Name{"{dim}", Token::DimText},         Name{"{accent}", Token::Accent},
    Name{"{selection}", Token::Selection}, Name{"{bad}", Token::Bad},
    Name{"{good}", Token::Good},           Name{"{alarm}", Token::AlarmGround},
    Name{"{caution}", Token::Caution},
};

QColor Between(const QColor& a, const QColor& b) {
  return QColor((a.red() + b.red()) / 2, (a.green() + b.green()) / 2, (a.blue() + b.blue()) / 2);
}

template <class Colours>
QString SheetOf(const Colours& colours) {
  QString sheet = QString::fromLatin1(kSheet);
  for (const Name& each : kNames)
    sheet.replace(QLatin1String(each.name), colours[each.token].name());
  sheet.replace(QLatin1String("{handle}"),
                Between(colours[Token::Line], colours[Token::DimText]).name());
  return sheet;
}

// A page on a ground of its own, where the panel of the theme would be.
struct OnGround {
  const Surface& surface;

  QColor operator[](Token token) const {
    return token == Token::Panel ? surface.Ground() : surface[token];
  }
};

Theme ThemeOf(platform::ColourScheme scheme) {
  return Theme(scheme == platform::ColourScheme::Dark ? Theme::Kind::Dark : Theme::Kind::Light);
}

}  // namespace

void Apply(const Theme& theme, QApplication& application) {
  QApplication::setStyle(new DeskStyle);
  QApplication::setPalette(PaletteOf(theme));
  QApplication::setFont(InterfaceFont());
  application.setStyleSheet(SheetOf(theme));
}

void Dress(QWidget* page, const Surface& surface) {
  const bool chosen = surface.IsChosen();
  const QString sheet = chosen ? SheetOf(OnGround{surface}) : QString();
  if (sheet == page->styleSheet()) return;
  page->setStyleSheet(sheet);
  page->setAutoFillBackground(chosen);
  // Where there are style sheets no widget takes its parent's palette.
  const QPalette palette = chosen ? PaletteOf(OnGround{surface}) : QPalette();
  page->setPalette(palette);
  for (QWidget* each : page->findChildren<QWidget*>()) each->setPalette(palette);
}

Wardrobe::Wardrobe(program::Appearance& appearance, QApplication& application)
    : following_(appearance.OnShow.Observe([this, &application](platform::ColourScheme scheme) {
        theme.Set(ThemeOf(scheme));
        Apply(theme.Get(), application);
      })) {}

}  // namespace ui
