#pragma once

#include "platform/platform.h"
#include "platform/qt/qt_browser.h"
#include "platform/qt/qt_clock.h"
#include "platform/qt/qt_dialogs.h"
#include "platform/qt/qt_files.h"
#include "platform/qt/qt_http.h"
#include "platform/qt/qt_name_lookup.h"
#include "platform/qt/qt_network.h"
#include "platform/qt/qt_programs.h"
#include "platform/qt/qt_scheduler.h"
#include "platform/qt/qt_serial.h"

namespace platform::qt {

// The real outside. Made after the application object; outlives everything that uses it.
class QtPlatform {
 public:
  QtPlatform();

  platform::Platform Platform();

 private:
  QtScheduler scheduler_;
  QtClock clock_;
  QtNetwork network_;
  QtNameLookup names_;
  QtSerialPorts serialPorts_;
  QtFiles files_;
  QtDialogs dialogs_;
  QtBrowser browser_;
  QtHttp http_;
  QtPrograms programs_;
};

}  // namespace platform::qt
