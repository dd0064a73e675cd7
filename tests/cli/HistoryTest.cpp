#include "cli/World.h"

namespace ostrel::cli {
namespace {

using testing::HasSubstr;
using testing::Not;

TEST(History, ListsShowsComparesAndExportsWhatWasDone) {
  FileWorld world;
  const std::string former = world.files.contents["/a.ocf"];
  world.SetKey("/a.ocf", "General", "NOMBRE", "Nuevo");
  ASSERT_EQ(world.Run("upload /a.ocf --port sim:VR200"), 0) << world.err;
  ASSERT_EQ(world.Run("history --json"), 0) << world.err;
  const QJsonArray all = world.Json().array();
  ASSERT_EQ(all.size(), 8);
  const QJsonObject read = all[1].toObject(), written = all[5].toObject();
  EXPECT_EQ(read["kind"].toString(), "reading");
  EXPECT_EQ(written["kind"].toString(), "writing");
  EXPECT_EQ(written["file"].toString(), "/a.ocf");
  EXPECT_EQ(written["former"], read["content"]);
  EXPECT_TRUE(written["copy"].toString().contains("/backups/"));
  for (const std::string of : {"--serial nobody", "--since 2026-03-03"}) {
    EXPECT_EQ(world.Run("history " + of), 0);
    EXPECT_EQ(world.out, "") << of;
  }
  EXPECT_EQ(world.Run("history --since yesterday"), 2);
  world.Expect("history", 0, "\n    6  2026-03-02 09:0");
  world.Expect("history show 6", 0, "file          /a.ocf\n");
  EXPECT_THAT(world.out, HasSubstr("verification  done"));
  EXPECT_EQ(world.Run("history show 99"), 5);
  EXPECT_EQ(world.Run("history export 2 /old.ocf"), 0) << world.err;
  EXPECT_TRUE(world.files.contents["/old.ocf"] == former);
  EXPECT_EQ(world.files.modes["/old.ocf"], 0600);
  EXPECT_EQ(world.Run("history export 1 /none.ocf"), 5);
  world.Expect("diff history:2 /a.ocf", 1, "-> \"Nuevo\"");
  EXPECT_EQ(world.Run("diff history:2 history:99"), 5);
  EXPECT_EQ(world.Run("download history:2 --port sim:VR200"), 5);
  EXPECT_EQ(world.Run("upload history:2 --port sim:VR200"), 0) << world.err;
  EXPECT_NE(world.Logger().Conf().name, "Nuevo");
}

TEST(History, ThatCannotBeReadIsToldAndStopsNothing) {
  World world;
  world.ledger.fault = "the disk is gone";
  world.Expect("history", 5, "cannot read the ledger: the disk is gone");
  world.Expect("download /a.ocf --port sim:VR200", 0,
               "nothing is kept in the ledger: the disk is gone");
}

TEST(Identity, AFileOfAnotherLoggerIsRefusedUnlessForced) {
  FileWorld world;
  for (LedgerEntry& entry : world.ledger.entries) entry.serial = "OTHER";
  world.Expect("upload /a.ocf --port sim:VR200", 5, "was last used with the logger OTHER");
  world.files.contents["/renamed.ocf"] = world.files.contents["/a.ocf"];
  world.Expect("upload /renamed.ocf --port sim:VR200", 5, "was last used with the logger OTHER");
  EXPECT_EQ(world.Run("upload history:2 --port sim:VR200"), 5) << "nor does what was kept of it";
  EXPECT_EQ(world.Logger().UploadsTaken(), 0U);
  EXPECT_EQ(world.Run("upload /a.ocf --force --port sim:VR200"), 0);
  EXPECT_EQ(world.Run("upload /a.ocf --port sim:VR200"), 0) << "it is this one's now" << world.err;
}

TEST(Identity, ALoggerThatOthersChangedIsNotOverwrittenUnlessForced) {
  FileWorld world;
  world.Alter([](sim::Configuration& conf) { conf.name = "Otro"; });
  world.Expect("upload /a.ocf --port sim:VR200", 5, "the logger was changed by others");
  EXPECT_EQ(world.Run("upload /a.ocf --no-backup --port sim:VR200"), 5) << "it is read ahead";
  EXPECT_EQ(world.Logger().Conf().name, "Otro");
  EXPECT_EQ(world.Run("upload /a.ocf --force --port sim:VR200"), 0) << world.err;
  world.Alter([](sim::Configuration& conf) { conf.name = "Tercero"; });
  ASSERT_EQ(world.Run("backups --json"), 0);
  const QString copy = world.Json().array().last().toObject()["name"].toString();
  EXPECT_EQ(world.Run("restore " + copy.toStdString() + " --port sim:VR200"), 0)
      << "a former state is written because the logger holds another one" << world.err;
  EXPECT_EQ(world.Logger().Conf().name, "Otro");
}

/// Each way out of a writing that was killed, from a shell.
TEST(InterruptedUpload, IsToldWithItsWaysOut) {
  FileWorld world;
  const std::string former = world.Logger().Conf().name;
  const auto interrupt = [&] {
    world.ledger.cut = false;
    world.HaveFile("/a.ocf");
    world.SetKey("/a.ocf", "General", "NOMBRE", "Nuevo");
    world.Upon("#45020", [&] {
      world.ledger.cut = true;
      world.environment.onInterrupt();
    });
    EXPECT_EQ(world.Run("upload /a.ocf --port sim:VR200"), 4);
    world.Logger().OnExchange({});
    world.ledger.cut = false;
    world.ledger.process += "+";
    EXPECT_EQ(world.Run("interrupted --json"), 0);
    const QJsonArray open = world.Json().array();
    EXPECT_EQ(open.size(), 1);
    EXPECT_EQ(open[0].toObject()["holding"].toString(), "former");
    EXPECT_TRUE(open[0].toObject()["canPutBack"].toBool());
    return "interrupted " + std::to_string(open[0].toObject()["id"].toInt()) + " --port sim:VR200 ";
  };
  std::string way = interrupt();
  world.Expect("ports", 0, "was interrupted: it most probably holds its former");
  constexpr const char* kWays[] = {"--forget", "--look", "--finish", "--put-back"};
  EXPECT_EQ(world.Run("interrupted"), 0);
  for (const char* each : kWays) EXPECT_THAT(world.out, HasSubstr(each));
  EXPECT_EQ(world.Run(way + "--look"), 0) << world.err;
  EXPECT_THAT(world.out, testing::StartsWith("the logger holds its former configuration\n"));
  EXPECT_THAT(world.out, HasSubstr("--put-back")) << "the ways out are still there";
  world.Alter([](sim::Configuration& conf) { conf.name = "Otro"; });
  EXPECT_EQ(world.Run(way + "--look"), 1) << "it holds neither";
  world.Expect(way + "--finish", 5, "the logger was changed by others");
  EXPECT_EQ(world.Run(way + "--finish --force"), 0) << "as it is advised" << world.err;
  EXPECT_EQ(world.Logger().Conf().name, "Nuevo");
  EXPECT_EQ(world.Run("interrupted"), 0);
  EXPECT_EQ(world.out, "");
  EXPECT_EQ(world.Run(way + "--look"), 5) << "it is settled";
  EXPECT_EQ(world.Run("upload /a.ocf --port sim:VR200"), 0) << "it was its own" << world.err;
  world.Alter([&](sim::Configuration& conf) { conf.name = former; });
  way = interrupt();
  EXPECT_EQ(world.Run(way + "--put-back"), 0) << world.err;
  EXPECT_EQ(world.Logger().Conf().name, former);
  way = interrupt();
  for (LedgerEntry& entry : world.ledger.entries) entry.serial = "OTHER";
  for (const char* there : {"--look", "--put-back --force"})
    world.Expect(way + there, 5, "the interrupted one is OTHER");
  EXPECT_EQ(world.Run(way + "--forget"), 0);
  EXPECT_EQ(world.Run("ports"), 0);
  EXPECT_THAT(world.err, Not(HasSubstr("interrupted")));
  world.ledger.Add({.kind = LedgerKind::VoiceWriting, .serial = "Q"});
  world.ledger.process += "+";
  EXPECT_EQ(world.Run("interrupted"), 0);
  for (const char* each : kWays)
    EXPECT_EQ(world.out.find(each) != std::string::npos, each == kWays[0]) << "of a list" << each;
}

}  // namespace
}  // namespace ostrel::cli
