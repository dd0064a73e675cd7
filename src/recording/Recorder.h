#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/EventLoop.h"
#include "platform/TappedPort.h"
#include "recording/Recording.h"
#include "recording/Secrets.h"

namespace ostrel {

/// Writes down what passes through a port, line by line, without access codes and passwords. What
/// comes without the end of a line is written when the line has been quiet for a while.
class Recorder final : public LineListener {
 public:
  using Sink = std::function<void(std::string_view text)>;

  /// Begins a recording in `sink` at once, with a remark such as when and what. The loop must
  /// outlive it.
  Recorder(const EventLoop& loop, Sink sink, std::string_view remark);
  ~Recorder() override { Finish(); }
  Recorder(const Recorder&) = delete;
  Recorder& operator=(const Recorder&) = delete;

  void Sent(std::string_view octets) override { Take(sent_, octets); }
  void Received(std::string_view octets) override { Take(received_, octets); }
  void Happened(LineEvent event, const std::string& detail) override;
  /// The command that the program was given, or what came of it.
  void Write(RecordedKind kind, std::string text);
  /// Writes what has come without an end.
  void Finish();

 private:
  /// One direction of the line.
  struct Way {
    RecordedKind kind;
    std::string line{};       ///< since the last end of a line
    std::size_t written = 0;  ///< octets of it that are written
    TimePoint since{};        ///< when the first octet that is not written came
    TimePoint last{};         ///< when the last one came
  };

  void Take(Way& way, std::string_view octets);
  void Flush(Way& way);
  void FlushQuiet();
  void Put(TimePoint at, RecordedKind kind, std::string text);

  const EventLoop& loop_;
  Sink sink_;
  TimePoint start_;
  Duration told_ = Duration(-1);  ///< the time that was last written
  Secrets secrets_;
  Way sent_{RecordedKind::Sent};
  Way received_{RecordedKind::Received};
};

}  // namespace ostrel
