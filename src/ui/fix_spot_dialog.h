#pragma once

#include <QBoxLayout>
#include <QDialog>
#include <QTreeView>

#include "platform/files.h"
#include "spots/fix_form.h"
#include "ui/fix_rows.h"
#include "ui/frames.h"
#include "ui/theme.h"

namespace ui {

// frmFixSpot, "Fix Spots". Shows itself while its model is open, and holds nothing up.
class FixSpotDialog : public QDialog {
 public:
  struct Model {
    spots::FixForm& form;
    spots::FixList& list;    // whose entries the form shows
    platform::Files& files;  // where lists are imported from and exported to
  };

  // All that it refers to outlives it.
  FixSpotDialog(Model model, Frames& frames, LiveTheme& theme, QWidget* parent);

 private:
  QWidget* MakeRows(Frames& frames, LiveTheme& theme);
  QLayout* MakeEntry(Frames& frames);
  QLayout* MakeAdding(Frames& frames);
  QLayout* MakeLists(Frames& frames);
  void Renew();
  void SelectRow(int row);
  void ChooseImport();
  void ChooseExport();
  void Import(const QString& path);
  void Export(const QString& path);

  Model model_;
  FixRows* rows_;
  QTreeView* view_;
  std::shared_ptr<Frames::Item> item_;
  platform::Registration changing_;
};

}  // namespace ui
