#pragma once

#include <QVBoxLayout>
#include <QWidget>

#include "session/session.h"
#include "ui/frames.h"

namespace ui {

// The figures of the link since the program was started. Only those stand there that have
// something to say.
class TechnicalPanel : public QWidget {
 public:
  TechnicalPanel(session::Session& session, Frames& frames, QWidget* parent);

 private:
  void Add(const QString& name, core::Label& model, Frames& frames);
  void AddLatency(core::Label& model, Frames& frames);

  QVBoxLayout* column_;
};

}  // namespace ui
