#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QProcess>
#include <QTemporaryDir>
#include <chrono>
#include <memory>

#include "e2e/recording_proxy.h"
#include "platform/qt/pump.h"

namespace e2e {

using namespace std::chrono_literals;

// How long anything may take on a machine that has a lot else to do. Nothing waits for as long as
// that unless it fails.
constexpr std::chrono::seconds kPatience{20};

// A program that has been started. It does not outlive this object.
class Running {
 public:
  Running(const QString& program, const QStringList& arguments, const QString& home);
  ~Running();
  Running(const Running&) = delete;
  Running& operator=(const Running&) = delete;

  bool IsRunning() const { return process_.state() == QProcess::Running; }
  // Whether it has taken the signals to end into its own hands yet.
  bool HandlesSignals() const;
  // Its connection to that port of this machine, by the system's name for it; empty if it has none.
  QString LinkTo(quint16 port) const;
  // Whether it keeps that connection, be it good or broken.
  bool Holds(const QString& link) const;
  // Lets a little more than a minute pass for all that it waits for.
  void SkipAMinute();
  // Sends SIGTERM and waits for the end; the exit code, or why there is none.
  std::string Terminate(std::chrono::seconds patience = kPatience);
  // What it has printed so far.
  QByteArray Output();

 private:
  QProcess process_;
  QByteArray output_;
};

// A client with a folder of its own, and a node that it reaches through a proxy.
class ClientTest : public ::testing::Test {
 protected:
  ClientTest();

  // A file in the client's folder.
  void WriteFile(const QString& name, const QByteArray& bytes);
  // A configuration that connects to the node at the start.
  QByteArray Configuration() const;

  // Starts a client and waits until it can be told to end.
  std::unique_ptr<Running> StartClient();
  // Starts a client with that configuration and waits until spots come in.
  std::unique_ptr<Running> StartLoggedIn();
  // Waits until the client has let go of a link that is lost, and then until it has logged in again
  // by itself.
  void ExpectLoggedInAgain(Running& client, const QString& lostLink);
  bool Heard(const QByteArray& line) const { return proxy->fromClients.contains(line + "\r\n"); }
  bool SpotsFlow() const { return proxy->fromNode.count("DX de ") >= 3; }

  QTemporaryDir temporary;
  QString folder = temporary.path() + "/molva";
  std::unique_ptr<Running> node;
  std::unique_ptr<RecordingProxy> proxy;
};

}  // namespace e2e
