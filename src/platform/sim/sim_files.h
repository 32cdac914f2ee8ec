#pragma once

#include <limits>
#include <map>
#include <set>
#include <string>

#include "platform/files.h"

namespace platform::sim {

// Thrown where the simulated machine stops. Whoever catches it starts a new program on the files.
struct Crash {};

// A disk in memory. Its members are its faults, to be switched by a test at any time.
class SimFiles : public Files {
 public:
  std::set<std::string> denied;    // paths, and folders with all that is below them
  std::set<std::string> readOnly;  // folders below which nothing is made, replaced or removed
  std::size_t bytesFree = std::numeric_limits<std::size_t>::max();
  // The machine stops when this many more bytes have been written, or before the step behind them.
  std::size_t crashAfterBytes = std::numeric_limits<std::size_t>::max();

  std::map<std::string, std::string> content;
  std::set<std::string> folders;
  std::set<std::string> privateFiles;
  std::set<std::string> locks;  // held by other processes

  Content Read(const std::string& path) override;
  Fault Replace(const std::string& path, std::string_view bytes, Access access) override;
  Fault Append(const std::string& path, std::string_view bytes) override;
  Fault Remove(const std::string& path) override;
  bool Exists(const std::string& path) override;
  std::uint64_t Size(const std::string& path) override;
  Fault MakeFolder(const std::string& path) override;
  std::vector<std::string> List(const std::string& folder) override;
  bool Lock(const std::string& path) override { return !locks.contains(path); }

 private:
  bool Denied(const std::string& path) const;
  bool ReadOnly(const std::string& path) const;
  Fault Write(std::string& file, std::string_view bytes);
};

}  // namespace platform::sim
