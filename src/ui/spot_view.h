#pragma once

#include <QAbstractScrollArea>
#include <QPushButton>
#include <functional>
#include <optional>

#include "core/settings.h"
#include "spots/clicks.h"
#include "spots/display_choice.h"
#include "spots/spot_table.h"
#include "ui/frames.h"
#include "ui/kept_place.h"
#include "ui/searchable.h"
#include "ui/spot_heads.h"
#include "ui/spot_look.h"
#include "ui/spot_painter.h"
#include "ui/spot_snapshot.h"
#include "ui/theme.h"

namespace ui {

// The table of spots. It follows the newest rows if the reader is there, and otherwise stays where
// he reads and counts what came below; in an order of its own the row that he reads stays where it
// is. It costs what is in sight, however many rows there are.
//
// A click on a call does what the keys held say, and so does Return for the call of the current
// row. It is done on the button's release, if the pointer is still on the row that it pressed.
class SpotView : public QAbstractScrollArea, public Searchable {
  Q_OBJECT

 public:
  using Number = SpotSnapshot::Number;

  struct Model {
    spots::SpotTable& table;
    spots::DisplayChoice& display;
    core::Label& empty;  // what stands there while there are no rows
    SpotLook look;
    const core::Settings& settings;
    // What is to be done for a click; its call is in the clipboard by then.
    std::function<void(const spots::Click&)> click;
    // What the operator has chosen of clicks; the keys held come to it.
    std::function<spots::ClickKeys()> clickChoice;
  };

  // All that they refer to outlives the view.
  SpotView(Model model, Frames& frames, LiveTheme& theme, QWidget* parent);

  const SpotSnapshot& Rows() const { return rows_; }
  QWidget* Heads() const { return heads_; }
  // The one that the keys start from; it is among those chosen. None at first.
  std::optional<Number> Current() const { return current_; }
  bool IsChosen(Number row) const;
  // Of a separator: how many spots there are down to the next one.
  std::size_t SpotsBehind(Number stars) const;
  // Where a row stands in the viewport, in sight or not.
  QRect PlaceOf(Number row) const;
  // The row at that place of the picture that the user looks at.
  std::optional<Number> RowAt(QPoint place) const;
  // The user's act on the call of a row that is here.
  void PressCall(Number row, Qt::KeyboardModifiers keys);

  bool Find(const QString& text, Way way) override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool viewportEvent(QEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  static constexpr core::Position kLongestShown = 300;  // of a row

  // Where the finger went down.
  struct Pressed {
    Number row;
    int column;    // from 1
    bool chooses;  // more rows: it is no click
  };

  void Refresh();
  void Follow(const SpotSnapshot::Batch& batch, bool toNewest);
  void Renew(const KeptPlace& place, bool toNewest);
  bool NewestOnTop() const;
  void GoToNewest();
  std::size_t SpotsFrom(Number first) const;
  void PaintRows(QPainter& painter, const QRegion& region);
  void MoveDrawn(Number firstAdded);
  // That row is drawn, or will be with the next frame.
  void Reaches(Number row);
  void FollowLook(Frames& frames);
  void ChangeFont();
  void ShowHeads(bool on);
  void Measure(Number first);
  void SetRanges();
  // As many pixels, or more: up to the height of a row's multiple.
  int WholeRows(int pixels) const;
  void GoToEnd();
  bool AtEnd() const;
  void CountBelow(std::size_t spots);
  void PlaceBelow();
  void Go(Number to, bool choosing);
  void Choose(Number row, bool extending);
  void BringInSight(Number row);
  int ColumnAt(QPoint place) const;
  spots::Click ClickAt(Number row, int column, Qt::KeyboardModifiers keys) const;
  void Do(const spots::Click& click);
  void Release();
  void Copy() const;
  QString Shown(Number row) const;
  Number FirstInSight() const;
  int RowsInSight() const;
  void Recolour();

  Model model_;
  LiveTheme& theme_;
  SpotPainter painter_;
  SpotColours colours_;
  std::shared_ptr<Frames::Item> item_;
  SpotSnapshot rows_;
  SpotHeads* heads_;
  QPushButton* below_;
  std::size_t newBelow_ = 0;
  std::size_t widest_ = 0;  // row there was since all were new, in characters
  std::optional<Number> current_;
  Number anchor_ = 0;  // where choosing began
  std::optional<Pressed> pressed_;
  // What the user looks at: which row stands at the top of the picture, and where it begins.
  Number paintedFirst_ = 0;
  int paintedTop_ = 0;
  // The same of what is drawn, which comes on the screen with the next frame.
  Number drawnFirst_ = 0;
  int drawnTop_ = 0;
  int drawnEnd_ = 0;        // behind that pixel of the viewport there is nothing but the ground
  bool following_ = false;  // new rows have come: what is drawn can be moved
};

}  // namespace ui
