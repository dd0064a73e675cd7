#include "platform/qt/SqlLedger.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QStringList>
#include <QSysInfo>
#include <QVariant>
#include <array>
#include <utility>

namespace ostrel {
namespace {

constexpr auto kOwnersAlone = QFileDevice::ReadOwner | QFileDevice::WriteOwner;
/// What the database calls a file that another program holds, in the lowest octet of its codes.
constexpr int kIsHeld = 5;

/// What each version of the schema adds to the one before; the first one makes it. A step that was
/// once released is never changed.
constexpr std::array kSteps{
    "CREATE TABLE entry (id INTEGER PRIMARY KEY AUTOINCREMENT, session INTEGER, about INTEGER, "
    "kind TEXT, state TEXT, closing INTEGER, settled INTEGER, began TEXT, milliseconds INTEGER, "
    "user TEXT, machine TEXT, process TEXT, port TEXT, phone TEXT, model TEXT, serial TEXT, "
    "firmware TEXT, features INTEGER, file TEXT, content TEXT, former TEXT, copy TEXT, "
    "steps INTEGER, attempts INTEGER, fault TEXT, detail TEXT);"
    "CREATE TABLE content (hash TEXT PRIMARY KEY, octets BLOB NOT NULL)",
    "CREATE INDEX entry_serial ON entry (serial); CREATE INDEX entry_file ON entry (file)",
    "ALTER TABLE entry ADD COLUMN utcOffset TEXT",
};

QString TextOf(const std::string& text) { return QString::fromStdString(text); }

QVariant ValueOf(const std::string& text) { return TextOf(text); }
QVariant ValueOf(std::int64_t number) { return QVariant::fromValue<qlonglong>(number); }
QVariant ValueOf(bool truth) { return truth ? 1 : 0; }
template <class Word>
requires std::is_enum_v<Word> QVariant ValueOf(Word word) {
  const std::string_view text = WordOf(word);
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

void Take(const QVariant& value, std::string& text) { text = value.toString().toStdString(); }
void Take(const QVariant& value, std::int64_t& number) { number = value.toLongLong(); }
void Take(const QVariant& value, bool& truth) { truth = value.toInt() != 0; }
/// A word that a later version of the program has written counts as the first one.
template <class Word>
void TakeWord(const QVariant& value, Word& word, const auto& words) {
  const std::string text = value.toString().toStdString();
  const auto found = std::ranges::find(words, text);
  word = static_cast<Word>(found == words.end() ? 0 : found - words.begin());
}
void Take(const QVariant& value, LedgerKind& kind) { TakeWord(value, kind, kLedgerKindWords); }
void Take(const QVariant& value, LedgerState& state) { TakeWord(value, state, kLedgerStateWords); }

/// Whether a field is kept when the entry is made, and never changed after.
bool IsGiven(const QString& name) {
  return name == "id" || name == "user" || name == "machine" || name == "process";
}

/// The names and values of an entry's fields, but for those that the ledger fills in.
struct Columns {
  explicit Columns(const LedgerEntry& entry) {
    VisitLedgerEntry(entry, [this](const char* name, const auto& value) {
      if (IsGiven(name)) return;
      names << name;
      values << ValueOf(value);
    });
  }

  QStringList names;
  QVariantList values;
};

LedgerEntry EntryOf(const QSqlQuery& row) {
  LedgerEntry entry;
  VisitLedgerEntry(entry, [&](const char* name, auto& value) { Take(row.value(name), value); });
  return entry;
}

}  // namespace

SqlLedger::SqlLedger(std::string path, RunningProgram program, std::chrono::milliseconds patience)
    : path_(std::move(path)), program_(std::move(program)), patience_(patience) {
  static int count = 0;
  connection_ = QString("ledger %1").arg(++count);
}

SqlLedger::~SqlLedger() {
  if (state_ != State::Unopened) QSqlDatabase::removeDatabase(connection_);
}

QSqlDatabase SqlLedger::Base() const { return QSqlDatabase::database(connection_, false); }

bool SqlLedger::Fail(const QString& why) {
  fault_ = why.toStdString();
  return false;
}

bool SqlLedger::Fail(const QSqlError& error) {
  isHeld_ = isHeld_ || error.nativeErrorCode().toInt() % 256 == kIsHeld;
  return Fail(error.text().trimmed());
}

bool SqlLedger::Run(QSqlQuery& statement) {
  if (!statement.exec()) return Fail(statement.lastError());
  fault_.clear();
  return true;
}

bool SqlLedger::Run(const QString& statement) {
  QSqlQuery query(Base());
  return query.prepare(statement) ? Run(query) : Fail(query.lastError());
}

bool SqlLedger::Open(bool makes) {
  if (state_ != State::Unopened) return state_ == State::Open;
  if (!makes && !QFile::exists(TextOf(path_))) return false;
  wasHeld_ = std::exchange(isHeld_, false);
  const bool isOpen = MakeFile() && Connect() && Migrate();
  state_ = isOpen ? State::Open : State::Unusable;
  if (!isOpen && isHeld_) {
    QSqlDatabase::removeDatabase(connection_);
    state_ = State::Unopened;
  }
  return isOpen;
}

/// Passwords stand in it: it is its owner's alone from its first octet on. The files that SQLite
/// puts beside it take its permissions.
bool SqlLedger::MakeFile() {
  QDir().mkpath(QFileInfo(TextOf(path_)).path());
  QFile file(TextOf(path_));
  if (!file.exists() && !file.open(QIODevice::ReadWrite, kOwnersAlone))
    return Fail(TextOf(path_) + ": " + file.errorString());
  return true;
}

bool SqlLedger::Connect() {
  QSqlDatabase base = QSqlDatabase::addDatabase("QSQLITE", connection_);
  base.setDatabaseName(TextOf(path_));
  // Who has waited once in vain looks in from then on, and does not hold the work up again.
  base.setConnectOptions(QString("QSQLITE_BUSY_TIMEOUT=%1").arg(wasHeld_ ? 0 : patience_.count()));
  if (!base.open()) return Fail(base.lastError());
  return Run("PRAGMA journal_mode=WAL") && Run("PRAGMA synchronous=FULL") &&
         Run(QString("PRAGMA busy_timeout=%1").arg(patience_.count()));
}

int SqlLedger::Version() const {
  QSqlQuery version("PRAGMA user_version", Base());
  return version.next() ? version.value(0).toInt() : 0;
}

bool SqlLedger::Migrate() {
  const int wanted = static_cast<int>(kSteps.size());
  if (Version() == wanted) return true;
  if (!Run("BEGIN IMMEDIATE")) return false;  // of several programs one makes the schema
  const int stands = Version();
  bool done = stands <= wanted;
  if (!done) Fail("the ledger was made by a later version of this program");
  for (int step = stands; step < wanted && done; ++step)
    for (const QString& statement : QString(kSteps[static_cast<std::size_t>(step)]).split(';'))
      done = done && Run(statement);
  if (done && stands < wanted) done = Run(QString("PRAGMA user_version=%1").arg(wanted));
  if (done) return Run("COMMIT");
  const std::string why = fault_;
  Run("ROLLBACK");
  fault_ = why;
  return false;
}

std::int64_t SqlLedger::Add(const LedgerEntry& entry) {
  if (!Open(true)) return 0;
  Columns columns(entry);
  columns.names << "user"
                << "machine"
                << "process";
  columns.values << TextOf(program_.user) << QSysInfo::machineHostName()
                 << TextOf(program_.nameOf(std::to_string(QCoreApplication::applicationPid())));
  QSqlQuery query(Base());
  QStringList places(columns.names.size(), "?");
  query.prepare(QString("INSERT INTO entry (%1) VALUES (%2)")
                    .arg(columns.names.join(u','), places.join(u',')));
  for (const QVariant& value : columns.values) query.addBindValue(value);
  return Run(query) ? query.lastInsertId().toLongLong() : 0;
}

bool SqlLedger::Change(const LedgerEntry& entry) {
  if (!Open(true)) return false;
  const Columns columns(entry);
  QSqlQuery query(Base());
  query.prepare(QString("UPDATE entry SET %1=? WHERE id=?").arg(columns.names.join("=?,")));
  for (const QVariant& value : columns.values) query.addBindValue(value);
  query.addBindValue(ValueOf(entry.id));
  return Run(query);
}

std::vector<LedgerEntry> SqlLedger::Find(const LedgerQuery& query) {
  if (!Open(false)) return {};
  QStringList conditions{"id>?"};
  QVariantList values{ValueOf(query.after)};
  const auto narrow = [&](bool narrows, const QString& condition, const QVariant& value) {
    if (!narrows) return;
    conditions << condition;
    values << value;
  };
  narrow(query.id != 0, "id=?", ValueOf(query.id));
  narrow(!query.serial.empty(), "serial=?", TextOf(query.serial));
  narrow(!query.file.empty(), "file=?", TextOf(query.file));
  narrow(!query.content.empty(), "content=?", TextOf(query.content));
  narrow(!query.since.empty(), "began>=?", TextOf(query.since));
  QSqlQuery rows(Base());
  rows.setForwardOnly(true);
  rows.prepare("SELECT * FROM entry WHERE " + conditions.join(" AND ") + " ORDER BY id DESC" +
               (query.most == 0 ? QString() : QString(" LIMIT %1").arg(query.most)));
  for (const QVariant& value : values) rows.addBindValue(value);
  std::vector<LedgerEntry> found;
  if (!Run(rows)) return found;
  while (rows.next()) found.push_back(EntryOf(rows));
  return found;
}

bool SqlLedger::KeepContent(const std::string& hash, const std::string& octets) {
  if (!Open(true)) return false;
  QSqlQuery query(Base());
  query.prepare("INSERT OR IGNORE INTO content (hash, octets) VALUES (?, ?)");
  query.addBindValue(TextOf(hash));
  query.addBindValue(QByteArray::fromStdString(octets));
  return Run(query);
}

std::optional<std::string> SqlLedger::Content(const std::string& hash) {
  if (!Open(false)) return {};
  QSqlQuery query(Base());
  query.prepare("SELECT octets FROM content WHERE hash=?");
  query.addBindValue(TextOf(hash));
  if (!Run(query) || !query.next()) return {};
  return query.value(0).toByteArray().toStdString();
}

bool SqlLedger::IsRunning(const LedgerEntry& entry) const {
  const auto first = entry.process.find('/');
  const auto last = entry.process.rfind('/');
  if (first == std::string::npos || first == last) return false;
  return entry.process == program_.nameOf(entry.process.substr(first + 1, last - first - 1));
}

}  // namespace ostrel
