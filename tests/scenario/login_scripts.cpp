#include "scenario/login_scripts.h"

#include <algorithm>
#include <stdexcept>

namespace {

// What a DXSpider's prompt ends in once it has been told to.
constexpr const char* kOwnSpiderPrompt =
    "K1TST-2 de N0NODE 20-Nov-2026 2101Z 2.4315  dxspider >\r\n";
constexpr const char* kSpiderPrompt = "K1TST-2 de N0NODE 20-Nov-2026 2101Z dxspider >\r\n";

// The mail address goes first, then the filters and switches, then the extended spot lines.
Script ArCluster() {
  const std::string prompt = "K1TST-2 de N0NODE 20-Nov-2026 2101Z   arc >\r\n";
  return {
      .name = "ArCluster",
      .turns =
          {
              {{"\r\nWelcome to the N0NODE AR-Cluster node\r\n\r\nPlease enter your call: "},
               {"K1TST-2"}},
              {{"\r\nHello Anna (K1TST-2)\r\n"
                "Please enter your email address as SET/EMAIL n0call@example.org\r\n" +
                prompt},
               {"SET/EMAIL anna@example.org", "SH/FILTER", "SH/SETTINGS"}},
              {{prompt}, {"SET/DX_ARPC ON"}},
              {{"DX ArPc enabled for K1TST-2\r\n" + prompt},
               {"KeepAlive Rx 5  V2.4315", "sh/dx/100 where (freq>1800 and freq<21000000)", ""}},
          },
      .ending = {.title = "Molva Desk 2.4315 @ K1TST-2  (N0NODE ARC)",
                 .txtNode = "***Connected to: N0NODE",
                 .showDx = "sh/dx",
                 .lblStatus = "Node is AR17 Capable",
                 .flags = {"IsArCluster", "LoggedIn", "LoginTextDone", "LoginFinished", "SunDone",
                           "FirstPromptDone", "Ar17Active", "DuelArmed", "RequestedSettings"},
                 .loginText = {" ", " Welcome to the N0NODE AR-Cluster node", " ", " ",
                               " Hello Anna (K1TST-2)"},
                 .asked = {{"AskSunTimes", 1}}},
      .keepAlive = "KeepAlive Rx 5  V2.4315"};
}

// A user whom the node doesn't know yet. The report comes behind the prompts, with none of its own.
Script Spider157() {
  return {.name = "Spider157",
          .password = "secret",
          .turns =
              {
                  {{"login: "}, {"K1TST-2"}},
                  {{"\r\n password: "}, {"secret"}},
                  {{std::string(
                        "\r\nHello K1TST-2, this is N0NODE\r\n"
                        "running DXSpider V1.57 build 441\r\n"
                        "Cluster: 1 nodes, 1 local / 1 total users  Uptime: 2d 3h 5m\r\n"
                        "Please enter your name, set/name <your name>\r\n"
                        "Please enter your QTH, set/qth <your qth>\r\n"
                        "Please enter your location with set/location or set/qra\r\n"
                        "Please enter your Home Node, set/homenode <your home DX Cluster>\r\n") +
                    kSpiderPrompt},
                   {"stat/user", "set/name ANNA", "set/qth Ann Arbor, MI",
                    "set/location 42 17 N 83 44 W", "set/qra EN82", "set/homenode N0HOME"}},
                  {{std::string(kSpiderPrompt) + kSpiderPrompt}, {}},
                  {{"       Buddies:\r\n"
                    "      Callsign: K1TST-2\r\n"
                    "      Req Echo: No\r\n"
                    "Login Info Req: No\r\n"
                    "  Type of User: U\r\n"
                    "  Req DX Spots: Yes\r\n"},
                   {" ", "set/prompt %C de %M %D %T 2.4315  dxspider >", "set/lang en", "set/molva",
                    "sh/filter", "SET/PAGE 9999", "sh/mydx/100", ""}},
                  {{std::string(kSpiderPrompt) + kOwnSpiderPrompt + "Invalid command\r\n" +
                    kOwnSpiderPrompt},
                   {}},
              },
          .ending = {.title = "Molva Desk 2.4315 @ K1TST-2  (N0NODE Spider)",
                     .txtNode = "***Connected to: N0NODE",
                     .showDx = "sh/mydx",
                     .lblStatus = "Node is DX Spider",
                     .flags = {"IsSpider", "LoggedIn", "LoginTextDone", "LoginFinished", "SunDone",
                               "Ar17Refused", "DuelArmed", "UseMyDx"},
                     .loginText = {" ", "  password", " :", " Hello K1TST-2, this is N0NODE",
                                   " running DXSpider V1.57 build 441",
                                   " Cluster: 1 nodes, 1 local / 1 total users  Uptime: 2d 3h 5m"},
                     .asked = {{"AskSunTimes", 1}}},
          .keepAlive = ""};
}

// Sends every command back until it is told not to. The labels are fifteen wide.
Script Spider155() {
  return {
      .name = "Spider155",
      .turns =
          {
              {{"login: "}, {"K1TST-2"}},
              {{std::string("\r\nHello Anna, this is N0NODE\r\n"
                            "running DXSpider V1.55 build 231 on linux\r\n") +
                kSpiderPrompt},
               {"stat/user"}},
              {{std::string("stat/user\r\n"
                            "       Callsign: K1TST-2\r\n"
                            "      Home Node:\r\n"
                            "       Language: en\r\n"
                            "       Location: 42 17 N 83 44 W\r\n"
                            "        Locator: EN82\r\n"
                            "   Req DX Spots: No\r\n"
                            "       Req Echo: Yes\r\n"
                            "Required Prompt: %C de %M  dxspider >\r\n"
                            "   Type of User: U\r\n") +
                kSpiderPrompt},
               {"set/home N0HOME", "set/dx", " ", "unset/echo",
                "set/prompt %C de %M %D %T 2.4315  dxspider >", "set/molva", "sh/filter",
                "SET/PAGE 9999", "set/name ANNA", "sh/dx/100", ""}},
              {{std::string("set/home N0HOME\r\n") + kSpiderPrompt + "set/dx\r\n" + kSpiderPrompt +
                " \r\n" + kSpiderPrompt + "unset/echo\r\nEchoing disabled\r\n" + kSpiderPrompt +
                kOwnSpiderPrompt + "Invalid command\r\n" + kOwnSpiderPrompt},
               {}},
          },
      .ending = {.title = "Molva Desk 2.4315 @ K1TST-2  (N0NODE Spider)",
                 .txtNode = "***Connected to: N0NODE",
                 .showDx = "sh/dx",
                 .lblStatus = "Node is DX Spider",
                 .flags = {"IsSpider", "LoggedIn", "LoginTextDone", "LoginFinished", "SunDone",
                           "Ar17Refused", "DuelArmed"},
                 .loginText = {" ", " Hello Anna, this is N0NODE",
                               " running DXSpider V1.55 build 231 on linux", " Echoing disabled"},
                 .asked = {{"AskSunTimes", 1}}},
      .keepAlive = ""};
}

// Known before its prompt, so the password follows the call unasked. It is written to in lower
// case, as it writes itself; the password stays as it is.
Script Clx() {
  return {.name = "Clx",
          .password = "Secret",
          .turns =
              {
                  {{"Welcome to N0NODE running CLX 5.20\r\nlogin: "}, {"k1tst-2", "Secret"}},
                  {{"\r\n de k1tst-2 n0node 20-Nov-2026\r\n"
                    "Use SET/NAME <your name>, please.\r\n"
                    "please enter ur location using SET/LOCATION and SET/QTH\r\n"
                    "k1tst-2 de n0node 20-Nov-2026 2101Z clx >\r\n"},
                   {"set/name anna", "set/location 42 17 n 83 44 w", "sh/dx/100", ""}},
              },
          .ending = {.title = "Molva Desk 2.4315 @ K1TST-2  (N0NODE CLX)",
                     .txtNode = "***Connected to: N0NODE",
                     .showDx = "sh/dx",
                     .lblStatus = "",
                     .flags = {"IsClx", "LoggedIn", "LoginTextDone", "LoginFinished", "SunDone",
                               "Ar17Refused", "DuelArmed"},
                     .loginText = {" Welcome to N0NODE running CLX 5.20", " ",
                                   "  de k1tst-2 n0node 20-Nov-2026"},
                     .asked = {{"AskSunTimes", 1}}},
          .keepAlive = ""};
}

Script DxNet() {
  return {.name = "DxNet",
          .turns =
              {
                  {{"Bienvenue / Welcome\r\nYour callsign:"}, {"K1TST-2"}},
                  {{"\r\nHello Anna, the software of N0NODE is DxNet.\r\n"
                    "K1TST-2 de N0NODE 2101Z DxNet>\r\n"},
                   {"set/page 0", "sh/dx/100", ""}},
                  {{"<CR> Continue, <A> Abort\r\n"}, {" ", "SET/PAGE 0"}},
              },
          .ending = {.title = "Molva Desk 2.4315 @ K1TST-2  (N0NODE DxNet)",
                     .txtNode = "Connected to N0NODE",
                     .showDx = "sh/dx",
                     .lblStatus = "Node is DxNet",
                     .flags = {"IsDxNet", "LoggedIn", "LoginTextDone", "LoginFinished", "SunDone",
                               "Ar17Refused", "DuelArmed"},
                     .loginText = {" Bienvenue / Welcome", " ",
                                   " Hello Anna, the software of N0NODE is DxNet."},
                     .asked = {{"AskSunTimes", 1}}},
          .keepAlive = ""};
}

// The prompt takes call and password. Behind the login nobody draws the password out.
Script WinCluster() {
  return {
      .name = "WinCluster",
      .password = "secret",
      .turns =
          {
              {{"N0NODE on WinCluster\r\nCallsign : "}, {"K1TST-2", "secret"}},
              {{"\r\nWelcome Anna\r\n"
                "K1TST-2 de N0NODE 20-Nov-2026 2101Z WinCluster>\r\n"
                "password: please\r\n"},
               {"sh/dx/100", ""}},
          },
      .ending = {.title = "Molva Desk 2.4315 @ K1TST-2  (N0NODE WinCluster)",
                 .txtNode = "***Connected to: N0NODE",
                 .showDx = "sh/dx",
                 .lblStatus = "",
                 .flags = {"IsWinCluster", "LoggedIn", "LoginTextDone", "Ar17Refused", "DuelArmed"},
                 .loginText = {" N0NODE on WinCluster", " ", " Welcome Anna"},
                 .asked = {}},
      .keepAlive = ""};
}

// Asks for its password in a line of its own.
Script Zelva() {
  const std::string prompt = "K1TST-2 de N0NODE 20-Nov-2026 2101Z   ZLV >\r\n";
  return {.name = "Zelva",
          .password = "secret",
          .turns =
              {
                  {{"Please enter your call: "}, {"K1TST-2"}},
                  {{"\r\nWelcome to N0NODE, a Zelva Cluster\r\npassword:\r\n"}, {"secret"}},
                  {{prompt}, {"SH/SETTINGS"}},
                  {{"       Callsign: K1TST-2\r\n"
                    "        Locator: EN82\r\n"
                    "       Location: 42 17 N 83 44 W\r\n"
                    "       Req Echo: No\r\n"
                    "   Req DX Spots: Yes\r\n"
                    "   Type of User: U\r\n" +
                    prompt},
                   {" ", "set/molva", "sh/filter", "set/name ANNA", "KeepAlive Rx 5  V2.4315",
                    "sh/mydx/100", ""}},
              },
          .ending = {.title = "Molva Desk 2.4315 @ K1TST-2  (N0NODE Zelva Cluster)",
                     .txtNode = "***Connected to: N0NODE",
                     .showDx = "sh/mydx",
                     .lblStatus = "Node is Zelva Cluster",
                     .flags = {"IsZelva", "LoggedIn", "LoginTextDone", "LoginFinished", "SunDone",
                               "Ar17Refused", "DuelArmed", "RequestedSettings", "NodeSentPassword"},
                     .loginText = {" ", " Welcome to N0NODE, a Zelva Cluster", " password:"},
                     .asked = {{"AskSunTimes", 1}}},
          .keepAlive = "KeepAlive Rx 5  V2.4315"};
}

Script Skimmer() {
  return {
      .name = "Skimmer",
      .turns =
          {
              {{"Welcome to the Skimmer Server telnet port of N0NODE\r\n"
                "Please enter your callsign: "},
               {"K1TST-2"}},
              {{"\r\nHello K1TST-2, here is CW Skimmer\r\n"
                "K1TST-2 de N0NODE 20-Nov-2026 2101Z CwSkimmer >\r\n"
                "DX de K1ABC-#:   14025.0  K2DEF          CW 12 dB  CQ           2101Z\r\n"},
               {}},
          },
      .ending = {.title = "Molva Desk 2.4315 @ K1TST-2  (N0NODE)",
                 .txtNode = "***Connected to: N0NODE",
                 .showDx = "sh/dx",
                 .lblStatus = "",
                 .flags = {"IsSkimmer", "LoggedIn", "LoginTextDone", "Ar17Refused", "DuelArmed"},
                 .loginText = {" Welcome to the Skimmer Server telnet port of N0NODE", " ",
                               " Hello K1TST-2, here is CW Skimmer"},
                 .asked = {}},
      .keepAlive = ""};
}

// Passes a Skimmer's spots on and never says what it is: its login text has no end. A spot that
// comes while the program still waits for a name is dropped, and asks the node on.
Script Relay() {
  return {.name = "RelayWithoutAName",
          .turns =
              {
                  {{"Please enter your call: "}, {"K1TST-2"}},
                  {{"\r\nHello K1TST-2\r\nK1TST-2 de K2RLY 20-Nov-2026 2101Z >\r\n"
                    "DX de K1ABC-#:   14025.0  K2DEF          CW 12 dB  CQ           2101Z\r\n"
                    "two users\r\n"},
                   {""}},
              },
          .ending = {.title = "Molva Desk 2.4315 @ K1TST-2  (K2RLY)",
                     .txtNode = "***Connected to: K2RLY",
                     .showDx = "sh/dx",
                     .lblStatus = "",
                     .flags = {"LoggedIn", "Ar17Refused"},
                     .loginText = {" ", " Hello K1TST-2", " K1TST-2 de K2RLY 20-Nov-2026 2101Z >",
                                   " two users"},
                     .asked = {}},
          .keepAlive = ""};
}

}  // namespace

const std::vector<Script>& LoginScripts() {
  static const std::vector<Script> scripts = {ArCluster(), Spider157(), Spider155(),
                                              Clx(),       DxNet(),     WinCluster(),
                                              Zelva(),     Skimmer(),   Relay()};
  return scripts;
}

const Script& LoginScript(const std::string& name) {
  const auto found = std::find_if(LoginScripts().begin(), LoginScripts().end(),
                                  [&name](const Script& script) { return script.name == name; });
  if (found == LoginScripts().end()) throw std::invalid_argument("no script named " + name);
  return *found;
}
