#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

#include "core/controls.h"
#include "core/dates.h"
#include "core/settings.h"
#include "spots/band_rail.h"
#include "spots/dx_pane.h"
#include "spots/row_store.h"
#include "spots/sorted_view.h"

namespace spots {

// The DX tab: the rows that are kept by band and view, and those on show.
//
// A spot goes through NoteSkimmer, rail.Increment, CountUnseen and Add, in this order.
class SpotTable {
 public:
  // Views of a band.
  enum View { kAllSpots, kSkimmerSpots, kOtherSpots };
  static constexpr int kViews = 3;
  // Entries of chkShSkm.
  enum Source { kDx, kSkimmer };

  // Both outlive the table. The limits of the stores follow the settings.
  SpotTable(core::Calendar& calendar, const core::Settings& settings);

  core::Property<std::string> TabCaption{"DX"};  // "DX = 5" while there are unseen ones
  std::array<core::Check, 2> chkShSkm;           // "DX" and "Skimmer"
  BandRail rail;
  DxPane RtbDx;
  core::Property<int> optSortBy{kTimeOrder};  // the button of the order in force

  // What chkShSkm says: with both ticked or none it is all spots.
  int SelectedView() const { return selectedView_; }
  // The tab comes on show, and leaves it. It isn't on show at first.
  void EnterTab();
  void LeaveTab();
  bool OnShow() const { return onShow_; }

  // The first Skimmer's row that comes while the tab is on show ticks both sources.
  void NoteSkimmer();
  // Counts a spot of that band that comes while the tab isn't on show, if it will be on view there.
  void CountUnseen(int band);
  // Stores a row, and shows it where band and view are the selected ones; in a sorted view it waits
  // for RunDxQue.
  void Add(const TableRow& row);

  // Stores a row among the alarms, and shows it if these are.
  void AddAlarm(const TableRow& row);

  // Empties all stores: the rows go, what has been counted stays.
  void ClearSpots();
  // What has been counted goes too: of spots that are to come again.
  void ForgetCounts();

  // The order of the rows, by the number of a sort button. Pressed with the middle button of the
  // mouse it shows them from their end; with the right one no spotter is left out of the order by
  // addresses.
  enum class Press { Left, Middle, Right };
  void SortBy(int button, Press press = Press::Left);
  bool Reversed() const { return reversed_; }  // they are shown from their end
  // Takes what waits into the sorted view. To be called 10 times a second.
  void RunDxQue();
  // Brings the summary of the last hour up to the present minute.
  void RefreshLastHour();
  // As many rows are in sight.
  void SetPaneRows(int rows) { sorted_.SetPaneRows(rows); }

  // While a log is reloaded the rows are stored and not drawn; its end draws them.
  void BeginReload() { reloading_ = true; }
  void EndReload();

  // The columns of a separator.
  void SetTableWidth(int columns) { tableWidth_ = columns; }

  const RowStore& SpotStore(int band, int view) const {
    return stores_[static_cast<std::size_t>(band)][static_cast<std::size_t>(view)];
  }

 private:
  using Stores = std::array<std::array<RowStore, kViews>, kBandCount>;

  void SelectBand();
  void SelectView();
  void UpdateDxSpots();
  void ShowSorted();
  void ClearStars();
  const RowStore& SelectedStore() const { return SpotStore(rail.SelectedBand(), selectedView_); }
  SortMoment Now();
  void Show(const TableRow& row);
  void Store(const TableRow& row, int band);
  void KeepLimits(int band, int memory);
  void Forget(int band, int view, std::size_t spots);
  bool Selected(int band, int view) const;
  TableRow StarsRow();
  RowStore& At(int band, int view) {
    return stores_[static_cast<std::size_t>(band)][static_cast<std::size_t>(view)];
  }

  core::Calendar& calendar_;
  const core::Settings& settings_;
  Stores stores_;
  int selectedView_ = kAllSpots;
  bool onShow_ = false;
  bool skimmerNoted_ = false;
  bool sorting_ = false;  // an order is being chosen
  bool reversed_ = false;
  bool reloading_ = false;
  int tableWidth_ = kDefaultSpotWidth;
  SortedView sorted_;
  std::uint64_t unseen_ = 0;
  platform::Registration selectingBand_;
  std::array<platform::Registration, 2> selectingView_;
};

}  // namespace spots
