#include "ui/bind.h"

#include <QSignalBlocker>
#include <QStyle>

#include "platform/qt/qt_text.h"
#include "ui/figures.h"
#include "ui/one_line.h"
#include "ui/theme.h"

namespace ui {
namespace {

using platform::qt::TextOf;

// What comes from a node may be of any length.
constexpr core::Position kLongestLabel = 200;

// Observes as long as its owner lives.
struct Watch : QObject {
  explicit Watch(QObject* owner) : QObject(owner) {}
  platform::Registration observing;
};

const char* TintOf(core::Colour colour) {
  switch (colour) {
    case core::kRed:
      return "bad";
    case core::kGreen:
      return "good";
    case core::kBlue:
      return "accent";
    default:
      return "";
  }
}

// The style sheet knows the theme's colours of the three meanings by name. A colour that the user
// chose stands in a sheet of the widget's own.
void Tint(QLabel* widget, core::Colour colour) {
  const QString tint = QLatin1String(TintOf(colour));
  const bool own = tint.isEmpty() && colour != core::kThemeColour;
  const QString sheet =
      own ? QStringLiteral("QLabel { color: %1 }").arg(AsStored(colour).name()) : QString();
  if (widget->styleSheet() != sheet) widget->setStyleSheet(sheet);
  if (widget->property("tint").toString() == tint) return;
  widget->setProperty("tint", tint);
  widget->style()->unpolish(widget);
  widget->style()->polish(widget);
}

void BindTint(QLabel* widget, core::Control& model, Frames& frames) {
  BindProperty<core::Colour>(widget, model.ForeColour, frames,
                             [widget](core::Colour colour) { Tint(widget, colour); });
}

// Shows text of the rules as it stands: an "&" in it is no mnemonic.
QString Caption(const QWidget& widget, const QString& line) {
  return Marked(Literally(line), widget.property("mnemonic").toString());
}

// Without a name of its own the widget goes by its text.
void BindCaption(QAbstractButton* widget, core::Control& model, Frames& frames) {
  const bool named = !widget->accessibleName().isEmpty();
  BindProperty<std::string>(widget, model.Caption, frames,
                            [widget, named](const std::string& text) {
                              const QString line = OneLine(text, kLongestLabel);
                              widget->setText(Caption(*widget, line.trimmed()));
                              if (!named) widget->setAccessibleName(line.trimmed());
                            });
}

void BindCommon(QWidget* widget, core::Control& model, Frames& frames) {
  BindProperty<bool>(widget, model.Enabled, frames, [widget](bool on) { widget->setEnabled(on); });
  BindProperty<bool>(widget, model.Visible, frames, [widget](bool on) { widget->setVisible(on); });
  BindProperty<std::string>(widget, model.ToolTip, frames, [widget](const std::string& text) {
    const QString plain = TextOf(text);
    widget->setToolTip(Qt::mightBeRichText(plain) ? Qt::convertFromPlainText(plain) : plain);
  });
}

void BindText(QLabel* widget, core::Label& model, Frames& frames,
              QString (*shown)(const std::string& text)) {
  widget->setTextFormat(Qt::PlainText);
  BindCommon(widget, model, frames);
  BindTint(widget, model, frames);
  const QString name = widget->accessibleName();
  BindProperty<std::string>(
      widget, model.Caption, frames, [widget, name, shown](const std::string& text) {
        const QString line = shown(text);
        widget->setText(widget->buddy() != nullptr ? Caption(*widget, line) : line);
        const bool says = !name.isEmpty() && !line.isEmpty();
        widget->setAccessibleName(says ? name + ": " + line : name);
      });
}

// The widget's choice is the model's: what it would choose by itself tells nobody.
void Select(QListWidget& widget, int place) {
  const QSignalBlocker silent(widget);
  widget.setCurrentRow(place);
}

void Follow(QListWidget& widget, const core::ListBox& model, const core::ListBox::Change& change) {
  const QSignalBlocker silent(widget);
  const auto at = static_cast<int>(change.at);
  for (std::size_t i = 0; i < change.removed; ++i) delete widget.takeItem(at);
  for (std::size_t i = change.added; i > 0; --i)
    widget.insertItem(at, OneLine(model.Items()[change.at + i - 1], kLongestLabel));
  widget.setCurrentRow(model.Selected.Get());
}

// What opens is looked at: its contents are not left for later.
void BindOpen(QDialog* widget, core::Property<bool>& open, Frames& frames) {
  BindProperty<bool>(widget, open, frames, [widget, &frames](bool on) {
    if (on) frames.Touched();
    widget->setVisible(on);
  });
}

}  // namespace

void BindLabel(QLabel* widget, core::Label& model, Frames& frames) {
  BindText(widget, model, frames,
           [](const std::string& text) { return OneLine(text, kLongestLabel); });
}

void BindCount(QLabel* widget, core::Label& model, Frames& frames) {
  BindText(widget, model, frames, [](const std::string& text) { return Grouped(text); });
}

void BindButton(QAbstractButton* widget, core::Button& model, Frames& frames) {
  BindCommon(widget, model, frames);
  BindCaption(widget, model, frames);
  QObject::connect(widget, &QAbstractButton::clicked, widget, [&model] { model.Press(); });
}

void BindCheck(QCheckBox* widget, core::Check& model, Frames& frames) {
  BindCaption(widget, model, frames);
  BindTick(widget, model, frames);
}

void BindTick(QCheckBox* widget, core::Check& model, Frames& frames) {
  BindCommon(widget, model, frames);
  BindProperty<bool>(widget, model.Value, frames, [widget](bool on) { widget->setChecked(on); });
  // However the user turns it: a screen reader does it without a click.
  QObject::connect(widget, &QCheckBox::toggled, widget, [&model](bool on) {
    if (on != model.Value.Get()) model.UserSets(on);
  });
}

void BindChoice(QComboBox* widget, core::Choice& model, Frames& frames) {
  BindCommon(widget, model, frames);
  BindProperty<std::vector<std::string>>(widget, model.Options, frames,
                                         [widget, &model](const std::vector<std::string>& options) {
                                           widget->clear();
                                           for (const std::string& option : options)
                                             widget->addItem(TextOf(option));
                                           widget->setCurrentIndex(model.Selected.Get());
                                         });
  BindProperty<int>(widget, model.Selected, frames,
                    [widget](int selected) { widget->setCurrentIndex(selected); });
  QObject::connect(widget, &QComboBox::activated, widget,
                   [&model](int option) { model.UserSelects(option); });
}

void BindOptions(QButtonGroup* widgets, core::Choice& model, Frames& frames) {
  BindProperty<int>(widgets, model.Selected, frames, [widgets](int selected) {
    if (QAbstractButton* button = widgets->button(selected)) button->setChecked(true);
  });
  QObject::connect(widgets, &QButtonGroup::idToggled, widgets, [&model](int option, bool on) {
    if (on && option != model.Selected.Get()) model.UserSelects(option);
  });
}

void BindList(QListWidget* widget, core::ListBox& model, Frames& frames) {
  BindCommon(widget, model, frames);
  // Not with the next frame: the user's next act goes to the items that the rules have left.
  auto* watch = new Watch(widget);
  watch->observing = model.Observe(
      [widget, &model](const core::ListBox::Change& change) { Follow(*widget, model, change); });
  auto* selection = new Watch(widget);
  selection->observing = model.Selected.Observe([widget](int place) { Select(*widget, place); });
  QObject::connect(widget, &QListWidget::itemSelectionChanged, widget, [widget, &model] {
    const QModelIndexList rows = widget->selectionModel()->selectedRows();
    const int place = rows.isEmpty() ? core::ListBox::kNone : rows.front().row();
    if (place != model.Selected.Get()) model.UserSelects(place);
  });
}

void BindDialog(QDialog* widget, core::Property<bool>& open, core::Button& cancel, Frames& frames) {
  BindOpen(widget, open, frames);
  QObject::connect(widget, &QDialog::rejected, widget, [&open, &cancel] {
    if (open.Get()) cancel.Press();
  });
}

void BindDialog(QDialog* widget, core::Property<bool>& open, Frames& frames) {
  BindOpen(widget, open, frames);
  QObject::connect(widget, &QDialog::rejected, widget, [&open] { open.Set(false); });
}

void BindTextBox(QLineEdit* widget, core::TextBox& model, Frames& frames) {
  BindCommon(widget, model, frames);
  // Not with the next frame: the user's next key goes into what the rules have left.
  auto* watch = new Watch(widget);
  watch->observing = model.Text.Observe([widget](const std::string& text) {
    const QSignalBlocker silent(widget);
    const QString now = TextOf(text);
    if (widget->text() != now) widget->setText(now);
  });
  // However the user puts it there: a screen reader or a voice sets the whole text at once.
  QObject::connect(widget, &QLineEdit::textChanged, widget,
                   [&model](const QString& text) { model.UserTypes(text.toStdString()); });
  QObject::connect(widget, &QLineEdit::returnPressed, widget,
                   [&model] { model.UserPressesReturn(); });
}

}  // namespace ui
