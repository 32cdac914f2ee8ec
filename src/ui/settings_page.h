#pragma once

#include <QHBoxLayout>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

#include "program/program.h"
#include "ui/frames.h"
#include "ui/theme.h"

namespace ui {

// The page of the first tab: who the operator is, what the program does by itself, how the link is
// kept alive, how the window looks, the macros, the other copy of the program, and the figures of
// the link. In a low window it scrolls.
class SettingsPage : public QScrollArea {
 public:
  SettingsPage(program::Program& program, Frames& frames, LiveTheme& theme, QWidget* parent);

 protected:
  // The page hands its focus to the first of its controls.
  void focusInEvent(QFocusEvent* event) override;

 private:
  void BindGround(core::Property<program::ColourValues>& values, Frames& frames, LiveTheme& theme);
  QVBoxLayout* AddColumn();
  // Its heading stands in it.
  QVBoxLayout* AddGroup(QVBoxLayout* column, const QString& heading);
  void AddChoice(QHBoxLayout* row, const QString& label, const QString& name, core::Choice& model,
                 Frames& frames);
  // `mnemonic` is a letter of its caption; so in what follows.
  void AddCheck(QVBoxLayout* group, core::Check& model, const char* mnemonic, Frames& frames);
  QPushButton* AddButton(QHBoxLayout* row, const QString& name, core::Button& model,
                         const char* mnemonic, Frames& frames);

  void FillUserInfo(QVBoxLayout* group, program::UserInfo& model, Frames& frames);
  void FillConnection(QVBoxLayout* group, program::Program& program, Frames& frames);
  void FillStart(QVBoxLayout* group, program::StartOptions& model, Frames& frames);
  void FillKeepAlive(QVBoxLayout* group, session::Session& session, Frames& frames);
  void FillLinking(QVBoxLayout* group, core::Check& model, Frames& frames);
  void FillAppearance(QVBoxLayout* group, program::Appearance& model, Frames& frames);

  QWidget* page_;
  QHBoxLayout* columns_;
  QWidget* first_ = nullptr;
};

}  // namespace ui
