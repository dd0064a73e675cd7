#pragma once

#include <gmock/gmock.h>

#include <algorithm>
#include <deque>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "link/Comms.h"
#include "platform/Line.h"
#include "platform/virtual/VirtualWorld.h"

namespace ostrel {

using std::chrono::milliseconds;
using std::chrono::seconds;
using Texts = std::vector<std::string>;

/// The octets of messages on the line, one after the other.
template <class... Messages>
std::string Frames(const Messages&... messages) {
  const auto frame = [](std::string_view message) {
    unsigned sum = 0;
    for (const char c : message.substr(1)) sum += static_cast<unsigned char>(c);
    constexpr std::string_view kHex = "0123456789ABCDEF";
    std::string text("#");
    text += kHex[sum / 16 % 16];
    text += kHex[sum % 16];
    return text + ";" + std::string(message.substr(1)) + "\r";
  };
  return (frame(messages) + ... + std::string());
}

/// The elements of a checked array, for matchers.
template <class T, std::size_t N>
std::vector<T> List(const Bounded<T, N>& array) {
  return {array.begin(), array.end()};
}

/// A device that answers lines by a script: first what was queued for a line, then its lasting
/// answer, else nothing. Frames are scripted and noted by their message.
class ScriptedDevice final : public LineDevice {
 public:
  void Always(const std::string& line, std::string octets) { lasting_[line] = std::move(octets); }
  void Next(const std::string& line, std::string octets) {
    queued_[line].push_back(std::move(octets));
  }

  void Receive(std::string_view octets) override {
    raw += octets;
    for (const char c : octets) {
      if (c != '\r') {
        line_ += c;
        continue;
      }
      const bool isFrame = line_.starts_with('#') && line_.size() > 4;
      const std::string line = isFrame ? "#" + line_.substr(4) : line_;
      lines.push_back(line);
      line_.clear();
      if (onLine) onLine(line);
      Reply(line);
    }
  }
  void SetTerminalReady(bool ready) override { raw += ready ? "<up>" : "<down>"; }

  /// Starts with an empty script and nothing heard.
  void Forget() {
    lasting_.clear();
    queued_.clear();
    lines.clear();
    raw.clear();
  }

  LineEnd* end = nullptr;
  std::string raw;  ///< all octets heard
  Texts lines;
  std::function<void(const std::string& line)> onLine;

 private:
  void Reply(const std::string& line) {
    auto& queue = queued_[line];
    if (!queue.empty()) {
      end->Send(queue.front());
      queue.pop_front();
    } else if (const auto found = lasting_.find(line); found != lasting_.end()) {
      end->Send(found->second);
    }
  }

  std::string line_;
  std::map<std::string, std::string> lasting_;
  std::map<std::string, std::deque<std::string>> queued_;
};

class LinkTest : public testing::Test, protected VirtualWorld {
 protected:
  static constexpr int kPort = 7;

  LinkTest() { logger.end = &port.AddDevice(kPort, "script", "Scripted logger", logger); }

  /// Opens the port without any dialogue.
  void OpenPort() {
    port.SetCommPort(kPort);
    port.SetInputLen(1);
    port.SetInBufferSize(8192);
    ASSERT_EQ(port.SetPortOpen(true), PortFault::None);
    logger.raw.clear();
  }
  void At(Duration delay, EventLoop::Callback action) {
    loop.After(delay, "test", std::move(action));
  }
  /// Answers a line some ms after it was heard.
  void AnswerLater(const std::string& heard, int ms, const std::string& octets) {
    logger.onLine = [=, this](const std::string& line) {
      if (line == heard) At(milliseconds(ms), [=, this] { logger.end->Send(octets); });
    };
  }
  Duration Took(const std::function<void()>& work) {
    const TimePoint start = loop.Now();
    work();
    return loop.Now() - start;
  }
  LinkHooks Hooks() {
    const auto note = [this](std::string what) { return [this, what] { hooked.push_back(what); }; };
    return {.clearPages = note("clear"),
            .loadPages = [this] { hooked.emplace_back(ComBusy ? "load" : "load while free"); },
            .composed = {},
            .infoChanged = [this](std::string_view key) { hooked.emplace_back(key); },
            .showPWForm =
                [this] {
                  hooked.emplace_back("form");
                  loop.RunFor(seconds(1));
                  EXPECT_EQ(comms.SilentFor(), Duration::zero()) << "the operator takes the time";
                  if (codes.empty()) return;
                  comms.AccessCode = codes.front();
                  codes.pop_front();
                },
            .carrierLost = note("carrier"),
            .portFound = [this](std::string_view name) { hooked.emplace_back(name); }};
  }

  ScriptedDevice logger;
  TargetProfile profile;
  DeviceInfo info;
  RealTimeData live;
  TotalCounts totals;
  bool ComBusy = false;
  Texts hooked;                   ///< calls of the hooks
  std::deque<std::string> codes;  ///< what the operator types; then nothing
  Comms comms{platform, {profile, info, live, totals, ComBusy}, Hooks()};
};

using Kind = LinkFault::Kind;

}  // namespace ostrel
