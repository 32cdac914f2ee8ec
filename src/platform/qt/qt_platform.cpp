#include "platform/qt/qt_platform.h"

namespace platform::qt {

QtPlatform::QtPlatform() : network_(scheduler_), serialPorts_(scheduler_) {}

platform::Platform QtPlatform::Platform() {
  return {scheduler_, clock_,   network_, names_, serialPorts_,
          files_,     dialogs_, browser_, http_,  programs_};
}

}  // namespace platform::qt
