#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "platform/sim/world.h"
#include "session/node_form.h"

// The directory of nodes and its form, in the simulated world.
class NodeStage : public ::testing::Test {
 protected:
  void Start() {
    directory.Load();
    form.Show();
  }
  // The list as it would be after the next start.
  std::unique_ptr<session::NodeDirectory> AfterNextStart() {
    auto next = std::make_unique<session::NodeDirectory>(world.files, endpoints, "/home/op");
    next->Load();
    return next;
  }
  std::string& File() { return world.files.content["/home/op/dxclusters.dat"]; }
  bool HasFile() const { return world.files.content.contains("/home/op/dxclusters.dat"); }
  const std::string& Log() { return world.files.content["/home/op/error.log"]; }

  platform::sim::World world;
  core::Calendar calendar{world.clock};
  core::Endpoints endpoints;
  core::Settings settings;
  core::ErrorLog errorLog{world.files, world.dialogs, calendar, "/home/op"};
  int chosen = 0;
  int written = 0;
  session::NodeDirectory directory{world.files, endpoints, "/home/op"};
  session::NodeUpdate update{
      world.scheduler,
      world.http,
      world.files,
      directory,
      endpoints,
      settings,
      errorLog,
      {.delayedWriteCfg = [this] { ++written; },
       .onFault = [](std::string_view, std::string_view what) { FAIL() << what; }}};
  session::NodeForm form{directory, update, settings, errorLog, {.chosen = [this] { ++chosen; }}};
};
