#include "factory/TestPage.h"

#include <algorithm>

#include "base/Numbers.h"
#include "base/Scope.h"
#include "platform/Dialogs.h"
#include "platform/Files.h"

namespace ostrel {

TestPage::TestPage(TestPageContext context, const TestPlan& plan)
    : context_(std::move(context)),
      plan_(plan),
      form_(plan.form, "TEST"),
      Titulo(form_, "Titulo", "TEST"),
      LabelTest(form_, "LabelTest", "Preparado"),
      Command1(form_, "Command1", "Iniciar Test"),
      CommandStop(form_, "CommandStop", "Parar Test"),
      Command2(form_, "Command2", "Iniciar/ Parar Comunicacion"),
      LabelVin(form_, "LabelVin", "VIn:"),
      DigitVin(form_, "DigitVin"),
      LabelSerial(form_, "LabelSerial", "Serial:"),
      DigitSerial(form_, "DigitSerial"),
      LabelGsm(form_, "LabelGsm", "Gsm:"),
      ProgressBar1(form_, "ProgressBar1"),
      LabelOperator(form_, "LabelOperator", "Operario:"),
      TextOperator(form_, "TextOperator"),
      LabelStation(form_, "LabelStation", "Puesto:"),
      TextStation(form_, "TextStation"),
      Values(form_, "Values"),
      Timer1(form_, "Timer1", context_.bench.platform.loop, std::chrono::seconds(1)) {
  if (!plan.hint.empty()) Label1.emplace(form_, "Label1", plan.hint);
  if (&plan == &kTestBQ) Check1.emplace(form_, "Check1", "No probar ED");
  if (&plan == &kTest) {
    Label2.emplace(form_, "Label2", "Posicion jumper para prueba:");
    Picture1.emplace(form_, "Picture1");
    Picture1->face.SetVisible(false);
  }
  ProgressBar1.SetMaximum(kStrongestSignal);
  Command1.OnClick = [this] { Start(); };
  CommandStop.OnClick = [this] { Stop(); };
  Command2.OnClick = [this] { context_.IniCom_Click(); };
  Timer1.OnTimer = [this] { Tick(); };
  ShowRunning(false);
}

void TestPage::Form_Activate() {
  if (!Running()) {
    const Station station = StoredStation(context_.bench.platform.settings, context_.usual);
    TextOperator.SetText(station.operatorName);
    TextStation.SetText(station.name);
  }
  if (Picture1) {
    // The station's own picture of its fixture: any other would tell the operator what is not so.
    const std::string path = context_.usual.folder + "/jumper.png";
    const bool hasPicture = context_.bench.platform.files.Exists(path);
    Picture1->SetFile(hasPicture ? path : "");
    Picture1->face.SetVisible(hasPicture);
  }
  Tick();
  Timer1.SetEnabled(true);
}

void TestPage::Form_Deactivate() {
  Timer1.SetEnabled(false);
  StoreStation(context_.bench.platform.settings, {TextOperator.Text(), TextStation.Text(), ""});
}

void TestPage::Tick() {
  Command1.face.SetEnabled(MayRun());
  if (!context_.Connected) return;
  DigitVin.face.SetCaption(DecText(context_.bench.info.BatteryVoltage));
  if (&plan_ != &kTestKA2) DigitSerial.face.SetCaption(context_.bench.info.SerialNumber);
}

void TestPage::ShowRunning(bool runs) {
  Command1.face.SetEnabled(MayRun());
  CommandStop.face.SetEnabled(runs);
  for (Face* face : {&TextOperator.face, &TextStation.face}) face->SetEnabled(!runs);
  if (Check1) Check1->face.SetEnabled(!runs);
}

void TestPage::Start() {
  Comms& comms = context_.bench.comms;
  comms.Reading().WhenFree([this, &comms] {
    if (Running()) return;
    if (MayRun() && !comms.LinkBusy) return RunTest();
    LabelTest.face.SetColour(BackColour::Window);
    ShowStep("No se puede iniciar ahora: la linea esta ocupada", StepKind::Work);
  });
}

void TestPage::RunTest() {
  Settings& settings = context_.bench.platform.settings;
  TestChoice choice{.station = StoredStation(settings, context_.usual),
                    .skipsKeys = Check1 && Check1->Checked()};
  choice.station.operatorName = TextOperator.Text();
  choice.station.name = TextStation.Text();
  StoreStation(settings, choice.station);
  Values.Clear();
  LabelTest.face.SetColour(BackColour::Window);
  TestPanel& panel = *this;
  run_.emplace(context_.bench, plan_, choice, panel, frame_);
  ShowRunning(true);
  context_.lendSession(true);
  const AtEnd ended([this] {
    ShowVerdict(run_->Record());
    context_.lendSession(false);
    run_.reset();
    ShowRunning(false);
  });
  run_->Run();
}

/// Nothing that was not checked is shown as good.
void TestPage::ShowVerdict(const TestRecord& record) {
  if (record.verdict != TestVerdict::Passed)
    LabelTest.face.SetColour(BackColour::Red);
  else if (record.checked)
    LabelTest.face.SetColour(BackColour::Green);
  ShowFirstFailed();
}

void TestPage::ShowFirstFailed() {
  const auto failed = std::ranges::find(Values.Rows(), 0, &ListRow::value);
  if (failed != Values.Rows().end())
    Values.SetPosition(static_cast<int>(failed - Values.Rows().begin()));
}

void TestPage::Stop() {
  if (run_) run_->Stop();
}

void TestPage::ShowStep(std::string_view text, StepKind) { LabelTest.face.SetCaption(text); }

/// The columns of a row stand between tabs; its value tells whether it has passed.
void TestPage::ShowMeasured(const Measurement& measured) {
  const std::string read = measured.value ? measured.Text() : "sin lectura";
  Values.Add(measured.name + "\t" + read + "\t" + measured.band.Text(), measured.passed ? 1 : 0);
  Values.SetPosition(static_cast<int>(Values.Rows().size()) - 1);
}

void TestPage::TellFailure(const std::string& text) {
  context_.bench.platform.dialogs.ShowMessage(
      {.text = text, .title = context_.bench.profile.TargetName, .icon = BoxIcon::Exclamation});
}

void TestPage::Request(const std::string& text) {
  context_.bench.platform.dialogs.ShowMessage(
      {.text = text, .title = context_.bench.profile.TargetName});
}

bool TestPage::AskAgain(const std::string& text) {
  return context_.bench.platform.dialogs.ShowMessage({.text = text,
                                                      .title = context_.bench.profile.TargetName,
                                                      .icon = BoxIcon::Question,
                                                      .buttons = BoxButtons::YesNo}) ==
         BoxAnswer::Yes;
}

void TestPage::CloseSession() { context_.closeLent(); }

}  // namespace ostrel
