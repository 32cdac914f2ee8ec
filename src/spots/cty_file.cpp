#include "spots/cty_file.h"

#include <optional>

namespace spots {
namespace {

using Fault = platform::Files::Fault;

int NumberOf(Fault fault) {
  switch (fault) {
    case Fault::NotFound:
      return 53;
    case Fault::Denied:
      return 70;
    case Fault::None:
      return 62;  // there is nothing in it
    default:
      return 57;
  }
}

platform::Message NotFoundMessage(Fault fault, const std::string& folder) {
  return {.title = "Molva Desk",
          .text =
              "The file cty.dat was not found\n"
              "If you just updated this program, you put the update in the wrong directory.\n"
              "Error #" +
              std::to_string(NumberOf(fault)) + " in Directory " + folder,
          .kind = platform::Message::Kind::Critical};
}

platform::Message DamagedMessage(const std::string& folder) {
  return {.title = "Molva Desk",
          .text =
              "The file cty.dat is damaged: it holds too few countries\n"
              "Delete it, and the next start of this program puts a good one in its place.\n"
              "Directory " +
              folder,
          .kind = platform::Message::Kind::Critical};
}

}  // namespace

void ReadWLCty(platform::Files& files, platform::Dialogs& dialogs, const std::string& folder,
               CtyTable& table) {
  const std::string path = folder + "/cty.dat";
  const auto content = files.Read(path);
  if (content.fault != Fault::None || content.bytes.empty()) {
    table.Clear();
    dialogs.Tell(NotFoundMessage(content.fault, folder));
    return;
  }
  // Without a place on the disk for the new text the old one does as well at the next start.
  if (const auto completed = table.Read(content.bytes)) files.Replace(path, *completed);
  if (table.CtyCount() < 0) dialogs.Tell(DamagedMessage(folder));
}

}  // namespace spots
