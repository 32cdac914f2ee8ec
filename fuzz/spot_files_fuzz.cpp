#include "bytes.h"
#include "platform/sim/world.h"
#include "spots/call_list.h"
#include "spots/cty_table.h"
#include "spots/fix_list.h"
#include "spots/membership.h"
#include "spots/reject_lists.h"
#include "spots/state_table.h"

namespace {

// What a list has written it reads back the same.
void ReadLists(std::string_view text) {
  platform::sim::World world;
  core::Calendar calendar(world.clock);
  core::ErrorLog errorLog(world.files, world.dialogs, calendar, "/home");
  core::Settings settings;
  settings.ShLoTW = settings.SheQSL = settings.RejSpots = true;
  for (const char* name : {"fixspots.dat", "reject.dat", "lotw.txt", "eqsl.txt"})
    world.files.content[std::string("/home/") + name] = text;

  spots::RejectLists rejects(world.files, settings, "/home/reject.dat");
  rejects.ReadReject();
  const auto held = rejects.lstReject[0].Items();
  rejects.WriteReject();
  rejects.ReadReject();
  Expect(rejects.lstReject[0].Items() == held);

  spots::FixList fixes(world.files, world.scheduler, errorLog, "/home");
  fixes.ReadFixSpots();
  const std::size_t entries = fixes.FixCount();
  fixes.WriteFix();
  fixes.ReadFixSpots();
  Expect(fixes.FixCount() == entries);

  spots::Membership members(world.files, "/home", settings, [](spots::Membership::List) {});
  members.TakeSettings();
  members.ReadLotw();
  members.ReadeQSL();
  const std::size_t eqsl = members.EqslCount();
  members.ReadeQSL();
  Expect(members.EqslCount() == eqsl);
  members.FindLotw(text.substr(0, 10));
}

}  // namespace

// A data file may hold anything.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text = TextOf(data, size);
  spots::CtyTable countries;
  countries.SetHome({.position = {42, 83}});
  // A file that was rewritten for its missing country needs no rewriting again.
  if (const auto better = countries.Read(text)) {
    spots::CtyTable again;
    Expect(!again.Read(*better));
  }
  spots::StateTable states;
  states.Read(text);
  Expect(states.StateHeadings().size() <= spots::StateTable::kMostRows);
  spots::CallList calls;
  calls.Read(std::string(text));
  calls.FindCall(text.substr(0, 6));
  ReadLists(text);
  return 0;
}
