#pragma once

#include <memory>
#include <string>

#include "platform/sim/world.h"
#include "practice_node/node.h"
#include "practice_node/options.h"
#include "program/program.h"
#include "spots/cty_text.h"

// The whole program in the simulated world, with the practice node listening where its default is.
class Desk {
 public:
  static constexpr const char* kFolder = "/home/op/molva";

  Desk() { world.files.content[program::Program::kCountryFile] = CtyText({}); }

  platform::sim::World world;
  int quits = 0;
  std::unique_ptr<program::Program> program;

  // A folder that holds a configuration with these lines.
  void HasConfiguration(const std::string& lines) {
    world.files.folders.insert(kFolder);
    world.files.content[File("molva.cfg")] = lines;
  }
  void HasUsualConfiguration(const std::string& more = "") {
    HasConfiguration(
        "\"My Call\",\"K1TST-2\"\r\n\"My Name\",\"ANNA\"\r\n\"My QTH\",\"Ann Arbor, MI\"\r\n"
        "\"Gmt Offset\",\"Ok\"\r\n" +
        more);
  }

  // The program, not started yet.
  program::Program& Make() {
    program = std::make_unique<program::Program>(
        world.platform(), kFolder, program::Program::Needs{.quit = [this] { ++quits; }, .seed = 1});
    return *program;
  }

  // Starts the program, and lets it get through its start-up.
  program::Program& Start() {
    Make().Start();
    world.Run(platform::Milliseconds{100});
    return *program;
  }

  void StartNode() {
    practice_node::Options options;
    const auto kinds = practice_node::KindsOf(options);
    node_ = std::make_unique<practice_node::Node>(world.scheduler, world.clock, world.network,
                                                  practice_node::FactsOf(options, kinds.front()),
                                                  practice_node::StreamOf(options, nullptr));
    node_->Start("127.0.0.1", 7373);
  }
  void StopNode() { node_.reset(); }

  std::string& Content(const std::string& name) { return world.files.content[File(name)]; }
  std::string File(const std::string& name) const { return std::string(kFolder) + "/" + name; }

 private:
  std::unique_ptr<practice_node::Node> node_;
};
