#pragma once

#include <QAbstractScrollArea>
#include <QPushButton>
#include <optional>

#include "core/settings.h"
#include "ui/frames.h"
#include "ui/searchable.h"
#include "ui/spot_painter.h"
#include "ui/spot_snapshot.h"
#include "ui/theme.h"

namespace ui {

// The table of spots. It follows the end if the reader is there, and otherwise stays where he reads
// and counts what came below. It costs what is in sight, however many rows there are.
class SpotView : public QAbstractScrollArea, public Searchable {
  Q_OBJECT

 public:
  using Number = SpotSnapshot::Number;

  struct Model {
    spots::DxPane& pane;
    core::Label& empty;         // what stands there while there are no rows
    core::Property<int>& size;  // of the text, in pixels
    const core::Settings& settings;
  };

  // All three outlive the view.
  SpotView(Model model, Frames& frames, LiveTheme& theme, QWidget* parent);

  const SpotSnapshot& Rows() const { return rows_; }
  // The one that the keys start from; it is among those chosen. None at first.
  std::optional<Number> Current() const { return current_; }
  bool IsChosen(Number row) const;
  // Of a separator: how many spots there are down to the next one.
  std::size_t SpotsBehind(Number stars) const;
  // Where a row stands in the viewport, in sight or not.
  QRect PlaceOf(Number row) const;
  // The row at that place of the picture that the user looks at.
  std::optional<Number> RowAt(QPoint place) const;

  bool Find(const QString& text, Way way) override;

 protected:
  void paintEvent(QPaintEvent* event) override;
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
  class Heads;

  void Refresh();
  std::size_t SpotsFrom(Number first) const;
  void PaintRows(QPainter& painter, const SpotColours& colours);
  void ChangeSize(int pixels);
  void Measure(Number first);
  void SetRanges();
  void GoToEnd();
  bool AtEnd() const;
  void CountBelow(std::size_t spots);
  void PlaceBelow();
  void Go(Number to, bool choosing);
  void Choose(Number row, bool extending);
  void BringInSight(Number row);
  void Release();
  void Copy() const;
  Number FirstInSight() const;
  int RowsInSight() const;
  SpotColours Colours() const;

  Model model_;
  LiveTheme& theme_;
  SpotPainter painter_;
  std::shared_ptr<Frames::Item> item_;
  SpotSnapshot rows_;
  Heads* heads_;
  QPushButton* below_;
  std::size_t newBelow_ = 0;
  std::size_t widest_ = 0;  // row there was since all were new, in characters
  std::optional<Number> current_;
  Number anchor_ = 0;  // where choosing began
  bool pressed_ = false;
  // What the user looks at: which row stands at the top of the picture, and where it begins.
  Number paintedFirst_ = 0;
  int paintedTop_ = 0;
};

}  // namespace ui
