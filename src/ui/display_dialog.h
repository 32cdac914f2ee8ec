#pragma once

#include <QDialog>
#include <QVBoxLayout>
#include <span>

#include "spots/display_choice.h"
#include "ui/frames.h"

namespace ui {

// frmAR17, "DX Spots": what there is to see of a spot. Shown by Show; what is chosen holds when it
// is applied.
class DisplayDialog : public QDialog {
 public:
  DisplayDialog(spots::DisplayChoice& model, Frames& frames, QWidget* parent);

  // Opens it with what is in force.
  void Show();

 private:
  using Check = spots::DisplayChoice::Check;

  QWidget* MakeFormat(Frames& frames);
  QVBoxLayout* MakeGroup(const QString& heading, std::span<const Check> checks, Frames& frames);
  void AddWidth(QVBoxLayout* group, Frames& frames);
  QWidget* MakeFoot(Frames& frames);

  spots::DisplayChoice& model_;
};

}  // namespace ui
