#include "scenario/play.h"

#include <chrono>
#include <utility>

using namespace std::chrono_literals;

namespace {

// Longer than all that the program does behind one turn.
constexpr auto kBehindTurn = 1500ms;
// Longer than the program waits for a node to name its software.
constexpr auto kBehindAll = 6s;

constexpr const char* kConfiguration =
    "\"My Grid\",\"EN82\"\r\n"
    "\"Home Cluster\",\"N0HOME\"\r\n"
    "\"My Email\",\"anna@example.org\"\r\n"
    "\"My Location\",\"42 17 N 83 44 W\"\r\n"
    "\"SelectedNode\",\"N0NODE\"\r\n"
    "\"SelectedNodesAddress\",\"node.example\"\r\n"
    "\"PrimaryPort\",\"7300\"\r\n"
    "\"AutoFilter\",-1\r\n"
    "\"Ask Settings\",-1\r\n"
    "\"Sun\",-1\r\n";

Lines FlagsOf(const session::Session& session) {
  const session::SessionState& state = session.state;
  const std::pair<const char*, bool> flags[] = {
      {"IsArCluster", state.IsArCluster()},
      {"IsZelva", state.IsZelva()},
      {"IsSpider", state.IsSpider()},
      {"IsDxNet", state.IsDxNet()},
      {"IsClx", state.IsClx()},
      {"IsWinCluster", state.IsWinCluster()},
      {"IsSkimmer", state.IsSkimmer()},
      {"LoggedIn", state.LoggedIn},
      {"LoginTextDone", state.LoginTextDone},
      {"LoginFinished", state.LoginFinished},
      {"SunDone", state.SunDone},
      {"FirstPromptDone", state.FirstPromptDone},
      {"Ar17Active", state.ArpcAsked},
      {"Ar17Refused", state.Ar17Refused()},
      {"DuelArmed", session.duelling.DuelArmed},
      {"RequestedSettings", state.RequestedSettings},
      {"NoEmailSet", state.NoEmailSet},
      {"NodeSentPassword", state.NodeSentPassword},
      {"UseMyDx", state.UseMyDx},
  };
  Lines names;
  for (const auto& [name, stands] : flags)
    if (stands) names.emplace_back(name);
  return names;
}

Lines LinesOf(const core::TextPage& page) { return {page.Lines().begin(), page.Lines().end()}; }

// What comes round by itself was not asked for by the session.
std::map<std::string, int> AskedBySession(std::map<std::string, int> calls) {
  for (const char* name : {"HourlyWork", "Sun", "DayChange", "EnableLoggingSpots"})
    calls.erase(name);
  return calls;
}

}  // namespace

Stage::Stage(const Script& script) {
  desk.world.network.AddHost("node.example", "10.1.2.3");
  desk.HasUsualConfiguration(kConfiguration + script.configuration);
  program = &desk.Start();
  program->session.outgoing.NodePassword = script.password;
  program->session.connection.cmdConnect.Press();
  desk.world.Run(2s);
}

Lines Stage::Say(const Lines& pieces) {
  for (const std::string& piece : pieces) {
    node.Say(piece);
    desk.world.Run(betweenPieces);
  }
  desk.world.Run(kBehindTurn);
  return node.TakeLines();
}

Played Stage::Play(const std::vector<Turn>& turns) {
  Played played;
  for (const Turn& turn : turns) played.answers.push_back(Say(turn.pieces));
  desk.world.Run(kBehindAll);
  played.answers.push_back(node.TakeLines());
  played.rawView = LinesOf(program->session.outgoing.Text2);
  played.ending = HowItEnded();
  return played;
}

Ending Stage::HowItEnded() const {
  const session::Session& session = program->session;
  return {.title = program->title.Get(),
          .txtNode = session.state.txtNode.Caption.Get(),
          .showDx = session.state.ShowDxCommand,
          .lblStatus = session.ar17.lblStatus.Caption.Get(),
          .flags = FlagsOf(session),
          .loginText = LinesOf(session.loginText.rtbLoginMsg),
          .asked = AskedBySession(program->standIns.calls)};
}

Played Play(const Script& script, platform::Milliseconds betweenPieces) {
  Stage stage(script);
  stage.betweenPieces = betweenPieces;
  return stage.Play(script.turns);
}

std::string TextOf(const Script& script) {
  std::string text;
  for (const Turn& turn : script.turns)
    for (const std::string& piece : turn.pieces) text += piece;
  return text;
}

Script CutAt(Script script, std::size_t at) {
  for (Turn& turn : script.turns) {
    const std::string whole = turn.pieces.front();
    if (at <= whole.size()) {
      turn.pieces = {whole.substr(0, at), whole.substr(at)};
      return script;
    }
    at -= whole.size();
  }
  return script;
}

Script InSingleBytes(Script script) {
  for (Turn& turn : script.turns) {
    const std::string whole = turn.pieces.front();
    turn.pieces.clear();
    for (const char byte : whole) turn.pieces.emplace_back(1, byte);
  }
  return script;
}
