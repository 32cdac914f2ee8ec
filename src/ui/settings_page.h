#pragma once

#include <QHBoxLayout>
#include <QVBoxLayout>
#include <QWidget>

#include "program/program.h"
#include "ui/frames.h"

namespace ui {

// The page of the first tab: who the operator is, how the link is kept alive, how the window looks,
// and the counts of what happened to the link.
class SettingsPage : public QWidget {
 public:
  SettingsPage(program::Program& program, Frames& frames, QWidget* parent);

 private:
  QVBoxLayout* AddGroup(const QString& heading);
  void AddChoice(QHBoxLayout* row, const QString& label, const QString& name, core::Choice& model,
                 Frames& frames);
  void AddUserInfo(program::UserInfo& model, Frames& frames);
  void AddKeepAlive(session::Session& session, Frames& frames);
  void AddAppearance(program::Appearance& model, Frames& frames);
  void AddTechnical(session::Session& session, Frames& frames);

  QVBoxLayout* column_;
};

}  // namespace ui
