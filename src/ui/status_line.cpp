#include "ui/status_line.h"

#include <QHBoxLayout>

#include "ui/bind.h"

namespace ui {
namespace {

constexpr int kHeight = 24;

}  // namespace

StatusLine::StatusLine(session::Session& session, Frames& frames, LiveTheme& theme, QWidget* parent)
    : QWidget(parent),
      lamp_(new Lamp(this)),
      text_(new QLabel(this)),
      inactivity_(new QLabel(this)) {
  setObjectName(QStringLiteral("StatusLine"));
  setAttribute(Qt::WA_StyledBackground);
  setFixedHeight(kHeight);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(12, 0, 12, 0);
  row->setSpacing(8);
  row->addWidget(lamp_);
  row->addWidget(new QLabel(tr("Node"), this));
  row->addWidget(text_, 1);
  row->addWidget(inactivity_);
  text_->setProperty("dim", true);
  text_->setAccessibleName(tr("Link"));
  text_->setMinimumWidth(1);
  inactivity_->setProperty("dim", true);
  inactivity_->setAccessibleName(tr("Minutes of silence"));
  BindLabel(inactivity_, session.keepAlive.lblInactivity, frames);
  BindLabel(text_, session.state.txtNode, frames);
  BindLamp(lamp_, session.state, frames, theme);
}

}  // namespace ui
