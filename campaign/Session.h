#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Faults.h"
#include "Invariants.h"
#include "Tally.h"
#include "World.h"
#include "shell/writing/GuardedWrite.h"

namespace ostrel::campaign {

/// A line that is not paced carries in no time what a logger then works off, each message in 2 ms:
/// nobody does the next thing ahead of that, since no real line brings it about.
inline constexpr Duration kWorkedOff = std::chrono::seconds(1);

/// Passwords as nothing else is spelt: of the logger's access points, and those that are written.
inline constexpr std::array<std::string_view, 4> kPasswords{"QZXJWKVY", "JXQVZYKW", "WQYXKZJV",
                                                            "VKQJYXWZ"};
/// The logger's access code, and a wrong one. They must be numbers.
inline constexpr std::array<std::string_view, 2> kCodes{"83059176", "60718395"};

/// One whole session of a program with a logger, all of it drawn from a seed: the logger, what is
/// done, and what goes wrong. What must hold is looked at behind each step.
class Session {
 public:
  Session(std::uint64_t seed, Tally& tally, bool tells);
  /// Runs it. What did not hold, in words; empty when all is well.
  std::vector<std::string> Run();

 private:
  /// What a writing was to bring about.
  struct Writing {
    sim::Configuration before;
    std::vector<sim::Configuration> wanted;  ///< any of them is the new one
    std::int64_t lastEntry = 0;              ///< of the ledger, when it began
    bool IsNew(const sim::Configuration& held) const;
  };
  /// Whether a writing is to be doubted, since others have changed the logger.
  enum class Doubted { Unknown, Must, MustNot };
  struct KeptFile {
    std::string path, octets;
  };

  static sim::LoggerOptions DrawLogger(sim::Random& random, const sim::Faults& faults);
  void StartProgram();
  void DoNext();
  /// Runs a step that gives whether it was done; looks at its time and at what it leaves behind.
  bool Timed(Step step, const std::function<bool()>& work);
  void Follow(const sim::Exchange& exchange);
  void Do(Deed deed);
  void Meddle();
  void Kill();
  void Restart();
  void LookAfterRestart();
  void JudgeRecording();
  void End();

  bool Open();
  void Edit();
  void TypeOddText();
  bool IsAsHeld(const DeviceConf& read) const;
  bool Read();
  /// Whether it was written and verified.
  bool Write(bool guarded);
  WriteRoad Road(bool guarded);
  bool KeepCopy(const DeviceConf& held);
  void JudgeWriting(const WriteResult& result);
  void JudgeDoubts(const WriteResult& result);
  void JudgeLedger(const WriteResult& result, bool isOld, bool isNew);
  void Short(Step step, const std::function<LinkResult()>& dialogue,
             const std::function<bool()>& isSo);
  void Live();
  void Clock();
  void Total();
  void Output();
  void VoiceWrite();
  void VoiceRead();
  bool IsVoiceList(const ConfAutVoz& list) const;
  void Firmware();
  void SaveSome();
  void LoadSome();
  bool Save(const std::string& path);
  bool Load(const std::string& path);
  void UseFileTwice();
  bool ChangeByOthers();

  /// Checks what the words for a fault claim.
  void CheckWords(const SessionFault& fault);
  void Expect(bool holds, const std::string& what);
  void Tell(const std::string& what) const;
  Receiver Logger() const {
    return {program_->profile, static_cast<std::int32_t>(Self().features)};
  }
  sim::Identity Self() const { return world_.logger->Self(); }
  /// Whether both ends could know what the other one said.
  bool IsClear() const;

  Tally& tally_;
  bool tells_;
  sim::Random random_;
  Faults faults_;
  World world_;
  std::unique_ptr<Configurator> program_;
  std::vector<std::string> breaches_;
  int exchanges_ = 0;
  bool givesWrongCode_ = false;
  bool isKilled_ = false;
  bool hasOddText_ = false;
  sim::Configuration before_;                ///< what the logger held when the step began
  std::optional<Writing> writing_;           ///< the one under way
  std::optional<sim::Configuration> taken_;  ///< what the logger took over last, as it said
  std::vector<KeptFile> copies_;
  std::optional<LedgerKind> cutOff_;  ///< what was killed half done, beside writings
  Doubted doubted_ = Doubted::Unknown;
  bool declines_ = false;            ///< the operator does not write in spite of a doubt
  std::vector<std::string> doubts_;  ///< what was told ahead of the last writing
};

}  // namespace ostrel::campaign
