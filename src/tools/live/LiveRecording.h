#pragma once

#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "model/LiveRound.h"

namespace ostrel {

/// "2026-03-02T08:05:07.250Z".
std::string UtcText(const WallTime& time);
/// "2026-03-02T09:05:07.250+01:00".
std::string LocalText(const WallTime& time);

/// How the first line of every recording begins.
inline constexpr std::string_view kRecordingHead = "utc,local,";

/// Writes rounds as comma-separated values as they come: a head with the names and units, and a row
/// a round. The values of the first round are the columns of all; what did not come in a round is
/// left empty.
class LiveRecording {
 public:
  explicit LiveRecording(std::unique_ptr<std::ostream> out) : out_(std::move(out)) {}

  /// Writes a row. False when that failed, or something before it.
  bool Add(const LiveRound& round);
  int Rows() const { return rows_; }

 private:
  void WriteHead(const LiveRound& round);

  std::unique_ptr<std::ostream> out_;
  std::vector<LiveId> columns_;
  int rows_ = 0;
};

}  // namespace ostrel
