#include <gmock/gmock.h>

#include "Books.h"
#include "base/Sha256.h"
#include "shell/ledger/History.h"
#include "shell/ledger/Interrupted.h"

namespace ostrel {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

/// The program is killed at each statement of an upload, and around its end. What the next start
/// says must be true, what it offers must lead out, and looking must tell what is there.
class KilledBooks : public Books {
 protected:
  void SetUp() override {
    former = world.logger->Conf();
    former.name = "Antes";
  }
  void Kill() {
    world.ledger.cut = true;
    program->session.BreakOff();
  }
  /// Writes a new name, and dies at the n-th request that begins in some way.
  void WriteAndDie(const std::string& head, int count) {
    world.logger->SetConf(former);
    world.ledger.entries.clear();
    Connect();
    Name("Ahora");
    world.logger->OnExchange([this, head, count](const sim::Exchange& exchange) mutable {
      if (exchange.request.starts_with(head) && --count == 0) Kill();
    });
    Write();
    world.logger->OnExchange({});
    Restart();
  }
  /// The one interruption that the next start finds.
  Interrupted Found() {
    const auto open = FindInterrupted(world.ledger);
    EXPECT_EQ(open.size(), 1U);
    return open.empty() ? Interrupted{} : open.front();
  }
  Holding Truth() const {
    return world.logger->Conf().name == "Ahora" ? Holding::New : Holding::Former;
  }
  /// Reads the logger, and says what it holds.
  Holding Look(const LedgerEntry& entry) {
    Connect();
    EXPECT_TRUE(program->session.Download());
    const Holding found = WhatWasFound(*program, entry, program->conf);
    program->session.Close(false);
    return found;
  }
  /// Writes a configuration that the ledger keeps.
  void WriteContent(const std::string& hash) {
    const auto content = ContentOfHistory(*program, hash);
    ASSERT_TRUE(content);
    program->ShowConfiguration(content->conf);
    Connect();
    EXPECT_TRUE(Write().IsAsSent());
    program->session.Close(false);
  }

