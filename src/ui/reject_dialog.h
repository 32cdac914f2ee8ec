#pragma once

#include <QDialog>
#include <QVBoxLayout>

#include "spots/reject_form.h"
#include "ui/frames.h"

namespace ui {

// frmReject. Shown with show(); every act in it holds at once.
class RejectDialog : public QDialog {
 public:
  // All outlive it.
  RejectDialog(spots::RejectForm& form, spots::RejectLists& lists, Frames& frames,
               QWidget* parent);

 private:
  QWidget* MakeSwitches(spots::RejectForm& form, Frames& frames);
  QWidget* MakeList(spots::RejectLists::Kind kind, spots::RejectForm& form,
                    spots::RejectLists& lists, Frames& frames);
};

}  // namespace ui
