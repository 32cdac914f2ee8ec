#pragma once

#include <map>

#include "platform/files.h"

namespace platform::qt {

// Files of the system, straight from it: Qt's file classes don't tell why a call failed.
class QtFiles final : public Files {
 public:
  QtFiles() = default;
  QtFiles(const QtFiles&) = delete;
  QtFiles& operator=(const QtFiles&) = delete;
  ~QtFiles() override;  // gives its locks back

  // A regular file only: another one might never end. Fault::Other otherwise.
  Content Read(const std::string& path) override;
  // Keeps the mode of the file that it replaces, and a symbolic link to it.
  Fault Replace(const std::string& path, std::string_view bytes, Access access) override;
  Fault Append(const std::string& path, std::string_view bytes) override;
  Fault Remove(const std::string& path) override;
  bool Exists(const std::string& path) override;
  std::uint64_t Size(const std::string& path) override;
  Fault MakeFolder(const std::string& path) override;
  std::vector<std::string> List(const std::string& folder) override;
  // True also where the system gives no lock at all (a file system without any, a folder that can't
  // be written): nobody else holds it.
  bool Lock(const std::string& path) override;

 private:
  std::map<std::string, int> locks_;  // descriptors; the lock goes with its descriptor
};

}  // namespace platform::qt
