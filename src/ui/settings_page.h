#pragma once

#include <QVBoxLayout>
#include <QWidget>

#include "program/program.h"
#include "ui/frames.h"

namespace ui {

// The page of the first tab: who the operator is, how the link is kept alive, and the counts of
// what happened to it.
class SettingsPage : public QWidget {
 public:
  SettingsPage(program::Program& program, Frames& frames, QWidget* parent);

 private:
  QVBoxLayout* AddGroup(const QString& heading);
  void AddUserInfo(program::UserInfo& model, Frames& frames);
  void AddKeepAlive(session::KeepAlivePanel& model, Frames& frames);
  void AddTechnical(session::Session& session, Frames& frames);

  QVBoxLayout* column_;
};

}  // namespace ui
