#pragma once

#include <QString>

#include "spots/table_row.h"

namespace ui {

// What a separator says: "6 new since 21:46".
QString NewSince(const spots::TableRow& stars, std::size_t spotsBehind);

// A row of spots for the ear: "14025.0, 3 Y 0 J, 21 16, spotter K 1 T S T".
QString SpokenRow(const spots::TableRow& row);
// What else there is to hear: the comment, and what stands behind the time.
QString SpokenRest(const spots::TableRow& row);

}  // namespace ui
