#pragma once

#include <optional>
#include <vector>

#include "session/links.h"
#include "ui/text_page_view.h"

class QMenu;

namespace ui {

// The login message of a node. Its headings stand out, and its links are underlined; they open in
// the browser by a click, by Enter once Tab has gone to one, or from the menu of the view.
class LoginView : public TextPageView {
 public:
  // The page, its links and the frames outlive the view.
  LoginView(core::TextPage& page, session::Links& links, Frames& frames, QWidget* parent = nullptr);

  void SetColours(const std::optional<Colours>& colours) override;

 protected:
  bool focusNextPrevChild(bool next) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  class Marks;

  // A link, and where it stands in the document.
  struct Place {
    session::Link link;
    int from;
    int to;
  };

  QColor LinkColour() const;
  std::vector<Place> PlacesIn(const QTextBlock& block) const;
  std::optional<Place> At(const QPoint& point) const;
  // The link that is selected, as Tab does it.
  std::optional<Place> Chosen() const;
  // The one that Tab goes to from there.
  std::optional<Place> Beyond(bool next) const;
  void Choose(const Place& place);
  void AddActions(QMenu* menu, const session::Link& link);

  session::Links& links_;
  QColor linkColour_;  // not valid: the theme's
  Marks* marks_;
  std::optional<session::Link> pressed_;  // what was under the button when it went down
  QPoint pressedAt_;
  platform::Registration clearing_;
};

}  // namespace ui
