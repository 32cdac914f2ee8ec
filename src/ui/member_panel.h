#pragma once

#include "spots/membership.h"
#include "ui/drop_panel.h"
#include "ui/frames.h"

namespace ui {

// The switches of the lists of LoTW and eQSL users.
class MemberPanel : public DropPanel {
 public:
  // The model outlives it.
  MemberPanel(spots::Membership& model, std::function<void()> help, Frames& frames,
              DropButton* button);
};

}  // namespace ui
