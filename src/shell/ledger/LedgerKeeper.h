#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/Scope.h"
#include "link/LinkDeed.h"
#include "link/LinkFault.h"
#include "link/Progress.h"
#include "model/DeviceConf.h"
#include "model/DeviceInfo.h"
#include "model/TargetProfile.h"
#include "platform/Ledger.h"
#include "platform/Platform.h"
#include "platform/Time.h"

namespace ostrel {

struct Comparison;

/// Work that the link does not tell of, while it is under way.
struct LedgerWork {
  LedgerEntry entry;
  TimePoint began;
};

/// Where the configuration on the pages comes from, as far as the ledger goes.
struct LedgerSource {
  std::string file{};      ///< opened or saved to; empty where a logger was read since
  std::string serial{};    ///< of the logger that was last read or written; empty for a file's
  std::string firmware{};  ///< of that logger
  std::int64_t features = LedgerEntry::kUnknown;
  std::string held{};        ///< hash of what that logger held when it was read or written
  std::int64_t session = 0;  ///< entry of the session with that logger
};

/// Keeps book of what one configurator does with loggers, as the link tells it: each session, and
/// each deed in it ahead of its first octet. Without a ledger, or with one that fails, it keeps
/// nothing and the work goes on; that is told once.
class LedgerKeeper {
 public:
  /// What the entries tell of.
  struct Subject {
    const Platform& platform;
    const DeviceConf& conf;
    DeviceConf* const& received;  ///< where a download goes: the model, or beside it
    const TargetProfile& profile;
    const DeviceInfo& info;
  };

  explicit LedgerKeeper(const Subject& subject) : subject_(subject) {}

  // What the link tells.
  void DeedBegins(const LinkDeed& deed);
  void DeedEnds(const LinkDeed& deed, const LinkFault& fault);
  void SessionEnds(const LinkFault& fault);
  /// An attempt of an upload has taken its state from the model.
  void Composed();
  void Follow(const Progress& progress);
  /// One value of the logger's information has arrived.
  void InfoChanged(std::string_view key);

  // What the configurator and the faces tell.
  /// The configuration comes from the file at a path.
  void TakeFile(const std::string& path);
  /// The configuration was saved as these octets at a path.
  void Saved(const std::string& path, const std::string& octets);
  /// What was read last is kept as a safety copy at a path.
  void NoteCopy(const std::string& path);
  /// What was read back last was compared with what was written.
  void Verified(const Comparison& comparison);
  /// A writing with its guards runs as long as what is given lives.
  [[nodiscard]] Lent<bool> WithGuards();

  /// Keeps that work begins, ahead of its first octet: a firmware update or a test run.
  LedgerWork Begin(LedgerKind kind, std::string detail);
  /// It has ended: `fault` tells in words what failed, empty for success.
  void End(LedgerWork work, std::string fault);

  /// The file that the configuration comes from or was saved to; empty where a logger was read
  /// since.
  const std::string& File() const { return source_.file; }
  /// Serial number of the logger that the configuration was last read from; empty where it comes
  /// from a file, or is not known.
  const std::string& Origin() const { return source_.serial; }
  /// Where it keeps; null without a ledger.
  Ledger* Books() const { return subject_.platform.ledger; }

  /// Runs once, when something could not be kept. Set by the face.
  std::function<void(const std::string& why)> OnFault;

 private:
  std::string NameOf(const std::string& path) const;
  LedgerEntry Made(LedgerKind kind) const;
  void Keep(LedgerEntry& entry);
  /// Keeps what could not be kept when it was due.
  void KeepLate();
  void Tell(const std::string& why);
  /// Keeps the octets of a configuration. Gives their hash.
  std::string KeepContent(const std::string& octets);
  std::string KeepConfiguration(const DeviceConf& conf);
  void EndReading(bool done);
  void EndWriting(bool done);
  void Close(LedgerEntry& entry, bool done, TimePoint began);
  void ComesFromLogger();

  Subject subject_;
  LedgerEntry session_;  ///< the session that stands, with what its logger has told of itself
  LedgerEntry deed_;     ///< what the link does, or has done last
  LedgerEntry reading_;  ///< the last reading that succeeded
  TimePoint sessionBegan_{}, deedBegan_{};
  LedgerSource source_;
  std::string held_;  ///< hash of what the logger is known to hold; empty where it is not
  std::string copy_;  ///< safety copy of that
  std::int64_t written_ =
      0;  ///< entry of the writing that is to be read back; 0 while there is none
  std::map<std::int64_t, LedgerEntry> late_;         ///< by their numbers
  std::map<std::string, std::string> lateContents_;  ///< by their hashes
  bool guarded_ = false;
  bool told_ = false;
};

}  // namespace ostrel
