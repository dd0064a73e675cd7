#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "platform/EventLoop.h"
#include "platform/Line.h"
#include "sim/Configuration.h"
#include "sim/FirmwareTaking.h"
#include "sim/LiveValues.h"
#include "sim/LoggerOptions.h"
#include "sim/Sender.h"
#include "sim/Upload.h"
#include "sim/fixture/Fixture.h"
#include "sim/wire/Frame.h"
#include "sim/wire/StatementCursor.h"

namespace ostrel::sim {

/// One request and what came of it. Texts are messages in code page 1252 ("#40"), or lines of the
/// modem's dialogue.
struct Exchange {
  TimePoint at{};
  std::string request;
  std::string reply;       ///< the first frame of the answer; empty for none
  std::size_t frames = 0;  ///< frames of the answer
  std::string note;        ///< why a request was refused or not answered; may be empty
};

/// A simulated logger at the far end of a line. It answers through the loop, never within
/// `Receive`. Loop and line must outlive it.
class Logger final : public LineDevice {
 public:
  /// It starts with an empty configuration. On a cable it raises carrier detect.
  Logger(EventLoop& loop, LineEnd& line, LoggerOptions options);
  ~Logger() override;
  Logger(const Logger&) = delete;
  Logger& operator=(const Logger&) = delete;

  void Receive(std::string_view octets) override;
  /// A fall ends a data call.
  void SetTerminalReady(bool ready) override;

  const LoggerOptions& Options() const { return options_; }
  Identity Self() const { return {options_.model, options_.features}; }

  /// The configuration in force: always one that was set or uploaded whole.
  const Configuration& Conf() const { return conf_; }
  void SetConf(Configuration conf) { conf_ = std::move(conf); }
  /// Uploads taken over since the start.
  std::size_t UploadsTaken() const { return uploadsTaken_; }

  DateTime Clock() const;
  void SetClock(const DateTime& now);
  /// State of the outputs, bit by bit.
  unsigned Outputs() const { return outputs_; }
  /// The update of its firmware that is under way, or the last one.
  const FirmwareTaking& Firmware() const { return taking_; }
  /// Whether its console tells what it does.
  bool Traces() const { return traces_; }
  /// Total of a counter, 0 to 8.
  int Total(int index) const { return live_.Counter(index, Seconds()); }

  /// The test fixture that it lies in, if it is tested.
  Fixture& InFixture() { return fixture_; }

  /// All that outlives a power cycle as readable UTF-8 text: configuration, clock, totals, outputs.
  std::string SaveState() const;
  /// Takes over a saved state of the same model, wholly or not at all; `error` tells what is wrong.
  bool LoadState(std::string_view text, std::string& error);

  /// Called after each exchange, in its order.
  void OnExchange(std::function<void(const Exchange&)> observer) {
    observer_ = std::move(observer);
  }

 private:
  struct Command {
    std::string_view head;
    bool (Logger::*answer)(std::string_view rest);
  };
  static const Command kCommands[];
  struct Order {
    std::string_view word;
    bool (*known)(const Identity& self);
    void (Logger::*carryOut)(StatementCursor& in);
  };
  static const Order kOrders[];

  // The way of a request
  void TakeOctets(std::string_view octets);
  void AwaitAnswer();
  void Answer(const std::string& request);
  bool Dispatch(const std::string& request);
  void AnswerNoise();
  void AnswerEcho(const std::string& request);
  void Reply(std::string_view message, Duration tear = {});
  void ReplyRecord(std::string_view head, int number, std::string_view record);
  void ForgetLine();
  void ChangeCall(bool up);
  void LoseCarrier();
  bool HasNoWordFor(std::string_view request) const;
  void Tell(const Exchange& exchange) const;

  // Answers; false when the logger keeps silent
  bool AnswerHandshake(std::string_view rest);
  bool AnswerInformation(std::string_view rest);
  bool AnswerReadClock(std::string_view rest);
  bool AnswerSetClock(std::string_view rest);
  bool AnswerDownload(std::string_view rest);
  bool AnswerStatement(std::string_view rest);
  bool AnswerClosing(std::string_view rest);
  bool AnswerOrder(std::string_view rest);
  bool AnswerOutputOn(std::string_view rest);
  bool AnswerOutputOff(std::string_view rest);
  bool AnswerAccessCode(std::string_view rest);
  bool AnswerProbeIdentity(std::string_view rest);
  bool AnswerVoiceSum(std::string_view rest);
  bool AnswerVoiceList(std::string_view rest);
  bool SwitchOutput(std::string_view rest, bool on);
  bool AnswerTestFrame(std::string_view rest);
  bool AnswerNumber(std::string_view rest);
  bool AnswerIdle(std::string_view rest);
  bool AnswerIdleOfBQ(std::string_view rest);
  bool AnswerErase(std::string_view rest);
  bool AnswerLoader(std::string_view rest);
  bool AnswerConsole(std::string_view rest);
  bool AnswerTraces(std::string_view rest);

  void TakeFirmware(std::string_view octets);
  void CopyFirmware();

  // Console
  bool HasListener() const;
  void Say(const std::string& line);
  void TraceRequest(std::string_view request);
  void ScheduleTrace();
  std::string TimeOfDayText() const;
  std::string InputsText() const;
  std::string VersionText() const;

  // Orders; they tell `in` what is wrong
  void SetTotal(StatementCursor& in);
  void SetModuleTotal(StatementCursor& in);
  void ClearVoiceNumbers(StatementCursor& in);
  void SetVoiceMacro(StatementCursor& in);
  void ClearVoiceMacro(StatementCursor& in);
  void DriveVolts(StatementCursor& in);
  void DriveSwitches(StatementCursor& in);
  void TakeDisplayOff(StatementCursor& in);
  void TakeProbe(StatementCursor& in);

  std::int64_t Seconds() const;

  EventLoop& loop_;
  LineEnd& line_;
  LoggerOptions options_;
  FaultPlan plan_;
  Sender sender_;
  std::unique_ptr<Modem> modem_;
  FrameReader reader_;
  std::deque<std::string> requests_;  ///< received, not answered yet
  std::size_t requestOctets_ = 0;     ///< in these
  TimerId answer_ = 0;
  bool admitted_ = true;  ///< false in a data call until the access code was right

  Configuration conf_;
  Upload upload_;
  bool muteUpload_ = false;  ///< a fault made the rest of an attempt unheard
  std::size_t uploadsTaken_ = 0;
  LiveValues live_;
  Fixture fixture_;
  unsigned outputs_ = 0;
  std::int64_t clockAhead_ = 0;  ///< seconds from the loop's time to the clock's

  FirmwareTaking taking_;
  TimerId copying_ = 0;
  bool traces_ = false;
  bool isHeard_ = true;  ///< a program has the line open, as far as known
  TimerId trace_ = 0;

  std::function<void(const Exchange&)> observer_;
  Exchange exchange_;  ///< the one being answered
};

}  // namespace ostrel::sim
