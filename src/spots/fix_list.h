#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/controls.h"
#include "core/error_log.h"
#include "platform/files.h"
#include "platform/scheduler.h"
#include "spots/fix_entry.h"
#include "spots/fix_index.h"
#include "spots/kept_file.h"
#include "spots/node_facts.h"
#include "spots/shown_columns.h"

namespace spots {

// What a correction goes by.
struct FixRules {
  const ShownColumns& shown;
  const NodeFacts& node;
  bool ShDxCollecting = false;  // spots of a list are being stored
  bool MultiNode = false;       // copies of the program are linked
  bool DdeOutput = true;        // what they are linked by is on
};

// What is known of one side of a spot.
struct FixTarget {
  std::string& cty;
  std::string& state;
  std::string& cq;
  std::string& itu;
  std::string& grid;
};

// What the user, or a list from the web, says of calls against what nodes say, kept in
// fixspots.dat. Where several entries fit a call the last one counts.
class FixList {
 public:
  static constexpr std::size_t kMostEntries = 50'000;
  // What is changed by spots reaches the file after this time, a burst of it at once.
  static constexpr platform::Milliseconds kWriteDelay{5000};

  // The references outlive the list. The folder is the one that holds the program's data files.
  FixList(platform::Files& files, platform::Scheduler& scheduler, core::ErrorLog& errorLog,
          std::string folder);

  core::Label lblFixes;       // how many spots have been corrected; empty: none
  core::Observers<> Changed;  // entries have changed; what spots change is told with kWriteDelay

  const std::vector<FixEntry>& Entries() const { return entries_; }
  std::size_t FixCount() const { return entries_.size(); }

  KeptFile file;  // fixspots.dat

  // Reads the file, in either form or both mixed. Without one the list is empty.
  void ReadFixSpots();

  // Corrects what is known of the call. True if an entry fits it, changed or not.
  bool ApplySpotFix(std::string_view call, FixTarget target, const FixRules& rules);

  // Puts an entry at the end, in place of one of the same call. False if the list is full.
  bool Add(FixEntry entry);
  // Takes entries over, each in place of one of the same call or at the end, and writes the file.
  // `replace`: the older entries go first.
  void Import(std::vector<FixEntry> entries, bool replace);
  void Remove(std::size_t index);
  // Turns a bit of the entry's FixMask.
  void FlipMask(std::size_t index, FixField field);

  // Appends the entry to the file as a row.
  void SaveNewData(const FixEntry& entry);
  // Writes the file anew, now.
  void WriteFix();
  void delayedCBOtoFixSpotsConversion();
  // Writes at once what is still to be written, at the end of the program.
  void Flush();

  // The text of the file.
  std::string Text() const;

 private:
  unsigned Correct(FixEntry& entry, FixTarget target, const FixRules& rules);
  void Note(FixEntry& entry, unsigned bits);
  void Take(std::string_view text);
  void Append(FixEntry entry);
  void Merge(FixEntry entry);
  void Clear();
  void Reindex();
  void TellLater();
  void Due();
  void Report(std::string_view where, platform::Files::Fault fault);

  platform::Files& files_;
  platform::Scheduler& scheduler_;
  core::ErrorLog& errorLog_;
  const std::string path_;
  std::vector<FixEntry> entries_;
  FixIndex index_;
  std::uint64_t fixes_ = 0;
  bool unwritten_ = false;
  bool pending_ = false;
  platform::Registration due_;
};

}  // namespace spots
