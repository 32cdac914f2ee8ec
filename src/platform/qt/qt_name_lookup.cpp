#include "platform/qt/qt_name_lookup.h"

#include <QHostInfo>
#include <QObject>

#include "platform/qt/qt_tcp_transport.h"

namespace platform::qt {
namespace {

// One question to the resolver, taken back when it goes.
class Lookup {
 public:
  explicit Lookup(const QString& host)
      : id_(QHostInfo::lookupHost(host, &receiver_,
                                  [this](const QHostInfo& info) { Answer(info); })) {}
  Lookup(const Lookup&) = delete;
  Lookup& operator=(const Lookup&) = delete;
  ~Lookup() { QHostInfo::abortHostLookup(id_); }

  Signal answered;
  std::vector<std::string> addresses;

 private:
  void Answer(const QHostInfo& info) {
    for (const QHostAddress& address : info.addresses()) addresses.push_back(Dotted(address));
    answered.Notify();
  }

  QObject receiver_;
  const int id_;
};

}  // namespace

Task<std::vector<std::string>> QtNameLookup::Resolve(std::string host) {
  const QString name = QString::fromStdString(host);
  const QHostAddress literal(name);
  // The resolver would look for the name of an address, and wait for it.
  if (!literal.isNull()) co_return std::vector<std::string>(1, Dotted(literal));
  Lookup lookup(name);
  co_await lookup.answered.Next();
  co_return lookup.addresses;
}

}  // namespace platform::qt
