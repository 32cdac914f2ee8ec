#include "program/raw_pane.h"

namespace program {

RawPane::RawPane(core::Button& restore, core::Button& maximise)
    : restore_(restore),
      maximise_(maximise),
      restoring_(restore.Click.Add([this] { Turn(); })),
      maximising_(maximise.Click.Add([this] { Turn(); })) {
  restore_.Caption.Set("Restore");
  restore_.ToolTip.Set("Restore the \"Raw\" window.");
  maximise_.Caption.Set("Maximize");
  maximise_.ToolTip.Set("Maximize the \"Raw\" window.");
  Follow();
}

void RawPane::Turn() {
  Maximised.Set(!Maximised.Get());
  Follow();
}

void RawPane::Follow() {
  restore_.Visible.Set(Maximised.Get());
  maximise_.Visible.Set(!Maximised.Get());
}

}  // namespace program
