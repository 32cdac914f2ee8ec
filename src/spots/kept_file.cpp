#include "spots/kept_file.h"

#include <utility>

namespace spots {

using Fault = platform::Files::Fault;

KeptFile::KeptFile(platform::Files& files, std::string path)
    : files_(files), path_(std::move(path)) {}

platform::Files::Content KeptFile::Read() {
  auto content = files_.Read(path_);
  if (content.fault != Fault::None) Found(StateOf(content.fault), false);
  return content;
}

void KeptFile::Found(FileState state, bool holdsMore) {
  holdsMore_ = holdsMore;
  State.Set(state);
}

Fault KeptFile::Write(std::string_view text) {
  if (State.Get() == FileState::Unreadable) return Fault::Other;
  Fault fault = holdsMore_ ? SetAside() : Fault::None;
  if (fault == Fault::None) fault = files_.Replace(path_, text);
  if (fault == Fault::None && State.Get() != FileState::SetAside) State.Set(FileState::Read);
  return fault;
}

Fault KeptFile::SetAside() {
  const auto present = files_.Read(path_);
  if (present.fault == Fault::NotFound) return Fault::None;
  if (present.fault != Fault::None) return present.fault;
  auto aside = files_.Read(path_ + ".bad");
  if (aside.fault != Fault::None && aside.fault != Fault::NotFound) return aside.fault;
  if (!aside.bytes.empty() && !aside.bytes.ends_with('\n')) aside.bytes += "\r\n";
  const Fault fault = files_.Replace(path_ + ".bad", aside.bytes + present.bytes);
  if (fault == Fault::None) Found(FileState::SetAside, false);
  return fault;
}

}  // namespace spots
