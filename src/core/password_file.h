#pragma once

#include <string>
#include <string_view>

#include "platform/files.h"

// "molva.pwd": the node password, in a file that its owner alone can read. Its records are
// `"Node","<password>"`, one a line.
namespace core {

// The second field of the last record, with the commas and double quotes that it holds. Empty if
// there is no such file, no record in it, or it can't be read.
std::string ReadPassword(platform::Files& files, const std::string& path);

// Keeps that password alone; an empty one removes the file. It must not hold a line end: what
// stands from there on is lost.
platform::Files::Fault SavePassword(platform::Files& files, const std::string& path,
                                    std::string_view password);

}  // namespace core
