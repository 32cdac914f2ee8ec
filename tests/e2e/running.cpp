#include "e2e/running.h"

#include <QDir>
#include <QFile>
#include <QProcessEnvironment>
#include <QRegularExpression>
#include <csignal>

namespace e2e {
namespace {

QProcessEnvironment EnvironmentWith(const QString& home) {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.remove("DISPLAY");
  environment.remove("WAYLAND_DISPLAY");
  environment.insert("QT_QPA_PLATFORM", "offscreen");
  environment.insert("MOLVA_HOME", home);
  return environment;
}

}  // namespace

Running::Running(const QString& program, const QStringList& arguments, const QString& home) {
  process_.setProcessEnvironment(EnvironmentWith(home));
  process_.setProcessChannelMode(QProcess::MergedChannels);
  process_.start(program, arguments);
  PumpUntil([this] { return process_.state() != QProcess::Starting; }, kPatience);
}

Running::~Running() {
  if (testing::Test::HasFailure()) qWarning().noquote() << Output();
  process_.kill();
  PumpUntil([this] { return process_.state() == QProcess::NotRunning; }, kPatience);
}

bool Running::HandlesSignals() const {
  static const QRegularExpression kCaught("SigCgt:\\s*([0-9a-f]+)");
  QFile status(QString("/proc/%1/status").arg(process_.processId()));
  if (!status.open(QIODevice::ReadOnly)) return false;
  const auto caught = kCaught.match(status.readAll()).captured(1).toULongLong(nullptr, 16);
  return (caught >> (SIGTERM - 1) & 1U) != 0;
}

std::string Running::Terminate(std::chrono::seconds patience) {
  if (!IsRunning()) return "was not running any more";
  process_.terminate();
  if (!PumpUntil([this] { return !IsRunning(); }, patience)) return "did not end";
  if (process_.exitStatus() != QProcess::NormalExit) return "crashed";
  return "exit code " + std::to_string(process_.exitCode());
}

QByteArray Running::Output() {
  output_ += process_.readAll();
  return output_;
}

ClientTest::ClientTest() {
  node = std::make_unique<Running>(PRACTICE_NODE, QStringList{"--port", "0", "--rate", "20"},
                                   temporary.path());
  static const QRegularExpression kPort("listening on 127\\.0\\.0\\.1:(\\d+) as");
  PumpUntil([this] { return kPort.match(node->Output()).hasMatch(); }, kPatience);
  const auto match = kPort.match(node->Output());
  EXPECT_TRUE(match.hasMatch()) << "the practice node does not listen";
  proxy = std::make_unique<RecordingProxy>(match.captured(1).toUShort());
}

void ClientTest::WriteFile(const QString& name, const QByteArray& bytes) {
  QDir().mkpath(folder);
  QFile file(folder + "/" + name);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(bytes);
}

QByteArray ClientTest::Configuration() const {
  return "\"My Call\",\"K1TST-2\"\r\n\"My Name\",\"ANNA\"\r\n\"My QTH\",\"Ann Arbor, MI\"\r\n"
         "\"My Grid\",\"EN82DG\"\r\n\"Gmt Offset\",\"Ok\"\r\n\"AutoStart\",-1\r\n"
         "\"AutoReconnect\",-1\r\n\"SelectedNode\",\"N0DE-1\"\r\n"
         "\"SelectedNodesAddress\",\"127.0.0.1\"\r\n\"PrimaryPort\",\"" +
         QByteArray::number(proxy->Port()) + "\"\r\n";
}

std::unique_ptr<Running> ClientTest::StartClient() {
  auto client = std::make_unique<Running>(CLIENT, QStringList(), folder);
  EXPECT_TRUE(PumpUntil([&client] { return client->HandlesSignals(); }, kPatience))
      << "the client has not started";
  return client;
}

std::unique_ptr<Running> ClientTest::StartLoggedIn() {
  WriteFile("molva.cfg", Configuration());
  auto client = StartClient();
  EXPECT_TRUE(PumpUntil([this] { return Heard("K1TST-2") && SpotsFlow(); }, kPatience))
      << "the client has not logged in";
  return client;
}

}  // namespace e2e
