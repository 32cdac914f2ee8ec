#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

// Files by whole paths. Nothing here throws: what can't be done is an answer.
class Files {
 public:
  // Why a call failed. None: it did not.
  enum class Fault { None, NotFound, Denied, Full, Other };

  struct Content {
    Fault fault = Fault::None;
    std::string bytes;
  };

  virtual ~Files() = default;

  // The whole file, byte for byte.
  virtual Content Read(const std::string& path) = 0;
  // Writes a new file beside the old one, flushes it and renames it over: whatever happens, the
  // file then holds the old bytes or the new ones, whole. A private file can be read by its owner
  // alone.
  enum class Access { Usual, Private };
  virtual Fault Replace(const std::string& path, std::string_view bytes,
                        Access access = Access::Usual) = 0;
  // Adds to the end, creating the file. The bytes are the system's when this returns.
  virtual Fault Append(const std::string& path, std::string_view bytes) = 0;
  // No fault if there is no such file.
  virtual Fault Remove(const std::string& path) = 0;
  virtual bool Exists(const std::string& path) = 0;
  // In bytes; 0 if there is no such file.
  virtual std::uint64_t Size(const std::string& path) = 0;
  // Creates the folder and those above it; those that it creates are their owner's alone.
  // No fault if it is there.
  virtual Fault MakeFolder(const std::string& path) = 0;
  // Names (not paths) of the files and folders in a folder, sorted; empty if there is no such
  // folder.
  virtual std::vector<std::string> List(const std::string& folder) = 0;

  // A lock that goes with this process, however it ends. False if another process holds it.
  virtual bool Lock(const std::string& path) = 0;
};

}  // namespace platform
