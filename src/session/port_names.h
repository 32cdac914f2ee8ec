#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/files.h"

namespace session {

// Which device each serial port of the program is. "ports.cfg" in the program's folder names them,
// a line each: "3","/dev/ttyUSB0". The file is read whenever it is asked, because two running
// copies share it.
class PortNames {
 public:
  // `file` is the whole path of "ports.cfg"; the files outlive this.
  PortNames(platform::Files& files, std::string file);

  // The device of a port: the last that is named for it, else that of PortPath. Lines that name no
  // port from 1 to 32, or no absolute path, don't count. Empty for any other number.
  std::string Path(int number) const;
  // Those of all ports, by number.
  std::vector<std::string> Paths() const;

  // Names the device of a port. The other lines stay as they are. On a fault nothing has changed.
  platform::Files::Fault Assign(int number, std::string_view device);

 private:
  platform::Files& files_;
  const std::string file_;
};

}  // namespace session
