#pragma once

#include "pages/Page.h"
#include "pages/PageBlock.h"
#include "pages/PageContext.h"
#include "pages/expansion/InputFrame.h"
#include "pages/expansion/ModeControls.h"
#include "pages/expansion/ModeTab.h"

namespace ostrel {

/// The page of the inputs on expansion modules: the address of one input, and a tab for each mode.
/// All tabs show the input's data at all times, whichever is in front.
class E_Modular final : public Page {
 public:
  explicit E_Modular(PageContext& context);

  PageId Id() const override { return PageId::E_Modular; }
  Form& GetForm() override { return form_; }
  void LoadText() override;
  void ChangeIndex(std::int16_t index) override;
  void Clear() override;
  void LoadData() override;
  void SaveConf(IniClass& document) override { SaveBlock(context_, Id(), document); }
  void RestoreConf() override;
  void SavePage() override {
    SaveInto(context_.conf);
    CheckNumbers();
  }
  void SaveInto(DeviceConf& conf) const override;
  void Form_Load() override;
  void Form_Activate() override {}
  void Form_Deactivate() override { Commit(); }

  std::int16_t CurrentIndex() const { return CurrentIndex_; }

 private:
  ConfModulo& Current() const { return context_.conf.Modulo[CurrentIndex_]; }
  /// Commits, unless a download is replacing the model.
  void Commit();
  void Tick();
  void CheckNumbers();
  /// Tells which other input is wired to the place that is chosen.
  void ShowShared();
  /// Lets the tree show which inputs are in use.
  void RepaintTree() const;
  template <auto kPart, class Tab>
  void EditActionsOf(ActionList AlarmBlock::*list, Tab& tab);
  void ShowHelp() const;

  PageContext& context_;
  Form form_;
  InputFrame frame_;
  ModeTab<ModuloDigitalControls> digital_;
  ModeTab<ModuloFlowControls> flow_;
  ModuloCounterControls counter_;
  ModeTab<ModuloAnalogControls> analog_;
  Button help_;
  Timer Timer1_;
  std::int16_t CurrentIndex_ = 0;
};

}  // namespace ostrel
