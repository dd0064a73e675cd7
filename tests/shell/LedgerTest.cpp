#include <gmock/gmock.h>

#include <memory>

#include "SimWorld.h"
#include "base/Sha256.h"
#include "shell/Against.h"
#include "shell/GuardedWrite.h"
#include "shell/WriteDoubts.h"
#include "shell/ledger/History.h"
#include "shell/ledger/IdentityGuard.h"
#include "shell/ledger/Interrupted.h"

namespace ostrel {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

/// A session with a logger of few statements, of which book is kept.
class Books : public testing::Test {
 protected:
  Books() : world(sim::MakeDefaultOptions(sim::Model::BP)) { Restart(); }

  /// Ends the program, and starts it anew in another process.
  void Restart() {
    program.reset();
    world.ledger.cut = false;
    world.ledger.process += "+";
    program = std::make_unique<Configurator>(world.platform, world.Options(false));
    program->StartForCommand("Tavro BP", 1);
  }
  void Connect() {
    ASSERT_TRUE(program->session.Open(SimWorld::kPort, ""));
    ASSERT_TRUE(program->session.CompleteInfo());
  }
  WriteResult Write() {
    return WriteGuarded(*program, {.read = [this] { return program->session.Download(); },
                                   .write = [this] { return program->session.Upload(); },
                                   .keep =
                                       [this](const DeviceConf&) {
                                         program->ledger.NoteCopy("/copy.ocf");
                                         return true;
                                       },
                                   .inSpiteOf =
                                       [this](const Phrase& doubt) {
                                         held = Filled(doubt);
                                         return goesOn;
                                       }});
  }
  void Open(const std::string& path) { ASSERT_EQ(program->OpenFile(path), RestoreResult::Loaded); }
  void Name(const std::string& name) {
    program->conf.General.DNAME = name;
    program->ShowConfiguration(program->conf);
  }
  std::vector<std::string> Doubts() const {
    std::vector<std::string> texts;
    for (const Phrase& doubt : DoubtsOfIdentity(*program)) texts.push_back(Filled(doubt));
    return texts;
  }
  /// The kinds of all entries, and how they ended.
  std::vector<std::string> Kinds() const {
    std::vector<std::string> kinds;
    for (const LedgerEntry& entry : world.ledger.entries)
      kinds.push_back(std::string(WordOf(entry.kind)) + " " + std::string(WordOf(entry.state)));
    return kinds;
  }

