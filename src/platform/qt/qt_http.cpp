#include "platform/qt/qt_http.h"

#include <QNetworkReply>
#include <QObject>
#include <QUrl>
#include <algorithm>
#include <array>

namespace platform::qt {
namespace {

constexpr int kOk = 200;
constexpr int kFirstRefusal = 400;

struct FaultOfError {
  QNetworkReply::NetworkError error;
  Http::Fault fault;
};
constexpr std::array kFaults = {
    FaultOfError{QNetworkReply::NoError, Http::Fault::None},
    FaultOfError{QNetworkReply::ConnectionRefusedError, Http::Fault::Refused},
    FaultOfError{QNetworkReply::RemoteHostClosedError, Http::Fault::BrokenOff},
    FaultOfError{QNetworkReply::HostNotFoundError, Http::Fault::HostNotFound},
    FaultOfError{QNetworkReply::TimeoutError, Http::Fault::TimedOut},
    // What silence ends in; what is too large has its fault before.
    FaultOfError{QNetworkReply::OperationCanceledError, Http::Fault::TimedOut},
    FaultOfError{QNetworkReply::SslHandshakeFailedError, Http::Fault::NotSecure},
    FaultOfError{QNetworkReply::TooManyRedirectsError, Http::Fault::TooManyRedirects},
    FaultOfError{QNetworkReply::InsecureRedirectError, Http::Fault::BadAddress},
    FaultOfError{QNetworkReply::ProtocolUnknownError, Http::Fault::BadAddress},
};

Http::Fault FaultOf(QNetworkReply::NetworkError error) {
  const auto row = std::find_if(kFaults.begin(), kFaults.end(),
                                [error](const FaultOfError& each) { return each.error == error; });
  return row == kFaults.end() ? Http::Fault::Other : row->fault;
}

bool IsOfTheWeb(const QUrl& url) {
  const bool web = url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https");
  return url.isValid() && web && !url.host().isEmpty();
}

QNetworkRequest RequestOf(const QUrl& url, const Http::Request& wanted) {
  QNetworkRequest request(url);
  request.setHeader(QNetworkRequest::UserAgentHeader, QStringLiteral("Molva Desk"));
  // Packed bytes could unpack to any size, and progress would count something else.
  request.setRawHeader("Accept-Encoding", "identity");
  request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                       QNetworkRequest::NoLessSafeRedirectPolicy);
  request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
  request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
  request.setMaximumRedirectsAllowed(Http::kMostRedirects);
  request.setTransferTimeout(static_cast<int>(wanted.silence.count()));
  return request;
}

// One transfer, ended when it goes.
class Fetch {
 public:
  Fetch(QNetworkAccessManager& manager, const QUrl& url, Http::Request request)
      : request_(std::move(request)), reply_(manager.get(RequestOf(url, request_))) {
    QObject::connect(reply_, &QNetworkReply::metaDataChanged, &receiver_, [this] { TakeHead(); });
    QObject::connect(reply_, &QNetworkReply::readyRead, &receiver_, [this] { Take(); });
    QObject::connect(reply_, &QNetworkReply::finished, &receiver_, [this] { End(); });
  }
  Fetch(const Fetch&) = delete;
  Fetch& operator=(const Fetch&) = delete;
  ~Fetch() {
    QObject::disconnect(reply_, nullptr, &receiver_, nullptr);
    reply_->abort();
    reply_->deleteLater();
  }

  Signal ended;
  bool over = false;
  Http::Answer answer;

 private:
  int Status() const { return reply_->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt(); }

  void TakeHead() {
    expected_ = reply_->header(QNetworkRequest::ContentLengthHeader).toULongLong();
    if (expected_ > request_.mostBytes) GiveUp();
  }

  void Take() {
    // A server that says no has a page for that, too.
    if (!reply_->isOpen() || Status() != kOk) return;
    const QByteArray piece = reply_->readAll();
    const auto size = static_cast<std::size_t>(piece.size());
    if (size > request_.mostBytes - answer.bytes.size()) return GiveUp();
    answer.bytes.append(piece.constData(), size);
    if (request_.progress) request_.progress(answer.bytes.size(), expected_);
  }

  void GiveUp() {
    if (over || Status() >= kFirstRefusal) return;
    answer.fault = Http::Fault::TooLarge;
    answer.description = "The answer is too large";
    reply_->abort();
  }

  void End() {
    if (over) return;
    Take();
    over = true;
    answer.status = Status();
    answer.lengthTold = reply_->header(QNetworkRequest::ContentLengthHeader).isValid();
    if (answer.fault == Http::Fault::None) Judge();
    if (answer.fault != Http::Fault::None) answer.bytes.clear();
    ended.Notify();
  }

  void Judge() {
    const bool refused = answer.status >= kFirstRefusal;
    answer.fault = refused ? Http::Fault::Status : FaultOf(reply_->error());
    if (answer.fault != Http::Fault::None) {
      answer.description = reply_->errorString().toStdString();
    } else if (answer.status != kOk) {
      answer.fault = Http::Fault::Status;
      answer.description = "No page was sent";
    } else if (answer.bytes.size() < expected_) {
      answer.fault = Http::Fault::BrokenOff;
      answer.description = "The answer is not whole";
    }
  }

  const Http::Request request_;
  std::uint64_t expected_ = 0;
  QObject receiver_;
  QNetworkReply* const reply_;
};

}  // namespace

QtHttp::QtHttp() = default;

Task<Http::Answer> QtHttp::Get(Request request) {
  const QUrl url(QString::fromStdString(request.url), QUrl::StrictMode);
  if (!IsOfTheWeb(url))
    co_return Answer{.fault = Http::Fault::BadAddress,
                     .status = 0,
                     .description = "No address of the web",
                     .lengthTold = false,
                     .bytes = {}};
  Fetch fetch(manager_, url, std::move(request));
  if (!fetch.over) co_await fetch.ended.Next();
  co_return std::move(fetch.answer);
}

}  // namespace platform::qt
