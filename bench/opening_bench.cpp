// How long a user waits for what he opens: each dialog of the menus, from the press of its entry to
// the end of its first painting, the first time and then again; and the tab of the spots with full
// stores. Real time, real sockets: molva-opening-bench [spots to fill the stores with].

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QProcess>
#include <QTemporaryDir>
#include <algorithm>
#include <functional>
#include <iostream>
#include <vector>

#include "on_practice_node.h"
#include "platform/qt/qt_platform.h"
#include "program/program.h"
#include "ui/frames.h"
#include "ui/main_window.h"
#include "ui/spot_view.h"
#include "ui/style.h"

namespace {

using program::Program;
using program::Views;

constexpr int kTimes = 10;
constexpr auto kWait = QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents;

double Milliseconds(const QElapsedTimer& timer) {
  return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

// Knows which window was painted, or which widget of it.
class PaintWatch : public QObject {
 public:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint) painted_.push_back(watched);
    return false;
  }
  void Forget() { painted_.clear(); }
  bool Saw(const std::function<bool(const QWidget&)>& wanted) const {
    return std::any_of(painted_.begin(), painted_.end(), [&](const QObject* each) {
      const auto* widget = qobject_cast<const QWidget*>(each);
      return widget != nullptr && wanted(*widget);
    });
  }

 private:
  std::vector<const QObject*> painted_;
};

void Settle(int milliseconds) {
  QElapsedTimer timer;
  timer.start();
  while (timer.elapsed() < milliseconds) QApplication::processEvents(QEventLoop::AllEvents, 10);
}

// From the act, which a key comes before, to the paint of what is wanted.
double Timed(QWidget& window, PaintWatch& watch, const std::function<void()>& act,
             const std::function<bool(const QWidget&)>& wanted) {
  QKeyEvent touch(QEvent::KeyPress, Qt::Key_Shift, Qt::ShiftModifier);
  QApplication::sendEvent(&window, &touch);
  Settle(200);
  watch.Forget();
  QElapsedTimer timer;
  timer.start();
  act();
  while (!watch.Saw(wanted)) QApplication::processEvents(kWait);
  return Milliseconds(timer);
}

void Report(const std::string& what, const std::vector<double>& times) {
  std::vector<double> later(times.begin() + 1, times.end());
  std::sort(later.begin(), later.end());
  std::cout << what << ": first " << times.front() << " ms, then " << later[later.size() / 2]
            << " ms, at most " << later.back() << " ms" << std::endl;
}

void OpenDialogs(QMainWindow& window, PaintWatch& watch) {
  for (const QAction* menu : window.menuBar()->actions())
    for (QAction* entry : menu->menu()->actions()) {
      const QString text = entry->text().section('\t', 0, 0).remove('&');
      const bool opens = text.endsWith("...") || menu->text().contains("Help");
      if (!opens || entry->isSeparator() || text.startsWith("Find")) continue;
      std::vector<double> times;
      for (int time = 0; time < kTimes; ++time) {
        const QWidget* opened = nullptr;
        times.push_back(Timed(
            window, watch, [entry] { entry->trigger(); },
            [&opened](const QWidget& painted) {
              if (qobject_cast<const QDialog*>(painted.window()) == nullptr) return false;
              opened = painted.window();
              return true;
            }));
        const_cast<QWidget*>(opened)->close();
        Settle(100);
      }
      Report(text.toStdString(), times);
    }
}

void ChooseSpots(QMainWindow& window, Program& program, PaintWatch& watch) {
  for (const auto& [order, name] :
       {std::pair(spots::kTimeOrder, "in time order"), std::pair(spots::kLastHour, "last hour")}) {
    program.spotParts.table.SortBy(order);
    std::vector<double> times;
    for (int time = 0; time < kTimes; ++time) {
      program.views.Choose(Views::LoginMsg);
      Settle(300);
      times.push_back(Timed(
          window, watch, [&program] { program.views.Choose(Views::Dx); },
          [](const QWidget& painted) {
            return dynamic_cast<const ui::SpotView*>(painted.parentWidget()) != nullptr;
          }));
    }
    Report(std::string("DX tab, ") + name, times);
  }
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  const std::uint64_t wanted = argc > 1 ? QString(argv[1]).toULongLong() : 20000;

  QProcess node;
  node.start(PRACTICE_NODE, {"--port", "0", "--rate", "2000"});
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
  while (program.spotParts.pipeline.SpotsShown < wanted) QApplication::processEvents(kWait);
  node.terminate();
  node.waitForFinished();
  Settle(1000);

  PaintWatch watch;
  application.installEventFilter(&watch);
  ChooseSpots(window, program, watch);
  OpenDialogs(window, watch);
  return 0;
}
