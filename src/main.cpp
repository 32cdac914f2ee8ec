#include <QApplication>
#include <QIcon>
#include <cstdlib>
#include <random>

#include "core/version.h"
#include "platform/qt/qt_colour_scheme.h"
#include "platform/qt/qt_end_signals.h"
#include "platform/qt/qt_platform.h"
#include "program/folder.h"
#include "program/program.h"
#include "ui/frames.h"
#include "ui/main_window.h"
#include "ui/style.h"

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
  QApplication::setDesktopFileName(QStringLiteral("molva-desk"));
  QApplication::setWindowIcon(QIcon(QStringLiteral(":/molva-desk.svg")));
  platform::qt::QtPlatform qt;
  const platform::Platform platform = qt.Platform();
  program::Program program(platform, program::ProgramFolder(Variable),
                           {.quit = [] { QApplication::exit(0); }, .seed = std::random_device{}()});
  platform::qt::QtEndSignals endSignals(
      [&program] { program.RequestClose(program::Program::Close::WithoutAsking); });
  const platform::qt::QtColourScheme colourScheme(
      [&program](platform::ColourScheme scheme) { program.appearance.SystemHas(scheme); });
  ui::Wardrobe wardrobe(program.appearance, application);
  ui::Frames frames(platform.scheduler);
  ui::MainWindow window(program, frames, wardrobe.theme);
  program.Start();
  window.show();
  return QApplication::exec();
}
