#include <QCoreApplication>
#include <iostream>
#include <memory>

#include "platform/qt/qt_end_signals.h"
#include "platform/qt/qt_platform.h"
#include "practice_node/options.h"

namespace {

using practice_node::Node;
using practice_node::Options;
using Lines = std::vector<std::string>;

constexpr int kFailed = 1;
constexpr int kWronglyCalled = 2;

int Fail(int code, const std::string& why) {
  std::cerr << "molva-practice-node: " << why << std::endl;
  return code;
}

// False if the file can't be read. No file named gives no lines.
bool ReadLines(platform::Files& files, const std::string& path,
               std::shared_ptr<const Lines>& lines) {
  if (path.empty()) return true;
  const auto content = files.Read(path);
  if (content.fault != platform::Files::Fault::None) return false;
  lines = std::make_shared<const Lines>(practice_node::LinesOf(content.bytes));
  return true;
}

int Run(const Options& options) {
  platform::qt::QtPlatform qt;
  const auto platform = qt.Platform();
  std::shared_ptr<const Lines> lines;
  if (!ReadLines(platform.files, options.playFile, lines))
    return Fail(kFailed, "can't read " + options.playFile);

  std::vector<std::unique_ptr<Node>> nodes;
  for (const auto kind : practice_node::KindsOf(options)) {
    const bool fixed = options.port != 0;
    const auto port = static_cast<std::uint16_t>(fixed ? options.port + nodes.size() : 0);
    auto& node = nodes.emplace_back(std::make_unique<Node>(
        platform.scheduler, platform.clock, platform.network, practice_node::FactsOf(options, kind),
        practice_node::StreamOf(options, lines)));
    const std::string wrong = node->Start(options.address, port);
    if (!wrong.empty()) return Fail(kFailed, wrong);
    std::cout << node->Banner() << std::endl;
  }
  return QCoreApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
  QCoreApplication application(argc, argv);
  const std::vector<std::string_view> arguments(argv + 1, argv + argc);
  const auto parsed = practice_node::ParseOptions(arguments);
  if (!parsed.wrong.empty()) return Fail(kWronglyCalled, parsed.wrong + " (--help lists all)");
  if (parsed.options.help) {
    std::cout << practice_node::HelpText();
    return 0;
  }
  const platform::qt::QtEndSignals endSignals([] { QCoreApplication::quit(); });
  return Run(parsed.options);
}
