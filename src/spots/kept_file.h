#pragma once

#include <string>
#include <string_view>

#include "core/controls.h"
#include "platform/files.h"
#include "spots/file_state.h"

namespace spots {

// A list of the user's, which is read at the start and written anew when it has changed. Nothing
// that he has in it is lost by that, whether it could be read or not.
class KeptFile {
 public:
  // `files` outlives this.
  KeptFile(platform::Files& files, std::string path);

  // What became of the file when it was last read or written.
  core::Property<FileState> State{FileState::Missing};

  // Its bytes. Where there are any, Found is to be told what they are.
  platform::Files::Content Read();
  // `holdsMore` than has been taken from it.
  void Found(FileState state, bool holdsMore);

  // Writes the file anew; on failure the older one stays. One that holds more goes into ".bad"
  // first, the same name with that behind it, below what is there. One that could not be read is
  // not written over: that is a fault.
  platform::Files::Fault Write(std::string_view text);
  // Whatever it holds is to be written over.
  void GiveUp() { Found(FileState::Read, false); }

 private:
  platform::Files::Fault SetAside();

  platform::Files& files_;
  const std::string path_;
  bool holdsMore_ = false;
};

}  // namespace spots
