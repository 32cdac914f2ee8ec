#include "bytes.h"
#include "filters/profile_report.h"

// Label and value lie within the line; a line without a label is none of a report.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view line = TextOf(data, size);
  const auto entry = filters::EntryOf(line);
  const bool opens = filters::OpensReport(line, "K1TST-2");
  Expect(entry || !opens);
  if (!entry) return 0;
  Expect(!entry->label.empty() && line.find(entry->label) != std::string_view::npos);
  Expect(line.find(entry->value) != std::string_view::npos);
  filters::SwitchOf(entry->label);
  filters::FieldOf(entry->label);
  return 0;
}
