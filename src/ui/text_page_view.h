#pragma once

#include <QPlainTextEdit>
#include <QTextBlock>
#include <optional>
#include <string_view>

#include "core/text.h"
#include "core/text_page.h"
#include "ui/frames.h"
#include "ui/glyph_tiles.h"
#include "ui/printed_row.h"
#include "ui/searchable.h"

namespace ui {

// Shows a text page: what a node sends, as plain text. It follows the end if the reader is there,
// and otherwise stays where he reads.
class TextPageView : public QPlainTextEdit, public Searchable {
 public:
  // What it is drawn in where the theme doesn't say so.
  struct Colours {
    QColor ground;
    QColor text;
    QColor selection;
    QColor selectedText;
    QColor accent;
  };

  // The page and the frames outlive the view.
  TextPageView(core::TextPage& page, Frames& frames, QWidget* parent = nullptr);

  bool Find(const QString& text, Way way) override;
  // Of its text, in pixels.
  void SetSize(int pixels);
  // None: the theme's.
  virtual void SetColours(const std::optional<Colours>& colours);

 protected:
  void showEvent(QShowEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

  // Where something of a line stands in the line's block.
  struct Range {
    int from;
    int to;  // behind it
  };
  // None if not all of these bytes of the line are shown.
  static std::optional<Range> RangeOf(std::string_view line, core::Position start,
                                      core::Position count);
  // The line of the page that a block shows; none if it has left the page.
  std::optional<std::size_t> LineOf(const QTextBlock& block) const;
  const core::TextPage& Page() const { return page_; }

 private:
  // Of a ground of its own, so that nothing behind the view is painted with the bar.
  QWidget* UnderScrollBar() const;
  bool AtEnd() const;
  QColor Ground() const;
  void Collect(const core::TextPage::Change& change);
  void Refresh();
  bool MayWait();
  void Paint(QPainter& painter, const QRect& area);
  void PaintLine(QPainter& painter, const QTextBlock& block, const QRectF& row, double left);
  void RemoveFirst(std::size_t lines);
  void AppendLast(std::size_t lines);

  core::TextPage& page_;
  Frames& frames_;
  int pixels_ = 0;  // of its text, once somebody has said so
  GlyphTiles glyphs_;
  PrintedRow printed_;
  std::size_t shown_ = 0;    // lines of the page that the widget holds
  std::size_t removed_ = 0;  // of those, how many have left the page since
  bool replaced_ = false;    // with the last frame all that was in sight
  std::shared_ptr<Frames::Item> item_;
  platform::Registration observing_;
};

}  // namespace ui
