#include "platform/qt/qt_programs.h"

#include <sys/prctl.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QProcess>
#include <csignal>

namespace platform::qt {
namespace {

// Runs in the child, before its program does.
void TieTo(pid_t parent) {
  prctl(PR_SET_PDEATHSIG, SIGTERM);
  if (getppid() != parent) _exit(EXIT_FAILURE);  // it has ended before it was tied to
  setsid();  // Ctrl-C in a terminal is for the parent, which may want to say goodbye first
}

class QtChildProgram final : public ChildProgram {
 public:
  QtChildProgram(const QString& path, const QStringList& arguments) {
    process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process_.setStandardInputFile(QProcess::nullDevice());
    process_.setChildProcessModifier([parent = getpid()] { TieTo(parent); });
    process_.start(path, arguments, QIODevice::ReadOnly);
  }
  // Kills it, and waits for the moment that this takes.
  ~QtChildProgram() override { process_.close(); }

  bool Running() override { return process_.state() != QProcess::NotRunning; }
  std::string Output() override { return process_.readAllStandardOutput().toStdString(); }

 private:
  QProcess process_;
};

}  // namespace

std::unique_ptr<ChildProgram> QtPrograms::Start(const std::string& name,
                                                const std::vector<std::string>& arguments) {
  QStringList list;
  for (const std::string& argument : arguments) list << QString::fromStdString(argument);
  const QString path =
      QCoreApplication::applicationDirPath() + QLatin1Char('/') + QString::fromStdString(name);
  return std::make_unique<QtChildProgram>(path, list);
}

}  // namespace platform::qt
