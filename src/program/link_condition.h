#pragma once

#include "program/conditions.h"
#include "session/session.h"

namespace program {

// Raises the condition that there is no link although there is to be one, from the first failure
// until one holds or the user wants none.
class LinkCondition {
 public:
  // Both outlive it.
  LinkCondition(Conditions& conditions, session::Session& session);

 private:
  void Look();

  Conditions& conditions_;
  session::Session& session_;
  platform::Registration phase_;
  platform::Registration wanted_;
};

}  // namespace program
