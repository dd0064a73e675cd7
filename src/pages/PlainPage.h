#pragma once

#include <concepts>
#include <string_view>

#include "controls/Form.h"
#include "pages/Page.h"
#include "pages/PageBlock.h"
#include "pages/PageContext.h"

namespace ostrel {

/// The words of a page without channels.
struct PlainTraits {
  PageId page;
  std::string_view form;
  std::string_view title;
  std::string_view help;        ///< page word of the help; empty where there is no help page
  bool loadsAfterClear = true;  ///< emptying ends in showing the model
};

/// What a page without channels and alarms brings: its words and its controls. All else is the same
/// for every such page and stands in `PlainPage`.
///
/// Beside what is required here a page may have: `LoadText()`, captions that are composed;
/// `Activate()`, what the model allows; `AfterClear()`, what emptying does to its controls; and
/// `Tick()`, each second ahead of the check of the numbers.
template <class Content>
concept PlainContent = requires(Content content, const Content& constant, Form& form,
                                PageContext& context, DeviceConf& conf) {
  { Content::kTraits } -> std::convertible_to<PlainTraits>;
  Content(form, context);
  content.LoadData();      // the model into the controls
  constant.Save(conf);     // and back into a model
  content.CheckNumbers();  // paints number boxes
};

/// A page that edits what a logger has once, or all of a few records at a time.
template <PlainContent Content>
class PlainPage final : public Page {
 public:
  explicit PlainPage(PageContext& context)
      : context_(context),
        content_(form_, context),
        help_(form_, "Help", ""),
        Timer1_(form_, "Timer1", context.platform.loop, std::chrono::seconds(1)) {
    help_.face.SetVisible(!kTraits.help.empty());
    help_.OnClick = [this] { context_.ShowHelp(kTraits.help); };
    Timer1_.OnTimer = [this] {
      if constexpr (requires { content_.Tick(); }) content_.Tick();
      content_.CheckNumbers();
    };
  }

  PageId Id() const override { return kTraits.page; }
  Form& GetForm() override { return form_; }
  void LoadText() override {
    form_.TranslateCaptions([this](std::string_view key) { return context_.Translate(key); });
    if constexpr (requires { content_.LoadText(); }) content_.LoadText();
  }
  void ChangeIndex(std::int16_t) override {
    Form_Deactivate();
    Form_Load();
  }
  void Clear() override {
    ClearBlock(context_, kTraits.page);
    if constexpr (requires { content_.AfterClear(); }) content_.AfterClear();
    if constexpr (kTraits.loadsAfterClear) LoadData();
  }
  void LoadData() override { content_.LoadData(); }
  void SaveConf(IniClass& document) override { SaveBlock(context_, kTraits.page, document); }
  void RestoreConf() override {
    Clear();
    ReadBlockKeys(context_, kTraits.page);
    LoadData();
  }
  void SavePage() override {
    SaveInto(context_.conf);
    content_.CheckNumbers();
  }
  void SaveInto(DeviceConf& conf) const override { content_.Save(conf); }
  void Form_Load() override {
    LoadText();
    LoadData();
    Timer1_.SetEnabled(context_.timersRun);
  }
  void Form_Activate() override {
    if constexpr (requires { content_.Activate(); }) content_.Activate();
  }
  /// Commits, unless a download is replacing the model.
  void Form_Deactivate() override {
    if (!context_.ComBusy) SavePage();
  }

 private:
  static constexpr PlainTraits kTraits = Content::kTraits;

  PageContext& context_;
  Form form_{kTraits.form, kTraits.title};
  Content content_;
  Button help_;
  Timer Timer1_;
};

}  // namespace ostrel
