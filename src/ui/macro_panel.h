#pragma once

#include <QGridLayout>
#include <QWidget>

#include "session/macros.h"
#include "ui/frames.h"

namespace ui {

// fraSendMacro and fraMacros: each macro's button with its field beside it. Both parts show
// themselves when their frames do.
class MacroPanel : public QWidget {
 public:
  MacroPanel(session::Macros& model, Frames& frames, QWidget* parent);

 private:
  void AddTitle(session::Macros& model, Frames& frames);
  void AddButton(session::Macros& model, std::size_t index, Frames& frames);
  void AddField(session::Macros& model, std::size_t index, Frames& frames);

  QGridLayout* grid_;
};

}  // namespace ui
