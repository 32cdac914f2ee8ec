#include "core/endpoints.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/sim/sim_files.h"

namespace core {
namespace {

TEST(Endpoints, EachKeyHasItsPlace) {
  const Endpoints read = ParseEndpoints(
      "\"MOLVA-1\",\"node.example\"\r\n\"Node List\",\"https://example/nodes\"\r\n"
      "\"Data\",\"https://example/data\"\r\n\"Version\",\"version.example\"\r\n");
  EXPECT_EQ(read, (Endpoints{"node.example", "https://example/nodes", "https://example/data",
                             "version.example"}));
}

TEST(Endpoints, MissingKeysAreEmptyAndOthersIgnored) {
  EXPECT_EQ(ParseEndpoints(""), Endpoints{});
  EXPECT_EQ(ParseEndpoints("MOLVA-1\nnode list,x\nFoo,bar\n\r\n,\n"), Endpoints{});
  EXPECT_EQ(ParseEndpoints("Version, version.example \nFoo,bar"),
            (Endpoints{"", "", "", "version.example"}));
}

TEST(Endpoints, AreReadFromTheirFileInTheFolder) {
  platform::sim::SimFiles files;
  EXPECT_EQ(ReadEndpoints(files, "/molva"), Endpoints{});
  files.content["/molva/endpoints.cfg"] = "\"MOLVA-1\",\"node.example\"\r\n";
  EXPECT_EQ(ReadEndpoints(files, "/molva").molva1, "node.example");
  files.denied.insert("/molva");
  EXPECT_EQ(ReadEndpoints(files, "/molva"), Endpoints{});
}

TEST(Endpoints, BinaryGarbageIsNoEndpoint) {
  std::string garbage;
  for (int i = 0; i < 100'000; ++i) garbage += static_cast<char>(i * 7);
  EXPECT_EQ(ParseEndpoints(garbage), Endpoints{});
}

}  // namespace
}  // namespace core
