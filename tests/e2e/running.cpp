#include "e2e/running.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QProcessEnvironment>
#include <QRegularExpression>
#include <algorithm>
#include <csignal>

namespace e2e {
namespace {

QProcessEnvironment EnvironmentWith(const QString& home) {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.remove("DISPLAY");
  environment.remove("WAYLAND_DISPLAY");
  environment.insert("QT_QPA_PLATFORM", "offscreen");
  environment.insert("MOLVA_HOME", home);
  environment.insert("LD_PRELOAD", SKIPPED_MINUTES);
  // The sanitizers' library would be first otherwise.
  environment.insert("ASAN_OPTIONS",
                     environment.value("ASAN_OPTIONS") + ":verify_asan_link_order=0");
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

QString Running::LinkTo(quint16 port) const {
  QFile connections(QString("/proc/%1/net/tcp").arg(process_.processId()));
  if (!connections.open(QIODevice::ReadOnly)) return {};
  // number: local address, remote address, state (1: up), 5 figures, the connection's number.
  const QRegularExpression link(
      QString(":\\s+\\S+\\s+\\S+:%1\\s+01(?:\\s+\\S+){5}\\s+(\\d+)").arg(port, 4, 16, QChar('0')),
      QRegularExpression::CaseInsensitiveOption);
  const auto found = link.globalMatch(connections.readAll());
  for (const auto& each : found) {
    QString name = "socket:[" + each.captured(1) + "]";
    if (Holds(name)) return name;
  }
  return {};
}

bool Running::Holds(const QString& link) const {
  const QDir open(QString("/proc/%1/fd").arg(process_.processId()));
  const auto files = open.entryList(QDir::Files | QDir::System);
  return std::any_of(files.begin(), files.end(), [&](const QString& file) {
    return QFile::symLinkTarget(open.filePath(file)).endsWith(link);
  });
}

void Running::SkipAMinute() { ::kill(static_cast<pid_t>(process_.processId()), SIGUSR1); }

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

void ClientTest::ExpectLoggedInAgain(Running& client, const QString& lostLink) {
  ASSERT_FALSE(lostLink.isEmpty());
  const int calls = proxy->Calls();
  ASSERT_TRUE(PumpUntil([&] { return !client.Holds(lostLink); }, kPatience))
      << "the client has not noticed the loss";
  proxy->fromClients.clear();
  proxy->fromNode.clear();
  // The loss counts, and the wait for the next try begins, behind all that the node said before it.
  QDeadlineTimer next;
  EXPECT_TRUE(PumpUntil(
      [&] {
        if (proxy->Calls() > calls) return true;
        if (!next.hasExpired()) return false;
        client.SkipAMinute();
        next.setRemainingTime(1s);
        return false;
      },
      kPatience))
      << "the client has not tried again";
  EXPECT_TRUE(PumpUntil([this] { return Heard("K1TST-2") && SpotsFlow(); }, kPatience))
      << "the client has not logged in again";
}

}  // namespace e2e
