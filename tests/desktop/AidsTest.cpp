#include <gmock/gmock.h>

#include <QDialog>
#include <QPushButton>
#include <QTableWidget>

#include "Input.h"
#include "OpenWindow.h"
#include "Spanish.h"
#include "desktop/dialogs/TraceView.h"
#include "desktop/program/Language.h"
#include "platform/virtual/VirtualFiles.h"
#include "recording/Recording.h"
#include "shell/doctor/DoctorWords.h"
#include "shell/files/EditHistory.h"
#include "shell/report/Commissioning.h"

namespace ostrel {
namespace {

using std::chrono::seconds;
using testing::HasSubstr;

class WindowAids : public OpenWindow {
 protected:
  std::string Read(const std::string& name) { return *files.Read(Path(name)); }
};

TEST_F(WindowAids, UndoesAndRedoesAPageAtATime) {
  Window().GoTo("E_Digital_0");
  EXPECT_FALSE(Tool("Deshacer")->isEnabled());
  NameOf().Type("pump");
  Window().GoTo("E_Analog_1");
  NameOf(PageId::E_Analog).Type("level");
  loop.RunFor(seconds(2));
  ASSERT_TRUE(Tool("Deshacer")->isEnabled());
  Tool("Deshacer")->trigger();
  EXPECT_EQ(Core().conf.Analog[1].NOMBRE, "") << "what is not committed yet goes first";
  EXPECT_EQ(Core().conf.Digital[0].NOMBRE, "pump");
  Tool("Deshacer")->trigger();
  EXPECT_EQ(Core().conf.Digital[0].NOMBRE, "");
  EXPECT_EQ(desktop->Navigator().Front()->Name(), "E_Digital") << "where it changes";
  EXPECT_EQ(NameOf().Text(), "");
  EXPECT_FALSE(Tool("Deshacer")->isEnabled());
  Tool("Rehacer")->trigger();
  Tool("Rehacer")->trigger();
  EXPECT_EQ(Core().conf.Digital[0].NOMBRE, "pump");
  EXPECT_EQ(Core().conf.Analog[1].NOMBRE, "level");
  EXPECT_FALSE(Tool("Rehacer")->isEnabled());
  Tool("Deshacer")->trigger();
  NameOf(PageId::E_Analog).Type("other");
  Tool("Rehacer")->trigger();
  EXPECT_EQ(Core().conf.Analog[1].NOMBRE, "other") << "what stands on the page is an edit";
  Window().GoTo("General");
  EXPECT_FALSE(Tool("Rehacer")->isEnabled()) << "a new edit leaves nothing to redo";
  Tool("Deshacer")->trigger();
  EXPECT_EQ(Core().conf.Analog[1].NOMBRE, "") << "and undone it is what was there before it";
  Core().TargetDeviceChange("Ostrel VR200");
  EXPECT_FALSE(Tool("Deshacer")->isEnabled()) << "another model";
}

TEST_F(WindowAids, UndoMarksWhatIsNotSavedAndRestsDuringATransfer) {
  port.SetPaced(true);
  ConnectTo(sim::Model::BP, seconds(15));
  Window().GoTo("E_Digital_0");
  NameOf().Type("pump");
  Window().GoTo("General");
  dialogs.ChoosePath(Path("a.ocf"));
  Tool("Guardar")->trigger();
  EXPECT_FALSE(Window().isWindowModified());
  Tool("Deshacer")->trigger();
  EXPECT_TRUE(Window().isWindowModified());
  Tool("Rehacer")->trigger();
  EXPECT_FALSE(Window().isWindowModified());
  int looks = 0;
  loop.After(seconds(5), "look", [&] {
    EXPECT_EQ(Core().session.State().phase, SessionPhase::Reading);
    EXPECT_FALSE(Tool("Deshacer")->isEnabled());
    ++looks;
  });
  Core().session.AskFor(SessionPhase::Reading);
  loop.RunFor(seconds(40));
  EXPECT_EQ(looks, 1);
}

TEST(EditHistory, KeepsSoManySteps) {
  TargetProfile profile;
  SelectTarget(profile, "Tavro BP");
  EditHistory history;
  DeviceConf state;
  history.Start(state);
  for (std::size_t step = 0; step < 2 * EditHistory::kMost; ++step) {
    state.General.DNAME = std::to_string(step);
    history.Note(state, profile, "General");
    history.Note(state, profile, "General");
  }
  std::size_t undone = 0;
  for (; history.CanUndo(); ++undone) state = history.Undo().state;
  EXPECT_EQ(undone, EditHistory::kMost - 1);
  EXPECT_EQ(state.General.DNAME, std::to_string(EditHistory::kMost));
  ++state.Phone[5].Prio;  // of nobody
  EXPECT_FALSE(history.IsEdited(state, profile)) << "a file holds the same texts";
}

TEST_F(WindowAids, RecordsTheLineInAFile) {
  AddLogger(sim::Model::BP);
  auto* record = Window().findChild<TraceView*>("Trace")->findChild<QPushButton*>("Record");
  dialogs.ChoosePath(Path("line.rec"));
  record->click();
  EXPECT_TRUE(record->isChecked());
  Connect();
  record->click();
  EXPECT_FALSE(record->isChecked());
  Connect();  // ends the session
  std::string error;
  const auto recording = ReadRecording(Read("line.rec"), error);
  ASSERT_TRUE(recording) << error;
  EXPECT_THAT(Read("line.rec"), HasSubstr("> #64;40\\r\n"));
  EXPECT_THAT(Read("line.rec"), HasSubstr("< #"));
  EXPECT_EQ(std::ranges::count(*recording, "closed", &RecordedEvent::text), 0)
      << "it ended before the session did";
  files.Create(Path("other.txt"));
  files.Write(Path("other.txt"), "dear diary");
  dialogs.ChoosePath(Path("other.txt"));
  record->click();
  EXPECT_FALSE(record->isChecked());
  EXPECT_EQ(Read("other.txt"), "dear diary");
}

TEST_F(WindowAids, TheDoctorLooksAtThePortChosen) {
  std::string error;
  AddLogger(sim::Model::BP, {sim::ParseFault("silent", error).value()});
  SessionFrame& session = Core().general.Session();
  session.Puerto.Add("COM7");
  session.Puerto.SetPosition(0);
  QString advice, last;
  modals.Expect([&](QWidget* dialog) {
    advice = dialog->findChild<QLabel*>("Advice")->text();
    const auto* table = dialog->findChild<QTableWidget*>();
    last = table->item(table->rowCount() - 1, 2)->text();
    qobject_cast<QDialog*>(dialog)->reject();
  });
  UseLanguage("es");
  Tool(Words::tr("Link doctor"))->trigger();
  EXPECT_TRUE(advice.contains("compruebe cable", Qt::CaseInsensitive)) << FromQt(advice);
  EXPECT_EQ(last, QString("Ningún módem responde"));
  EXPECT_FALSE(Core().comms.PortOpen());
  EXPECT_FALSE(Core().comms.LinkBusy);
}

TEST_F(WindowAids, SavesAReportInTheLanguageOfTheWindow) {
  ConnectTo(sim::Model::BP);
  Core().conf.General.DNAME = "Depósito";
  Core().ShowConfiguration(Core().conf);
  for (const char* name : {"report.html", "report.pdf"}) {
    dialogs.ChoosePath(Path(name));
    Tool("Informe")->trigger();
  }
  EXPECT_THAT(Read("report.html"), HasSubstr("<h1>Informe de puesta en marcha</h1>"));
  EXPECT_THAT(Read("report.html"), HasSubstr("Tavro BP, Depósito"));
  EXPECT_THAT(Read("report.html"), HasSubstr("Valores en vivo"));
  EXPECT_TRUE(Read("report.pdf").starts_with("%PDF"));
}

TEST(AidWords, HaveSpanish) {
  std::set<std::string> asked;
  for (const std::string& phrase : DoctorPhrases()) asked.insert(phrase);
  Commissioned work;
  work.logger = DeviceInfo{};
  work.live = LiveRound{};
  for (const Verdict verdict : {Verdict::Open, Verdict::Passed, Verdict::Failed})
    work.acceptance.points.push_back({.node = {}, .kind = "digital input", .verdict = verdict});
  work.history = {{}};
  VirtualFiles none;
  const auto asItIs = [](std::string_view text) { return std::string(text); };
  const auto note = [&asked](std::string_view text) {
    asked.emplace(text);
    return std::string(text);
  };
  for (const std::string_view model : TargetNamesOffered())
    for (const bool isKnown : {true, false}) {
      SelectTarget(work.configuration.profile, model);
      work.configuration.conf = EmptyConfiguration(work.configuration.profile, asItIs);
      if (!isKnown) work.logger.reset();
      CommissioningReport(work, {"es", note, asItIs}, none);
    }
  ExpectSpanish(asked, {"SMS", "GPRS", "error"});
}

}  // namespace
}  // namespace ostrel
