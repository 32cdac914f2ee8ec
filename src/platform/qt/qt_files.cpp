#include "platform/qt/qt_files.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>
#include <optional>
#include <utility>

namespace platform::qt {
namespace {

using Fault = Files::Fault;

constexpr mode_t kEverybody = 0666;  // less the user's mask
constexpr mode_t kOwnerAlone = 0600;
constexpr mode_t kOwnersFolder = 0700;

Fault FaultOf(int error) {
  switch (error) {
    case 0:
      return Fault::None;
    case ENOENT:
    case ENOTDIR:
      return Fault::NotFound;
    case EACCES:
    case EPERM:
    case EROFS:
      return Fault::Denied;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return Fault::Full;
    default:
      return Fault::Other;
  }
}

// An open file. What fails leaves its reason in errno.
class OpenFile {
 public:
  OpenFile(const std::string& path, int flags, mode_t mode = kEverybody)
      : descriptor_(open(path.c_str(), flags | O_CLOEXEC, mode)) {}
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;
  ~OpenFile() { Close(); }

  explicit operator bool() const { return descriptor_ >= 0; }
  int Get() const { return descriptor_; }
  int Release() { return std::exchange(descriptor_, -1); }
  bool Close() { return descriptor_ < 0 || close(Release()) == 0; }

 private:
  int descriptor_;
};

template <class Call>
auto Retried(Call call) {
  auto result = call();
  while (result < 0 && errno == EINTR) result = call();
  return result;
}

Fault WriteAll(const OpenFile& file, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t count = Retried([&] { return write(file.Get(), bytes.data(), bytes.size()); });
    if (count < 0) return FaultOf(errno);
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
  return Fault::None;
}

std::optional<struct stat> Look(const std::string& path) {
  struct stat found;
  if (stat(path.c_str(), &found) != 0) return std::nullopt;
  return found;
}

// Writes and flushes the file that is to become `path`, with the mode of the present one.
Fault WriteNew(const std::string& newPath, const std::string& path, std::string_view bytes,
               Files::Access access) {
  const auto present = Look(path);
  const bool isPrivate = access == Files::Access::Private;
  OpenFile file(newPath, O_WRONLY | O_CREAT | O_EXCL,
                isPrivate || present ? kOwnerAlone : kEverybody);
  if (!file) return FaultOf(errno);
  const Fault fault = WriteAll(file, bytes);
  if (fault != Fault::None) return fault;
  if (present && !isPrivate && fchmod(file.Get(), present->st_mode & 0777) != 0)
    return FaultOf(errno);
  if (Retried([&] { return fsync(file.Get()); }) != 0) return FaultOf(errno);
  return file.Close() ? Fault::None : FaultOf(errno);
}

// Makes a rename last. It has happened already, so a failure is no one's fault.
void FlushFolderOf(const std::string& path) {
  const std::string folder = std::filesystem::path(path).parent_path().string();
  const OpenFile file(folder.empty() ? "." : folder, O_RDONLY | O_DIRECTORY);
  if (file) fsync(file.Get());
}

// Where a symbolic link leads, or the path itself.
std::string Target(const std::string& path) {
  std::error_code error;
  const auto target = std::filesystem::canonical(path, error);
  return error ? path : target.string();
}

}  // namespace

QtFiles::~QtFiles() {
  for (const auto& [path, descriptor] : locks_) close(descriptor);
}

Files::Content QtFiles::Read(const std::string& path) {
  // Not blocking: opening a pipe would wait for its other end.
  const OpenFile file(path, O_RDONLY | O_NONBLOCK);
  struct stat found;
  if (!file || fstat(file.Get(), &found) != 0) return {FaultOf(errno), {}};
  if (!S_ISREG(found.st_mode)) return {Fault::Other, {}};
  Content content;
  content.bytes.reserve(static_cast<std::size_t>(found.st_size));
  std::array<char, 65536> piece;
  for (;;) {
    const ssize_t count = Retried([&] { return read(file.Get(), piece.data(), piece.size()); });
    if (count < 0) return {FaultOf(errno), {}};
    if (count == 0) return content;
    content.bytes.append(piece.data(), static_cast<std::size_t>(count));
  }
}

Files::Fault QtFiles::Replace(const std::string& path, std::string_view bytes, Access access) {
  const std::string target = Target(path);
  const std::string newPath = target + "." + std::to_string(getpid()) + ".new";
  unlink(newPath.c_str());  // of a process that had our number and did not come this far
  Fault fault = WriteNew(newPath, target, bytes, access);
  if (fault == Fault::None && rename(newPath.c_str(), target.c_str()) != 0) fault = FaultOf(errno);
  if (fault == Fault::None)
    FlushFolderOf(target);
  else
    unlink(newPath.c_str());
  return fault;
}

Files::Fault QtFiles::Append(const std::string& path, std::string_view bytes) {
  OpenFile file(path, O_WRONLY | O_APPEND | O_CREAT);
  if (!file) return FaultOf(errno);
  const Fault fault = WriteAll(file, bytes);
  if (fault != Fault::None) return fault;
  return file.Close() ? Fault::None : FaultOf(errno);
}

Files::Fault QtFiles::Remove(const std::string& path) {
  const Fault fault = unlink(path.c_str()) == 0 ? Fault::None : FaultOf(errno);
  return fault == Fault::NotFound ? Fault::None : fault;
}

bool QtFiles::Exists(const std::string& path) { return Look(path).has_value(); }

std::uint64_t QtFiles::Size(const std::string& path) {
  const auto found = Look(path);
  return found && S_ISREG(found->st_mode) ? static_cast<std::uint64_t>(found->st_size) : 0;
}

Files::Fault QtFiles::MakeFolder(const std::string& path) {
  if (mkdir(path.c_str(), kOwnersFolder) == 0) return Fault::None;
  if (errno == EEXIST) {
    const auto found = Look(path);
    return found && S_ISDIR(found->st_mode) ? Fault::None : Fault::Other;
  }
  const std::string above = std::filesystem::path(path).parent_path().string();
  if (errno != ENOENT || above.empty() || above == path) return FaultOf(errno);
  const Fault fault = MakeFolder(above);
  if (fault != Fault::None) return fault;
  // "a/b/" is made by now, as "a/b".
  return mkdir(path.c_str(), kOwnersFolder) == 0 || errno == EEXIST ? Fault::None : FaultOf(errno);
}

std::vector<std::string> QtFiles::List(const std::string& folder) {
  std::vector<std::string> names;
  std::error_code error;
  std::filesystem::directory_iterator entry(folder, error);
  for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error))
    names.push_back(entry->path().filename().string());
  std::ranges::sort(names);
  return names;
}

bool QtFiles::Lock(const std::string& path) {
  if (locks_.contains(path)) return true;
  OpenFile file(path, O_RDWR | O_CREAT, kOwnerAlone);
  if (!file) return true;
  if (Retried([&] { return flock(file.Get(), LOCK_EX | LOCK_NB); }) != 0)
    return errno != EWOULDBLOCK;
  locks_.emplace(path, file.Release());
  return true;
}

}  // namespace platform::qt
