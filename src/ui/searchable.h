#pragma once

#include <QString>

namespace ui {

// A view in which text can be found.
class Searchable {
 public:
  enum class Way {
    Here,  // what is found already stays found while it still fits
    Next,
    Previous,
  };

  virtual ~Searchable() = default;

  // Marks the place and brings it in sight; goes round at the ends. Upper and lower case are the
  // same. False if the text stands nowhere: everything stays as it is then.
  virtual bool Find(const QString& text, Way way) = 0;
};

}  // namespace ui
