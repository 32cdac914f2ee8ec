#pragma once

#include <QDialog>
#include <QGridLayout>
#include <QLineEdit>
#include <QVBoxLayout>

#include "session/tnc_form.h"
#include "ui/frames.h"

namespace ui {

// frmTNC. Shows itself while its model is open, and holds nothing up.
class TncDialog : public QDialog {
 public:
  TncDialog(session::TncForm& model, Frames& frames, QWidget* parent);

 private:
  void AddCluster(QVBoxLayout* column, session::TncForm& model, Frames& frames);
  void AddHead(QGridLayout* grid, int column, core::Label& model, Frames& frames);
  void AddStep(QGridLayout* grid, std::size_t step, session::TncForm& model, Frames& frames);
  QLineEdit* AddCell(QGridLayout* grid, int row, int column, const QString& name,
                     core::TextBox& model, Frames& frames);
  void AddFoot(QVBoxLayout* column, session::TncForm& model, Frames& frames);
};

}  // namespace ui
