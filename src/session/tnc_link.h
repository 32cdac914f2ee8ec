#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "core/controls.h"
#include "core/pause.h"
#include "core/settings.h"
#include "platform/serial.h"
#include "platform/tasks.h"
#include "session/session_state.h"
#include "session/timers.h"

namespace session {

// The packet TNC on its serial port: the other way to the node.
class TncLink {
 public:
  struct Needs {
    std::function<std::string(int number)> portPath;  // empty: there is no such port
    std::function<bool()> intakeHeld;
    std::function<void(std::string_view bytes)> received;
    std::function<void(std::string_view line)> showRaw;
    // Told why the port does not open, once for each reason, and that it has gone.
    platform::FaultHandler onFault;
    std::function<void()> lost;  // the port has gone while it was open
  };

  TncLink(platform::SerialPorts& ports, const core::Settings& settings, const SessionState& state,
          Timers& timers, Needs needs);

  const std::unique_ptr<platform::SerialPort> MSComm1;
  bool BpqLink = false;  // the node in between has an attention character
  bool EscLink = false;  // and that is ESC, not "!"; such a node wants its text slowly
  core::Label lblTnc;    // the lamp lblTnc(0), on show in TNC mode; its tool tip says what it means
  core::Property<std::string> Trouble;  // why the port isn't open; empty: nothing is wrong

  // Opens the port with the settings, unless it is open. What is written first goes out half a
  // second later. False if it can't be opened.
  bool OpenComm1();
  // Lets other programs have the port.
  void CloseComm1();

  // Sends text in TNC mode, with CR behind it, and shows `shown` for it in the raw view. Three
  // forms mean more than they say: "!..." and "ESC..." call the attention of the node in between,
  // and "^C" is the control character. False if the text is lost, because the port can't be opened.
  bool TncSend(std::string_view text, std::string_view shown);

  // Why the port does not open, in a few words.
  std::string WhyClosed() const;

  // A text that is told from here on goes out 250 ms behind those before it.
  void Rest() { MSComm1->Output({}, core::kPause); }
  // Ctrl-C: the TNC takes commands again. False if it is lost, because the port can't be opened.
  bool SendCtrlC();
  // A link by way of another node: calls that node's attention and has it disconnect. False if it
  // is a direct one.
  bool CallAndDisconnect();

  // "*", with no line end: from it the TNC's firmware finds the baud rate. False if it is lost.
  bool SendAutobaud();

  // An attempt begins, of which nothing is known yet: neither the lamp nor what the last one met.
  void BeginLink();
  // Lights the lamp: by whether there is a session or at least a link, and by the way it goes.
  void ShowSession(bool loggedIn);
  void ShowLinked();
  void ShowLost();  // the link has gone by itself

  // Polled: takes what has come in, in TNC mode. While intake is held bytes stay unread.
  void ReadTNC();

 private:
  platform::SerialSettings PortSettings() const;
  void Light(core::Colour colour, std::string means);
  void ShowLit(std::string means);
  void Write(std::string_view text);
  void CallBpq(std::string_view rest);
  void CallEsc(std::string_view rest);
  void WriteSlowly(std::string_view text);

  const core::Settings& settings_;
  const SessionState& state_;
  Timers& timers_;
  Needs needs_;
};

}  // namespace session
