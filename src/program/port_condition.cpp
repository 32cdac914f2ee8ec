#include "program/port_condition.h"

#include <utility>

#include "session/port_advice.h"

namespace program {

PortCondition::PortCondition(Conditions& conditions, session::Session& session,
                             std::function<void()> choose)
    : conditions_(conditions),
      choose_(std::move(choose)),
      tnc_(session.tncLink.Trouble.Observe([this, &session](const std::string& trouble) {
        Look({.key = "TNC", .whose = "TNC: ", .advice = session::PortAdvice},
             *session.tncLink.MSComm1, trouble);
      })),
      network_(session.localNetwork.Trouble.Observe([this, &session](const std::string& trouble) {
        Look({.key = "network", .whose = "Local network: ", .advice = session::NetworkPortAdvice},
             *session.localNetwork.MSComm2, trouble);
      })) {}

void PortCondition::Look(const Port& port, const platform::SerialPort& line,
                         const std::string& trouble) {
  if (trouble.empty()) return conditions_.Clear(port.key);
  conditions_.Raise({.key = port.key,
                     .text = port.whose + port.advice(line.CommPort, trouble),
                     .button = "Connection…",
                     .help = choose_});
}

}  // namespace program
