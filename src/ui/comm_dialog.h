#pragma once

#include <QDialog>
#include <QFormLayout>
#include <QVBoxLayout>
#include <array>

#include "session/comm_form.h"
#include "ui/frames.h"

namespace ui {

// frmComm. Shows itself while its model is open, and holds nothing up.
class CommDialog : public QDialog {
 public:
  CommDialog(session::CommForm& model, Frames& frames, QWidget* parent);

 private:
  // Fields right of their labels under a heading.
  QFormLayout* AddGroup(QVBoxLayout* column, const QString& heading);
  void AddChoice(QFormLayout* group, const QString& label, const QString& name, core::Choice& model,
                 Frames& frames);
  void AddCheck(QFormLayout* group, const QString& name, const QString& mnemonic,
                core::Check& model, Frames& frames);
  void AddNumber(QFormLayout* group, const QString& label, const QString& name,
                 core::TextBox& model, Frames& frames);

  // `labels` are those of the port, the device and the speed.
  void AddPort(QFormLayout* group, const std::array<QString, 3>& labels, const QString& whose,
               session::PortChoice& model, Frames& frames);

  void FillNode(QFormLayout* group, session::CommForm& model, Frames& frames);
  void FillTnc(QFormLayout* group, session::CommForm& model, Frames& frames);
  void FillNetwork(QFormLayout* group, session::CommForm& model, Frames& frames);
  void FillOthers(QVBoxLayout* column, session::CommForm& model, Frames& frames);
  void AddFoot(QVBoxLayout* column, session::CommForm& model, Frames& frames);
};

}  // namespace ui
