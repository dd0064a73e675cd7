#include "tools/LiveRecorder.h"

namespace ostrel {
namespace {

constexpr std::string_view kBegin = "Grabar...";
constexpr std::string_view kEnd = "Parar";

}  // namespace

void LiveRecorder::Toggle() {
  if (IsOn()) return End();
  const auto path = context_.dialogs.ChooseFile(
      {.mode = FileQuestion::Mode::Save, .filter = "CSV|*.csv|*.*|*.*", .overwritePrompt = true});
  if (path) Begin(*path);
}

void LiveRecorder::Begin(const std::string& path) {
  std::string why;
  auto out = context_.OpenRecording(path, why);
  if (!out)
    return static_cast<void>(context_.dialogs.ShowMessage({.text = path + ": " + why,
                                                           .title = context_.profile.TargetName,
                                                           .icon = BoxIcon::Exclamation}));
  hasFailed_ = false;
  recording_.emplace(std::move(out));
  rounds_ = poll_.OnRound([this](const LiveRound& round) { Take(round); });
  going_ = poll_.KeepGoing();
}

void LiveRecorder::End() {
  going_.reset();
  rounds_.reset();
  recording_.reset();
}

void LiveRecorder::Take(const LiveRound& round) {
  if (recording_->Add(round)) return;
  hasFailed_ = true;
  End();
}

std::string LiveRecorder::StateText() const {
  if (hasFailed_) return context_.Translate("La grabacion se ha interrumpido");
  if (!IsOn()) return {};
  return context_.Translate("Filas grabadas:") + " " + std::to_string(recording_->Rows());
}

RecorderPart::RecorderPart(Form& form, ToolContext& context, LiveRecorder& recorder)
    : context_(context),
      recorder_(recorder),
      BotonGrabar(form, "BotonGrabar", kBegin),
      LabelGrabar(form, "LabelGrabar") {
  BotonGrabar.OnClick = [this] {
    recorder_.Toggle();
    Follow();
  };
}

void RecorderPart::Follow() {
  const std::string_view key = recorder_.IsOn() ? kEnd : kBegin;
  BotonGrabar.face.SetCaption(key, context_.Translate(key));
  LabelGrabar.face.SetCaption(recorder_.StateText());
}

}  // namespace ostrel
