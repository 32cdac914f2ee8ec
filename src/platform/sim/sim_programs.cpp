#include "platform/sim/sim_programs.h"

#include <utility>

namespace platform::sim {
namespace {

class SimChildProgram final : public ChildProgram {
 public:
  explicit SimChildProgram(std::shared_ptr<SimPrograms::Child> child) : child_(std::move(child)) {}
  ~SimChildProgram() override { child_->running = false; }

  bool Running() override { return child_->running; }
  std::string Output() override { return std::exchange(child_->output, {}); }

 private:
  const std::shared_ptr<SimPrograms::Child> child_;
};

}  // namespace

std::unique_ptr<ChildProgram> SimPrograms::Start(const std::string& name,
                                                 const std::vector<std::string>& arguments) {
  auto child = std::make_shared<Child>(Child{.name = name, .arguments = arguments});
  started.push_back(child);
  if (const auto found = installed.find(name); found != installed.end()) {
    child->running = true;
    found->second(*child);
  }
  return std::make_unique<SimChildProgram>(child);
}

}  // namespace platform::sim
