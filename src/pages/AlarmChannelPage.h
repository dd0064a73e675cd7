#pragma once

#include <array>
#include <concepts>
#include <string>
#include <utility>

#include "controls/Form.h"
#include "pages/AlarmPanel.h"
#include "pages/Page.h"
#include "pages/PageContext.h"
#include "pages/PageFile.h"

namespace ostrel {

/// What a kind of alarmed channel brings to its page: its words and bounds, its own controls, and
/// its grammar on the wire. All else is the same for every kind and stands in `AlarmChannelPage`.
template <class Channel>
concept AlarmChannel = requires(Channel channel, const Channel& constant, DeviceConf& conf,
                                typename Channel::Record& record, Form& form,
                                const PageContext& context) {
  { Channel::kForm } -> std::convertible_to<std::string_view>;
  { Channel::kTitle } -> std::convertible_to<std::string_view>;    // ahead of the number
  { Channel::kHelp } -> std::convertible_to<std::string_view>;     // page word of the help
  { Channel::kSection } -> std::convertible_to<std::string_view>;  // ahead of the number
  { Channel::kChannels } -> std::convertible_to<int>;              // cleared, saved and restored
  { Channel::kConfigsShown } -> std::convertible_to<int>;          // options the operator reaches
  { Channel::Thresholds() } -> std::same_as<ThresholdBoxes>;
  { Channel::Records(conf)[0] } -> std::same_as<typename Channel::Record&>;
  Channel(form, context);
  channel.Load(std::as_const(record));           // the channel's own fields into its controls
  constant.Save(record);                         // and back
  Channel::ClearFields(record);                  // the channel's own fields to their defaults
  channel.AfterClear();                          // what a model sets beyond the defaults
  { channel.Activate() } -> std::same_as<bool>;  // what the model allows; true to show data anew
  channel.CheckNumbers();                        // paints the channel's own number boxes
  { channel.WireSections() } -> std::same_as<std::vector<WireSection>>;
  { channel.WireBlocks() } -> std::same_as<std::vector<WireBlock>>;
};

/// The page of one kind of alarmed channel: it shows one channel and one of its alarm
/// configurations at a time, and commits when either changes or the page loses activation.
template <AlarmChannel Channel>
class AlarmChannelPage final : public Page {
 public:
  using Record = typename Channel::Record;

  explicit AlarmChannelPage(PageContext& context);

  Form& GetForm() override { return form_; }
  void LoadText() override;
  void ChangeIndex(std::int16_t index) override;
  void Clear() override;
  void LoadData() override;
  void SaveConf(IniClass& document) override { SaveFields(*this, context_, document); }
  void RestoreConf() override;
  void SavePage() override;
  void Form_Load() override;
  void Form_Activate() override {
    if (channel_.Activate()) LoadData();
  }
  void Form_Deactivate() override { Commit(); }
  void VisitFields(DeviceConf& conf, const FieldVisitor& visit) const override {
    VisitRecords(Channel::Records(conf), Channel::kChannels, Channel::kSection, visit);
  }
  std::vector<WireSection> WireSections() override { return channel_.WireSections(); }
  std::vector<WireBlock> WireBlocks() override { return channel_.WireBlocks(); }

  std::int16_t CurrentIndex() const { return CurrentIndex_; }
  std::int16_t CurrentConfig() const { return CurrentConfig_; }

 private:
  static constexpr int kConfigs = 4;

  Record& Current() { return Channel::Records(context_.conf)[CurrentIndex_]; }
  void SelectConfig(std::int16_t config);
  /// Commits, unless a download is replacing the model.
  void Commit();
  void EditActions(ActionList AlarmBlock::*list);

