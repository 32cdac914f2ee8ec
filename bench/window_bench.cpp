// The running window on a flood: how long the event loop is away with one event, and what the whole
// costs. Real time, real sockets: molva-window-bench [lines a second [seconds of each view]].

#include <sys/resource.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>
#include <algorithm>
#include <iostream>
#include <string>
#include <vector>

#include "on_practice_node.h"
#include "platform/qt/qt_platform.h"
#include "program/program.h"
#include "ui/frames.h"
#include "ui/main_window.h"
#include "ui/style.h"

namespace {

using program::Program;
using program::Views;

// Times each event that the loop hands out, with all that it sets off.
class TimedApplication : public QApplication {
 public:
  using QApplication::QApplication;

  bool notify(QObject* receiver, QEvent* event) override {
    if (depth_ > 0) return QApplication::notify(receiver, event);
    QElapsedTimer timer;
    timer.start();
    ++depth_;
    const bool result = QApplication::notify(receiver, event);
    --depth_;
    events_.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    return result;
  }

  // The milliseconds of each event since the last call.
  std::vector<double> TakeEvents() { return std::exchange(events_, {}); }

 private:
  int depth_ = 0;
  std::vector<double> events_;
};

// What the process has used of the machine.
struct Usage {
  double processor;  // seconds
  long waits;        // how often a thread of it went to sleep, to be woken again

  static Usage Now() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    const auto seconds = [](const timeval& time) {
      return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
    };
    return {seconds(usage.ru_utime) + seconds(usage.ru_stime), usage.ru_nvcsw};
  }
};

// What happened while one view was on show.
class Stretch {
 public:
  Stretch(TimedApplication& application, const Program& program)
      : application_(application), program_(program) {
    application_.TakeEvents();
  }

  void Report(const char* view) {
    std::vector<double> events = application_.TakeEvents();
    std::sort(events.begin(), events.end());
    const auto above = [&](double limit) {
      return events.end() - std::upper_bound(events.begin(), events.end(), limit);
    };
    const double seconds = static_cast<double>(clock_.elapsed()) / 1e3;
    const auto spots = static_cast<double>(program_.spotParts.pipeline.SpotsShown - spots_);
    const Usage now = Usage::Now();
    const double processor = now.processor - before_.processor;
    std::cout << view << ": " << spots << " spots in " << seconds << " s, " << events.size()
              << " events, the longest " << events.back() << " ms, " << above(16) << " over 16 ms, "
              << above(50) << " over 50 ms, " << 100 * processor / seconds << " % of a core, "
              << 1000 * processor / spots << " s for 1,000 spots, "
              << static_cast<double>(now.waits - before_.waits) / seconds << " wake-ups a second"
              << std::endl;
  }

 private:
  static QElapsedTimer Started() {
    QElapsedTimer timer;
    timer.start();
    return timer;
  }

  TimedApplication& application_;
  const Program& program_;
  std::uint64_t spots_ = program_.spotParts.pipeline.SpotsShown;
  Usage before_ = Usage::Now();
  QElapsedTimer clock_ = Started();
};

}  // namespace

int main(int argc, char** argv) {
  TimedApplication application(argc, argv);
  const QString rate = argc > 1 ? argv[1] : "2000";
  const int seconds = argc > 2 ? QString(argv[2]).toInt() : 60;

  QProcess node;
  node.start(PRACTICE_NODE, {"--port", "0", "--rate", rate});
  const QTemporaryDir folder;
  WriteConfiguration(folder.path(), PortOf(node));

  platform::qt::QtPlatform qt;
  const platform::Platform platform = qt.Platform();
  Program program(platform, folder.path().toStdString(), {.quit = [] { QApplication::exit(0); }});
  ui::Wardrobe wardrobe(program.appearance, application);
  ui::Frames frames(platform.scheduler);
  ui::MainWindow window(program, frames, wardrobe.theme);
  program.Start();
  window.show();

  constexpr auto kSettle = 5000;  // in milliseconds: start, login, the stores filling
  std::unique_ptr<Stretch> stretch;
  const auto begin = [&](Views::Tab tab) {
    program.views.Choose(tab);
    QTimer::singleShot(1000, &application,
                       [&] { stretch = std::make_unique<Stretch>(application, program); });
  };
  QTimer::singleShot(kSettle, &application, [&] { begin(Views::Dx); });
  QTimer::singleShot(kSettle + (1 + seconds) * 1000, &application, [&] {
    stretch->Report("DX tab");
    begin(Views::LoginMsg);
  });
  QTimer::singleShot(kSettle + 2 * (1 + seconds) * 1000, &application, [&] {
    stretch->Report("Login message");
    program.RequestClose(Program::Close::WithoutAsking);
  });
  const int result = QApplication::exec();
  node.terminate();
  node.waitForFinished();
  return result;
}
