#include "program/chain.h"

#include <array>

#include "program/program.h"
#include "session/page_prompt.h"

namespace program {
namespace {

using Line = std::string_view;
using Handler = bool (*)(Program&, Line);

enum class Stop { Tail, Quiet, Never };

struct Row {
  int number;
  std::string_view name;
  Handler handler;
  Stop stop;  // what a claim does
};

// A row whose format no part of the program reads yet.
bool Pass(Program&, Line) { return false; }

constexpr std::array<Row, 65> kRows = {{
    {1, "TncDisconnectNotice",
     [](Program& p, Line l) { return p.session.tncNotices.TncDisconnectNotice(l); }, Stop::Tail},
    {2, "QRX", [](Program& p, Line l) { return p.session.connection.QRX(l); }, Stop::Tail},
    {3, "TncConnectedNotice",
     [](Program& p, Line l) { return p.session.tncNotices.TncConnectedNotice(l); }, Stop::Tail},
    {4, "EmptySlot", Pass, Stop::Never},
    {5, "frmTNC.Netrom", [](Program& p, Line l) { return p.session.tncScript.Netrom(l); }, Stop::Tail},
    {6, "ConnectToNode", [](Program& p, Line l) { return p.session.connection.ConnectToNode(l); },
     Stop::Tail},
    {7, "dx", [](Program& p, Line l) { return p.spotParts.lines.dx(l); }, Stop::Quiet},
    {8, "ar17", [](Program& p, Line l) { return p.spotParts.lines.ar17(l); }, Stop::Quiet},
    {9, "RunawayNotice",
     [](Program& p, Line l) {
       p.session.localNetwork.RunawayNotice(l);
       return false;
     }, Stop::Never},
    {10, "ZV11CarrotCounter",
     [](Program& p, Line l) { return p.spotParts.lines.ZV11CarrotCounter(l); }, Stop::Quiet},
    {11, "AnnouncementLine", Pass, Stop::Tail},
    {12, "WwvLine", Pass, Stop::Tail},
    {13, "WxLine", Pass, Stop::Tail},
    {14, "LocalUsers", Pass, Stop::Tail},
    {15, "LoginPrompt", [](Program& p, Line l) { return p.session.login.LoginPrompt(l); },
     Stop::Tail},
    {16, "WcyLine", Pass, Stop::Tail},
    {17, "ExtendedRecordLines",
     [](Program& p, Line l) { return p.spotParts.lines.CollectShDxLine(l); }, Stop::Tail},
    {18, "Latency",
     [](Program& p, Line l) {
       p.session.latency.Latency(l);
       return false;
     },
     Stop::Never},
    {19, "PagePrompt",
     [](Program& p, Line l) {
       return session::PagePrompt(l, p.session.state, p.session.outgoing, p.session.intake);
     },
     Stop::Tail},
    {20, "MailMsg", Pass, Stop::Tail},
    {21, "AnnouncementList", Pass, Stop::Tail},
    {22, "WeatherList", Pass, Stop::Tail},
    {23, "ArFirstPrompt",
     [](Program& p, Line l) { return p.session.loginSequence.ArFirstPrompt(l); }, Stop::Tail},
    {24, "ShTNC", [](Program& p, Line l) { return p.session.tncNotices.ShTNC(l); }, Stop::Tail},
    {25, "DOS", Pass, Stop::Tail},
    {26, "ExtendedMailOrUserLine", Pass, Stop::Tail},
    {27, "Users", Pass, Stop::Tail},
    {28, "UserAGWorBPQ", Pass, Stop::Tail},
    {29, "TalkMarks", Pass, Stop::Tail},
    {30, "ClusterCfg", Pass, Stop::Tail},
    {31, "NetworkCfg", Pass, Stop::Tail},
    {32, "Passives", Pass, Stop::Tail},
    {33, "NoName", [](Program& p, Line l) { return p.session.profileHints.NoName(l); }, Stop::Tail},
    {34, "SetEmail", [](Program& p, Line l) { return p.session.profileHints.SetEmail(l); },
     Stop::Tail},
    {35, "FilterErrorLine", Pass, Stop::Tail},
    {36, "BandAndModeFilterReply", Pass, Stop::Tail},
    {37, "BandAndTimeFilterReply", Pass, Stop::Tail},
    {38, "KeywordFilterReply", Pass, Stop::Tail},
    {39, "ConfirmSettings", Pass, Stop::Tail},
    {40, "UserMacro", [](Program& p, Line l) { return p.session.macros.UserMacro(l); }, Stop::Tail},
    {41, "Settings", Pass, Stop::Tail},
    {42, "UserInfo", Pass, Stop::Tail},
    {43, "HaveNewMail", Pass, Stop::Tail},
    {44, "Directory", Pass, Stop::Tail},
    {45, "frmMailTx.SendMailSubject", Pass, Stop::Tail},
    {46, "frmMailTx.SendMailBody", Pass, Stop::Tail},
    {47, "frmMailTx.MailSent", Pass, Stop::Tail},
    {48, "MailNotice", Pass, Stop::Tail},
    {49, "ReconnectedNotice",
     [](Program& p, Line l) { return p.session.tncNotices.ReconnectedNotice(l); }, Stop::Tail},
    {50, "RetryNotice", [](Program& p, Line l) { return p.session.tncNotices.RetryNotice(l); }, Stop::Tail},
    {51, "StationInfo", Pass, Stop::Tail},
    {52, "YourInfo", [](Program& p, Line l) { return p.session.profileHints.YourInfo(l); },
     Stop::Tail},
    {53, "TalkEnd", Pass, Stop::Tail},
    {54, "ArpcReply", [](Program& p, Line l) { return p.session.ar17.ArpcReply(l); }, Stop::Tail},
    {55, "Sun", Pass, Stop::Tail},
    {56, "TalkThruNotice",
     [](Program&, Line l) { return l.find("Entering Talk-Thru mode.") != Line::npos; }, Stop::Tail},
    {57, "WwvHistoryRows", Pass, Stop::Tail},
    {58, "SeventyThree", [](Program& p, Line l) { return p.session.duelling.SeventyThree(l); },
     Stop::Tail},
    {59, "StatUser", [](Program& p, Line l) { return p.profileReader.StatUser(l); }, Stop::Tail},
    {60, "ClxSettings", Pass, Stop::Tail},
    {61, "ChatList", Pass, Stop::Tail},
    {62, "NotWxPage", Pass, Stop::Tail},
    {63, "InstanceNotice", [](Program& p, Line l) { return p.session.duelling.InstanceNotice(l); },
     Stop::Never},
    {64, "updatetxtLoginMsg",
     [](Program& p, Line l) {
       p.session.loginText.updatetxtLoginMsg(l);
       return false;
     },
     Stop::Never},
    {65, "LoginSequence",
     [](Program& p, Line l) {
       p.session.loginSequence.Run(l);
       return false;
     },
     Stop::Never},
}};

// Over a TNC nothing behind this row is for a session that has not logged in.
constexpr int kLastRowBeforeLogin = 17;

constexpr bool RowsAreNumberedInOrder() {
  for (std::size_t i = 0; i < kRows.size(); ++i)
    if (kRows[i].number != static_cast<int>(i) + 1) return false;
  return true;
}
static_assert(RowsAreNumberedInOrder());

constexpr bool NoNameStandsTwice() {
  for (std::size_t i = 0; i < kRows.size(); ++i)
    for (std::size_t j = 0; j < i; ++j)
      if (kRows[i].name == kRows[j].name) return false;
  return true;
}
static_assert(NoNameStandsTwice());

const Row& RowAt(int number) { return kRows[static_cast<std::size_t>(number - 1)]; }

}  // namespace

int LineChain::Rows() const { return static_cast<int>(kRows.size()); }

std::string_view LineChain::Name(int row) const { return RowAt(row).name; }

int LineChain::FirstRowForSession() const { return kLastRowBeforeLogin + 1; }

session::Chain::Claim LineChain::Offer(int number, std::string_view line) {
  const Row& row = RowAt(number);
  if (!row.handler(program_, line)) return Claim::None;
  switch (row.stop) {
    case Stop::Tail:
      return Claim::Tail;
    case Stop::Quiet:
      return Claim::Quiet;
    case Stop::Never:
      break;
  }
  return Claim::None;
}

}  // namespace program
