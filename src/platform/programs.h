#pragma once

#include <memory>
#include <string>
#include <vector>

namespace platform {

// A program that was started from here. Destroying this ends it, and so does the end of this
// process, however that comes about.
class ChildProgram {
 public:
  virtual ~ChildProgram() = default;

  // False once it has ended, or if it could not be started.
  virtual bool Running() = 0;
  // Takes what it has written to its standard output since.
  virtual std::string Output() = 0;
};

// Starts programs that are installed with this one.
class Programs {
 public:
  virtual ~Programs() = default;

  // Does not wait for it. `name` is that of a file beside this program's own.
  virtual std::unique_ptr<ChildProgram> Start(const std::string& name,
                                              const std::vector<std::string>& arguments) = 0;
};

}  // namespace platform
