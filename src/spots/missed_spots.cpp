#include "spots/missed_spots.h"

#include <array>
#include <charconv>

namespace spots {
namespace {

using session::NodeKind;

constexpr MissedFilter::Range kAllFrequencies = {1800, 21000000};

std::string Number(double kHz) {
  std::array<char, 512> buffer;
  const auto end =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), kHz, std::chars_format::fixed);
  return {buffer.data(), end.ptr};
}

std::string FrequencyTerm(const MissedFilter::Range& range) {
  return "(freq>" + Number(range.low) + " and freq<" + Number(range.high) + ")";
}

// The name comes from a file: it doesn't end its own quotes.
std::string CountryTerm(std::string country, bool rejects) {
  std::erase(country, '\'');
  return std::string("(spottercty") + (rejects ? "<>" : "=") + "'" + country + "')";
}

// Several terms are one to what stands around them.
std::string Joined(const std::vector<std::string>& terms, const std::string& word) {
  std::string joined = terms.front();
  for (std::size_t i = 1; i < terms.size(); ++i) joined += " " + word + " " + terms[i];
  return terms.size() == 1 ? joined : "(" + joined + ")";
}

}  // namespace

std::string WhereExpression(const MissedFilter& filter) {
  std::vector<std::string> frequencies;
  for (const auto& range : filter.ranges) frequencies.push_back(FrequencyTerm(range));
  if (frequencies.empty()) frequencies.push_back(FrequencyTerm(kAllFrequencies));
  std::string expression = Joined(frequencies, "or");
  if (filter.countries.empty()) return expression;
  std::vector<std::string> countries;
  for (const std::string& country : filter.countries)
    countries.push_back(CountryTerm(country, filter.rejectsCountries));
  return expression + " and " + Joined(countries, filter.rejectsCountries ? "and" : "or");
}

std::string MissedSpotsQuery(NodeKind kind, std::string_view showDx, int count,
                             const MissedFilter& filter) {
  if (kind == NodeKind::Skimmer || kind == NodeKind::Unknown || count < 1) return {};
  std::string query(showDx);
  query += "/" + std::to_string(count);
  if (kind == NodeKind::ArCluster) query += " where " + WhereExpression(filter);
  return query;
}

}  // namespace spots
