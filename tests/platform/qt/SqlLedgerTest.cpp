#include <gtest/gtest.h>

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QVariant>
#include <fstream>

#include "platform/qt/SqlLedger.h"

namespace ostrel {
namespace {

class OnDisk : public testing::Test {
 protected:
  /// Runs statements on the file, past the ledger.
  void Run(const QStringList& statements) {
    {
      QSqlDatabase base = QSqlDatabase::addDatabase("QSQLITE", "beside");
      base.setDatabaseName(QString::fromStdString(path));
      ASSERT_TRUE(base.open());
      QSqlQuery query(base);
      for (const QString& statement : statements)
        ASSERT_TRUE(query.exec(statement)) << statement.toStdString();
    }
    QSqlDatabase::removeDatabase("beside");
  }

  /// The ledger as a program opens it.
  SqlLedger Ledger(std::chrono::milliseconds patience = std::chrono::seconds(2)) const {
    const RunningProgram program{.user = "nadia", .nameOf = [](const std::string& number) {
                                   return "boot/" + number + "/77";
                                 }};
    return SqlLedger(path, program, patience);
  }

  QTemporaryDir folder;
  std::string path = folder.path().toStdString() + "/deep/ledger.db";
};

/// An entry in which no two fields hold the same.
LedgerEntry Distinct() {
  LedgerEntry entry;
  std::int64_t next = 100;
  VisitLedgerEntry(entry, [&](const char* name, auto& value) {
    using Value = std::remove_cvref_t<decltype(value)>;
    if constexpr (std::is_same_v<Value, std::string>) value = std::string(name) + " \xC3\xB1";
    if constexpr (std::is_same_v<Value, std::int64_t>) value = ++next << 32;
    if constexpr (std::is_same_v<Value, bool>) value = true;
  });
  entry.kind = LedgerKind::TestRun;
  entry.state = LedgerState::Failed;
  return entry;
}

TEST_F(OnDisk, WhatOneProgramKeepsAnotherFinds) {
  LedgerEntry entry = Distinct();
  SqlLedger one = Ledger(), other = Ledger();
  EXPECT_TRUE(other.Find({}).empty());
  EXPECT_FALSE(std::ifstream(path).is_open()) << "looking makes no file";
  entry.id = one.Add(entry);
  ASSERT_EQ(entry.id, 1) << one.Fault();
  ASSERT_EQ(other.Add({.began = "2026-03-02 09:05:07", .serial = "Q2"}), 2) << other.Fault();
  entry.state = LedgerState::Done;
  EXPECT_TRUE(one.Change(entry));
  const std::vector<LedgerEntry> found = other.Find({});
  ASSERT_EQ(found.size(), 2U);
  EXPECT_EQ(found[0].id, 2) << "the newest first";
  EXPECT_TRUE(one.IsRunning(found[1]));
  LedgerEntry kept = found[1];
  EXPECT_EQ(kept.user, "nadia");
  kept.user = entry.user;
  kept.machine = entry.machine;
  kept.process = entry.process;
  EXPECT_EQ(kept, entry);
  EXPECT_FALSE(one.IsRunning(entry)) << "that is no process";
  LedgerEntry former = found[1];
  former.process += "1";
  EXPECT_FALSE(one.IsRunning(former)) << "one of the same number that has ended";
  EXPECT_EQ(one.Find({.serial = "Q2"}).size(), 1U);
  EXPECT_EQ(one.Find({.file = entry.file}).size(), 1U);
  EXPECT_EQ(one.Find({.file = "none"}).size(), 0U);
  EXPECT_EQ(one.Find({.content = entry.content}).size(), 1U);
  EXPECT_EQ(one.Find({.since = "2026-03-03"}).size(), 1U);
  EXPECT_EQ(one.Find({.after = 1, .most = 1}).front().id, 2);
  EXPECT_EQ(one.Find({.after = 1}).size(), 1U);
  const std::string octets("a\0b\xFF", 4);
  EXPECT_TRUE(one.KeepContent("h", octets) && other.KeepContent("h", octets));
  EXPECT_EQ(other.Content("h"), octets);
  EXPECT_FALSE(other.Content("g"));
}

/// What is kept outlasts a power cut, while other programs read and write.
TEST_F(OnDisk, IsDurableAndShared) {
  SqlLedger ledger = Ledger();
  ledger.Add({});
  const auto set = [](const char* pragma) {
    const QString name = QSqlDatabase::connectionNames().last();
    QSqlQuery query(QString("PRAGMA %1").arg(pragma), QSqlDatabase::database(name, false));
    return query.next() ? query.value(0).toString().toStdString() : "";
  };
  EXPECT_EQ(set("synchronous"), "2") << "full";
  EXPECT_EQ(set("journal_mode"), "wal");
  EXPECT_EQ(set("busy_timeout"), "2000");
  Run({"ALTER TABLE entry RENAME TO away"});
  EXPECT_EQ(ledger.Add({}), 0);
  EXPECT_NE(ledger.Fault(), "");
  Run({"ALTER TABLE away RENAME TO entry"});
  EXPECT_EQ(ledger.Add({}), 2);
  EXPECT_EQ(ledger.Fault(), "") << "all is well again";
}

TEST_F(OnDisk, AnOlderSchemaGrowsAndALaterOneIsLeftAlone) {
  Ledger().Add({.serial = "Q1"});
  Run({"DROP INDEX entry_serial", "DROP INDEX entry_file",
       "ALTER TABLE entry DROP COLUMN utcOffset", "PRAGMA user_version=1"});
  ASSERT_EQ(Ledger().Find({.serial = "Q1"}).size(), 1U);
  EXPECT_EQ(Ledger().Find({.serial = "Q1"}).front().utcOffset, "") << "nobody knows it any more";
  EXPECT_EQ(Ledger().Add({.utcOffset = "-03:30"}), 2);
  Run({"DROP INDEX entry_serial", "PRAGMA user_version=77"});
  SqlLedger later = Ledger();
  EXPECT_EQ(later.Add({}), 0);
  EXPECT_EQ(later.Fault(), "the ledger was made by a later version of this program");
}

TEST_F(OnDisk, AFileThatIsNoLedgerIsToldAndLeftAlone) {
  Ledger().Add({});
  std::ofstream(path, std::ios::trunc) << std::string(4096, 'x');
  SqlLedger ledger = Ledger();
  EXPECT_EQ(ledger.Add({}), 0);
  EXPECT_FALSE(ledger.KeepContent("h", "octets"));
  EXPECT_TRUE(ledger.Find({}).empty());
  EXPECT_FALSE(ledger.Fault().empty());
}

TEST_F(OnDisk, AFileThatAnotherProgramHoldsIsTriedAgain) {
  Ledger().Add({});
  SqlLedger ledger = Ledger(std::chrono::milliseconds(0));
  {
    QSqlDatabase base = QSqlDatabase::addDatabase("QSQLITE", "holder");
    base.setDatabaseName(QString::fromStdString(path));
    ASSERT_TRUE(base.open());
    QSqlQuery query(base);
    for (const char* hold : {"PRAGMA journal_mode=DELETE", "BEGIN EXCLUSIVE"})
      ASSERT_TRUE(query.exec(hold)) << hold;
    EXPECT_EQ(ledger.Add({}), 0);
    EXPECT_TRUE(ledger.Fault().starts_with("database is locked")) << ledger.Fault();
  }
  QSqlDatabase::removeDatabase("holder");
  EXPECT_EQ(ledger.Add({}), 2) << ledger.Fault();
  EXPECT_EQ(ledger.Fault(), "");
}

}  // namespace
}  // namespace ostrel
