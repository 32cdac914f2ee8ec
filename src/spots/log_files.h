#pragma once

#include <string>
#include <string_view>

#include "core/dates.h"
#include "platform/files.h"

namespace spots {

// Where the spot log lies: below the program's folder a folder for each year, in it a file for each
// day, "2026/dx-05-Jan-2026.txt". Days are day numbers since 1 January 1970.

std::string LogFolder(const std::string& programFolder, int day);
std::string LogName(int day);
std::string LogPath(const std::string& programFolder, int day);

// The day whose file a spot of that date belongs in: that of a real date "d-Mmm-yyyy" or
// "dd-Mmm-yyyy", blanks around it apart; of any other text today's.
int LogDay(core::Calendar& calendar, std::string_view spotDate);

// Deletes the files of all days in all year folders but the last `daysToKeep`, today included; a
// number below 1 keeps today's. Files that the log would not have made stay.
void DeleteLogFiles(platform::Files& files, core::Calendar& calendar,
                    const std::string& programFolder, int daysToKeep);

}  // namespace spots
