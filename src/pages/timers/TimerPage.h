#pragma once

#include <array>
#include <concepts>
#include <string>
#include <string_view>
#include <utility>

#include "controls/Form.h"
#include "pages/Page.h"
#include "pages/PageBlock.h"
#include "pages/PageContext.h"
#include "pages/parts/ControlNames.h"
#include "pages/timers/TimerFields.h"

namespace ostrel {

/// The words of a kind of timer on its page.
struct TimerTraits {
  PageId page;
  std::string_view form;
  std::string_view title;  ///< ahead of the numbers
  std::string_view help;   ///< page word of the help
};

/// What a kind of timer brings to its page: its words and the controls of one timer. All else is
/// the same for every kind and stands in `TimerPage`.
template <class Kind>
concept TimerKind = requires(Kind controls, const Kind& constant, DeviceConf& conf,
                             typename Kind::Record& record, Form& form, const ControlNames& names) {
  { Kind::kTraits } -> std::convertible_to<TimerTraits>;
  { Kind::Records(conf)[0] } -> std::same_as<typename Kind::Record&>;
  Kind(form, names);
  controls.Fill();                       // refills lists
  controls.Load(std::as_const(record));  // the record into the controls
  constant.Save(record);                 // and back
  controls.SetEnabled(true);             // as the check of the timer says
  constant.CheckNumbers();               // paints number boxes
};

/// The page of one kind of timer: it shows four timers at a time, each in a slot of its own, and
/// commits them when another four are to be shown or the page loses activation.
template <TimerKind Kind>
class TimerPage final : public Page {
 public:
  explicit TimerPage(PageContext& context);

  PageId Id() const override { return kTraits.page; }
  Form& GetForm() override { return form_; }
  void LoadText() override;
  /// `index` is the first of the four timers to show.
  void ChangeIndex(std::int16_t index) override;
  void Clear() override {
    ClearBlock(context_, kTraits.page);
    LoadData();
  }
  void LoadData() override;
  void SaveConf(IniClass& document) override { SaveBlock(context_, kTraits.page, document); }
  void RestoreConf() override {
    Clear();
    ReadBlockKeys(context_, kTraits.page);
    LoadData();
  }
  void SavePage() override {
    SaveInto(context_.conf);
    CheckNumbers();
  }
  void SaveInto(DeviceConf& conf) const override;
  void Form_Load() override;
  void Form_Activate() override {}
  void Form_Deactivate() override { Commit(); }

 private:
  static constexpr TimerTraits kTraits = Kind::kTraits;
  static constexpr std::int16_t kSlots = 4;

  /// The controls of one timer, numbered as an array of controls is.
  struct Slot {
    Slot(Form& form, const ControlNames& names)
        : FrameTimer(form, names("FrameTimer"), "Temporizador "),
          TimerHabil(form, names("TimerHabil"), "Habilitar temporiz."),
          kind(form, names),
          FrameAcciones(form, names("FrameAcciones"), "Acciones a ejecutar"),
          BotonEditar(form, names("BotonEditar"), "Editar") {
      TimerHabil.OnClick = [this] { ApplyTimerHabil(); };
    }
    /// Sets the enabled states that `TimerHabil` implies.
    void ApplyTimerHabil() {
      kind.SetEnabled(TimerHabil.Checked());
      BotonEditar.face.SetEnabled(TimerHabil.Checked());
    }

    Frame FrameTimer;
    CheckBox TimerHabil;
    Kind kind;
    Frame FrameAcciones;
    Button BotonEditar;
  };
  static ControlNames InSlot(int slot) { return {.suffix = "(" + std::to_string(slot) + ")"}; }

  /// Runs `work` on each slot with the number of its timer.
  template <class Slots, class Work>
  void EachSlot(Slots& slots, const Work& work) const {
    std::int16_t timer = CurrentIndex_;
    for (auto& slot : slots) work(slot, timer++);
  }
  /// Commits, unless a download is replacing the model.
  void Commit() {
    if (!context_.ComBusy) SavePage();
  }
  void CheckNumbers() {
    for (const Slot& slot : slots_) slot.kind.CheckNumbers();
  }
  void EditActions(std::int16_t slot);
  /// Notes at the controls which fields of which timers they edit.
  void NoteFields();

