#pragma once

#include <QByteArray>
#include <QFile>
#include <QProcess>
#include <QString>

// A practice node of its own, and a client that connects to it at its start.

// The port that the node says it has.
inline QByteArray PortOf(QProcess& node) {
  node.waitForReadyRead();
  const QByteArray address = node.readLine().split(' ').value(2);
  return address.mid(address.lastIndexOf(':') + 1);
}

inline void WriteConfiguration(const QString& folder, const QByteArray& port) {
  QFile file(folder + "/molva.cfg");
  if (!file.open(QFile::WriteOnly)) return;
  file.write(
      "\"My Call\",\"K1TST-2\"\r\n\"My Name\",\"ANNA\"\r\n\"My QTH\",\"Ann Arbor\"\r\n"
      "\"My Grid\",\"EN82DG\"\r\n\"Gmt Offset\",\"Ok\"\r\n\"AutoStart\",-1\r\n"
      "\"SelectedNode\",\"N0DE-1\"\r\n\"SelectedNodesAddress\",\"127.0.0.1\"\r\n"
      "\"PrimaryPort\",\"" +
      port + "\"\r\n");
}
