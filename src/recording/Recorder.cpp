#include "recording/Recorder.h"

#include <utility>

namespace ostrel {
namespace {

/// A part of a line is written after that time without an octet of its kind.
constexpr Duration kQuiet = std::chrono::milliseconds(100);
/// Far longer than any line with a secret: what goes on without an end is noise or an image.
constexpr std::size_t kLongestPiece = 4096;
constexpr char kLineEnd = '\r';

std::string EventText(LineEvent event, const std::string& detail) {
  switch (event) {
    case LineEvent::Opened:
      return std::string(kOpenEvent) + " " + detail;
    case LineEvent::NotOpened:
      return "not opened " + detail;
    case LineEvent::Closed:
      return "closed";
    case LineEvent::Discarded:
      return "discarded " + detail;
    case LineEvent::CarrierRose:
      return std::string(kCarrierOnEvent);
    case LineEvent::CarrierFell:
      return std::string(kCarrierOffEvent);
    case LineEvent::Lost:
      return std::string(kLostEvent);
  }
  return {};
}

}  // namespace

Recorder::Recorder(const EventLoop& loop, Sink sink, std::string_view remark)
    : loop_(loop), sink_(std::move(sink)), start_(loop.Now()) {
  std::string head(kLineRecordingHead);
  head += '\n';
  sink_(head);
  sink_(RecordedLine({.kind = RecordedKind::Remark, .text = std::string(remark)}));
}

void Recorder::Happened(LineEvent event, const std::string& detail) {
  Finish();
  Put(loop_.Now(), RecordedKind::Event, EventText(event, detail));
}

void Recorder::Write(RecordedKind kind, std::string text) {
  Finish();
  Put(loop_.Now(), kind, std::move(text));
}

void Recorder::Finish() {
  Flush(sent_);
  Flush(received_);
}

void Recorder::Take(Way& way, std::string_view octets) {
  FlushQuiet();
  for (const char octet : octets) {
    if (way.line.size() == way.written) way.since = loop_.Now();
    way.line += octet;
    if (octet != kLineEnd && way.line.size() < kLongestPiece) continue;
    Flush(way);
    way.line.clear();
    way.written = 0;
  }
  way.last = loop_.Now();
}

/// Writes the parts of lines behind which nothing has come for a while.
void Recorder::FlushQuiet() {
  for (Way* way : {&sent_, &received_})
    if (loop_.Now() - way->last >= kQuiet && !MayHoldSecret(way->line)) Flush(*way);
}

/// A secret may have begun in a part that is written, so the line is looked at as a whole.
void Recorder::Flush(Way& way) {
  if (way.line.size() == way.written) return;
  std::string masked =
      way.kind == RecordedKind::Sent ? secrets_.Sent(way.line) : secrets_.Received(way.line);
  const std::size_t written = std::exchange(way.written, way.line.size());
  if (masked.starts_with(std::string_view(way.line).substr(0, written)))
    masked.erase(0, written);
  else
    masked = way.line.back() == kLineEnd ? "****\r" : "****";
  Put(way.since, way.kind, std::move(masked));
}

void Recorder::Put(TimePoint at, RecordedKind kind, std::string text) {
  const Duration passed = std::chrono::floor<std::chrono::milliseconds>(at - start_);
  if (std::exchange(told_, passed) != passed) sink_(RecordedTime(passed));
  sink_(RecordedLine({passed, kind, std::move(text)}));
}

}  // namespace ostrel