  PageContext& context_;
  Form form_{Channel::kForm, Channel::kTitle};
  Channel channel_;
  OptionGroup configGroup_;
  std::array<OptionButton, kConfigs> configs_;
  AlarmPanel panel_;
  Button help_;
  Timer Timer1_;
  std::int16_t CurrentIndex_ = 0;
  std::int16_t CurrentConfig_ = 0;
};

template <AlarmChannel Channel>
AlarmChannelPage<Channel>::AlarmChannelPage(PageContext& context)
    : context_(context),
      channel_(form_, context),
      configs_{OptionButton(form_, configGroup_, "Config0", "Configuracion 0"),
               OptionButton(form_, configGroup_, "Config1", "Configuracion 1"),
               OptionButton(form_, configGroup_, "Config2", "Configuracion 2"),
               OptionButton(form_, configGroup_, "Config3", "Configuracion 3")},
      panel_(form_, Record::kShape, Channel::Thresholds()),
      help_(form_, "Help", ""),
      Timer1_(form_, "Timer1", context.platform.loop, std::chrono::seconds(1)) {
  for (std::int16_t config = 0; config < kConfigs; ++config) {
    OptionButton& option = configs_[static_cast<std::size_t>(config)];
    option.face.SetVisible(config < Channel::kConfigsShown);
    option.OnClick = [this, config] { SelectConfig(config); };
  }
  panel_.OnActions = [this](ActionList AlarmBlock::*list) { EditActions(list); };
  help_.OnClick = [this] { context_.ShowHelp(Channel::kHelp); };
  Timer1_.OnTimer = [this] {
    channel_.CheckNumbers();
    panel_.CheckThresholds();
  };
}

template <AlarmChannel Channel>
void AlarmChannelPage<Channel>::LoadText() {
  form_.TranslateCaptions([this](std::string_view key) { return context_.Translate(key); });
  form_.SetTitle(context_.Translate(Channel::kTitle) + NumText(CurrentIndex_));
}

template <AlarmChannel Channel>
void AlarmChannelPage<Channel>::ChangeIndex(std::int16_t index) {
  Commit();
  if (index < 0 || index >= Channel::kChannels) return;
  CurrentIndex_ = index;
  Form_Load();
}

template <AlarmChannel Channel>
void AlarmChannelPage<Channel>::Form_Load() {
  panel_.FillFlagCombo();
  LoadText();
  LoadData();
  panel_.ApplyAlarmaHabil();
  configs_[0].SetSelected(true);
  Timer1_.SetEnabled(context_.timersRun);
}

template <AlarmChannel Channel>
void AlarmChannelPage<Channel>::Clear() {
  for (int c = 0; c < Channel::kChannels; ++c) {
    Record& record = Channel::Records(context_.conf)[c];
    Channel::ClearFields(record);
    for (int config = 0; config < Record::kShape.configs; ++config)
      ClearAlarm(record.ALARM[config]);
  }
  channel_.AfterClear();
  LoadData();
}

template <AlarmChannel Channel>
void AlarmChannelPage<Channel>::LoadData() {
  channel_.Load(Current());
  panel_.Load(Current().ALARM[CurrentConfig_]);
}

template <AlarmChannel Channel>
void AlarmChannelPage<Channel>::RestoreConf() {
  Clear();
  RestoreFields(*this, context_);
  LoadData();
}

template <AlarmChannel Channel>
void AlarmChannelPage<Channel>::SavePage() {
  channel_.Save(Current());
  panel_.Save(Current().ALARM[CurrentConfig_]);
}

template <AlarmChannel Channel>
void AlarmChannelPage<Channel>::Commit() {
  if (!context_.ComBusy) SavePage();
}

template <AlarmChannel Channel>
void AlarmChannelPage<Channel>::SelectConfig(std::int16_t config) {
  if (config >= Record::kShape.configs) return;
  Commit();
  CurrentConfig_ = config;
  LoadData();
}

template <AlarmChannel Channel>
void AlarmChannelPage<Channel>::EditActions(ActionList AlarmBlock::*list) {
  if (context_.ComBusy) return;  // the list is being replaced
  ActionList& actions = Current().ALARM[CurrentConfig_].common.*list;
  CopyActions(actions, context_.ActionBuffer);
  context_.showActEdit();
  CopyActions(context_.ActionBuffer, actions);
}

}  // namespace ostrel
