#include "spots/fix_form.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "platform/sim/world.h"

namespace spots {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr auto kFormFile = "/f/fixspots.dat";

class FixFormTest : public testing::Test {
 protected:
  void Have(const std::string& text) {
    world.files.content[kFormFile] = text;
    list.ReadFixSpots();
    form.Show();
  }
  // The calls of the rows, in their order.
  std::vector<std::string> Calls() const {
    std::vector<std::string> calls;
    for (const std::string& row : form.cboCall.Options.Get())
      calls.push_back(row.substr(0, row.find(' ')));
    return calls;
  }
  // "11000": the ticks, from the country to the grid.
  std::string Ticks() const {
    std::string ticks;
    for (const auto& each : form.chkFix) ticks += each.Value.Get() ? '1' : '0';
    return ticks;
  }
  void Type(const std::string& call, const std::string& cty, const std::string& cq = "") {
    form.txtAddCall.UserTypes(call);
    form.txtAddCty.UserTypes(cty);
    form.txtAddCq.UserTypes(cq);
  }
  void Apply(const std::string& call) {
    ShownColumns columns;
    columns.DxCty = true;
    std::string cty, state, cq, itu, grid;
    list.ApplySpotFix(call, {cty, state, cq, itu, grid}, {.shown = columns, .node = {}});
  }
  std::string File() { return world.files.content[kFormFile]; }
  std::string Errors() { return world.files.content["/f/error.log"]; }

