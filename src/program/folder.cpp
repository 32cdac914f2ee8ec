#include "program/folder.h"

namespace program {

std::string ProgramFolder(const Environment& environment) {
  std::string home = environment("MOLVA_HOME").value_or("");
  if (!home.empty()) return home;
  const std::string data = environment("XDG_DATA_HOME").value_or("");
  if (data.starts_with('/')) return data + "/molva-desk";
  return environment("HOME").value_or("") + "/.local/share/molva-desk";
}

}  // namespace program
