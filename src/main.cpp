#include <QApplication>
#include <cstdlib>
#include <random>

#include "core/version.h"
#include "platform/qt/qt_end_signals.h"
#include "platform/qt/qt_platform.h"
#include "program/folder.h"
#include "program/program.h"
#include "ui/frames.h"
#include "ui/main_window.h"
#include "ui/style.h"
#include "ui/theme.h"

namespace {

std::optional<std::string> Variable(const std::string& name) {
  const char* value = std::getenv(name.c_str());
  if (value == nullptr) return std::nullopt;
  return value;
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("molva-desk"));
  QApplication::setApplicationDisplayName(QString());
  QApplication::setApplicationVersion(QString::fromLatin1(core::kProgramVersion));
  const ui::Theme theme = ui::Theme::OfSystem();
  ui::Apply(theme, application);

  platform::qt::QtPlatform qt;
  const platform::Platform platform = qt.Platform();
  program::Program program(platform, program::ProgramFolder(Variable),
                           {.quit = [] { QApplication::exit(0); }, .seed = std::random_device{}()});
  platform::qt::QtEndSignals endSignals(
      [&program] { program.RequestClose(program::Program::Close::WithoutAsking); });
  ui::Frames frames(platform.scheduler);
  ui::MainWindow window(program, frames, theme);
  program.Start();
  window.show();
  return QApplication::exec();
}
