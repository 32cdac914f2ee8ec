#include "spots/dx_pane.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace spots {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::string Told(const DxPane::Change& change) {
  return std::string(change.allNew ? "all new " : "") + "-" + std::to_string(change.removed) +
         " +" + std::to_string(change.added);
}

class DxPaneTest : public testing::Test {
 protected:
  static TableRow Row(const std::string& text) { return {text, TableRow::Kind::Other, 6}; }
  static TableRow Stars() { return {"***", TableRow::Kind::Stars, 0}; }

  // Shows these rows and begins to watch.
  void Begin(const std::deque<TableRow>& rows) {
    pane.Redraw(rows);
    watching = pane.Observe([this](const auto& change) { told.push_back(Told(change)); });
    told.clear();
  }

  std::string Shown() const {
    std::string texts;
    for (const TableRow& row : pane.Rows()) texts += row.Text();
    return texts;
  }

  DxPane pane;
  std::vector<std::string> told;
  platform::Registration watching;
};

TEST_F(DxPaneTest, ObserverIsToldAtOnceOfWhatStandsThere) {
  pane.Append(Row("a"));
  pane.Append(Row("b"));
  std::vector<std::string> seen;
  watching = pane.Observe([&](const auto& change) { seen.push_back(Told(change)); });
  EXPECT_THAT(seen, ElementsAre("all new -0 +2"));
  watching.Release();
  pane.Append(Row("c"));
  EXPECT_THAT(seen, ElementsAre("all new -0 +2"));
}

TEST_F(DxPaneTest, RowIsAddedAtTheEnd) {
  Begin({Row("a")});
  pane.Append(Row("b"));
  EXPECT_EQ(Shown(), "ab");
  EXPECT_THAT(told, ElementsAre("-0 +1"));
}

TEST_F(DxPaneTest, FirstSpotsLeave) {
  Begin({Row("a"), Row("b"), Row("c")});
  pane.RemoveSpots(2);
  EXPECT_EQ(Shown(), "c");
  EXPECT_THAT(told, ElementsAre("-2 +0"));
}

TEST_F(DxPaneTest, SeparatorLeavesWithTheSpotsAroundItAndStaysAtTheFront) {
  Begin({Row("a"), Stars(), Row("b"), Stars(), Row("c")});
  pane.RemoveSpots(2);
  EXPECT_EQ(Shown(), "***c");
  EXPECT_THAT(told, ElementsAre("-3 +0"));
}

TEST_F(DxPaneTest, NothingIsToldWhereNothingLeaves) {
  Begin({});
  pane.RemoveSpots(3);
  EXPECT_THAT(told, IsEmpty());
  Begin({Row("a")});
  pane.RemoveSpots(0);
  EXPECT_THAT(told, IsEmpty());
}

TEST_F(DxPaneTest, RedrawTellsThatAllIsNew) {
  Begin({Row("a"), Row("b"), Row("c")});
  pane.Redraw({Row("d")});
  EXPECT_EQ(Shown(), "d");
  EXPECT_THAT(told, ElementsAre("all new -3 +1"));
}

}  // namespace
}  // namespace spots
