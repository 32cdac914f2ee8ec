#include "core/escapes.h"

#include <gtest/gtest.h>

#include <string>

namespace core {
namespace {

// What a text is once its escapes of at least that byte are repaired, and how many there were.
std::string Repaired(std::string text, unsigned least) {
  const int count = RepairEscapes(text, least);
  return text + " " + std::to_string(count);
}

TEST(RepairEscapes, WhatIsNoEscapeStays) {
  for (const std::string text : {"", "%", "%4", "100%", "%zz", "%zz%41"})
    EXPECT_EQ(Repaired(text, ' '), text + " 0");
}

TEST(RepairEscapes, FirstByteBelowTheLeastEndsTheRepair) {
  EXPECT_EQ(Repaired("%41%1F%42", ' '), "A%1F%42 1");
  EXPECT_EQ(Repaired("%41%20%42", ' '), "A B 3");
  EXPECT_EQ(Repaired("%41%20%42", ' ' + 1), "A%20%42 1");
  EXPECT_EQ(Repaired("%41%21%42", ' ' + 1), "A!B 3");
}

TEST(RepairEscapes, PercentSignThatComesOutOfOneIsLookedAtAgain) {
  EXPECT_EQ(Repaired("%2541", ' ' + 1), "A 2");
  EXPECT_EQ(Repaired("%2520", ' ' + 1), "%20 1");
}

}  // namespace
}  // namespace core
