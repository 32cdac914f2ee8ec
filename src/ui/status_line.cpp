#include "ui/status_line.h"

#include "ui/bind.h"

namespace ui {
namespace {

constexpr int kHeight = 24;
constexpr int kInside = 8;    // between a lamp and its word
constexpr int kBetween = 16;  // between what stands for itself

QLabel* Dim(QLabel* label) {
  label->setProperty("dim", true);
  return label;
}

// A lamp and its word, one thing for the layout.
QHBoxLayout* Lit(Lamp* lamp, QLabel* word) {
  auto* both = new QHBoxLayout;
  both->setSpacing(kInside);
  both->addWidget(lamp);
  both->addWidget(word);
  return both;
}

}  // namespace

StatusLine::StatusLine(session::Session& session, Frames& frames, LiveTheme& theme, QWidget* parent)
    : QWidget(parent), row_(new QHBoxLayout(this)) {
  setObjectName(QStringLiteral("StatusLine"));
  setAttribute(Qt::WA_StyledBackground);
  setFixedHeight(kHeight);
  row_->setContentsMargins(12, 0, 12, 0);
  row_->setSpacing(kBetween);
  AddNode(session.state, frames, theme);
  AddTnc(session.tncLink.lblTnc, frames, theme);
  AddInactivity(session.keepAlive.lblInactivity, frames);
  AddLink(session.state.txtNode, frames);
}

void StatusLine::AddNode(session::SessionState& state, Frames& frames, LiveTheme& theme) {
  auto* lamp = new Lamp(this);
  BindLamp(lamp, state, frames, theme);
  row_->addLayout(Lit(lamp, Dim(new QLabel(tr("Node"), this))));
}

void StatusLine::AddTnc(core::Label& model, Frames& frames, LiveTheme& theme) {
  auto* lamp = new Lamp(this);
  auto* word = Dim(new QLabel(tr("TNC"), this));
  row_->addLayout(Lit(lamp, word));
  const auto light = [lamp, &model, &theme] {
    lamp->SetColour(theme.Get().Of(model.ForeColour.Get(), Token::Line));
  };
  BindProperty<core::Colour>(lamp, model.ForeColour, frames, [light](auto) { light(); });
  BindProperty<Theme>(lamp, theme, frames, [light](auto) { light(); });
  BindProperty<bool>(lamp, model.Visible, frames, [lamp, word](bool on) {
    lamp->setVisible(on);
    word->setVisible(on);
  });
  BindProperty<std::string>(word, model.ToolTip, frames, [word](const std::string& means) {
    word->setToolTip(QString::fromStdString(means));
    word->setAccessibleName(tr("TNC: %1").arg(QString::fromStdString(means)));
  });
}

void StatusLine::AddInactivity(core::Label& model, Frames& frames) {
  auto* minutes = Dim(new QLabel(this));
  minutes->setAccessibleName(tr("Minutes of silence"));
  BindLabel(minutes, model, frames);
  row_->addWidget(minutes);
}

void StatusLine::AddLink(core::Label& model, Frames& frames) {
  auto* text = Dim(new QLabel(this));
  text->setAccessibleName(tr("Link"));
  text->setMinimumWidth(1);
  BindLabel(text, model, frames);
  row_->addWidget(text, 1);
}

}  // namespace ui
