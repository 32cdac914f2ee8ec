#include "gui/desk.h"

#include <QApplication>

#include "spots/cty_text.h"

namespace gui {
namespace {

constexpr auto kFolder = "/home/anna/molva";
constexpr auto kConfiguration =
    "\"My Call\",\"K1TST-2\"\r\n\"My Name\",\"ANNA\"\r\n\"My QTH\",\"Ann Arbor, MI\"\r\n"
    "\"My Grid\",\"EN82DG\"\r\n\"Gmt Offset\",\"Ok\"\r\n\"AutoReconnect\",-1\r\n"
    "\"SelectedNode\",\"N0DE-1\"\r\n\"SelectedNodesAddress\",\"127.0.0.1\"\r\n"
    "\"PrimaryPort\",\"7373\"\r\n";

void LetQtWork() {
  QApplication::processEvents();
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

}  // namespace

void Desk::Open(const std::vector<std::string>& more) {
  std::string configuration = kConfiguration;
  for (const std::string& line : more) configuration += line + "\r\n";
  world.files.folders.insert(kFolder);
  world.files.content[std::string(kFolder) + "/molva.cfg"] = configuration;
  OpenAnew();
}

void Desk::OpenAnew() {
  world.files.content[program::Program::kCountryFile] = CtyText({});
  program = std::make_unique<program::Program>(
      world.platform(), kFolder,
      program::Program::Needs{
          .quit = [this] { hasQuit = true; },
          .seed = 1,
          .openManual = [this](std::string_view page) { pagesOpened.emplace_back(page); }});
  window = std::make_unique<ui::MainWindow>(*program, frames, liveTheme);
  window->show();
  QApplication::setActiveWindow(window.get());
  program->Start();
  Run(2s);
}

void Desk::LogIn() {
  Button("Connect").click();
  Run(2s);
  node.SayBytes("login: ");
  Run(1s);
  node.Say("");
  node.Say("Welcome to N0DE-1");
  node.Say("K1TST-2 de N0DE-1  20-Nov-2026 2100Z >");
  Run(1s);
}

void Desk::Run(platform::Milliseconds time) {
  LetQtWork();
  world.Run(time);
  LetQtWork();
}

void Desk::Press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  QWidget* focus = QApplication::focusWidget();
  QTest::keyClick(focus != nullptr ? focus : window.get(), key, modifiers);
}

}  // namespace gui
