#pragma once

#include <QLineEdit>
#include <QWidget>

#include "session/session.h"
#include "ui/frames.h"

namespace ui {

// The command line below the raw view.
class CommandRow : public QWidget {
 public:
  CommandRow(session::Session& session, Frames& frames, QWidget* parent = nullptr);

  QLineEdit* Line() { return line_; }

 protected:
  // Up and Down go through the lines typed before.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  session::Session& session_;
  QLineEdit* line_;
};

}  // namespace ui
