#pragma once

#include <string>

#include "platform/dialogs.h"
#include "platform/files.h"
#include "spots/cty_table.h"

namespace spots {

// Reads "cty.dat" of the folder into the table, and writes it anew where it lacks a country. A file
// that can't be read, is empty or damaged is told to the user, without waiting for him, and leaves
// the table empty.
void ReadWLCty(platform::Files& files, platform::Dialogs& dialogs, const std::string& folder,
               CtyTable& table);

}  // namespace spots