  PageContext& context_;
  Form form_{kTraits.form, kTraits.title};
  std::array<Slot, kSlots> slots_;
  Button help_;
  Timer Timer1_;
  std::int16_t CurrentIndex_ = 0;
};

template <TimerKind Kind>
TimerPage<Kind>::TimerPage(PageContext& context)
    : context_(context),
      slots_{Slot(form_, InSlot(0)), Slot(form_, InSlot(1)), Slot(form_, InSlot(2)),
             Slot(form_, InSlot(3))},
      help_(form_, "Help", ""),
      Timer1_(form_, "Timer1", context.platform.loop, std::chrono::seconds(1)) {
  for (std::int16_t slot = 0; slot < kSlots; ++slot)
    slots_[static_cast<std::size_t>(slot)].BotonEditar.OnClick = [this, slot] {
      EditActions(slot);
    };
  help_.OnClick = [this] { context_.ShowHelp(kTraits.help); };
  Timer1_.OnTimer = [this] { CheckNumbers(); };
}

template <TimerKind Kind>
void TimerPage<Kind>::LoadText() {
  form_.TranslateCaptions([this](std::string_view key) { return context_.Translate(key); });
  form_.SetTitle(context_.Translate(kTraits.title) + NumText(CurrentIndex_) +
                 context_.Translate(" a") + NumText(CurrentIndex_ + kSlots - 1));
  EachSlot(slots_, [this](Slot& slot, std::int16_t timer) {
    slot.FrameTimer.face.SetCaption(context_.Translate(slot.FrameTimer.face.Key()) +
                                    NumText(timer));
  });
}

template <TimerKind Kind>
void TimerPage<Kind>::ChangeIndex(std::int16_t index) {
  Commit();
  if (index < 0 || index > kTimers - kSlots) return;
  CurrentIndex_ = index;
  Form_Load();
}

template <TimerKind Kind>
void TimerPage<Kind>::Form_Load() {
  for (Slot& slot : slots_) slot.kind.Fill();
  NoteFields();
  LoadText();
  LoadData();
  Timer1_.SetEnabled(context_.timersRun);
}

template <TimerKind Kind>
void TimerPage<Kind>::LoadData() {
  EachSlot(slots_, [this](Slot& slot, std::int16_t timer) {
    const typename Kind::Record& record = Kind::Records(context_.conf)[timer];
    slot.TimerHabil.SetChecked(bool(record.HABIL));
    slot.kind.Load(record);
    slot.ApplyTimerHabil();
    slot.BotonEditar.SetCount(CountActions(record.ACT));
  });
}

template <TimerKind Kind>
void TimerPage<Kind>::SaveInto(DeviceConf& conf) const {
  EachSlot(slots_, [&conf](const Slot& slot, std::int16_t timer) {
    typename Kind::Record& record = Kind::Records(conf)[timer];
    record.HABIL = Bool16(slot.TimerHabil.Checked());
    slot.kind.Save(record);
  });
}

template <TimerKind Kind>
void TimerPage<Kind>::EditActions(std::int16_t slot) {
  ActionList& actions = Kind::Records(context_.conf)[CurrentIndex_ + slot].ACT;
  Slot& edited = slots_[static_cast<std::size_t>(slot)];
  context_.EditActions(actions, form_.Title() + ", " + edited.FrameTimer.face.Caption(),
                       [&edited, &actions] { edited.BotonEditar.SetCount(CountActions(actions)); });
}

template <TimerKind Kind>
void TimerPage<Kind>::NoteFields() {
  const typename Kind::Record record;
  for (std::int16_t slot = 0; slot < kSlots; ++slot)
    Describe(record, [&](const FieldMeta& meta, const auto&, FieldSlot = {}) {
      const std::string control = InSlot(slot)(ControlOfTimerField(meta.word));
      FaceOf(form_[control])
          .SetField({.word = meta.word, .unit = meta.unit, .channel = CurrentIndex_ + slot});
    });
}

}  // namespace ostrel
