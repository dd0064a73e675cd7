#pragma once

#include <concepts>
#include <string>
#include <string_view>
#include <utility>

#include "controls/Form.h"
#include "pages/Page.h"
#include "pages/PageBlock.h"
#include "pages/PageContext.h"
#include "pages/parts/AlarmFields.h"
#include "pages/parts/AlarmPanel.h"
#include "pages/parts/ConfigChoice.h"

namespace ostrel {

/// The words and counts of a kind of channel on its page.
struct ChannelTraits {
  PageId page;
  std::string_view form;
  std::string_view title;  ///< ahead of the number
  std::string_view help;   ///< page word of the help; empty where there is no help page
  int channels;            ///< channels that the page can show
  NumberForm thresholds = NumberForm::Dec;
};

/// What a kind of alarmed channel brings to its page: its words and its own controls. All else is
/// the same for every kind and stands in `ChannelPage`.
///
/// Beside what is required here a kind may have: `Activate()`, what the model allows, true to show
/// the data anew; `TitleEnd(index)`, words behind the number; `Factor(record)`, by which scaled
/// thresholds are multiplied; `LoadLive(index)`, what is live of the channel; `Tick()`, each
/// second.
template <class Channel>
concept AlarmChannel = requires(Channel channel, const Channel& constant, DeviceConf& conf,
                                typename Channel::Record& record, Form& form,
                                PageContext& context) {
  { Channel::kTraits } -> std::convertible_to<ChannelTraits>;
  { Channel::kThresholds } -> std::convertible_to<std::span<const ThresholdBox>>;
  { Channel::Records(conf)[0] } -> std::same_as<typename Channel::Record&>;
  Channel(form, context);
  channel.Load(std::as_const(record));  // the channel's own fields into its controls
  constant.Save(record);                // and back
  channel.CheckNumbers();               // paints the channel's own number boxes
};

/// The page of one kind of alarmed channel: it shows one channel and one of its alarm
/// configurations at a time, and commits when either changes or the page loses activation.
template <AlarmChannel Channel>
class ChannelPage final : public Page {
 public:
  using Record = typename Channel::Record;

  explicit ChannelPage(PageContext& context);

  PageId Id() const override { return kTraits.page; }
  Form& GetForm() override { return form_; }
  void LoadText() override;
  void ChangeIndex(std::int16_t index) override;
  void Clear() override;
  void LoadData() override;
  void SaveConf(IniClass& document) override { SaveBlock(context_, kTraits.page, document); }
  void RestoreConf() override;
  void SavePage() override {
    SaveInto(context_.conf);
    CheckNumbers();
  }
  void SaveInto(DeviceConf& conf) const override;
  void Form_Load() override;
  void Form_Activate() override;
  void Form_Deactivate() override { Commit(); }

  std::int16_t CurrentIndex() const { return CurrentIndex_; }
  std::int16_t CurrentConfig() const { return configs_.CurrentConfig(); }

 private:
  static constexpr ChannelTraits kTraits = Channel::kTraits;

  Record& Current() { return Channel::Records(context_.conf)[CurrentIndex_]; }
  float Factor(const Record& record) const {
    if constexpr (requires { channel_.Factor(record); }) return channel_.Factor(record);
    return 1;
  }
  /// Commits, unless a download is replacing the model.
  void Commit();
  void CheckNumbers();
  void Tick();
  void EditActions(ActionList AlarmBlock::*list);

