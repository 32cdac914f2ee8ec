#include "platform/qt/qt_http.h"

#include <gmock/gmock.h>

#include <QTcpServer>
#include <QTcpSocket>
#include <map>

#include "platform/qt/pump.h"
#include "platform/qt/qt_scheduler.h"
#include "platform/tasks.h"

namespace platform::qt {
namespace {

using namespace std::chrono_literals;
using testing::Each;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

// Answers each request with the bytes that are written for its path, and hangs up behind them
// unless it is to keep the line.
class WebServer {
 public:
  WebServer() {
    server_.listen(QHostAddress::LocalHost);
    QObject::connect(&server_, &QTcpServer::newConnection, &server_, [this] { Serve(); });
  }

  std::map<std::string, std::string> answers;
  bool keepsTheLine = false;
  std::string received;
  int linesLost = 0;  // that the other side has closed

  std::string At(const std::string& path) const {
    return "http://127.0.0.1:" + std::to_string(server_.serverPort()) + path;
  }
  void StopListening() { server_.close(); }

 private:
  void Serve() {
    QTcpSocket* line = server_.nextPendingConnection();
    QObject::connect(line, &QTcpSocket::disconnected, line, [this, line] {
      ++linesLost;
      line->deleteLater();
    });
    QObject::connect(line, &QTcpSocket::readyRead, line, [this, line] {
      const std::string head = line->readAll().toStdString();
      received += head;
      const auto start = head.find(' ') + 1;
      const std::string& answer = answers[head.substr(start, head.find(' ', start) - start)];
      line->write(answer.data(), static_cast<qint64>(answer.size()));
      if (!keepsTheLine) line->disconnectFromHost();
    });
  }

  QTcpServer server_;
};

std::string Page(const std::string& body) {
  return "HTTP/1.1 200 OK\r\nContent-Length: " + std::to_string(body.size()) + "\r\n\r\n" + body;
}

std::string Redirect(const std::string& to) {
  return "HTTP/1.1 302 Found\r\nContent-Length: 0\r\nLocation: " + to + "\r\n\r\n";
}

class QtHttpTest : public testing::Test {
 protected:
  static Task<> Note(Http& http, Http::Request request, std::optional<Http::Answer>& into) {
    auto get = http.Get(std::move(request));
    into = co_await std::move(get);
  }
  void Begin(Http::Request request) {
    tasks.Start("fetch", Note(http, std::move(request), answer));
  }
  Http::Answer Get(Http::Request request) {
    answer.reset();
    Begin(std::move(request));
    EXPECT_TRUE(PumpUntil([this] { return answer.has_value(); }));
    return answer.value_or(Http::Answer{});
  }
  Http::Answer GetPath(const std::string& path) {
    return Get({.url = server.At(path), .mostBytes = 1'000'000});
  }