  SimWorld world;
  std::unique_ptr<Configurator> program;
  std::string held;  ///< what was told of the logger's present configuration
  bool goesOn = true;
};

TEST_F(Books, TellAllThatWasDoneInASession) {
  Connect();
  ASSERT_TRUE(program->session.Download());
  program->ConfFilePath = "/site.ocf";
  ASSERT_TRUE(program->SaveConf().Ok());
  const std::string former = world.files.contents["/site.ocf"];
  EXPECT_TRUE(program->comms.SetTotalCNT(2, 1500));
  EXPECT_TRUE(program->comms.SetSingleOutput(1, true));
  EXPECT_TRUE(program->comms.WriteDeviceRTC());
  Name("Nuevo");
  ASSERT_TRUE(Write().IsAsSent());
  program->session.Close(false);
  EXPECT_THAT(Kinds(), ElementsAre("session done", "reading done", "saving done", "total done",
                                   "output done", "clock done", "reading done", "writing done",
                                   "reading done", "verification done"));
  const std::vector<LedgerEntry>& entries = world.ledger.entries;
  for (const LedgerEntry& entry : entries) {
    EXPECT_EQ(entry.serial, world.logger->Options().serial);
    EXPECT_EQ(entry.model, "Tavro BP");
    EXPECT_THAT(entry.began, StartsWith("20"));
    EXPECT_EQ(entry.session, entry.kind == LedgerKind::Session ? 0 : 1);
  }
  EXPECT_EQ(entries[0].port, "COM7");
  EXPECT_GT(entries[0].milliseconds, 1000);
  EXPECT_EQ(entries[0].features, static_cast<std::uint32_t>(program->info.Features));
  EXPECT_EQ(entries[1].content, Sha256(former));
  EXPECT_EQ(world.ledger.contents[entries[1].content], former);
  EXPECT_EQ(entries[2].file, "/site.ocf");
  EXPECT_EQ(entries[3].detail, "counter 2 = 1500");
  EXPECT_EQ(entries[4].detail, "output 1 on");
  const LedgerEntry& writing = entries[7];
  EXPECT_EQ(writing.former, entries[6].content);
  EXPECT_EQ(writing.copy, "/copy.ocf");
  EXPECT_EQ(writing.file, "/site.ocf");
  EXPECT_EQ(writing.steps, static_cast<std::int64_t>(program->comms.ComposeStatements().size()));
  EXPECT_EQ(writing.attempts, 1);
  EXPECT_THAT(world.ledger.contents[writing.content], HasSubstr("NOMBRE=Nuevo"));
  EXPECT_EQ(entries[9].about, writing.id);
}

/// What a logger held before a writing is told as far as it is known then, and no farther.
TEST_F(Books, TellWhatFailedAndWhatWasHeldBefore) {
  Connect();
  ASSERT_TRUE(program->session.Download());
  program->ledger.NoteCopy("/copy.ocf");
  EXPECT_EQ(world.ledger.entries[1].copy, "/copy.ocf") << "the reading has one";
  EXPECT_EQ(world.ledger.entries[1].firmware, VersionText(program->info.FirmwareVersion));
  const auto write = [this](const std::string& name) {
    Name(name);
    EXPECT_EQ(program->session.Upload(), name != "Tercero");
    return world.ledger.entries.back();
  };
  const LedgerEntry first = write("Primero");
  EXPECT_EQ(first.former, world.ledger.entries[1].content);
  EXPECT_EQ(first.copy, "/copy.ocf");
  EXPECT_EQ(write("Segundo").former, first.content) << "as it has said";
  bool answers = false;
  world.logger->OnExchange([&](const sim::Exchange& exchange) {
    if (exchange.request.starts_with("#46") && !answers) program->session.BreakOff();
  });
  const LedgerEntry doubtful = write("Tercero");
  EXPECT_EQ(doubtful.state, LedgerState::Failed);
  EXPECT_TRUE(doubtful.closing);
  EXPECT_THAT(doubtful.fault, HasSubstr("COM7"));
  answers = true;
  Connect();
  const LedgerEntry last = write("Cuarto");
  EXPECT_EQ(last.former, "") << "it may be another logger";
  EXPECT_EQ(last.copy, "");
  program->session.Close(false);
  world.port.SetOpenFault(SimWorld::kPort, PortFault::Busy);
  EXPECT_FALSE(program->session.Open(SimWorld::kPort, "600123456"));
  const LedgerEntry& session = world.ledger.entries.back();
  EXPECT_EQ(session.kind, LedgerKind::Session);
  EXPECT_EQ(session.state, LedgerState::Failed);
  EXPECT_EQ(session.phone, "600123456");
  EXPECT_NE(session.fault, "");
}

/// A file belongs to the logger that it was read from, whichever is connected when it is saved.
TEST_F(Books, AFileThatIsSavedElsewhereKeepsItsHistory) {
  Connect();
  ASSERT_TRUE(program->session.Download());
  ASSERT_TRUE(program->SaveTo("/a.ocf")->Ok());
  Open("/a.ocf");
  ASSERT_TRUE(program->SaveTo("/b.ocf")->Ok());
  const LedgerEntry& saved = world.ledger.entries.back();
  EXPECT_EQ(saved.serial, "");
  EXPECT_EQ(saved.features, LedgerEntry::kUnknown);
  EXPECT_EQ(saved.detail, "from /a.ocf");
}

TEST_F(Books, ThatCannotBeKeptAreToldOnceAndStopNothing) {
  world.ledger.fault = "the disk is full";
  std::vector<std::string> told;
  program->ledger.OnFault = [&](const std::string& why) { told.push_back(why); };
  Connect();
  Name("Nuevo");
  EXPECT_TRUE(Write().IsAsSent());
  EXPECT_THAT(told, ElementsAre("the disk is full"));
  EXPECT_EQ(world.logger->Conf().name, "Nuevo");
  world.platform.ledger = nullptr;
  Restart();
  Connect();
  EXPECT_TRUE(program->session.Download());
}

TEST_F(Books, ALoggerThatAFileIsNotForIsDoubted) {
  Connect();
  ASSERT_TRUE(program->session.Download());
  EXPECT_THAT(Doubts(), IsEmpty());
  program->info.SerialNumber = "OTHER";
  EXPECT_THAT(Doubts(), ElementsAre("the configuration was read from the logger " +
                                    world.logger->Options().serial +
                                    ", and the logger that answers is OTHER"));
  program->ConfFilePath = "/site.ocf";
  ASSERT_TRUE(program->SaveConf().Ok());
  Restart();
  Connect();
  Open("/site.ocf");
  LedgerEntry failed = *std::ranges::find(world.ledger.entries, "/site.ocf", &LedgerEntry::file);
  failed.state = LedgerState::Failed;
  failed.serial = "OTHER";
  world.ledger.Add(failed);
  EXPECT_THAT(Doubts(), IsEmpty()) << "what failed was no use";
  program->info.SerialNumber = "OTHER";
  program->info.Features ^= 0x40;
  EXPECT_THAT(
      Doubts(),
      ElementsAre(HasSubstr("was last used with the logger"),
                  HasSubstr("features 0x311ddf, and the logger that answers has 0x311d9f")));
  EXPECT_EQ(DoubtsOfWriting(*program).front().text.substr(0, 8), "the file");
}

TEST_F(Books, ChangesThatAFileHasNeverSeenAreTold) {
  Connect();
  ASSERT_TRUE(program->session.Download());
  program->ConfFilePath = "/site.ocf";
  ASSERT_TRUE(program->SaveConf().Ok());
  Name("Primero");
  EXPECT_TRUE(Write().IsAsSent());
  Name("Segundo");
  EXPECT_TRUE(Write().IsAsSent());
  EXPECT_EQ(held, "") << "the file has seen all of that";
  sim::Configuration changed = world.logger->Conf();
  changed.ownNumber = "600777888";
  world.logger->SetConf(changed);
  goesOn = false;
  for (int i = 0; i < 2; ++i) {  // having looked does not make it seen
    held.clear();
    EXPECT_EQ(Write().end, WriteEnd::Declined);
    EXPECT_THAT(held, HasSubstr("1 field(s) differ, the first PTLF in GENERAL")) << "the newest";
  }
  EXPECT_EQ(world.logger->Conf().ownNumber, "600777888");
  goesOn = true;
  EXPECT_TRUE(Write().IsAsSent());
  held.clear();
  EXPECT_TRUE(Write().IsAsSent());
  EXPECT_EQ(held, "");
  world.logger->SetConf(changed);
  for (LedgerEntry& entry : world.ledger.entries) entry.serial = "OTHER";
  EXPECT_TRUE(Write().IsAsSent());
  EXPECT_EQ(held, "") << "the file and this logger have not met";
}

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
    EXPECT_THAT(FindInterrupted(world.ledger), IsEmpty()) << "it is known now";
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
  return {.kind = kind, .state = state, .serial = serial};
}
LedgerEntry AskedToClose(LedgerEntry writing) {
  writing.closing = true;
  return writing;
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
           {{Work(Writing, Done), Work(Reading)}, {}},
           {{Work(Writing), Work(Reading, Failed)}, {"1 " + former}},
           {{Work(Writing), Work(Reading, Done, "B")}, {"1 " + former}},
           {{Work(Writing), Work(Reading, Done)}, {}},
           {{Work(Writing), Work(Writing, Done)}, {}},
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
                !isOfConfiguration || found.back().ends_with("known"));
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

}  // namespace
}  // namespace ostrel