  sim::Configuration former;
};

TEST_F(KilledBooks, EachStatementLeavesTrueWordsAndAWayOut) {
  Connect();
  const int statements = static_cast<int>(program->comms.ComposeStatements().size());
  Restart();
  ASSERT_GT(statements, 50);
  for (int n = 1; n <= statements; ++n) {
    SCOPED_TRACE(n);
    WriteAndDie("#45", n);
    const Interrupted found = Found();
    ASSERT_EQ(found.holding, Holding::Former);
    ASSERT_EQ(Truth(), Holding::Former);
    if (n % 8 != 1) continue;
    ASSERT_EQ(Look(found.entry), Holding::Former);
    ASSERT_EQ(Found().holding, Holding::Former) << "it was found, and the way out is still due";
    EXPECT_THAT(WordsOf(Found()).why.text, StartsWith("it was read on"));
    if (n % 16 != 1) continue;
    const bool finishes = n % 32 == 1;
    WriteContent(finishes ? found.entry.content : found.entry.former);
    EXPECT_EQ(world.logger->Conf().name, finishes ? "Ahora" : "Antes");
  }
}

TEST_F(KilledBooks, ItsEndIsNotKnownUntilSomebodyLooks) {
  WriteAndDie("#46", 1);  // the logger has heard it, the program no answer
  const Interrupted found = Found();
  EXPECT_EQ(found.holding, Holding::Unknown);
  EXPECT_EQ(Truth(), Holding::New);
  EXPECT_EQ(Look(found.entry), Holding::New);
  WriteContent(found.entry.former);
  EXPECT_EQ(world.logger->Conf().name, "Antes");

  Restart();
  const auto dies = [this](const Progress& progress) {
    if (progress.stage == Progress::Stage::Closing) Kill();
  };
  const auto killed = program->comms.OnProgress(dies);  // asked for, but never heard
  world.logger->SetConf(former);
  world.ledger.entries.clear();
  Connect();
  Name("Ahora");
  Write();
  Restart();
  EXPECT_EQ(Found().holding, Holding::Unknown);
  EXPECT_EQ(Truth(), Holding::Former);
  EXPECT_EQ(Look(Found().entry), Holding::Former);
}

/// What was finished, or put back, is nothing that others did.
TEST_F(KilledBooks, AWayOutIsNoChangeByOthers) {
  for (const bool finishes : {true, false}) {
    world.ledger.entries.clear();
    world.logger->SetConf(former);
    Connect();
    ASSERT_TRUE(program->session.Download());
    ASSERT_TRUE(program->SaveTo("/site.ocf")->Ok());
    Name("Ahora");
    world.logger->OnExchange([this](const sim::Exchange& exchange) {
      if (exchange.request.starts_with("#45010")) Kill();
    });
    Write();
    world.logger->OnExchange({});
    Restart();
    const LedgerEntry cut = Found().entry;
    WriteContent(finishes ? cut.content : cut.former);
    held.clear();
    Open("/site.ocf");
    Connect();
    EXPECT_TRUE(Write().IsAsSent());
    EXPECT_EQ(held, "") << finishes;
    program->session.Close(false);
  }
}

TEST_F(KilledBooks, AReadingBackThatIsCutOffIsToldToo) {
  WriteAndDie("#42", 2);  // the reading ahead, the one behind
  const Interrupted found = Found();
  EXPECT_EQ(found.holding, Holding::New);
  EXPECT_EQ(Truth(), Holding::New);
  EXPECT_THAT(WordsOf(found).what.text, StartsWith("reading back"));
  Settle(world.ledger, found.entry);
  EXPECT_THAT(FindInterrupted(world.ledger), IsEmpty());
}

TEST_F(KilledBooks, WhatStillRunsIsNotInterrupted) {
  Connect();
  Name("Ahora");
  int open = -1;
  world.logger->OnExchange([&](const sim::Exchange& exchange) {
    if (exchange.request.starts_with("#45010"))
      open = static_cast<int>(FindInterrupted(world.ledger).size());
  });
  EXPECT_TRUE(Write().IsAsSent());
  EXPECT_EQ(open, 0);
}

LedgerEntry Work(LedgerKind kind, LedgerState state = LedgerState::UnderWay,
                 const std::string& serial = "A") {
  return {.kind = kind, .state = state, .began = "2026-03-02", .serial = serial};
}
LedgerEntry With(LedgerEntry entry, const std::string& content, const std::string& former = {}) {
  entry.content = content;
  entry.former = former;
  return entry;
}
LedgerEntry Tried(LedgerEntry entry) {
  entry.attempts = 1;
  return entry;
}
LedgerEntry Telling(LedgerEntry session) {
  session.firmware = "1.23";
  return session;
}
LedgerEntry AskedToClose(LedgerEntry writing) {
  writing.closing = true;
  return writing;
}
LedgerEntry Settled(LedgerEntry work) {
  work.settled = true;
  return work;
}
LedgerEntry About(std::int64_t id, LedgerEntry entry) {
  entry.about = id;
  return entry;
}

/// Which work leaves what in doubt, and what settles it. The program that did it has ended.
TEST(FindInterrupted, TellsWhatIsOpenAndWhy) {
  using enum LedgerKind;
  using enum LedgerState;
  const std::string former =
      "it most probably holds its former configuration: it had not been asked to take the new one "
      "over";
  const std::string isNew =
      "it most probably holds the new configuration: it has said that it took it over, which is "
      "not verified";
  const std::string unknown =
      "whether it holds its former or the new configuration is not known: it had been asked to "
      "take the new one over, and its answer is not known";
  const std::string voice =
      "its list is most probably not whole: writing begins with erasing the former one";
  const std::string firmware =
      "whether it holds a whole firmware is not known: a firmware is written over the former one";
  for (const auto& [entries, told] :
       std::initializer_list<std::pair<std::vector<LedgerEntry>, std::vector<std::string>>>{
           {{Work(Writing)}, {"1 " + former}},
           {{AskedToClose(Work(Writing))}, {"1 " + unknown}},
           {{AskedToClose(Work(Writing, Failed))}, {"1 " + unknown}},
           {{Work(Writing, Failed)}, {}},
           {{Work(Writing, Done), About(1, Work(Reading))}, {"1 " + isNew}},
           {{Work(Writing, Done), About(1, Work(Reading, Failed))}, {"1 " + isNew}},
           {{Work(Writing, Done), Work(Reading)}, {}},
           {{With(Work(Writing), "new", "old"), With(Work(Reading, Done), "new")}, {}},
           {{With(AskedToClose(Work(Writing)), "new", "old"), With(Work(Reading, Done), "old")},
            {"1 it holds its former configuration: it was read on 2026-03-02"}},
           {{With(Work(Writing), "new", "old"), With(Work(Reading, Done), "third")},
            {"1 whether it holds its former or the new configuration is not known: it was read on "
             "2026-03-02, and told neither of the two to the letter"}},
           {{With(Work(Writing), "new"), With(Work(Reading, Done), "third")}, {"1 " + former}},
           {{With(Work(Writing), "new", "old"), With(Work(Reading, Done), "old"),
             AskedToClose(Work(Writing, Failed))},
            {"3 " + unknown}},
           {{AskedToClose(Work(Writing)), Work(Writing)}, {"2 " + former}},
           {{AskedToClose(Work(Writing)), Settled(Work(Writing))}, {}},
           {{Work(Writing, UnderWay, ""), Work(Writing, UnderWay, "")},
            {"1 " + former, "2 " + former}},
           {{Work(Writing), Tried(Work(VoiceWriting))}, {"1 " + former, "2 " + voice}},
           {{Tried(Work(VoiceWriting, Failed))}, {"1 " + voice}},
           {{Work(VoiceWriting, Failed)}, {}},
           {{AskedToClose(Work(Firmware, Failed))}, {"1 " + firmware}},
           {{Work(Firmware, Failed)}, {}},
           {{Work(Firmware), Telling(Work(Session, Done))}, {}},
           {{Work(Firmware), Work(Session, Done)}, {"1 " + firmware}},
           {{AskedToClose(Work(Firmware)), Telling(Work(Session, Done))}, {"1 " + firmware}},
           {{Work(Writing), Work(Reading, Failed)}, {"1 " + former}},
           {{Work(Writing), Work(Reading, Done, "B")}, {"1 " + former}},
           {{Work(Writing), Work(Writing, Done)}, {}},
           {{Work(Writing), Work(Writing, Failed)}, {"1 " + former}},
           {{Work(Writing), Work(Writing, UnderWay, "B")}, {"1 " + former, "2 " + former}},
           {{Work(VoiceWriting), Work(Reading, Done)}, {"1 " + voice}},
           {{Work(VoiceWriting), Work(VoiceReading, Done)}, {}},
           {{Work(Firmware), Work(Reading, Done)}, {"1 " + firmware}},
           {{Work(Firmware), Work(Firmware, Done)}, {}}}) {
    VirtualLedger books;
    for (const LedgerEntry& entry : entries) books.Add(entry);
    books.process = "two";
    std::vector<std::string> found;
    for (const Interrupted& one : FindInterrupted(books)) {
      const InterruptedWords words = WordsOf(one);
      found.push_back(std::to_string(one.entry.id) + " " + Filled(words.holding) + ": " +
                      Filled(words.why));
      const bool isOfConfiguration = one.entry.kind == Writing;
      EXPECT_EQ(one.holding == Holding::Unknown,
                !isOfConfiguration || found.back().find("is not known") != std::string::npos);
    }
    EXPECT_EQ(found, told);
  }
}

TEST(History, NamesAnEntryAndWhatItsLoggerHeldBefore) {
  EXPECT_EQ(HistoryEntry("history:12"), 12);
  for (const char* name : {"history:12x", "history:-1", "history:", "12"})
    EXPECT_EQ(HistoryEntry(name), 0) << name;
  VirtualLedger books;
  for (const char* content : {"one", "two", "one"}) books.Add({.serial = "A", .content = content});
  EXPECT_EQ(FormerEntry(books, {.id = 3, .serial = "A", .former = "one"})->id, 1);
  EXPECT_FALSE(FormerEntry(books, {.id = 3, .serial = "A", .former = "none"}));
  EXPECT_FALSE(FormerEntry(books, {.id = 3, .serial = "B", .former = "one"}));
}

TEST(History, AFileThatIsExportedHasTheHistoryOfItsEntry) {
  VirtualWorld world;
  LedgerEntry entry = AskedToClose(Work(LedgerKind::Writing, LedgerState::Failed));
  entry.content = "hash";
  entry.fault = "silent";
  EXPECT_FALSE(ExportEntry(world.ledger, entry, world.files, "/x.ocf").Ok()) << "it is not kept";
  world.ledger.KeepContent("hash", "octets");
  ASSERT_TRUE(ExportEntry(world.ledger, entry, world.files, "/x.ocf").Ok());
  EXPECT_EQ(world.files.contents["/x.ocf"], "octets");
  EXPECT_EQ(world.files.modes["/x.ocf"], 0600);
  const LedgerEntry& kept = world.ledger.entries.back();
  EXPECT_EQ(kept.kind, LedgerKind::Saving);
  EXPECT_EQ(kept.state, LedgerState::Done);
  EXPECT_EQ(kept.file + kept.serial + kept.content + kept.fault, "/x.ocfAhash");
  EXPECT_FALSE(kept.closing);
}

/// A file of the program's own holds what its entry holds, whatever stood there.
TEST(History, AStateThatIsKeptAsAFileIsThatOfItsEntry) {
  VirtualWorld world;
  const LedgerEntry entry{.id = 7, .serial = "A", .content = Sha256("octets")};
  world.ledger.KeepContent(entry.content, "octets");
  const auto keep = [&] { return KeepExported(world.ledger, entry, world.files, "/h.ocf").Ok(); };
  world.files.contents["/h.ocf"] = "octets";  // of another ledger
  for (const char* stands : {"octets", "edited"}) {
    world.files.contents["/h.ocf"] = stands;
    EXPECT_TRUE(keep());
    EXPECT_EQ(world.files.contents["/h.ocf"], "octets");
    EXPECT_EQ(world.files.modes["/h.ocf"], 0400);
  }
  EXPECT_EQ(world.ledger.entries.size(), 2U);
  EXPECT_TRUE(keep());
  EXPECT_EQ(world.ledger.entries.size(), 2U) << "it stands";
}

}  // namespace
}  // namespace ostrel
