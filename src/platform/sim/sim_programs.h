#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/programs.h"

namespace platform::sim {

// Programs that a test has installed, and what was started.
class SimPrograms : public Programs {
 public:
  // One that was started; it is the test that lets it write and end.
  struct Child {
    std::string name;
    std::vector<std::string> arguments;
    bool running = false;
    std::string output{};  // not taken yet
  };

  // What happens when the program of that name is started. One that is not here can't be.
  std::map<std::string, std::function<void(Child&)>> installed;
  std::vector<std::shared_ptr<Child>> started;

  std::unique_ptr<ChildProgram> Start(const std::string& name,
                                      const std::vector<std::string>& arguments) override;
};

}  // namespace platform::sim
