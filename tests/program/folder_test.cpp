#include "program/folder.h"

#include <gtest/gtest.h>

#include <map>

namespace {

std::string FolderWith(const std::map<std::string, std::string>& variables) {
  return program::ProgramFolder([&](const std::string& name) -> std::optional<std::string> {
    const auto found = variables.find(name);
    if (found == variables.end()) return std::nullopt;
    return found->second;
  });
}

TEST(ProgramFolder, IsMolvaHomeBeforeAllElse) {
  EXPECT_EQ(FolderWith({{"MOLVA_HOME", "/m"}, {"XDG_DATA_HOME", "/x"}, {"HOME", "/h"}}), "/m");
}

TEST(ProgramFolder, LiesBelowTheDataHome) {
  EXPECT_EQ(FolderWith({{"XDG_DATA_HOME", "/x"}, {"HOME", "/h"}}), "/x/molva-desk");
  EXPECT_EQ(FolderWith({{"HOME", "/h"}}), "/h/.local/share/molva-desk");
}

TEST(ProgramFolder, TakesNoEmptyOrRelativeValue) {
  EXPECT_EQ(FolderWith({{"MOLVA_HOME", ""}, {"XDG_DATA_HOME", ""}, {"HOME", "/h"}}),
            "/h/.local/share/molva-desk");
  EXPECT_EQ(FolderWith({{"XDG_DATA_HOME", "data"}, {"HOME", "/h"}}), "/h/.local/share/molva-desk");
}

}  // namespace
