#include "ui/spot_words.h"

#include <QObject>

#include "spots/row_parts.h"
#include "ui/figures.h"
#include "ui/one_line.h"

namespace ui {
namespace {

constexpr core::Position kLongest = 200;

QString Spelled(std::string_view call) {
  QString letters;
  for (const QChar letter : OneLine(call, kLongest)) {
    if (!letters.isEmpty()) letters += QLatin1Char(' ');
    letters += letter;
  }
  return letters;
}

// "2116Z" is said as "21 16".
QString SpokenTime(std::string_view time) {
  return OneLine(core::Left(time, 2), kLongest) + QLatin1Char(' ') +
         OneLine(core::Mid(time, 3, 2), kLongest);
}

}  // namespace

QString NewSince(const spots::TableRow& stars, std::size_t spotsBehind) {
  return QObject::tr("%1 new since %2:%3")
      .arg(Grouped(spotsBehind))
      .arg(stars.Minute() / 60, 2, 10, QLatin1Char('0'))
      .arg(stars.Minute() % 60, 2, 10, QLatin1Char('0'));
}

QString SpokenRow(const spots::TableRow& row) {
  const spots::RowParts parts = spots::PartsOf(row);
  if (parts.call.empty()) return OneLine(row.Text(), kLongest);
  return QObject::tr("%1, %2, %3, spotter %4")
      .arg(OneLine(parts.frequency, kLongest), Spelled(parts.call), SpokenTime(parts.time),
           Spelled(parts.spotter));
}

QString SpokenRest(const spots::TableRow& row) {
  const spots::RowParts parts = spots::PartsOf(row);
  const std::string_view tail = core::Trim(parts.tail);
  QString rest = OneLine(parts.comment, kLongest);
  if (!tail.empty()) rest += (rest.isEmpty() ? "" : ", ") + OneLine(tail, kLongest);
  return rest;
}

}  // namespace ui
