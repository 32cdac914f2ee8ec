#pragma once

#include "platform/browser.h"
#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/http.h"
#include "platform/name_lookup.h"
#include "platform/programs.h"
#include "platform/scheduler.h"
#include "platform/serial.h"
#include "platform/tcp.h"

namespace platform {

// The outside, as it is handed to the program: the real one or the simulated one.
struct Platform {
  Scheduler& scheduler;
  Clock& clock;
  Network& network;
  NameLookup& names;
  SerialPorts& serialPorts;
  Files& files;
  Dialogs& dialogs;
  Browser& browser;
  Http& http;
  Programs& programs;
};

}  // namespace platform
