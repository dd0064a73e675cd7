#pragma once

#include <array>
#include <string_view>

#include "pages/PageContext.h"
#include "pages/parts/AlarmFields.h"
#include "pages/parts/AlarmPanel.h"
#include "pages/parts/BoundFields.h"
#include "pages/parts/ConfigChoice.h"

namespace ostrel {

/// The tab of a mode of an expansion input that has an alarm. `Content` brings the record of the
/// mode with its controls.
template <class Content>
class ModeTab {
 public:
  using Record = typename Content::Record;

  ModeTab(Form& form, PageContext& context)
      : content_(form, context),
        configs_(form, Content::kNames(), Record::kShape.configs),
        panel_(form, Content::kNames(), Record::kShape, Content::kNumberForm,
               Content::kThresholds) {
    NoteAlarmFields<decltype(Record{}.ALARM[0].thresholds)>(form, Content::kNames(), Record::kShape,
                                                            Content::kThresholds);
    panel_.OnActions() = [this](ActionList AlarmBlock::*list) {
      if (OnActions) OnActions(list);
    };
  }

  /// What loading the form does ahead of showing data.
  void Form_Load() {
    panel_.FillFlagCombo();
    configs_.SelectFirst();
  }
  void LoadData(const Record& record) {
    content_.Load(record);
    panel_.Load(record.ALARM[0]);
  }
  void Save(Record& record) const {
    content_.Save(record);
    panel_.Save(record.ALARM[0]);
  }
  void Tick() {
    if constexpr (requires { content_.Tick(); }) content_.Tick();
  }
  void CheckNumbers() {
    content_.CheckNumbers();
    panel_.CheckNumbers();
  }

  /// The name of the input as it stands on the tab.
  std::string NameOf(Record record) const {
    content_.Save(record);
    return record.NOMBRE;
  }
  /// What an action list of the tab is called.
  const std::string& CaptionOf(ActionList AlarmBlock::*list) const {
    return panel_.CaptionOf(list);
  }
  /// Shows how many actions the lists of the alarm have.
  void ShowActionCounts(const Record& record) { panel_.ShowActionCounts(record.ALARM[0].common); }

  /// Called by an action button with the list that it stands for.
  std::function<void(ActionList AlarmBlock::*list)> OnActions;

 private:
  Content content_;
  ConfigChoice configs_;
  AlarmPanel panel_;
};

}  // namespace ostrel
