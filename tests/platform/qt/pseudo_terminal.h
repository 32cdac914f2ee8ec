#pragma once

#include <fcntl.h>
#include <stdlib.h>
#include <termios.h>
#include <unistd.h>

#include <string>
#include <string_view>
#include <utility>

// The other end of a serial line.
class PseudoTerminal {
 public:
  PseudoTerminal() : master_(posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK)) {
    grantpt(master_);
    unlockpt(master_);
    path_ = ptsname(master_);
  }
  ~PseudoTerminal() { Vanish(); }
  PseudoTerminal(const PseudoTerminal&) = delete;
  PseudoTerminal& operator=(const PseudoTerminal&) = delete;

  const std::string& Path() const { return path_; }
  void Vanish() {
    if (master_ >= 0) close(std::exchange(master_, -1));
  }
  std::string Read() const {
    char piece[1000];
    const ssize_t count = read(master_, piece, sizeof piece);
    return count > 0 ? std::string(piece, static_cast<std::size_t>(count)) : std::string();
  }
  bool Write(std::string_view bytes) const {
    return write(master_, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size());
  }
  termios Settings() const {
    termios settings = {};
    tcgetattr(master_, &settings);
    return settings;
  }

 private:
  int master_;
  std::string path_;
};
