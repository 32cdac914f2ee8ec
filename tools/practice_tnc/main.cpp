#include <QCoreApplication>
#include <QFile>
#include <iostream>
#include <memory>

#include "platform/qt/qt_end_signals.h"
#include "platform/qt/qt_platform.h"
#include "practice_node/options.h"
#include "practice_tnc/options.h"
#include "practice_tnc/pseudo_terminal.h"

namespace {

using practice_node::Node;
using practice_tnc::Options;
using practice_tnc::PseudoTerminal;
using practice_tnc::Tnc;

constexpr int kFailed = 1;
constexpr int kWronglyCalled = 2;

int Fail(int code, const std::string& why) {
  std::cerr << "molva-practice-tnc: " << why << std::endl;
  return code;
}

// The node at the far end, on a port of this machine. Null if it can't listen.
std::unique_ptr<Node> StartNode(const platform::Platform& platform, const Options& options) {
  practice_node::Options plan;
  plan.rate = options.rate;
  auto node = std::make_unique<Node>(platform.scheduler, platform.clock, platform.network,
                                     practice_node::FactsOf(plan, plan.kind),
                                     practice_node::StreamOf(plan, nullptr));
  return node->Start(plan.address, 0).empty() ? std::move(node) : nullptr;
}

// A link that is left from an earlier run is replaced, and no other file.
bool MakeLink(const std::string& path, const std::string& device) {
  const QString link = QString::fromStdString(path);
  if (QFile::symLinkTarget(link).startsWith(QLatin1String("/dev/pts/"))) QFile::remove(link);
  return QFile::link(QString::fromStdString(device), link);
}

int Run(Options options) {
  platform::qt::QtPlatform qt;
  const auto platform = qt.Platform();
  std::unique_ptr<Node> node;
  if (options.ownNode) {
    node = StartNode(platform, options);
    if (!node) return Fail(kFailed, "its own node can't listen");
    options.plan.port = node->Port();
  }
  std::unique_ptr<Tnc> tnc;
  const PseudoTerminal terminal(platform.scheduler,
                                [&tnc](std::string_view bytes) { tnc->Hear(bytes); });
  if (terminal.Path().empty()) return Fail(kFailed, "there is no pseudo-terminal to be had");
  const std::string& link = options.linkPath;
  if (!link.empty() && !MakeLink(link, terminal.Path())) return Fail(kFailed, "can't make " + link);
  tnc = std::make_unique<Tnc>(
      platform.scheduler, platform.network, options.plan,
      Tnc::Wire{.toComputer = [&terminal](std::string_view bytes) { terminal.Write(bytes); },
                .tell = [](const std::string& what) { std::cout << what << std::endl; }});
  std::cout << "for ports.cfg: \"17\",\"" << (link.empty() ? terminal.Path() : link) << "\""
            << std::endl;
  tnc->PowerUp();
  const int code = QCoreApplication::exec();
  if (!link.empty()) QFile::remove(QString::fromStdString(link));
  return code;
}

}  // namespace

int main(int argc, char** argv) {
  QCoreApplication application(argc, argv);
  const std::vector<std::string_view> arguments(argv + 1, argv + argc);
  auto parsed = practice_tnc::ParseOptions(arguments);
  if (!parsed.wrong.empty()) return Fail(kWronglyCalled, parsed.wrong + " (--help lists all)");
  if (parsed.options.help) {
    std::cout << practice_tnc::HelpText();
    return 0;
  }
  const platform::qt::QtEndSignals endSignals([] { QCoreApplication::quit(); });
  return Run(std::move(parsed.options));
}
