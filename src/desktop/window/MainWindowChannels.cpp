#include <QAction>
#include <QMenu>
#include <utility>

#include "desktop/dialogs/ApplyDialog.h"
#include "desktop/forms/Words.h"
#include "desktop/window/FieldText.h"
#include "desktop/window/MainWindow.h"
#include "shell/Configurator.h"

// Copying channels and their alarms.

namespace ostrel {

std::optional<MainWindow::ChannelPlace> MainWindow::ChannelInFront() const {
  const auto target = FindNodeTarget(shownNode_, configurator_.profile, false);
  if (!target || !target->index || !std::holds_alternative<PageId>(target->form)) return {};
  const PageId page = std::get<PageId>(target->form);
  const DeviceConf& conf = configurator_.conf;
  if (ChannelsOf(conf, configurator_.profile, page).empty()) return {};
  const int configs = AlarmConfigsOf(conf, configurator_.profile, page);
  const FormView* front = pages_->Front();
  return ChannelPlace{page, *target->index, configs, front ? ShownConfig(front->GetForm()) : 0};
}

/// What a piece is of, as the model calls it: "digital input 3".
QString MainWindow::NameOfChannel(PageId page, int channel) const {
  for (const ConstField& field : FieldsOf(std::as_const(configurator_.conf), configurator_.profile))
    if (field.page == page && field.id.channel == channel) return RecordText(field.id);
  return {};
}

void MainWindow::FillChannels(QMenu& menu) {
  const auto add = [&](const QString& text, const QKeySequence& keys, auto run) {
    menu.addAction(text, keys, this, [this, run] { parts_.guard(run); });
  };
  if (const auto place = ChannelInFront()) {
    const QString name = NameOfChannel(place->page, place->channel);
    add(Words::tr("Copy %1").arg(name), {}, [this, place = *place] { CopyChannel(place, {}); });
    if (place->configs > 0)
      add(Words::tr("Copy alarm %1 of %2").arg(place->config).arg(name), {},
          [this, place = *place] { CopyChannel(place, place.config); });
    if (piece_ && piece_->page == place->page) {
      const QString text =
          piece_->isAlarm
              ? Words::tr("Paste %1 as alarm %3 of %2").arg(pieceName_, name).arg(place->config)
              : Words::tr("Paste %1 into %2").arg(pieceName_, name);
      add(text, {}, [this, place = *place] { PasteInto({place.channel}, place.config); });
    }
    add(Words::tr("Apply to several channels..."), {},
        [this, place = *place] { ApplyToSeveral(place); });
  }
  const std::vector<int> selected =
      group_->isVisible() ? group_->SelectedChannels() : std::vector<int>();
  if (piece_ && PageOfGroup(shownNode_) == piece_->page && !selected.empty())
    add(Words::tr("Paste %1 into the channels selected").arg(pieceName_), {},
        [this, selected] { PasteInto(selected, 0); });
  if (menu.isEmpty()) menu.addAction(Words::tr("No channel is in front"))->setEnabled(false);
}

void MainWindow::CopyChannel(const ChannelPlace& place, std::optional<int> config) {
  const QString name = NameOfChannel(place.page, place.channel);
  piece_ =
      TakePiece(unsaved_.WithFront(), configurator_.profile, place.page, place.channel, config);
  pieceName_ = config ? Words::tr("alarm %1 of %2").arg(*config).arg(name) : name;
}

void MainWindow::PasteInto(const std::vector<int>& channels, int config) {
  DeviceConf present = unsaved_.WithFront();
  for (const int channel : channels)
    PutPiece(*piece_, present, configurator_.profile, channel, config);
  ShowOnPages(present);
}

void MainWindow::ApplyToSeveral(const ChannelPlace& place) {
  const DeviceConf present = unsaved_.WithFront();
  std::vector<ChannelName> channels = ChannelsOf(present, configurator_.profile, place.page);
  // A file has room for channels that the model has not.
  std::erase_if(channels, [&](const ChannelName& one) {
    return !tree_->Has(NodeOf(place.page, one.channel));
  });
  ApplyQuestion question{.kind = {},
                         .channels = std::move(channels),
                         .channel = place.channel,
                         .configs = place.configs,
                         .config = place.config};
  for (const ConstField& field : FieldsOf(present, configurator_.profile))
    if (field.page == place.page && question.kind.isEmpty())
      question.kind = RecordText({field.id.section, -1, {}, {}});
  ApplyDialog dialog(question, this);
  if (dialog.exec() != QDialog::Accepted) return;
  DeviceConf changed = present;
  const ChannelPiece piece =
      TakePiece(present, configurator_.profile, place.page, dialog.Source(), dialog.Config());
  for (const int channel : dialog.Targets())
    PutPiece(piece, changed, configurator_.profile, channel, dialog.Config().value_or(0));
  ShowOnPages(changed);
}

}  // namespace ostrel
