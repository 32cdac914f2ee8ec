#pragma once

#include <QComboBox>
#include <QLineEdit>
#include <functional>

#include "spots/spot_requests.h"
#include "ui/drop_panel.h"
#include "ui/frames.h"

namespace ui {

// Asks the node for spots: of a band, of a call, or for those that were missed.
class GetSpotsPanel : public DropPanel {
 public:
  // The requests outlive it. `clear` empties the table.
  GetSpotsPanel(spots::SpotRequests& requests, std::function<void()> clear,
                std::function<void()> help, Frames& frames, DropButton* button);

 private:
  void FillBands();
  void GetSpots();
  void GetMissed();

  spots::SpotRequests& requests_;
  QComboBox* band_;
  QLineEdit* call_;
};

}  // namespace ui
