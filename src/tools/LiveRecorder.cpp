#include "tools/LiveRecorder.h"

namespace ostrel {
namespace {

constexpr std::string_view kBegin = "Grabar...";
constexpr std::string_view kEnd = "Parar";
constexpr std::string_view kBrokenOff = "La grabacion se ha interrumpido";
constexpr std::string_view kOtherLogger = "Grabacion terminada: el equipo es otro";
constexpr std::string_view kDoubtful = "No se graba: el equipo no da su numero de serie";

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
  isDoubtful_ = false;
  logger_ = {};
  recording_.emplace(std::move(out));
  rounds_ = poll_.OnRound([this](const LiveRound& round) { Take(round); });
  going_ = poll_.KeepGoing();
}

void LiveRecorder::End(std::string_view why) {
  ended_ = why;
  going_.reset();
  rounds_.reset();
  recording_.reset();
}

void LiveRecorder::Take(const LiveRound& round) {
  const LoggerChange change = logger_.Follow(IdentityOf(context_.profile, context_.info));
  isDoubtful_ = change == LoggerChange::Doubtful;
  if (change == LoggerChange::Other) return End(kOtherLogger);
  if (!isDoubtful_ && !recording_->Add(WithNames(round, context_.conf))) End(kBrokenOff);
}

std::string LiveRecorder::StateText() const {
  if (!IsOn()) return ended_.empty() ? std::string() : context_.Translate(ended_);
  if (isDoubtful_) return context_.Translate(kDoubtful);
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
  // Without a session there would be a file with nothing in it.
  BotonGrabar.face.SetEnabled(recorder_.IsOn() || context_.Connected);
  LabelGrabar.face.SetCaption(recorder_.StateText());
}

}  // namespace ostrel