  platform::sim::World world;
  core::Calendar calendar{world.clock};
  core::ErrorLog errorLog{world.files, world.dialogs, calendar, "/f"};
  core::Settings settings;
  std::vector<std::string> fetched;
  std::vector<std::string> pages;
  FixList list{world.files, world.scheduler, errorLog, "/f"};
  FixForm form{list,
               settings,
               errorLog,
               {.fetch = [this](std::string_view path) { fetched.emplace_back(path); },
                .openPage = [this](std::string_view path) { pages.emplace_back(path); }}};
};

TEST_F(FixFormTest, RowsAreSortedAndFiftyWide) {
  Have("K1ABC,K\r\nG0AA,G\r\nK1*,K\r\n");
  EXPECT_THAT(Calls(), ElementsAre("G0AA", "K1*", "K1ABC"));
  EXPECT_EQ(form.cboCall.Options.Get()[0], "G0AA                G                           00");
}

TEST_F(FixFormTest, BoxesSayWhatTheyTake) {
  EXPECT_EQ(form.txtAddCty.ToolTip.Get(), " Country ");
  EXPECT_EQ(form.txtAddState.ToolTip.Get(), " State or Province ");
  EXPECT_EQ(form.txtAddCq.ToolTip.Get(), " CQ Zone ");
  EXPECT_EQ(form.txtAddItu.ToolTip.Get(), " ITU Zone ");
  EXPECT_EQ(form.txtAddGrid.ToolTip.Get(), " Grid Square (4 Letter)");
}

TEST_F(FixFormTest, SelectedRowShowsWhichFieldsHaveApplied) {
  Have("K1ABC,K,,,,,19\r\nG0AA,G,,,,,4\r\n");
  EXPECT_EQ(Ticks(), "00000");
  form.cboCall.UserSelects(1);
  EXPECT_EQ(Ticks(), "11001");
  form.cboCall.UserSelects(0);
  EXPECT_EQ(Ticks(), "00100");
}

TEST_F(FixFormTest, FieldThatHasAppliedIsRed) {
  Have("K1ABC,K\r\n");
  form.cboCall.UserSelects(0);
  Apply("K1ABC");
  world.Run(FixList::kWriteDelay);
  EXPECT_EQ(Ticks(), "10000");
  EXPECT_EQ(form.chkFix[kFixCty].ForeColour.Get(), core::kRed);
  EXPECT_EQ(form.chkFix[kFixCq].ForeColour.Get(), core::kThemeColour);
  EXPECT_EQ(form.cboCall.Options.Get()[0], "K1ABC             5 K                           01");
  EXPECT_EQ(form.EntryOf(0)->changed, 1u);
}

TEST_F(FixFormTest, ClickTurnsTheBitOfTheSelectedEntry) {
  Have("\"K1ABC\",\"K\",\"\",\"\",\"\",\"\",\"19\"\r\n");
  form.cboCall.UserSelects(0);
  form.chkFix[kFixGrid].UserSets(false);
  form.chkFix[kFixCq].UserSets(true);
  EXPECT_EQ(list.Entries()[0].FixMask, 7u);
  EXPECT_EQ(Ticks(), "11100");
  world.Run(FixList::kWriteDelay);
  EXPECT_THAT(File(), HasSubstr("\"07\""));
}

TEST_F(FixFormTest, ClickWithoutASelectedRowIsReportedAndTakenBack) {
  Have("K1ABC,K\r\n");
  form.chkFix[kFixCty].UserSets(true);
  EXPECT_EQ(Ticks(), "00000");
  EXPECT_EQ(list.Entries()[0].FixMask, 0u);
  EXPECT_THAT(Errors(), HasSubstr("chkfix click"));
}

TEST_F(FixFormTest, AddedEntryStandsInTheListTheFileAndCounts) {
  Have("\"K1ABC\",\"K\"\r\n");
  Type(" dl1xx ", "dl", "14");
  form.cmdAdd.Press();
  EXPECT_THAT(Calls(), ElementsAre("DL1XX", "K1ABC"));
  EXPECT_EQ(File(), "\"K1ABC\",\"K\"\r\nDL1XX               DL       14                 00\r\n");
  EXPECT_EQ(form.txtAddCall.Text.Get(), "");
  EXPECT_EQ(form.txtAddCty.Text.Get(), "");
  world.Run(FixList::kWriteDelay);
  EXPECT_THAT(File(), HasSubstr("\"DL1XX\",\"DL\",\"\",\"14\",\"\",\"\",\"00\"\r\n"));
}

TEST_F(FixFormTest, WhatIsNoCallIsNotAddedAndStaysInTheBox) {
  Have("K1ABC,K\r\n");
  for (const char* call : {"", "  ", "K1 ABC", "K*1", "\xC3\x84", "CALL"}) {
    Type(call, "K");
    form.cmdAdd.Press();
    EXPECT_EQ(list.FixCount(), 1u) << call;
    EXPECT_EQ(form.txtAddCall.Text.Get(), call);
    EXPECT_NE(form.lblResult.Caption.Get(), "");
  }
  EXPECT_THAT(Errors(), HasSubstr("cmdadd fix spots"));
}

TEST_F(FixFormTest, EntryIsKeptInMemoryIfTheDiskRefusesIt) {
  Have("\"K1ABC\",\"K\"\r\n");
  world.files.denied.insert(kFormFile);
  Type("DL1XX", "DL");
  form.cmdAdd.Press();
  world.Run(FixList::kWriteDelay);
  EXPECT_THAT(Calls(), ElementsAre("DL1XX", "K1ABC"));
  EXPECT_THAT(Errors(), HasSubstr("SaveNewData - Error #70"));
  EXPECT_THAT(Errors(), HasSubstr("writefix - Error #70"));
}

TEST_F(FixFormTest, SelectionStaysWithItsCall) {
  Have("K1ABC,K,,,,,1\r\n");
  form.cboCall.UserSelects(0);
  Type("DL1XX", "DL");
  form.cmdAdd.Press();
  EXPECT_EQ(form.cboCall.Selected.Get(), 1);
  EXPECT_EQ(Ticks(), "10000");
}

TEST_F(FixFormTest, DeletedRowGoesFromTheListAndTheFile) {
  Have("K1ABC,K\r\nDL1XX,DL\r\n");
  form.cboCall.UserSelects(1);
  form.cmdDel.Press();
  EXPECT_THAT(Calls(), ElementsAre("DL1XX"));
  EXPECT_EQ(File(), "\"DL1XX\",\"DL\",\"\",\"\",\"\",\"\",\"00\"\r\n");
  EXPECT_EQ(form.cboCall.Selected.Get(), FixForm::kNone);
}

TEST_F(FixFormTest, NothingIsDeletedWithoutASelectedRow) {
  Have("K1ABC,K\r\n");
  EXPECT_FALSE(form.cmdDel.Enabled.Get());
  for (const int row : {FixForm::kNone, 1, 1000}) {
    form.cboCall.UserSelects(row);
    form.cmdDel.Click.Tell();
    form.cmdDelAdd.Click.Tell();
    EXPECT_EQ(list.FixCount(), 1u) << row;
  }
}

TEST_F(FixFormTest, DeleteAndAddPutsTheRowIntoTheBoxes) {
  Have("K1ABC,K,MA,5,8,FN42\r\n");
  form.cboCall.UserSelects(0);
  form.cmdDelAdd.Press();
  EXPECT_THAT(Calls(), IsEmpty());
  EXPECT_EQ(form.txtAddCall.Text.Get(), "K1ABC");
  EXPECT_EQ(form.txtAddState.Text.Get(), "MA");
  EXPECT_EQ(form.txtAddCq.Text.Get(), "5");
  EXPECT_EQ(form.txtAddGrid.Text.Get(), "FN42");
  form.cmdAdd.Press();
  EXPECT_THAT(Calls(), ElementsAre("K1ABC"));
}

TEST_F(FixFormTest, WebUpdateFetchesAndImportsWithTheNextPress) {
  Have("K1ABC,K\r\n");
  EXPECT_EQ(form.cmdWebUpdate.Caption.Get(), "Web Update");
  form.cmdWebUpdate.Press();
  form.cmdWebUpdate.Press();
  EXPECT_THAT(fetched, ElementsAre("/fixspots.txt"));
  form.Arrived("DL1XX               DL\n");
  EXPECT_EQ(form.cmdWebUpdate.Caption.Get(), "Ready To Import Data");
  EXPECT_THAT(Calls(), ElementsAre("K1ABC"));
  form.cmdWebUpdate.Press();
  EXPECT_THAT(Calls(), ElementsAre("DL1XX", "K1ABC"));
  EXPECT_EQ(form.cmdWebUpdate.Caption.Get(), "Web Update");
  EXPECT_EQ(form.lblResult.Caption.Get(), "1 entry imported");
  EXPECT_THAT(fetched, ElementsAre("/fixspots.txt"));
}

TEST_F(FixFormTest, WebUpdateThatFailsMayBeTriedAgain) {
  form.cmdWebUpdate.Press();
  form.FetchFailed();
  EXPECT_EQ(form.cmdWebUpdate.Caption.Get(), "Web Update");
  form.cmdWebUpdate.Press();
  EXPECT_EQ(fetched.size(), 2u);
}

TEST_F(FixFormTest, HelpOpensItsPage) {
  form.cmdHelp.Press();
  EXPECT_THAT(pages, ElementsAre("/fixspots.htm"));
}

TEST_F(FixFormTest, ReplaceEmptiesTheListBeforeAnImport) {
  Have("K1ABC,K\r\nG0AA,G\r\n");
  form.optFixSpot.UserSelects(FixForm::Replace);
  EXPECT_EQ(settings.FixOptions, FixForm::Replace);
  EXPECT_EQ(
      form.ReadFixSpots2("CALL                CTY\r\n\r\nDL1XX               DL\r\nK2*,K\r\n"), 2u);
  EXPECT_THAT(Calls(), ElementsAre("DL1XX", "K2*"));
}

TEST_F(FixFormTest, MergeOverwritesAndAdds) {
  Have("K1ABC,K\r\nG0AA,G\r\n");
  EXPECT_EQ(form.ReadFixSpots2("G0AA                GM\r\nDL1XX               DL\r\n"), 2u);
  EXPECT_THAT(Calls(), ElementsAre("DL1XX", "G0AA", "K1ABC"));
  EXPECT_EQ(form.EntryOf(1)->fields[kFixCty], "GM");
}

TEST_F(FixFormTest, TextWithoutAnEntryLeavesTheListAsItIs) {
  Have("\"K1ABC\",\"K\"\r\n");
  form.optFixSpot.UserSelects(FixForm::Replace);
  for (const std::string& text :
       {std::string(), std::string("<!DOCTYPE html>\n<title>404 Not Found</title>\n"),
        std::string(100'000, '\0'), std::string(100'000, '\n')})
    EXPECT_EQ(form.ReadFixSpots2(text), 0u);
  EXPECT_THAT(Calls(), ElementsAre("K1ABC"));
  EXPECT_EQ(File(), "\"K1ABC\",\"K\"\r\n");
  EXPECT_THAT(Errors(), HasSubstr("readfixspots2"));
}

TEST_F(FixFormTest, ImportOfEndlessTextIsBounded) {
  std::string text;
  for (std::size_t i = 0; i < FixList::kMostEntries + 100; ++i)
    text += "K" + std::to_string(i) + "\n";
  EXPECT_EQ(form.ReadFixSpots2(text), FixList::kMostEntries);
  EXPECT_EQ(list.FixCount(), FixList::kMostEntries);
}

TEST_F(FixFormTest, ExportIsWhatAnImportTakes) {
  Have("K1ABC,K,MA,5,8,FN42,3\r\nG0AA,G\r\n");
  const std::string text = form.Export();
  form.optFixSpot.UserSelects(FixForm::Replace);
  EXPECT_EQ(form.ReadFixSpots2(text), 2u);
  EXPECT_EQ(form.Export(), text);
}

TEST_F(FixFormTest, UnknownStoredOptionIsMerge) {
  settings.FixOptions = 77;
  form.Show();
  EXPECT_EQ(form.optFixSpot.Selected.Get(), FixForm::Merge);
}

}  // namespace
}  // namespace spots
