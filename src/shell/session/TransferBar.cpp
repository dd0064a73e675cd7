#include "shell/session/TransferBar.h"

namespace ostrel {
namespace {

constexpr int kDownloadLength = 300;
constexpr int kUploadLength = 350;

}  // namespace

void ShowOnBar(const Progress& progress, ProgressBar& bar) {
  if (!MovesConfiguration(progress.kind)) return;
  const bool isDownload = progress.kind == DialogueKind::Download;
  switch (progress.stage) {
    case Progress::Stage::Begun:
      bar.SetMaximum(isDownload ? kDownloadLength : kUploadLength);
      bar.SetValue(0);
      break;
    case Progress::Stage::Step:
      if (!isDownload) {
        bar.SetValue(progress.step);
      } else if (progress.step <= bar.Maximum()) {
        bar.SetValue(progress.step - 1);  // records are numbered from 0
      }
      break;
    case Progress::Stage::Done:
      bar.SetValue(bar.Maximum());
      break;
    case Progress::Stage::Attempt:
    case Progress::Stage::Closing:
    case Progress::Stage::Failed:
      break;
  }
}

void ShowListOnBar(const Progress& progress, ProgressBar& bar) {
  if (!MovesVoiceList(progress.kind)) return;
  switch (progress.stage) {
    case Progress::Stage::Begun:
      bar.SetMaximum(progress.expected);
      bar.SetValue(0);
      break;
    case Progress::Stage::Step:
      bar.SetValue(progress.step);
      break;
    case Progress::Stage::Done:
      bar.SetValue(bar.Maximum());
      break;
    case Progress::Stage::Attempt:
    case Progress::Stage::Closing:
    case Progress::Stage::Failed:
      break;
  }
}

}  // namespace ostrel
