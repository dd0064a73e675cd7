#pragma once

#include <functional>
#include <optional>
#include <string>

#include "controls/FrontForm.h"
#include "factory/Station.h"
#include "factory/TestPanel.h"
#include "factory/TestPlan.h"
#include "factory/TestRun.h"

namespace ostrel {

/// What a test page has of the program.
struct TestPageContext {
  TestBench bench;
  const bool& Connected;
  Station usual;                            ///< where none is stored
  std::function<void()> IniCom_Click;       ///< opens or closes the session at its next tick
  std::function<bool()> mayLend{};          ///< whether nothing else uses the session
  std::function<void(bool)> lendSession{};  ///< nothing else may use it while it is lent
  std::function<void()> closeLent{};        ///< closes it at its next tick, while it is lent
};

/// The page of one test. Its texts stand as they are in every language. The run happens within the
/// click on `Command1` and takes minutes; the window stays alive in its waits.
class TestPage final : public FrontForm, private TestPanel {
 public:
  TestPage(TestPageContext context, const TestPlan& plan);

  Form& GetForm() override { return form_; }
  void LoadText() override {}
  void Form_Activate() override;
  void Form_Deactivate() override;

  bool Running() const { return run_.has_value(); }
  /// Ends the run.
  void Stop();

 private:
  void ShowStep(std::string_view text, StepKind kind) override;
  void ShowMeasured(const Measurement& measured) override;
  void ShowSignal(int rssi) override { ProgressBar1.SetValue(rssi); }
  void ShowSerial(const std::string& serial) override { DigitSerial.face.SetCaption(serial); }
  void TellFailure(const std::string& text) override;
  void Request(const std::string& text) override;
  bool AskAgain(const std::string& text) override;
  void CloseSession() override;

  void Tick();
  /// Begins behind a reading that is under way: all of the line's time is the run's.
  void Start();
  bool MayRun() const { return context_.Connected && !Running() && context_.mayLend(); }
  void RunTest();
  void ShowVerdict(const TestRecord& record);
  void ShowFirstFailed();
  void ShowRunning(bool runs);

  TestPageContext context_;
  const TestPlan& plan_;
  Form form_;
  Label Titulo, LabelTest;
  Button Command1, CommandStop, Command2;
  Label LabelVin, DigitVin, LabelSerial, DigitSerial, LabelGsm;
  ProgressBar ProgressBar1;
  Label LabelOperator;
  TextBox TextOperator;
  Label LabelStation;
  TextBox TextStation;
  ListBox Values;
  Timer Timer1;
  std::optional<Label> Label1;  ///< what is to be seen to ahead of a run
  std::optional<Label> Label2;  ///< where the jumper of the fixture stands, with its picture
  std::optional<Picture> Picture1;
  std::optional<CheckBox> Check1;  ///< the keys are not tested
  TestFrame frame_;                ///< the last reading of a board
  std::optional<TestRun> run_;
};

}  // namespace ostrel
