#pragma once

#include <QCheckBox>
#include <QDialog>
#include <QFormLayout>

#include "program/user_info.h"
#include "ui/frames.h"

namespace ui {

// frmSettings. Shows itself while its model is open, and holds nothing up.
class UserInfoDialog : public QDialog {
 public:
  UserInfoDialog(program::UserInfo& model, Frames& frames, QWidget* parent);

 private:
  void AddLocation(QFormLayout* form, program::UserInfo& model, Frames& frames);
  void AddZone(QFormLayout* form, program::UserInfo& model, Frames& frames);
};

}  // namespace ui
