#include "session/profile_hints.h"

#include <algorithm>

#include "core/text.h"

namespace session {
namespace {

using core::InStr;
using core::InStrIgnoringCase;

struct Question {
  std::string_view text;
  ProfileField field;
  std::string_view command;  // in front of the answer
};

// In the order of looking.
constexpr std::array kQuestions = {
    Question{"Please enter your name, set/name", ProfileField::Name, ""},
    Question{"Use SET/NAME <your name>", ProfileField::Name, "set/name "},
    Question{"Please enter your name", ProfileField::Name, ""},
    Question{"Please enter your QTH, set/qth", ProfileField::Qth, ""},
    Question{"Please enter your QTH", ProfileField::Qth, ""},
    Question{"Please set your latitude/longitude information with SET/LOCATION.",
             ProfileField::Location, "SET/LOCATION "},
    Question{"please enter ur location using SET/LOCATION and SET/QTH", ProfileField::Location,
             "SET/LOCATION "},
    Question{"Please enter your home node.", ProfileField::HomeNode, ""},
};

constexpr std::string_view kLocationQuestion = "Please enter your location with set/location";

struct Quoted {
  std::string_view text;  // what stands before the value that is to be confirmed
  ProfileField field;
};

constexpr std::array kQuoted = {
    Quoted{"Your name is ", ProfileField::Name},
    Quoted{"Your QTH is ", ProfileField::Qth},
    Quoted{"Your HomeNode is ", ProfileField::HomeNode},
};
constexpr std::string_view kIsThisCorrect = "Is this correct? (Y or N) >";

struct Command {
  std::string_view word;
  ProfileField field;
};

// Commands that a node shows with a placeholder for the value behind them.
constexpr std::array kCommands = {
    Command{"set/name", ProfileField::Name},         Command{"set/qth", ProfileField::Qth},
    Command{"set/location", ProfileField::Location}, Command{"set/qra", ProfileField::Grid},
    Command{"set/homenode", ProfileField::HomeNode}, Command{"set/home", ProfileField::HomeNode},
    Command{"set/email", ProfileField::Email},
};

// The value between the words and the question whether it is right; "\." may stand behind it.
std::string_view QuotedValue(std::string_view line, std::string_view before) {
  const core::Position at = InStr(line, before) + core::Len(before);
  std::string_view value = core::Trim(core::Mid(line, at, InStr(line, kIsThisCorrect) - at));
  while (core::EndsWith(value, ".") || core::EndsWith(value, "\\")) value.remove_suffix(1);
  return value;
}

}  // namespace

const std::string& ProfileHints::Value(ProfileField field) const {
  switch (field) {
    case ProfileField::Name:
      return settings_.MyName;
    case ProfileField::Qth:
      return settings_.MyQth;
    case ProfileField::Location:
      return settings_.MyLocation;
    case ProfileField::Grid:
      return settings_.MyGrid;
    case ProfileField::HomeNode:
      return settings_.HomeCluster;
    case ProfileField::Email:
      break;
  }
  return settings_.MyEmail;
}

bool ProfileHints::NoName(std::string_view line) {
  const std::string& call = state_.LoginCall(settings_.MyCall);
  if (!core::StartsWith(line, "Hello  (" + call + ")")) return false;
  state_.NoEmailSet = true;
  return true;
}

bool ProfileHints::SetEmail(std::string_view line) {
  if (InStr(line, "Please enter your email address as SET/EMAIL") == 0) return false;
  return !state_.NoEmailSet && Answer(ProfileField::Email, "SET/EMAIL ");
}

bool ProfileHints::YourInfo(std::string_view line) {
  if (!state_.LoggedIn) return false;
  return Acknowledged(line) || AnswerYesOrNo(line) || AnswerPlaceholder(line) ||
         AnswerQuestion(line);
}

bool ProfileHints::Acknowledged(std::string_view line) const {
  return InStr(line, "Your name is now ") > 0 || InStr(line, "Your QTH is now ") > 0;
}

bool ProfileHints::AnswerYesOrNo(std::string_view line) {
  if (InStr(line, kIsThisCorrect) == 0) return false;
  for (const Quoted& quoted : kQuoted) {
    if (InStr(line, quoted.text) == 0) continue;
    const bool right = core::SameIgnoringCase(QuotedValue(line, quoted.text), Value(quoted.field));
    outgoing_.Send(right ? "Y" : "N");
    return true;
  }
  return false;
}

// "Please enter your name, set/name <your name>": the bare value would be taken for a command.
bool ProfileHints::AnswerPlaceholder(std::string_view line) {
  if (InStrIgnoringCase(line, "please") == 0 && InStrIgnoringCase(line, "use ") == 0) return false;
  for (const Command& command : kCommands) {
    const std::string word(command.word);
    if (InStrIgnoringCase(line, word + " <") > 0) return Answer(command.field, word + " ");
  }
  return false;
}

bool ProfileHints::AnswerQuestion(std::string_view line) {
  if (InStr(line, kLocationQuestion) > 0) return AnswerLocation();
  const auto question =
      std::find_if(kQuestions.begin(), kQuestions.end(),
                   [line](const Question& each) { return InStr(line, each.text) > 0; });
  return question != kQuestions.end() && Answer(question->field, question->command);
}

bool ProfileHints::AnswerLocation() {
  const bool location = Answer(ProfileField::Location, "set/location ");
  const bool grid = Answer(ProfileField::Grid, "set/qra ");
  return location || grid;
}

// False if there is nothing to say; what was said before is not said again.
bool ProfileHints::Answer(ProfileField field, std::string_view command) {
  const std::string& value = Value(field);
  if (value.empty()) return false;
  if (answered_.insert(field).second) outgoing_.SendAsIs(std::string(command) + value);
  return true;
}

}  // namespace session
