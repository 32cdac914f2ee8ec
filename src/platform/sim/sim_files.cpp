#include "platform/sim/sim_files.h"

#include <algorithm>

namespace platform::sim {

Files::Content SimFiles::Read(const std::string& path) {
  if (Denied(path)) return {Fault::Denied, {}};
  if (folders.contains(path)) return {Fault::Other, {}};
  const auto file = content.find(path);
  if (file == content.end()) return {Fault::NotFound, {}};
  return {Fault::None, file->second};
}

Files::Fault SimFiles::Replace(const std::string& path, std::string_view bytes, Access access) {
  if (Denied(path) || ReadOnly(path)) return Fault::Denied;
  if (folders.contains(path)) return Fault::Other;
  const std::string beside = path + ".new";
  content[beside].clear();
  if (const Fault fault = Write(content[beside], bytes); fault != Fault::None) {
    content.erase(beside);
    return fault;
  }
  if (crashAfterBytes == 0) throw Crash{};
  content[path] = std::move(content[beside]);
  content.erase(beside);
  if (access == Access::Private)
    privateFiles.insert(path);
  else
    privateFiles.erase(path);
  return Fault::None;
}

Files::Fault SimFiles::Append(const std::string& path, std::string_view bytes) {
  if (Denied(path) || (ReadOnly(path) && !content.contains(path))) return Fault::Denied;
  if (folders.contains(path)) return Fault::Other;
  return Write(content[path], bytes);
}

Files::Fault SimFiles::Remove(const std::string& path) {
  if (Denied(path) || ReadOnly(path)) return Fault::Denied;
  content.erase(path);
  return Fault::None;
}

bool SimFiles::Exists(const std::string& path) {
  return content.contains(path) || folders.contains(path);
}

std::uint64_t SimFiles::Size(const std::string& path) {
  const auto file = content.find(path);
  return file == content.end() ? 0 : file->second.size();
}

Files::Fault SimFiles::MakeFolder(const std::string& path) {
  if (Denied(path) || (ReadOnly(path) && !folders.contains(path))) return Fault::Denied;
  folders.insert(path);
  return Fault::None;
}

std::vector<std::string> SimFiles::List(const std::string& folder) {
  std::set<std::string> names;
  const std::string below = folder + "/";
  const auto note = [&](const std::string& path) {
    if (path.starts_with(below))
      names.insert(path.substr(below.size(), path.find('/', below.size()) - below.size()));
  };
  for (const auto& [path, bytes] : content) note(path);
  for (const std::string& path : folders) note(path);
  return {names.begin(), names.end()};
}

bool SimFiles::Denied(const std::string& path) const {
  return std::any_of(denied.begin(), denied.end(), [&](const std::string& each) {
    return path == each || path.starts_with(each + "/");
  });
}

bool SimFiles::ReadOnly(const std::string& path) const {
  return std::any_of(readOnly.begin(), readOnly.end(),
                     [&](const std::string& each) { return path.starts_with(each + "/"); });
}

Files::Fault SimFiles::Write(std::string& file, std::string_view bytes) {
  const std::size_t written = std::min({bytes.size(), bytesFree, crashAfterBytes});
  file += bytes.substr(0, written);
  bytesFree -= written;
  crashAfterBytes -= written;
  if (written == bytes.size()) return Fault::None;
  if (crashAfterBytes == 0) throw Crash{};
  return Fault::Full;
}

}  // namespace platform::sim
