#pragma once

#include <chrono>
#include <functional>

#include "platform/scheduler.h"

// Runs the event loop until the condition holds. False if it did not hold before the deadline.
bool PumpUntil(const std::function<bool()>& condition,
               std::chrono::seconds deadline = std::chrono::seconds(10));

// Runs the event loop for some turns of the scheduler: enough for whatever is under way to come.
void PumpTurns(platform::Scheduler& scheduler, int turns = 20);
