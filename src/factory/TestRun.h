#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "factory/Station.h"
#include "factory/TestBook.h"
#include "factory/TestPanel.h"
#include "factory/TestPlan.h"
#include "factory/TestRecord.h"
#include "link/Comms.h"
#include "link/dialogues/TestDialogue.h"
#include "model/DeviceInfo.h"
#include "model/TargetProfile.h"
#include "platform/Platform.h"

namespace ostrel {

/// What a test run has of the program around it.
struct TestBench {
  const Platform& platform;
  Comms& comms;
  const DeviceInfo& info;
  const TargetProfile& profile;
  TestBook& book;
};

/// What is chosen for one run.
struct TestChoice {
  Station station;
  bool skipsKeys = false;  ///< the keys at the inputs are not tested
};

/// From a change at the fixture to the reading of what it has come to.
inline constexpr int kSettleMs = 3000;

/// A value of a board, as it was read last.
struct Reading {
  float value = 0;
  bool isRead = false;  ///< it has come from this board, when it was last asked
};

/// How a failure is told: as its text stands, or with the reading behind it.
enum class Telling { Plain, WithReading };

/// One run of a test on one board. A check that fails is told, and the run goes on, so that a board
/// shows all its faults. The line is held from the first step to the record, except while the
/// operator is asked.
///
/// `Stop` ends a run, and so does a line that has gone: from then on no step does anything, and
/// what is left is to switch the fixture's outputs off, to keep the record and to end the session.
/// So the steps of a test stand in a straight list.
class TestRun {
 public:
  /// `frame` is the last reading of a board, also of runs before this one: where a board does not
  /// answer, it is judged by that.
  TestRun(const TestBench& bench, const TestPlan& plan, const TestChoice& choice, TestPanel& panel,
          TestFrame& frame);
  TestRun(const TestRun&) = delete;
  TestRun& operator=(const TestRun&) = delete;

  /// Runs the test to its end. The result stands in the table of records, unless `Kept` says no.
  /// What is thrown in a wait breaks the run off, which ends as any other, and is thrown on.
  const TestRecord& Run();
  const TestRecord& Record() const { return record_; }
  /// Ends the run at the next moment, from within a wait of it. Later calls do nothing, so that the
  /// order that switches the fixture off gets its time, nor does one behind the verdict.
  void Stop();
  /// Whether the record is on the disk.
  bool Kept() const { return kept_; }

  // Steps.
  void Step(std::string_view text);
  /// A step of which the operator does a part.
  void Prompt(std::string_view text);
  /// Sends an order; true when the board confirms it.
  bool Order(std::string_view message);
  /// The first order, without whose confirmation nothing is checked.
  bool FirstOrder(std::string_view message);
  void Delay(int ms);
  /// Reads a frame, or keeps the last one where no good answer comes.
  void ReadTestFrame();
  Reading Inputs() const { return {static_cast<float>(frame_.InputBits), came_.InputBits}; }
  Reading Analog(std::size_t analog) const;
  Reading Battery() const { return {frame_.BatteryVolts, came_.BatteryVolts}; }
  Reading Gsm() const { return {static_cast<float>(frame_.GsmState), came_.GsmState}; }
  const DeviceInfo& Info() const { return bench_.info; }
  bool SkipsKeys() const { return choice_.skipsKeys; }
  /// True as long as steps do something.
  bool GoesOn() const;

  /// Notes a value, and tells of a failure when it is not in its band. The text of a failure stands
  /// ahead of the reading.
  void Check(std::string_view name, Reading reading, const Band& band, std::string_view failure,
             Telling telling = Telling::WithReading);
  /// Notes a value that has passed or not.
  void Note(std::string_view name, Reading reading, const Band& band, bool passed);
  void Fail(std::string text);
  void Request(std::string_view text);
  /// Raises the counter of serial numbers and makes the new one.
  void TakeSerial();
  /// The battery of a board that runs on one.
  void CheckBattery();
  /// Waits for the modem, and tells what is wrong with it.
  void CheckGsm();
  /// Writes the new serial number into a board that has none.
  void NumberBoard(bool isBlank);
  /// Asks the board who it is, and shows its number.
  void ShowSerial();

 private:
  void HoldLine();
  void NoteLine();
  void End();
  void Keep();
  TestVerdict Verdict() const;

  TestBench bench_;
  const TestPlan& plan_;
  TestChoice choice_;
  TestPanel& panel_;
  Line& line_;
  std::optional<Line::Dialogue> hold_;
  TestFrame& frame_;
  TestFrameCame came_;  ///< with the last answer
  TestRecord record_;
  TimePoint began_{};
  std::string newSerial_;
  bool mayNumber_ = true;  ///< false when no new number could be made safely
  bool failed_ = false;
  bool stopped_ = false;
  bool lineLost_ = false;
  bool judged_ = false;  ///< the verdict stands
  bool kept_ = false;
};

}  // namespace ostrel