  QtScheduler scheduler;
  WebServer server;
  QtHttp http;
  std::optional<Http::Answer> answer;
  Tasks tasks{scheduler, [](std::string_view, std::string_view what) { FAIL() << what; }};
};

TEST_F(QtHttpTest, APageComesWholeByteForByte) {
  std::string body = "a,b\r\n";
  body += '\0';
  body += "\xff\xfe";
  server.answers["/list"] = Page(body);
  const Http::Answer got = GetPath("/list");
  EXPECT_EQ(got.fault, Http::Fault::None) << got.description;
  EXPECT_EQ(got.status, 200);
  EXPECT_EQ(got.bytes, body);
}

TEST_F(QtHttpTest, APageWithoutALengthEndsWithTheLine) {
  server.answers["/list"] = "HTTP/1.1 200 OK\r\nConnection: close\r\n\r\nbody";
  EXPECT_EQ(GetPath("/list").bytes, "body");
}

TEST_F(QtHttpTest, ProgressCountsUpToTheLength) {
  const std::string body(300'000, 'x');
  server.answers["/list"] = Page(body);
  std::vector<std::uint64_t> received, expected;
  const auto got = Get({.url = server.At("/list"),
                        .mostBytes = body.size(),
                        .progress = [&](std::uint64_t now, std::uint64_t whole) {
                          received.push_back(now);
                          expected.push_back(whole);
                        }});
  EXPECT_EQ(got.bytes, body);
  ASSERT_FALSE(received.empty());
  EXPECT_TRUE(std::is_sorted(received.begin(), received.end()));
  EXPECT_EQ(received.back(), body.size());
  EXPECT_THAT(expected, Each(body.size()));
}

TEST_F(QtHttpTest, APageThatBreaksOffIsNoPage) {
  server.answers["/list"] = "HTTP/1.1 200 OK\r\nContent-Length: 1000\r\n\r\nhalf";
  const Http::Answer got = GetPath("/list");
  EXPECT_EQ(got.fault, Http::Fault::BrokenOff);
  EXPECT_EQ(got.bytes, "");
}

// Where such a page breaks off, Qt takes it for all there is.
TEST_F(QtHttpTest, APageInPiecesTellsNoLength) {
  server.answers["/list"] =
      "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n5\r\nwhole\r\n0\r\n\r\n";
  const Http::Answer got = GetPath("/list");
  EXPECT_EQ(got.bytes, "whole");
  EXPECT_FALSE(got.lengthTold);
}

TEST_F(QtHttpTest, WhetherThePageToldItsLengthIsKnown) {
  server.answers["/told"] = Page("body");
  server.answers["/untold"] = "HTTP/1.1 200 OK\r\nConnection: close\r\n\r\nbody";
  EXPECT_TRUE(GetPath("/told").lengthTold);
  EXPECT_FALSE(GetPath("/untold").lengthTold);
}

TEST_F(QtHttpTest, APageOfTheLargestSizeIsTaken) {
  server.answers["/list"] = Page(std::string(1000, 'x'));
  EXPECT_EQ(Get({.url = server.At("/list"), .mostBytes = 1000}).bytes.size(), 1000U);
}

TEST_F(QtHttpTest, ALargerPageIsGivenUpByItsLength) {
  server.answers["/list"] = "HTTP/1.1 200 OK\r\nContent-Length: 1001\r\n\r\n";
  server.keepsTheLine = true;  // no byte of it has to come
  const Http::Answer got = Get({.url = server.At("/list"), .mostBytes = 1000});
  EXPECT_EQ(got.fault, Http::Fault::TooLarge);
}

TEST_F(QtHttpTest, ALargerPageWithoutALengthIsGivenUpByItsBytes) {
  server.answers["/list"] =
      "HTTP/1.1 200 OK\r\nConnection: close\r\n\r\n" + std::string(100'000, 'x');
  const Http::Answer got = Get({.url = server.At("/list"), .mostBytes = 1000});
  EXPECT_EQ(got.fault, Http::Fault::TooLarge);
  EXPECT_EQ(got.bytes, "");
}

TEST_F(QtHttpTest, WhatTheServerRefusesHasItsStatusAndNoBytes) {
  server.answers["/list"] = "HTTP/1.1 404 Not Found\r\nContent-Length: 5\r\n\r\nsorry";
  const Http::Answer got = GetPath("/list");
  EXPECT_EQ(got.fault, Http::Fault::Status);
  EXPECT_EQ(got.status, 404);
  EXPECT_EQ(got.bytes, "");
  server.answers["/list"] = "HTTP/1.1 503 Busy\r\nContent-Length: 0\r\n\r\n";
  EXPECT_EQ(GetPath("/list").status, 503);
}

TEST_F(QtHttpTest, AnAnswerWithoutAPageIsNone) {
  server.answers["/list"] = "HTTP/1.1 204 No Content\r\n\r\n";
  const Http::Answer got = GetPath("/list");
  EXPECT_EQ(got.fault, Http::Fault::Status);
  EXPECT_EQ(got.status, 204);
}

TEST_F(QtHttpTest, ARedirectIsFollowed) {
  server.answers["/old"] = Redirect(server.At("/new"));
  server.answers["/new"] = Page("moved");
  EXPECT_EQ(GetPath("/old").bytes, "moved");
}

TEST_F(QtHttpTest, RedirectsGoRoundFiveTimesAtMost) {
  server.answers["/round"] = Redirect(server.At("/round"));
  EXPECT_EQ(GetPath("/round").fault, Http::Fault::TooManyRedirects);
}

TEST_F(QtHttpTest, NoRedirectLeavesTheWeb) {
  server.answers["/old"] = Redirect("file:///etc/passwd");
  const Http::Answer got = GetPath("/old");
  EXPECT_EQ(got.fault, Http::Fault::BadAddress);
  EXPECT_EQ(got.bytes, "");
}

TEST_F(QtHttpTest, OnlyAddressesOfTheWebAreFetched) {
  for (const char* url : {"", "list", "file:///etc/passwd", "ftp://127.0.0.1/x", "http://",
                          "http:///x", "https://[bad", "javascript:1"})
    EXPECT_EQ(Get({.url = url, .mostBytes = 10}).fault, Http::Fault::BadAddress) << url;
}

TEST_F(QtHttpTest, NobodyListeningIsSaidToBe) {
  const std::string url = server.At("/list");
  server.StopListening();
  EXPECT_EQ(Get({.url = url, .mostBytes = 10}).fault, Http::Fault::Refused);
}

TEST_F(QtHttpTest, AHostThatIsNoneIsSaidToBe) {
  EXPECT_EQ(Get({.url = "http://no.host.invalid/x", .mostBytes = 10}).fault,
            Http::Fault::HostNotFound);
}

TEST_F(QtHttpTest, SilenceEndsIt) {
  server.keepsTheLine = true;
  server.answers["/list"] = "HTTP/1.1 200 OK\r\nContent-Length: 1000\r\n\r\nhalf";
  const auto got = Get({.url = server.At("/list"), .mostBytes = 1000, .silence = 50ms});
  EXPECT_EQ(got.fault, Http::Fault::TimedOut);
  EXPECT_EQ(got.bytes, "");
}

TEST_F(QtHttpTest, WhatIsNoHttpIsAFault) {
  server.answers["/list"] = "login: \r\n";
  EXPECT_NE(GetPath("/list").fault, Http::Fault::None);
}

TEST_F(QtHttpTest, ACancelledTransferHangsUpAndTellsNothing) {
  server.keepsTheLine = true;
  server.answers["/list"] = "HTTP/1.1 200 OK\r\nContent-Length: 1000\r\n\r\nhalf";
  bool begun = false;
  Begin({.url = server.At("/list"),
         .mostBytes = 1000,
         .progress = [&](std::uint64_t, std::uint64_t) { begun = true; }});
  ASSERT_TRUE(PumpUntil([&] { return begun; }));
  tasks.CancelAll();
  EXPECT_TRUE(PumpUntil([&] { return server.linesLost == 1; }));
  EXPECT_FALSE(answer.has_value());
}

TEST_F(QtHttpTest, AsksForBytesAsTheyAreAndBringsNoCookies) {
  server.answers["/list"] = "HTTP/1.1 200 OK\r\nSet-Cookie: a=b\r\nContent-Length: 1\r\n\r\nx";
  GetPath("/list");
  GetPath("/list");
  EXPECT_THAT(server.received, HasSubstr("Accept-Encoding: identity"));
  EXPECT_THAT(server.received, Not(HasSubstr("Cookie")));
}

TEST_F(QtHttpTest, TransfersRunSideBySide) {
  server.answers["/a"] = Page("a");
  server.answers["/b"] = Page("b");
  std::optional<Http::Answer> other;
  tasks.Start("other", Note(http, {.url = server.At("/b"), .mostBytes = 10}, other));
  EXPECT_EQ(GetPath("/a").bytes, "a");
  ASSERT_TRUE(PumpUntil([&] { return other.has_value(); }));
  EXPECT_EQ(other->bytes, "b");
}

}  // namespace
}  // namespace platform::qt
