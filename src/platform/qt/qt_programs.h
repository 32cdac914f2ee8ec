#pragma once

#include "platform/programs.h"

namespace platform::qt {

class QtPrograms : public Programs {
 public:
  std::unique_ptr<ChildProgram> Start(const std::string& name,
                                      const std::vector<std::string>& arguments) override;
};

}  // namespace platform::qt
