#pragma once

#include <QDialog>
#include <QVBoxLayout>

#include "spots/reject_form.h"
#include "ui/frames.h"

namespace ui {

// frmReject. Shown by Show; every act in it holds at once.
class RejectDialog : public QDialog {
 public:
  // All outlive it.
  RejectDialog(spots::RejectForm& form, spots::RejectLists& lists, core::Check& correctErrors,
               Frames& frames, QWidget* parent);

  // Opens it with the switches as they are.
  void Show();

 private:
  QWidget* MakeSwitches(spots::RejectForm& form, core::Check& correctErrors, Frames& frames);
  QWidget* MakeList(spots::RejectLists::Kind kind, spots::RejectForm& form,
                    spots::RejectLists& lists, Frames& frames);

  spots::RejectForm& form_;
};

}  // namespace ui
