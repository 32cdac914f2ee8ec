#pragma once

#include <QWidget>
#include <functional>

#include "spots/membership.h"
#include "spots/spot_numbers.h"
#include "spots/spot_requests.h"
#include "ui/band_rail_view.h"
#include "ui/find_field.h"
#include "ui/fold_row.h"
#include "ui/frames.h"
#include "ui/spot_view.h"
#include "ui/theme.h"

namespace ui {

// The page of the spots: the bands, and the table of the one that is chosen. The page hands its
// focus to the table.
class DxPage : public QWidget {
 public:
  struct Models {
    spots::SpotTable& table;
    spots::DisplayChoice& display;
    spots::Membership& membership;
    spots::SpotRequests& requests;
    spots::SpotNumbers& numbers;
    core::Label& empty;
    SpotLook look;
    const core::Settings& settings;
  };
  // What the user may ask for here and others do.
  struct Acts {
    std::function<void(const spots::Click&)> click;
    std::function<spots::ClickKeys()> clickChoice;  // as SpotView takes it
    std::function<void()> clearSpots;
    std::function<void(const char* page)> help;  // at that page of the manual
    std::function<void()> columns;               // these open dialogs
    std::function<void()> spotLog;
    std::function<void()> rejects;
    std::function<void()> corrections;
  };

  // All that they refer to outlives the page.
  DxPage(Models models, Acts acts, Frames& frames, LiveTheme& theme, QWidget* parent);

  // Puts the user where he can type what he looks for.
  void OpenFind();

 protected:
  void focusInEvent(QFocusEvent* event) override;

 private:
  FoldRow* MakeStrip(const Models& models, const Acts& acts, Frames& frames);
  void AddOrder(FoldRow* strip, const QString& keyed, int button, spots::SpotTable& table,
                Frames& frames);
  void AddSources(FoldRow* strip, spots::SpotTable& table, Frames& frames);
  void AddMembership(FoldRow* strip, spots::Membership& model, const Acts& acts, Frames& frames);
  void AddFind(FoldRow* strip);

  SpotView* spots_;
  FindField* find_;
};

}  // namespace ui
