#pragma once

#include <QBoxLayout>
#include <QDialog>
#include <QLineEdit>
#include <QTreeView>
#include <memory>

#include "session/node_form.h"
#include "ui/frames.h"
#include "ui/node_rows.h"

namespace ui {

// frmNode. Shows itself while its model is open, and holds nothing up.
class NodeDialog : public QDialog {
 public:
  struct Model {
    session::NodeForm& form;
    session::NodeUpdate& update;
    session::NodeDirectory& directory;
  };

  // All outlive it.
  NodeDialog(Model model, Frames& frames, QWidget* parent);

 private:
  QLayout* MakeSearch(Frames& frames);
  QWidget* MakeRows(Frames& frames);
  QLayout* MakeFields(Frames& frames);
  QLayout* MakeButtons(Frames& frames);
  void AddUpdate(QBoxLayout* into, Frames& frames);
  QLayout* MakeVersions(Frames& frames);
  void Begin();
  void Renew();
  void SelectRow(int row);

  Model model_;
  QLineEdit* search_ = nullptr;
  QTreeView* view_ = nullptr;
  NodeRows* rows_ = nullptr;
  std::shared_ptr<Frames::Item> item_;  // the table
  platform::Registration changing_;
};

}  // namespace ui
