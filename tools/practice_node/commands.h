#pragma once

#include <span>
#include <string_view>

#include "practice_node/caller.h"

namespace practice_node {

// A command of a dialect: its name in lower case with the verb in short ("sh/dx"), and what answers
// it. The argument has no blanks around it. The prompt behind the answer is not its business.
struct Command {
  std::string_view name;
  void (*answer)(Caller& caller, std::string_view argument);
};

// Answers a line that isn't blank. False, with nothing said, if the caller's dialect doesn't know
// its command.
bool AnswerCommand(Caller& caller, std::string_view line);

}  // namespace practice_node
