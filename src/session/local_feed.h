#pragma once

#include <functional>
#include <string_view>

#include "core/settings.h"
#include "platform/tasks.h"
#include "session/forwarding.h"
#include "session/session_state.h"

namespace session {

// The server that logging programs connect to.
class LoggerServer {
 public:
  virtual ~LoggerServer() = default;
  // Begins to listen; nothing happens if it listens there already. False: the port is taken.
  virtual bool EnableLogger(int port) = 0;
  // How many programs are connected; none while it doesn't listen.
  virtual int LoggersConnected() const = 0;
  // A line for logging programs.
  virtual void SendLogger(std::string_view line) = 0;
  // A line as it came, for those that asked for all of them.
  virtual void LoggerRaw(std::string_view line) = 0;
};

// Passes the node's lines on to the logging programs and to the local network, without what the
// node says to texts that this program sent. What fails there is reported, and the run goes on.
class LocalFeed : public LineFeed {
 public:
  struct Needs {
    std::function<void(std::string_view line)> sendRS232;
    platform::FaultHandler onFault;
  };

  LocalFeed(const core::Settings& settings, SessionState& state, LoggerServer& loggers,
            Needs needs);

  void RawLine(std::string_view line) override;
  void SendLocal(std::string_view line) override;

 private:
  void Pass(std::string_view line);
  bool IsAnswer(std::string_view line);

  const core::Settings& settings_;
  SessionState& state_;
  LoggerServer& loggers_;
  Needs needs_;
};

}  // namespace session
