#include <gmock/gmock.h>

#include "Books.h"
#include "base/Sha256.h"
#include "shell/compare/Against.h"
#include "shell/ledger/History.h"
#include "shell/writing/WriteDoubts.h"

namespace ostrel {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

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
    EXPECT_EQ(entry.utcOffset, "+01:00");
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

/// A file belongs to the logger that it was read from, under whichever name and whenever it is
/// saved: it is doubted for another one, and what that logger was known to hold is no change.
TEST_F(Books, AFileThatIsSavedElsewhereKeepsItsHistory) {
  Connect();
  ASSERT_TRUE(program->session.Download());
  program->session.Close(false);
  Name("Nuevo");
  ASSERT_TRUE(program->SaveTo("/a.ocf")->Ok());
  EXPECT_EQ(world.ledger.entries.back().features,
            static_cast<std::uint32_t>(program->info.Features))
      << "without a session, too";
  Open("/a.ocf");
  ASSERT_TRUE(program->SaveTo("/b.ocf")->Ok());
  Name("Otro");
  ASSERT_TRUE(program->SaveTo("/c.ocf")->Ok());
  const LedgerEntry& saved = world.ledger.entries.back();
  EXPECT_EQ(saved.serial, "");
  EXPECT_EQ(saved.detail, "from /b.ocf");
  Open("/c.ocf");
  Connect();
  EXPECT_THAT(Doubts(), IsEmpty());
  EXPECT_TRUE(Write().IsAsSent());
  EXPECT_EQ(held, "") << "it was read ahead of the first saving";
  Open("/c.ocf");
  const std::string serial = program->info.SerialNumber;
  for (const char* answers : {"OTHER", ""}) {
    program->info.SerialNumber = answers;
    EXPECT_THAT(Doubts(), ElementsAre(HasSubstr("was last used with the logger " + serial)));
  }
  Open("/b.ocf");
  program->info.Features ^= 0x40;
  EXPECT_THAT(Doubts(), ElementsAre(HasSubstr("logger " + serial), HasSubstr("the features")));
}

/// A link leads to the file's own history; a file of no history is known by its content, as it was
/// with a logger.
TEST_F(Books, AFileIsKnownByItsLinkAndByItsContent) {
  Connect();
  ASSERT_TRUE(program->session.Download());
  ASSERT_TRUE(program->SaveTo("/a.ocf")->Ok());
  program->session.Close(false);
  world.files.links["/link.ocf"] = "/a.ocf";
  Open("/link.ocf");
  EXPECT_EQ(program->ledger.File(), "/a.ocf");
  world.files.contents["/copy.ocf"] = world.files.contents["/a.ocf"];
  Open("/copy.ocf");
  const std::string content = world.ledger.entries.back().content;
  for (const auto& [kind, count] :
       {std::pair{LedgerKind::VoiceWriting, 0U}, {LedgerKind::Writing, 1U}}) {
    world.ledger.entries.clear();
    world.ledger.Add(
        {.kind = kind, .state = LedgerState::Done, .serial = "OTHER", .content = content});
    EXPECT_EQ(Doubts().size(), count);
  }
  Name("of no other logger");
  EXPECT_THAT(Doubts(), IsEmpty());
}

/// A reading beside the pages neither hands the pages to the logger that is read, nor does it count
/// as seen.
TEST_F(Books, ComparingWithALoggerLeavesTheFileItsHistory) {
  Connect();
  ASSERT_TRUE(program->session.Download());
  ASSERT_TRUE(program->SaveTo("/a.ocf")->Ok());
  program->session.Close(false);
  for (LedgerEntry& entry : world.ledger.entries) entry.serial = "OTHER";
  for (const bool isOpened : {true, false}) {
    if (isOpened) Open("/a.ocf");
    Connect();
    const auto doubts = Doubts();
    EXPECT_EQ(doubts.size(), isOpened ? 1U : 0U);
    sim::Configuration changed = world.logger->Conf();
    changed.name += "x";
    world.logger->SetConf(changed);
    EXPECT_TRUE(ReadBeside(*program, [this] { return program->session.Download(); }));
    EXPECT_EQ(Doubts(), doubts);
    if (isOpened) {
      ASSERT_TRUE(program->session.Download());
      ASSERT_TRUE(program->SaveTo("/a.ocf")->Ok());
    } else {
      goesOn = false;
      EXPECT_EQ(Write().end, WriteEnd::Declined);
      EXPECT_THAT(held, HasSubstr("changed by others"));
    }
    program->session.Close(false);
  }
}

/// What could not be kept is told at once, and kept as soon as that works again.
TEST_F(Books, WhatCouldNotBeKeptIsKeptLate) {
  std::vector<std::string> told;
  program->ledger.OnFault = [&](const std::string& why) { told.push_back(why); };
  Connect();
  world.logger->OnExchange([&](const sim::Exchange& exchange) {
    if (exchange.request.starts_with("#46")) world.ledger.fault = "the disk is full";
  });
  Name("Nuevo");
  ASSERT_TRUE(program->session.Upload());
  EXPECT_THAT(told, ElementsAre("the disk is full"));
  const LedgerEntry& written = world.ledger.entries.back();
  ASSERT_EQ(written.kind, LedgerKind::Writing);
  EXPECT_EQ(written.state, LedgerState::UnderWay);
  world.ledger.fault.clear();
  program->session.Close(false);
  EXPECT_EQ(written.state, LedgerState::Done);
}

TEST_F(Books, ASessionWhoseLineWasLostHasFailed) {
  for (const bool isLost : {false, true}) {
    Connect();
    if (isLost) world.line->Vanish();
    program->session.Close(false);
    const auto session =
        std::ranges::find(world.ledger.entries.rbegin(), world.ledger.entries.rend(),
                          LedgerKind::Session, &LedgerEntry::kind);
    EXPECT_EQ(session->state == LedgerState::Failed, isLost);
    EXPECT_EQ(session->fault.empty(), !isLost);
  }
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
  const auto keptInAnotherForm = [this](const std::string& hash) {
    const std::string octets = world.ledger.contents[hash] + "\r\n";
    if (!hash.empty()) world.ledger.KeepContent(Sha256(octets), octets);
    return hash.empty() ? "" : Sha256(octets);
  };
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
  program->session.WriteVoiceList({});  // which this model turns down, and which is no use of it
  EXPECT_EQ(world.ledger.entries.back().file, "/site.ocf");
  EXPECT_EQ(world.ledger.entries.back().state, LedgerState::Failed);
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
  for (LedgerEntry& entry : world.ledger.entries)
    for (std::string* hash : {&entry.content, &entry.former}) *hash = keptInAnotherForm(*hash);
  sim::Configuration earlier = world.logger->Conf();
  earlier.name = "Primero";
  world.logger->SetConf(earlier);
  EXPECT_TRUE(Write().IsAsSent());
  EXPECT_EQ(held, "") << "it held that before the last one";
  changed.ownNumber = "600777889";
  world.logger->SetConf(changed);
  for (LedgerEntry& entry : world.ledger.entries) entry.serial = "OTHER";
  EXPECT_TRUE(Write().IsAsSent());
  EXPECT_EQ(held, "") << "the file and this logger have not met";
}

}  // namespace
}  // namespace ostrel
