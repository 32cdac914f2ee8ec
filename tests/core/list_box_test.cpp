#include "core/list_box.h"

#include <gmock/gmock.h>

namespace core {
namespace {

using testing::ElementsAre;
using Change = ListBox::Change;

class ListBoxTest : public testing::Test {
 protected:
  ListBox box;
  std::vector<Change> told;

  platform::Registration Watch() {
    return box.Observe([this](const Change& change) { told.push_back(change); });
  }
};

TEST_F(ListBoxTest, WhatStandsThereIsToldAsAdded) {
  box.Add("a");
  box.Add("b");
  const auto watching = Watch();
  EXPECT_THAT(told, ElementsAre(Change{0, 0, 2}));
}

TEST_F(ListBoxTest, ChangesAreToldByTheirPlace) {
  const auto watching = Watch();
  told.clear();
  box.Add("a");
  box.Add("b");
  box.Add("c");
  box.Remove(1);
  EXPECT_THAT(told,
              ElementsAre(Change{0, 0, 1}, Change{1, 0, 1}, Change{2, 0, 1}, Change{1, 1, 0}));
  EXPECT_THAT(box.Items(), ElementsAre("a", "c"));
}

TEST_F(ListBoxTest, ClearingTellsAllAtOnceAndOfAnEmptyListNothing) {
  box.Add("a");
  box.Add("b");
  const auto watching = Watch();
  told.clear();
  box.Clear();
  box.Clear();
  EXPECT_THAT(told, ElementsAre(Change{0, 2, 0}));
  EXPECT_TRUE(box.Items().empty());
}

TEST_F(ListBoxTest, SelectionStaysWithItsItem) {
  for (const char* item : {"a", "b", "c"}) box.Add(item);
  box.UserSelects(1);
  box.Remove(2);
  EXPECT_EQ(box.Selected.Get(), 1);
  box.Remove(0);
  EXPECT_EQ(box.Selected.Get(), 0);
  box.Remove(0);
  EXPECT_EQ(box.Selected.Get(), ListBox::kNone);
}

TEST_F(ListBoxTest, ClearingEndsTheSelection) {
  box.Add("a");
  box.UserSelects(0);
  box.Clear();
  EXPECT_EQ(box.Selected.Get(), ListBox::kNone);
}

TEST_F(ListBoxTest, SelectingIsAnActOfTheUserAlone) {
  int clicks = 0;
  const auto clicking = box.Click.Add([&] { ++clicks; });
  box.Add("a");
  box.Selected.Set(0);
  EXPECT_EQ(clicks, 0);
  box.UserSelects(0);
  EXPECT_EQ(clicks, 1);
}

}  // namespace
}  // namespace core
