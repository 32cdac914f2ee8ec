#include "ui/dx_page.h"

#include <QVBoxLayout>

#include "ui/bind.h"

namespace ui {

DxPage::DxPage(program::Program& program, Frames& frames, QWidget* parent) : QWidget(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setAccessibleName(tr("Spots"));
  auto* column = new QVBoxLayout(this);
  auto* empty = new QLabel(this);
  empty->setProperty("dim", true);
  column->addWidget(empty, 0, Qt::AlignCenter);
  BindProperty<session::LinkPhase>(
      empty, program.session.state.Phase, frames, [empty](const session::LinkPhase& phase) {
        const bool connected = phase == session::LinkPhase::Connected;
        empty->setText(connected ? tr("Connected. No spots yet.") : tr("Not connected."));
      });
}

}  // namespace ui
