#include <gtest/gtest.h>

#include "FactoryWorld.h"
#include "factory/RecordFile.h"
#include "factory/SerialCounter.h"

namespace ostrel {
namespace {

constexpr const char* kBoardRest = "#41VO0=0;VO1=0;VO2=0;VO3=0";

/// Something around the run fails in one of its waits.
TEST(TestEnds, WhatIsThrownInAWaitLosesNeitherBoardNorFixture) {
  TestStation station(Board(sim::Model::BP));
  station.onSent = [&](const std::string& message) {
    if (message == "#41VO2=12")
      station.world.loop.After(std::chrono::seconds(1), "a fault",
                               [] { throw std::runtime_error("no memory"); });
  };
  EXPECT_THROW(station.Press("Command1"), std::runtime_error);
  station.world.loop.RunFor(std::chrono::seconds(3));
  EXPECT_EQ(station.Orders().back(), kBoardRest);
  EXPECT_EQ(station.LastRecord("main")["verdict"], "broken off");
  EXPECT_EQ(station.LastRecord("main")["VO1=12 S"], "10");
  EXPECT_EQ(station.Status(), kFailedText);
  EXPECT_EQ(station.Colour(), BackColour::Red);
  EXPECT_FALSE(station.page->Running());
  EXPECT_FALSE(station.program->Connected);
}

TEST(TestEnds, AStopBehindTheVerdictChangesNothing) {
  TestStation station(Board(sim::Model::BP));
  station.onSent = [&](const std::string& message) {
    if (message != "#F5") return;
    // Another station has the folder while the record is to be kept.
    for (std::size_t n = 1; n <= 40; ++n)
      station.world.files.FailOperation(VirtualFiles::Change::Lock, n);
    station.world.loop.After(std::chrono::milliseconds(1500), "operator", [&] {
      EXPECT_EQ(station.Records("main"), "");
      station.Press("CommandStop");
    });
  };
  station.Run();
  EXPECT_EQ(station.Boxes(), Texts{"Compruebe que la tension del polimetro es menor de 50mV"});
  EXPECT_EQ(station.LastRecord("main")["verdict"], "passed");
  EXPECT_EQ(station.Colour(), BackColour::Green);
}

TEST(TestEnds, AValueThatNoFieldHoldsIsNotRead) {
  TestStation station(Board(sim::Model::BP));
  station.Fixture().driven[1].inputs = 70'000;
  station.Fixture().gsm = {{Duration{}, 40'000}};
  station.Run();
  auto record = station.LastRecord("main");
  EXPECT_EQ(record["VO0=12 S"], "5");
  EXPECT_EQ(record["VO1=12 S"], "") << "the former word stays to be judged by";
  EXPECT_EQ(record["VO1=12 S band"], "= 10");
  EXPECT_EQ(record["VO1=12 A1"], "4.6013") << "beside it all was read";
  EXPECT_EQ(record["GSM"], "");
  EXPECT_EQ(station.Status(), kFailedText);
}

/// A request for a transfer that waits for another page keeps no board waiting; a line that is
/// taken does, and says so.
TEST(TestEnds, TheButtonTellsWhyItDoesNotBegin) {
  TestStation station(Board(sim::Model::BQ));
  station.page->GetForm().Get<CheckBox>("Check1").SetChecked(true);
  station.program->general.Form_Deactivate();
  station.program->general.Session().Leer.Click();
  station.world.loop.RunFor(std::chrono::seconds(2));
  EXPECT_TRUE(station.program->session.RequestWaits());
  EXPECT_TRUE(FaceOf(station.page->GetForm()["Command1"]).Enabled());
  station.program->comms.LinkBusy = true;
  station.Press("Command1");
  EXPECT_EQ(station.Status(), "No se puede iniciar ahora: la linea esta ocupada");
  station.program->comms.LinkBusy = false;
  station.Run();
  EXPECT_EQ(station.Status(), kPassedText);
  EXPECT_TRUE(station.program->session.Open(SimWorld::kPort, ""));
  station.world.loop.RunFor(std::chrono::seconds(2));
  station.program->comms.LinkBusy = true;
  station.Press("Command1");
  EXPECT_EQ(station.Colour(), BackColour::Window) << "no verdict on this board";
}

TEST(RecordTable, GoesOnWhateverStandsInIt) {
  TestRecord record{.test = "bq",
                    .operatorName = "=1+1",
                    .station = "a\r\nb",
                    .serial = "-1",
                    .failures = {"@x"}};
  const std::string headings = "time,test,model,operator,";
  struct Case {
    const char* what;
    std::optional<std::string> stands;
    std::string start;  ///< of what is added
  };
  for (const auto& [what, stands, start] :
       {Case{"no table", {}, headings}, Case{"one whose first row failed", "", headings},
        Case{"a row that was torn", "head\r\n2012,\"torn", "\"\r\n1899-"},
        Case{"more than is read of most files",
             "head\r\n" + std::string(kMostFileOctets, 'x') + "\r\n", "1899-"}}) {
    SCOPED_TRACE(what);
    VirtualWorld world;
    std::string& table = world.files.contents[RecordPath("/share", "bq")];
    if (stands)
      table = *stands;
    else
      world.files.contents.clear();
    const std::size_t before = stands ? stands->size() : 0;
    EXPECT_TRUE(KeepRecord(world.platform, "/share", record, {"GSM"}).Ok());
    const std::string added = world.files.contents.at("/share/test-bq.csv").substr(before);
    EXPECT_TRUE(added.starts_with(start)) << added;
    EXPECT_TRUE(added.ends_with("bq,,'=1+1,a\\x0d\\x0ab,-1,,failed,no,0,'@x,,\r\n")) << added;
  }
}

TEST(SerialCounter, ADiskThatWasFullOnceIsNoLastingFault) {
  VirtualWorld world;
  SerialCounter counter(world.platform, "/share");
  int value = -1;
  world.files.FailOperation(VirtualFiles::Change::Append, 1);
  EXPECT_EQ(counter.Raise(value).error, "no space left");
  EXPECT_TRUE(counter.Raise(value).Ok());
  EXPECT_EQ(value, 1);
}

}  // namespace
}  // namespace ostrel
