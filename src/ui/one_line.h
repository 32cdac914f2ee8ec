#pragma once

#include <QString>
#include <string_view>

#include "core/text.h"

namespace ui {

// Text from outside as one line of the window: what would break or turn the line is shown as a
// symbol, and what comes behind the first `longest` bytes as an ellipsis.
QString OneLine(std::string_view bytes, core::Position longest);

// The same for a widget that takes an "&" for the mark of a mnemonic.
QString Literally(QString text);

// The caption with the first of that letter, small or capital, marked as its mnemonic; as it is if
// it has none.
QString Marked(QString caption, const QString& letter);

}  // namespace ui
