#pragma once

#include <QDialog>
#include <QFormLayout>

#include "spots/spots_form.h"
#include "ui/frames.h"

namespace ui {

// frmSpots. Shows itself while its model is open, and holds nothing up.
class SpotsDialog : public QDialog {
 public:
  SpotsDialog(spots::SpotsForm& model, Frames& frames, QWidget* parent);

 private:
  // A number: its label with the mark of its key, its name, how many digits it may have, and what
  // is counted.
  struct Number {
    QString label;
    QString name;
    int digits;
    QString unit;
  };

  // `key` is a letter of the caption.
  void AddCheck(QFormLayout* form, core::Check& model, const char* key, Frames& frames);
  void AddNumber(QFormLayout* form, core::TextBox& model, const Number& number, Frames& frames);
  void AddMemory(QFormLayout* form, spots::SpotsForm& model, Frames& frames);
  void AddReload(QFormLayout* form, spots::SpotsForm& model, Frames& frames);
};

}  // namespace ui