  PageContext& context_;
  Form form_{kTraits.form, kTraits.title};
  Channel channel_;
  ConfigChoice configs_;
  AlarmPanel panel_;
  Button help_;
  Timer Timer1_;
  std::int16_t CurrentIndex_ = 0;
};

template <AlarmChannel Channel>
ChannelPage<Channel>::ChannelPage(PageContext& context)
    : context_(context),
      channel_(form_, context),
      configs_(form_, {}, Record::kShape.configs),
      panel_(form_, {}, Record::kShape, kTraits.thresholds, Channel::kThresholds),
      help_(form_, "Help", ""),
      Timer1_(form_, "Timer1", context.platform.loop, std::chrono::seconds(1)) {
  NoteAlarmFields<decltype(Record{}.ALARM[0].thresholds)>(form_, {}, Record::kShape,
                                                          Channel::kThresholds);
  configs_.OnLeave = [this] { Commit(); };
  configs_.OnShow = [this] { LoadData(); };
  panel_.OnActions() = [this](ActionList AlarmBlock::*list) { EditActions(list); };
  help_.face.SetVisible(!kTraits.help.empty());
  help_.OnClick = [this] { context_.ShowHelp(kTraits.help); };
  Timer1_.OnTimer = [this] { Tick(); };
}

template <AlarmChannel Channel>
void ChannelPage<Channel>::LoadText() {
  form_.TranslateCaptions([this](std::string_view key) { return context_.Translate(key); });
  std::string title = context_.Translate(kTraits.title) + NumText(CurrentIndex_);
  if constexpr (requires { Channel::TitleEnd(CurrentIndex_); })
    title += Channel::TitleEnd(CurrentIndex_);
  form_.SetTitle(title);
}

template <AlarmChannel Channel>
void ChannelPage<Channel>::ChangeIndex(std::int16_t index) {
  Commit();
  if (index < 0 || index >= kTraits.channels) return;
  CurrentIndex_ = index;
  Form_Load();
}

template <AlarmChannel Channel>
void ChannelPage<Channel>::Form_Load() {
  panel_.FillFlagCombo();
  LoadText();
  LoadData();
  panel_.ApplyAlarmaHabil();
  configs_.SelectFirst();
  Timer1_.SetEnabled(context_.timersRun);
}

template <AlarmChannel Channel>
void ChannelPage<Channel>::Form_Activate() {
  if constexpr (requires { channel_.Activate(); })
    if (channel_.Activate()) LoadData();
}

template <AlarmChannel Channel>
void ChannelPage<Channel>::Clear() {
  ClearBlock(context_, kTraits.page);
  LoadData();
}

template <AlarmChannel Channel>
void ChannelPage<Channel>::LoadData() {
  channel_.Load(Current());
  if constexpr (requires { channel_.LoadLive(CurrentIndex_); }) channel_.LoadLive(CurrentIndex_);
  panel_.Load(Current().ALARM[CurrentConfig()], Factor(Current()));
}

template <AlarmChannel Channel>
void ChannelPage<Channel>::RestoreConf() {
  Clear();
  ReadBlockKeys(context_, kTraits.page);
  LoadData();
}

template <AlarmChannel Channel>
void ChannelPage<Channel>::SaveInto(DeviceConf& conf) const {
  Record& record = Channel::Records(conf)[CurrentIndex_];
  channel_.Save(record);
  panel_.Save(record.ALARM[CurrentConfig()], Factor(record));
}

template <AlarmChannel Channel>
void ChannelPage<Channel>::Commit() {
  if (!context_.ComBusy) SavePage();
}

template <AlarmChannel Channel>
void ChannelPage<Channel>::CheckNumbers() {
  channel_.CheckNumbers();
  panel_.CheckNumbers();
}

template <AlarmChannel Channel>
void ChannelPage<Channel>::Tick() {
  if constexpr (requires { channel_.Tick(); }) channel_.Tick();
  CheckNumbers();
}

template <AlarmChannel Channel>
void ChannelPage<Channel>::EditActions(ActionList AlarmBlock::*list) {
  Record& record = Current();
  AlarmBlock& alarm = record.ALARM[CurrentConfig()].common;
  std::string subject = form_.Title();
  if constexpr (requires { record.NOMBRE; }) {
    Record shown = record;
    channel_.Save(shown);
    if (!shown.NOMBRE.empty()) subject += " \"" + shown.NOMBRE + '"';
  }
  if (Record::kShape.configs > 1) subject += ", " + configs_.Caption();
  context_.EditActions(alarm.*list, subject + ", " + panel_.CaptionOf(list),
                       [this, &alarm] { panel_.ShowActionCounts(alarm); });
}

}  // namespace ostrel
