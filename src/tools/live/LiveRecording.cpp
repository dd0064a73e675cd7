#include "tools/live/LiveRecording.h"

#include "base/Csv.h"

namespace ostrel {
namespace {

/// "2026-03-02T09:05:07.250".
std::string IsoText(std::chrono::milliseconds time) {
  std::string text = StampText(time);
  text.replace(text.find(' '), 1, "T");
  return text;
}

/// "AI0 Level [m]".
std::string HeadOf(const LiveValue& value) {
  std::string head = LiveTag(value.id);
  if (!value.name.empty()) head += ' ' + value.name;
  if (!value.unit.empty()) head += " [" + value.unit + ']';
  return CsvCell(head);
}

}  // namespace

std::string UtcText(const WallTime& time) { return IsoText(time.local - time.utcOffset) + "Z"; }

std::string LocalText(const WallTime& time) {
  return IsoText(time.local) + UtcOffsetText(time.utcOffset);
}

void LiveRecording::WriteHead(const LiveRound& round) {
  *out_ << kRecordingHead;
  for (const LiveValue& value : round.values) {
    if (!columns_.empty()) *out_ << ',';
    *out_ << HeadOf(value);
    columns_.push_back(value.id);
  }
  *out_ << '\n';
}

bool LiveRecording::Add(const LiveRound& round) {
  if (rows_ == 0) WriteHead(round);
  *out_ << UtcText(round.at) << ',' << LocalText(round.at);
  for (const LiveId id : columns_) {
    *out_ << ',';
    const LiveValue* value = round.Find(id);
    if (value && value->IsFresh()) *out_ << LiveText(*value);
  }
  *out_ << std::endl;
  ++rows_;
  return out_->good();
}

}  // namespace ostrel
