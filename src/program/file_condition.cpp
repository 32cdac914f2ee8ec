#include "program/file_condition.h"

#include <string>
#include <string_view>
#include <utility>

namespace program {
namespace {

using spots::FileState;

struct Loss {
  std::string_view file;
  std::string_view what;
  std::string_view ifDamaged;
};
constexpr Loss kStates = {"state.dat", "bearings go by the country alone",
                          " Delete it, and the next start puts a good one in its place."};
constexpr Loss kRejects = {"reject.dat", "spots that you reject may show", ""};
constexpr Loss kFixes = {"fixspots.dat", "corrections of yours are missing", ""};
constexpr Loss kLotw = {"lotw.txt", "LoTW marks are missing", " Put a good one there."};
constexpr Loss kEqsl = {"eqsl.txt", "eQSL marks are missing", " Put a good one there."};

std::string_view Wrong(FileState state) {
  if (state == FileState::Unreadable) return "can't be read";
  return state == FileState::TooLong ? "is too long to be read whole" : "is damaged";
}

std::string TextOf(const Loss& loss, FileState state) {
  std::string text(loss.file);
  if (state == FileState::SetAside)
    return text + " held what could not be read: the older file is kept as " + text + ".bad.";
  text.append(" ").append(Wrong(state)).append(": ").append(loss.what).append(".");
  return state == FileState::Damaged ? text.append(loss.ifDamaged) : text;
}

bool IsFault(FileState state) { return state != FileState::Read && state != FileState::Missing; }

// A list of the user's: the program holds what is to be in it.
platform::Registration WatchKept(Conditions& conditions, spots::KeptFile& file, const Loss& loss) {
  return file.State.Observe([&conditions, &loss](FileState state) {
    if (!IsFault(state)) return conditions.Clear(loss.file);
    Condition condition{.key = std::string(loss.file), .text = TextOf(loss, state), .button = {}};
    if (state == FileState::SetAside) {
      condition.button = "Dismiss";
      condition.help = [&conditions, &loss] { conditions.Clear(loss.file); };
    }
    conditions.Raise(std::move(condition));
  });
}

// A file that the user can put a better one in place of.
platform::Registration WatchGiven(Conditions& conditions, core::Property<FileState>& file,
                                  const Loss& loss, std::function<void()> readAgain) {
  return file.Observe([&conditions, &loss, readAgain = std::move(readAgain)](FileState state) {
    if (!IsFault(state)) return conditions.Clear(loss.file);
    conditions.Raise({.key = std::string(loss.file),
                      .text = TextOf(loss, state),
                      .button = "Read again",
                      .help = readAgain});
  });
}

}  // namespace

FileConditions::FileConditions(Conditions& conditions, spots::SpotParts& parts)
    : watched_{WatchGiven(conditions, parts.reference.StateFile, kStates,
                          [&parts] { parts.reference.ReadStates(); }),
               WatchKept(conditions, parts.rejectLists.file, kRejects),
               WatchKept(conditions, parts.fixList.file, kFixes),
               WatchGiven(conditions, parts.membership.LotwFile, kLotw,
                          [&parts] { parts.membership.ReadLotw(); }),
               WatchGiven(conditions, parts.membership.EqslFile, kEqsl,
                          [&parts] { parts.membership.ReadeQSL(); })} {}

}  // namespace program
