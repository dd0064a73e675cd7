#include <gtest/gtest.h>

#include "FactoryWorld.h"
#include "factory/RecordFile.h"
#include "factory/SerialCounter.h"
#include "factory/Station.h"
#include "shell/ledger/TestRunBook.h"

namespace ostrel {
namespace {

using testing::ElementsAre;

/// For the lock of a folder, for which others are waited for.
constexpr std::size_t kTries = 102;

TEST(Bands, EndsBelongToThemAsEachSays) {
  using Kind = Band::Kind;
  struct Case {
    Band band;
    float in, out;
    const char* text;
  };
  for (const auto& [band, in, out, text] :
       {Case{{Kind::Within, 4.4F, 4.8F}, 4.4F, 4.39F, "4.4..4.8"},
        Case{{Kind::Within, 4.4F, 4.8F}, 4.8F, 4.81F, "4.4..4.8"},
        Case{{Kind::AtMost, 0, 0.7F}, 0.7F, 0.71F, "<= 0.7"},
        Case{{Kind::AtLeast, 5}, 5, 4.99F, ">= 5"},
        Case{{Kind::Below, 0, 0.1F}, 0.09F, 0.1F, "< 0.1"},
        Case{{Kind::Above, 4.18F}, 4.19F, 4.18F, "> 4.18"},
        Case{{Kind::Equal, 170}, 170, 426, "= 170"}, Case{{Kind::HasBits, 256}, 426, 255, "& 256"},
        Case{{Kind::GsmCode}, 9, 8, "not 0, 2..8"}, Case{{Kind::HasBits, 256}, 426, 1e38F, "& 256"},
        Case{{Kind::GsmCode}, 9, 1e38F, "not 0, 2..8"}}) {
    EXPECT_TRUE(band.Holds(in)) << text << " " << in;
    EXPECT_FALSE(band.Holds(out)) << text << " " << out;
    EXPECT_EQ(band.Text(), text);
  }
}

TEST(SerialNumber, IsTheDateAndTheCounter) {
  EXPECT_EQ(SerialOf({2012, 3, 5}, 42), "1203050042");
  EXPECT_EQ(SerialOf({2009, 12, 31}, 0), "912310000") << "the year's leading zero goes";
  EXPECT_EQ(SerialOf({2000, 1, 2}, 9999), "1029999");
}

TEST(SerialCounter, IsRaisedUnderItsLockAndKeptWhole) {
  VirtualWorld world;
  VirtualFiles& files = world.files;
  SerialCounter counter(world.platform, "/share");
  int value = -1;
  EXPECT_TRUE(counter.Raise(value).Ok());
  EXPECT_EQ(value, 1);
  files.FailOperation(VirtualFiles::Change::Lock, 1);
  files.FailOperation(VirtualFiles::Change::Lock, 2);
  EXPECT_TRUE(counter.Raise(value).Ok()) << "another station gives it back soon";
  EXPECT_EQ(value, 2);
  files.contents["/share/TestOstrel.ini"] = "[NS]\r\nNS=9999\r\n";
  files.modes["/share/TestOstrel.ini"] = 0664;
  files.log.clear();
  EXPECT_TRUE(counter.Raise(value).Ok());
  EXPECT_EQ(value, 0) << "it starts over";
  EXPECT_EQ(files.contents["/share/TestOstrel.ini"], "[NS]\r\nNS=0\r\n");
  EXPECT_EQ(files.modes["/share/TestOstrel.ini"], 0664) << "other stations write it, too";
  EXPECT_EQ(files.log[1], "lock /share/TestOstrel.lock");
  EXPECT_EQ(files.log.back(), "unlock /share/TestOstrel.lock");
}

TEST(SerialCounter, AFailureGivesNoNumber) {
  using Change = VirtualFiles::Change;
  for (const Change change : {Change::Lock, Change::Write, Change::Sync, Change::Rename}) {
    VirtualWorld world;
    VirtualFiles& files = world.files;
    files.contents["/share/TestOstrel.ini"] = "[NS]\r\nNS=41\r\n";
    for (std::size_t n = 1; n <= kTries; ++n) files.FailOperation(change, n);
    int value = -1;
    EXPECT_FALSE(SerialCounter(world.platform, "/share").Raise(value).Ok());
    EXPECT_EQ(value, -1);
    EXPECT_EQ(files.contents["/share/TestOstrel.ini"], "[NS]\r\nNS=41\r\n");
  }
  for (const char* cut :
       {"", "[NS]\r\n", "[NS]\r\nNS=\r\n", "[NS]\r\nNS=4x\r\n", "[NS]\r\nNS=-2\r\n"}) {
    VirtualWorld world;
    world.files.contents["/share/TestOstrel.ini"] = cut;
    int value = -1;
    EXPECT_FALSE(SerialCounter(world.platform, "/share").Raise(value).Ok()) << cut;
    EXPECT_EQ(value, -1);
  }
}

TEST(SerialCounter, WithoutItABlankBoardStaysBlankAndFails) {
  TestStation station(Board(sim::Model::BP));
  for (std::size_t n = 1; n <= kTries; ++n)
    station.world.files.FailOperation(VirtualFiles::Change::Lock, n);
  station.Run();
  EXPECT_EQ(
      station.Boxes().front(),
      "Error en el contador de numeros de serie /data/factory/TestOstrel.ini: another program "
      "holds it");
  EXPECT_EQ(station.Orders().size(), 19u) << "all but the number";
  EXPECT_EQ(station.LastRecord("main")["serial"], "0");
  EXPECT_EQ(station.Status(), kFailedText);
}

TEST(Records, ARowABoardInOneTable) {
  TestStation station(Board(sim::Model::BQ));
  station.page->GetForm().Get<CheckBox>("Check1").SetChecked(true);
  station.page->GetForm().Get<TextBox>("TextOperator").Type("Luz, \"jefa\"");
  station.Run();
  EXPECT_EQ(StoredStation(station.world.settings, {}).operatorName, "Luz, \"jefa\"");
  station.page->Form_Deactivate();
  EXPECT_TRUE(station.program->session.Open(SimWorld::kPort, ""));
  station.world.loop.RunFor(std::chrono::seconds(2));
  EXPECT_FALSE(FaceOf(station.page->GetForm()["Command1"]).Enabled()) << "it rests, unseen";
  station.page->Form_Activate();
  station.Run();
  const std::string table = station.Records("bq");
  station.page->GetForm().Get<TextBox>("TextStation").Type("Puesto 2");
  station.page->Form_Deactivate();
  station.page->GetForm().Get<TextBox>("TextStation").SetText("");
  station.page->Form_Activate();
  EXPECT_EQ(station.page->GetForm().Get<TextBox>("TextStation").Text(), "Puesto 2");
  EXPECT_EQ(table.substr(0, table.find("\r\n")),
            "time,test,model,operator,station,serial,given serial,verdict,checked,seconds,failures,"
            "VBat,VBat band,IN0 tecla 0,IN0 tecla 0 band,IN0 tecla 1,IN0 tecla 1 band,"
            "IN0 tecla 2,IN0 tecla 2 band,IN1 tecla 0,IN1 tecla 0 band,IN1 tecla 1,"
            "IN1 tecla 1 band,IN1 tecla 2,IN1 tecla 2 band,GSM,GSM band");
  EXPECT_EQ(std::ranges::count(table, '\n'), 3) << "headings and two boards";
  EXPECT_NE(table.find("\r\n2012-03-05 09:00:0"), std::string::npos);
  EXPECT_NE(
      table.find(",bq,Tavro BQ,\"Luz, \"\"jefa\"\"\",Puesto 1,1203050001,1203050001,passed,yes,"),
      std::string::npos)
      << table;
  EXPECT_NE(table.find(",1203050001,,passed,yes,"), std::string::npos) << "kept its number";
}

/// What a test measures is what the headings of its table name: nothing is left out of a row.
TEST(Records, EveryValueHasItsColumn) {
  for (const auto& [model, word] :
       {std::pair{sim::Model::BP, "main"}, {sim::Model::KA2, "ka2"}, {sim::Model::BQ, "bq"}}) {
    TestStation station(Board(model));
    station.Run();
    const auto& shown = station.page->GetForm().Get<ListBox>("Values").Rows();
    const auto record = station.LastRecord(word);
    std::size_t filled = 0;
    for (const auto& [name, field] : record)
      filled += record.contains(name + " band") && !field.empty() ? 1U : 0U;
    EXPECT_EQ(filled, shown.size()) << word;
    for (const ListRow& row : shown) EXPECT_EQ(row.value, 1) << row.text;
  }
}

TEST(Records, ABoardWhoseRecordIsNotKeptHasNotPassed) {
  using Change = VirtualFiles::Change;
  for (const bool again : {true, false}) {
    TestStation station(Board(sim::Model::BQ));
    station.page->GetForm().Get<CheckBox>("Check1").SetChecked(true);
    station.world.files.FailOperation(Change::Append, 2);  // behind the counter
    station.world.dialogs.Answer(again ? BoxAnswer::Yes : BoxAnswer::No);
    station.world.dialogs.whileShown = [&](const MessageBox& box) {
      if (box.buttons != BoxButtons::YesNo) return;
      station.world.loop.RunFor(std::chrono::seconds(3));
      EXPECT_TRUE(station.program->Connected) << "its session ends behind its record";
    };
    station.Run();
    EXPECT_EQ(station.Boxes().front(),
              "No se puede guardar el registro de la prueba en /data/factory/test-bq.csv: no space "
              "left. Se intenta otra vez?");
    EXPECT_EQ(station.Status(), again ? kPassedText : kFailedText);
    EXPECT_EQ(station.LastRecord("bq").empty(), !again);
  }
}

TEST(Records, RunsStandInTheLedger) {
  struct Case {
    void (*spoil)(TestStation& station);
    LedgerState state;
    const char* serial;
    const char* detail;
    const char* fault;
  };
  for (const auto& [spoil, state, serial, detail, fault] : std::initializer_list<Case>{
           {[](TestStation&) {}, LedgerState::Done, "1203050001",
            "bq, Ana, Puesto 1\nnew number 1203050001\nVBat = 7.21 (>= 5)\nGSM = 1 (not 0, 2..8)",
            ""},
           {[](TestStation& station) {
              station.program->info.BatteryVoltage = 4.69F;
              station.Fixture().gsm = {{Duration{}, 2}};
              station.page->GetForm().Get<TextBox>("TextStation").Type("");
            },
            LedgerState::Failed, "1203050001",
            "bq, Ana\nnew number 1203050001\nVBat = 4.69 (>= 5) FAILED\n"
            "GSM = 2 (not 0, 2..8) FAILED",
            "Tension de bateria demasiado baja; Error, PIN bloqueado"},
           {[](TestStation& station) {
              station.onStep = [&station](const std::string& text) {
                if (text == "Comprobando GSM...") station.Press("CommandStop");
              };
            },
            LedgerState::Failed, "0", "bq, Ana, Puesto 1\nVBat = 7.21 (>= 5)", "stopped"},
           {[](TestStation& station) {
              station.world.files.FailOperation(VirtualFiles::Change::Append, 2);
              station.world.dialogs.Answer(BoxAnswer::No);
            },
            LedgerState::Failed, "1203050001",
            "bq, Ana, Puesto 1\nnew number 1203050001\nVBat = 7.21 (>= 5)\n"
            "GSM = 1 (not 0, 2..8)",
            "its record was not kept"},
           {[](TestStation& station) { station.world.logger->InFixture().Sleep(); },
            LedgerState::Failed, "0", "bq, Ana, Puesto 1", kUnconfirmed.data()}}) {
    TestStation station(Board(sim::Model::BQ));
    station.page->GetForm().Get<CheckBox>("Check1").SetChecked(true);
    std::string first;
    station.onSent = [&](const std::string& message) {
      if (!first.empty()) return;
      first = message;
      EXPECT_EQ(station.world.ledger.entries.back().kind, LedgerKind::TestRun);
      EXPECT_EQ(station.world.ledger.entries.back().state, LedgerState::UnderWay);
    };
    station.sent.clear();
    spoil(station);
    station.Run();
    EXPECT_EQ(first, "#41DISPOF");
    const LedgerEntry& entry = station.world.ledger.entries.back();
    EXPECT_EQ(entry.kind, LedgerKind::TestRun);
    EXPECT_EQ(entry.state, state);
    EXPECT_EQ(entry.serial, serial);
    EXPECT_EQ(entry.detail, detail);
    EXPECT_EQ(entry.fault, fault);
    EXPECT_EQ(entry.session, station.world.ledger.entries.front().id);
  }
}

}  // namespace
}  // namespace ostrel
