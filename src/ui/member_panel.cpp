#include "ui/member_panel.h"

#include <QCheckBox>
#include <QVBoxLayout>
#include <array>
#include <utility>

#include "ui/bind.h"

namespace ui {

MemberPanel::MemberPanel(spots::Membership& model, std::function<void()> help, Frames& frames,
                         DropButton* button)
    : DropPanel(button, tr("LoTW and eQSL users"), std::move(help)) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(16, 16, 16, 16);
  column->setSpacing(8);
  const std::array<std::pair<core::Check*, const char*>, 5> checks = {{{&model.showlotw, "L"},
                                                                       {&model.showeqsl, "Q"},
                                                                       {&model.RejectNot, "R"},
                                                                       {&model.LotwChecker, "w"},
                                                                       {&model.eQSLchecker, "e"}}};
  for (const auto& [each, key] : checks) {
    auto* box = new QCheckBox(this);
    box->setProperty("mnemonic", QLatin1String(key));
    BindCheck(box, *each, frames);
    column->addWidget(box);
  }
}

}  // namespace ui
