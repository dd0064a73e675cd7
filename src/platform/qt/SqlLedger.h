#pragma once

#include <QString>
#include <chrono>
#include <optional>
#include <string>
#include <vector>

#include "platform/Ledger.h"
#include "platform/RunningProgram.h"

class QSqlDatabase;
class QSqlError;
class QSqlQuery;

namespace ostrel {

/// A ledger in an SQLite file, which is its owner's alone. It is opened when it is first needed;
/// looking something up makes no file. What is kept is on the disk itself when the call returns.
/// It needs an application object.
class SqlLedger final : public Ledger {
 public:
  /// `program` is who writes into it; another one may hold the file as long as `patience`.
  SqlLedger(std::string path, RunningProgram program,
            std::chrono::milliseconds patience = std::chrono::seconds(2));
  ~SqlLedger() override;
  SqlLedger(const SqlLedger&) = delete;
  SqlLedger& operator=(const SqlLedger&) = delete;

  std::string Fault() const override { return fault_; }
  std::int64_t Add(const LedgerEntry& entry) override;
  bool Change(const LedgerEntry& entry) override;
  std::vector<LedgerEntry> Find(const LedgerQuery& query) override;
  bool KeepContent(const std::string& hash, const std::string& octets) override;
  std::optional<std::string> Content(const std::string& hash) override;
  bool IsRunning(const LedgerEntry& entry) const override;

 private:
  enum class State { Unopened, Open, Unusable };

  bool Open(bool makes);
  bool MakeFile();
  bool Connect();
  int Version() const;
  bool Migrate();
  /// Runs a prepared statement. What went wrong stands in `fault_` after that.
  bool Run(QSqlQuery& statement);
  bool Run(const QString& statement);
  bool Fail(const QString& why);
  bool Fail(const QSqlError& error);
  QSqlDatabase Base() const;

  std::string path_;
  RunningProgram program_;
  std::chrono::milliseconds patience_;
  QString connection_;
  State state_ = State::Unopened;
  bool isHeld_ = false;   ///< another program had the file all the time
  bool wasHeld_ = false;  ///< at the last try to open it
  std::string fault_;
};

}  // namespace ostrel
