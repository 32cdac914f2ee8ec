#pragma once

#include <QBoxLayout>
#include <QColorDialog>
#include <QDialog>
#include <QFormLayout>
#include <QPointer>

#include "program/colour_form.h"
#include "program/dx_look.h"
#include "ui/frames.h"
#include "ui/theme.h"

namespace ui {

// frmColour. Shows itself while its model is open, and holds nothing up.
class ColourDialog : public QDialog {
 public:
  struct Model {
    program::ColourForm& form;
    program::DxLook& look;
    core::Property<int>& size;  // of the text in the table of spots
    const core::Settings& settings;
  };

  // All outlive it.
  ColourDialog(Model model, Frames& frames, LiveTheme& theme, QWidget* parent);

 private:
  void FillColours(QVBoxLayout* column, Frames& frames, LiveTheme& theme);
  void FillSpots(QVBoxLayout* column, Frames& frames, LiveTheme& theme);
  void AddStyle(QFormLayout* form, Frames& frames);
  void AddChoice(QFormLayout* form, const QString& mnemonic, const QString& name,
                 core::Choice& model, Frames& frames, const QString& unit = {});
  void AddCheck(QBoxLayout* row, const QString& mnemonic, const QString& name, core::Check& model,
                Frames& frames);
  void AddAdvice(QBoxLayout* column, Frames& frames);
  QString Advice() const;
  void Begin();
  void Pick();

  Model model_;
  LiveTheme& theme_;
  QWidget* list_ = nullptr;
  QPointer<QColorDialog> picker_;
  bool familiesTaken_ = false;
};

}  // namespace ui
