#include "ui/member_panel.h"

#include <QCheckBox>
#include <QVBoxLayout>

#include "ui/bind.h"

namespace ui {

MemberPanel::MemberPanel(spots::Membership& model, Frames& frames, QPushButton* button)
    : DropPanel(button, tr("LoTW and eQSL users")) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(16, 16, 16, 16);
  column->setSpacing(8);
  for (core::Check* each : {&model.showlotw, &model.showeqsl, &model.RejectNot, &model.LotwChecker,
                            &model.eQSLchecker}) {
    auto* box = new QCheckBox(this);
    BindCheck(box, *each, frames);
    column->addWidget(box);
  }
}

}  // namespace ui
