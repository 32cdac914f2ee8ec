#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "core/controls.h"
#include "core/list_box.h"
#include "core/settings.h"
#include "platform/files.h"
#include "spots/kept_file.h"
#include "spots/rejected_calls.h"
#include "spots/rejected_words.h"
#include "spots/spot.h"

namespace spots {

// The spots that the operator doesn't want: by the call of the DX station, by that of the spotter
// or the node, by the comment. The lists are kept in "reject.dat", a line an entry: its kind and
// its text as quoted fields.
class RejectLists {
 public:
  enum Kind : std::size_t { kDx, kCall, kComment };
  static constexpr std::size_t kKinds = 3;
  // What a list holds, and what counts of a longer file.
  static constexpr std::size_t kMostEntries = 10'000;
  static constexpr std::size_t kMostBytes = std::size_t{4} << 20;

  // The first two outlive this. The switches are those of the settings.
  RejectLists(platform::Files& files, const core::Settings& settings, std::string path);

  std::array<core::ListBox, kKinds> lstReject;  // the entries, for reading
  core::Label lblRejected;                      // "Dx Spots Rejected = 5"; says why the last was
  core::Property<bool> CountryWordSeen;         // in this session

  KeptFile file;

  // Takes the lists from the file. Without one, or with one that can't be read, they are empty.
  // What is blank or held already is skipped, and so are other kinds.
  void ReadReject();
  platform::Files::Fault WriteReject();

  // Adds an entry at the end; its double quotes are left out and line ends become blanks, as in the
  // file. False if it is blank or held already, or if the list is full.
  bool Add(Kind kind, std::string_view text);
  // There must be an entry at that place.
  void Remove(Kind kind, std::size_t place);

  // Until a spot has named a country, those that name none are no reason to reject: some nodes
  // never do.
  void NoteCountryWord() { CountryWordSeen.Set(true); }
  void SessionEnded() { CountryWordSeen.Set(false); }

  // True to drop the spot, which is counted.
  bool RejectDX(const Spot& spot);
  // True to drop an announcement. It isn't counted.
  bool RejectAnn(std::string_view to, std::string_view from, std::string_view comment);

 private:
  // Why a spot is rejected, for the tool tip.
  using Reason = std::optional<std::string>;

  bool HasInvalidCountry(const Spot& spot) const;
  Reason ReasonOf(const Spot& spot);
  RejectedCalls::Place FindCall(const Spot& spot) const;
  void Count(std::string reason);
  const std::string& Entry(Kind kind, std::size_t place) const;
  struct Taken {
    std::size_t lines = 0;    // that are of a list
    bool passedOver = false;  // there are others
    bool full = false;        // a list is
  };
  Taken Take(std::string_view text);
  void TakeLine(std::string_view line, Taken& taken);
  bool IsFull(Kind kind) const { return lstReject[kind].Items().size() >= kMostEntries; }
  void Forget(Kind kind);
  void Index(Kind kind, const std::string& entry);

  const core::Settings& settings_;
  std::array<RejectedCalls, kKinds> entries_;
  RejectedWords words_;  // the comments once more
  std::uint64_t rejected_ = 0;
};

}  // namespace spots
