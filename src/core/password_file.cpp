#include "core/password_file.h"

#include "core/quoted.h"
#include "core/text.h"

namespace core {
namespace {

// Only the quotes around the field: those inside belong to the password.
std::string_view Unquoted(std::string_view field) {
  if (field.size() < 2 || !StartsWith(field, "\"") || !EndsWith(field, "\"")) return field;
  return field.substr(1, field.size() - 2);
}

}  // namespace

std::string ReadPassword(platform::Files& files, const std::string& path) {
  const auto content = files.Read(path);
  std::string_view password;
  for (std::string_view line : SplitLines(content.bytes)) {
    if (InStr(line, ",") == 0) continue;
    ExtractToCharacter(',', line);
    password = Unquoted(Trim(line));
  }
  return std::string(password);
}

platform::Files::Fault SavePassword(platform::Files& files, const std::string& path,
                                    std::string_view password) {
  password = password.substr(0, password.find_first_of("\r\n"));
  if (password.empty()) return files.Remove(path);
  std::string record = "\"Node\",\"";
  record.append(password).append("\"\r\n");
  return files.Replace(path, record, platform::Files::Access::Private);
}

}  // namespace core
