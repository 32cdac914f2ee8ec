#include "ui/link_bar.h"

#include <QHBoxLayout>

#include "platform/qt/qt_text.h"
#include "ui/bind.h"
#include "ui/fonts.h"

namespace ui {
namespace {

constexpr int kHeight = 48;

QFont Bold(QFont font, int pixels) {
  font.setPixelSize(pixels);
  font.setWeight(QFont::DemiBold);
  return font;
}

}  // namespace

LinkBar::LinkBar(program::Program& program, Frames& frames, LiveTheme& theme, QWidget* parent)
    : QWidget(parent),
      program_(program),
      lamp_(new Lamp(this)),
      node_(new QLabel(this)),
      software_(new QLabel(this)),
      state_(new QLabel(this)),
      age_(new QLabel(this)),
      connect_(new QPushButton(this)),
      disconnect_(new QPushButton(this)),
      nodes_(new QPushButton(tr("Nodes…"), this)),
      clock_(new QLabel(this)),
      date_(new QLabel(this)) {
  setObjectName(QStringLiteral("LinkBar"));
  setAttribute(Qt::WA_StyledBackground);
  setFixedHeight(kHeight);
  Lay();
  Name();
  Tie(program, frames, theme);
}

void LinkBar::Lay() {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(14, 0, 12, 0);
  row->setSpacing(8);
  row->addWidget(lamp_);
  row->addWidget(node_);
  row->addWidget(software_);
  row->addSpacing(8);
  row->addWidget(state_);
  row->addWidget(age_);
  row->addSpacing(8);
  row->addWidget(connect_);
  row->addWidget(disconnect_);
  row->addWidget(nodes_);
  row->addStretch();
  row->addWidget(clock_);
  row->addWidget(date_);
  node_->setFont(Bold(node_->font(), 13));
  clock_->setFont(Bold(FixedFont(), kClockPixels));
  for (QLabel* label : {software_, state_, age_, date_}) label->setProperty("dim", true);
  // What a node says is cut where it would widen the window, and the buttons stay where they are
  // while the seconds count.
  node_->setMinimumWidth(1);
  state_->setMinimumWidth(fontMetrics().horizontalAdvance(tr("connected 59 m 59 s")));
  age_->setMinimumWidth(fontMetrics().horizontalAdvance(tr("last line 59 m 59 s ago")));
}

void LinkBar::Name() {
  lamp_->setAccessibleName(tr("Link lamp"));
  node_->setAccessibleName(tr("Node"));
  software_->setAccessibleName(tr("Node software"));
  state_->setAccessibleName(tr("State of the link"));
  age_->setAccessibleName(tr("Age of the last line"));
  clock_->setAccessibleName(tr("Time in UTC"));
  date_->setAccessibleName(tr("Date in UTC"));
  nodes_->setAccessibleName(tr("Nodes"));
}

void LinkBar::Tie(program::Program& program, Frames& frames, LiveTheme& theme) {
  session::Session& session = program.session;
  for (auto* button : {&session.connection.cmdConnect, &session.connection.cmdDisconnect})
    BindProperty<bool>(this, button->Enabled, frames, [this](bool) { HandFocusOn(); });
  BindButton(connect_, session.connection.cmdConnect, frames);
  BindButton(disconnect_, session.connection.cmdDisconnect, frames);
  connect(nodes_, &QPushButton::clicked, this, [&program] { program.nodeForm.Show(); });
  BindLabel(clock_, program.session.linkText.lblclock[0], frames);
  BindLabel(date_, program.session.linkText.lblclock[1], frames);
  BindLabel(node_, program.session.linkText.node, frames);
  BindLabel(software_, program.session.linkText.software, frames);
  BindLabel(state_, program.session.linkText.state, frames);
  BindLabel(age_, program.session.linkText.age, frames);
  BindLamp(lamp_, session.state, frames, theme);
  BindProperty<bool>(this, session.connection.cmdConnect.Enabled, frames,
                     [this](bool) { ShowButtons(); });
  BindProperty<bool>(this, session.connection.cmdDisconnect.Enabled, frames,
                     [this](bool) { ShowButtons(); });
}

void LinkBar::HandFocusOn() {
  const auto handOn = [](QPushButton* from, const core::Button& model, QPushButton* to) {
    if (!from->hasFocus() || model.Enabled.Get()) return;
    to->setEnabled(true);
    to->setVisible(true);
    to->setFocus();
  };
  handOn(connect_, program_.session.connection.cmdConnect, disconnect_);
  handOn(disconnect_, program_.session.connection.cmdDisconnect, connect_);
}

void LinkBar::ShowButtons() {
  const auto& connection = program_.session.connection;
  // One of the two is right at any time; while a retry is awaited both are.
  connect_->setVisible(connection.cmdConnect.Enabled.Get());
  disconnect_->setVisible(connection.cmdDisconnect.Enabled.Get());
}

}  // namespace ui
