#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ostrel {

/// What was done with a logger, or with a file of its configuration.
enum class LedgerKind {
  Session,
  Reading,
  Writing,
  Verification,
  Saving,  ///< of a configuration into a file
  VoiceReading,
  VoiceWriting,
  Clock,
  Output,
  Total,
  Firmware,
  TestRun
};

/// The words for the kinds, in their order, as they stand in the ledger.
inline constexpr std::array<std::string_view, 12> kLedgerKindWords{
    "session",    "reading", "writing", "verification", "saving",   "voice reading",
    "voice list", "clock",   "output",  "total",        "firmware", "test run"};

enum class LedgerState { UnderWay, Done, Failed };

/// The words for the states, in their order.
inline constexpr std::array<std::string_view, 3> kLedgerStateWords{"under way", "done", "failed"};

constexpr std::string_view WordOf(LedgerKind kind) {
  return kLedgerKindWords[static_cast<std::size_t>(kind)];
}
constexpr std::string_view WordOf(LedgerState state) {
  return kLedgerStateWords[static_cast<std::size_t>(state)];
}

/// One entry of the ledger. Texts are UTF-8; what is not known is empty, or 0.
struct LedgerEntry {
  static constexpr std::int64_t kUnknown = -1;

  std::int64_t id = 0;       ///< 0 as long as it is not kept
  std::int64_t session = 0;  ///< entry of the session that it belongs to
  std::int64_t about = 0;    ///< entry of the writing that was read back or verified; of a saving
                             ///< under another name the last one of the file that it is a copy of
  LedgerKind kind = LedgerKind::Session;
  LedgerState state = LedgerState::UnderWay;
  bool closing = false;     ///< a writing: the logger has been asked to take everything over; of a
                            ///< firmware: it has said that it erases the former one
  bool settled = false;     ///< an interruption of which the operator wants to hear no more
  std::string began{};      ///< local, "2026-03-02 09:05:07"
  std::string utcOffset{};  ///< how far that is ahead of universal time, "+01:00"
  std::int64_t milliseconds = 0;
  std::string user{};     ///< who worked, as the machine knows him; filled in by the ledger
  std::string machine{};  ///< its name; filled in by the ledger
  std::string process{};  ///< the running program; filled in by the ledger
  std::string port{};     ///< "COM7"
  std::string phone{};    ///< number dialled; empty on a cable
  std::string model{};    ///< display name
  std::string serial{};
  std::string firmware{};            ///< "1.23"
  std::int64_t features = kUnknown;  ///< 32 bits without sign
  std::string file{};                ///< absolute path
  std::string content{};             ///< hash of the configuration that was read, written or saved
  std::string former{};    ///< hash of what the logger held before a writing, or of what was
                           ///< read from it that a saving is made of
  std::string copy{};      ///< path of the safety copy
  std::int64_t steps = 0;  ///< statements or records of the last attempt
  std::int64_t attempts = 0;
  std::string fault{};   ///< what failed, in words
  std::string detail{};  ///< "output 3 on"

  bool operator==(const LedgerEntry&) const = default;
};

/// Visits the fields of an entry, each with its name in the ledger: texts, 64-bit numbers,
/// booleans, a kind and a state. A field that is forgotten stops the build.
template <class Entry, class Visit>
void VisitLedgerEntry(Entry& entry, Visit&& visit) {
  auto& [id, session, about, kind, state, closing, settled, began, utcOffset, milliseconds, user,
         machine, process, port, phone, model, serial, firmware, features, file, content, former,
         copy, steps, attempts, fault, detail] = entry;
  visit("id", id);
  visit("session", session);
  visit("about", about);
  visit("kind", kind);
  visit("state", state);
  visit("closing", closing);
  visit("settled", settled);
  visit("began", began);
  visit("utcOffset", utcOffset);
  visit("milliseconds", milliseconds);
  visit("user", user);
  visit("machine", machine);
  visit("process", process);
  visit("port", port);
  visit("phone", phone);
  visit("model", model);
  visit("serial", serial);
  visit("firmware", firmware);
  visit("features", features);
  visit("file", file);
  visit("content", content);
  visit("former", former);
  visit("copy", copy);
  visit("steps", steps);
  visit("attempts", attempts);
  visit("fault", fault);
  visit("detail", detail);
}

/// Which entries are looked for. What is empty or 0 does not narrow the search.
struct LedgerQuery {
  std::int64_t id = 0;
  std::int64_t after = 0;  ///< only entries with a larger number
  std::string serial{};
  std::string file{};
  std::string content{};
  std::string since{};   ///< only entries begun then or later
  std::size_t most = 0;  ///< the newest so many
};

/// What was done with which logger, when and by whom, and the configurations themselves by their
/// hash. It stands outside the process and outlives it; several programs may use one at once.
class Ledger {
 public:
  virtual ~Ledger() = default;
  /// Why nothing can be kept or read any more; empty while all is well.
  virtual std::string Fault() const = 0;
  /// Keeps a new entry, with user, machine and process of this program. It is on the disk itself
  /// when this returns. Gives its number; 0 when it could not be kept.
  virtual std::int64_t Add(const LedgerEntry& entry) = 0;
  /// Keeps an entry as it is now, likewise. The program that keeps it is the one that made it.
  virtual bool Change(const LedgerEntry& entry) = 0;
  /// The entries looked for, the newest first.
  virtual std::vector<LedgerEntry> Find(const LedgerQuery& query) = 0;
  /// Keeps octets under their hash, once.
  virtual bool KeepContent(const std::string& hash, const std::string& octets) = 0;
  virtual std::optional<std::string> Content(const std::string& hash) = 0;
  /// Whether the program that made an entry still runs: what it has under way goes on.
  virtual bool IsRunning(const LedgerEntry& entry) const = 0;
  /// Whether the program that made an entry was ended in the midst of the work.
  bool IsCutOff(const LedgerEntry& entry) const {
    return entry.state == LedgerState::UnderWay && !IsRunning(entry);
  }
};

}  // namespace ostrel
