#pragma once

#include <QByteArray>
#include <QTcpServer>
#include <QTcpSocket>
#include <list>

namespace e2e {

// Stands between client and node: passes everything on, keeps it, and can end the link.
class RecordingProxy {
 public:
  explicit RecordingProxy(quint16 nodePort);

  quint16 Port() const { return server_.serverPort(); }
  int Calls() const { return static_cast<int>(links_.size()); }
  // Whether a client has the link open still.
  bool Linked() const;

  // Resets every link, as a router does that has lost its memory.
  void Cut();
  // Says goodbye to the client, as a node does, and waits for it to close its end.
  void HangUp();

  QByteArray fromClients;
  QByteArray fromNode;

 private:
  struct Link {
    QTcpSocket* client;
    QTcpSocket* node;
  };

  void LetIn();

  quint16 nodePort_;
  QTcpServer server_;
  std::list<Link> links_;
};

}  // namespace e2e
