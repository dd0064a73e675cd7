#pragma once

#include <QDialog>
#include <vector>

#include "shell/compare/ChannelPiece.h"

class QCheckBox;
class QComboBox;
class QDialogButtonBox;
class QListWidget;

namespace ostrel {

/// What can be applied to several channels of a kind.
struct ApplyQuestion {
  QString kind;                       ///< "digital input"
  std::vector<ChannelName> channels;  ///< of the kind
  int channel = 0;                    ///< the one in front
  int configs = 0;                    ///< alarm configurations of each
  int config = 0;                     ///< the one in front
};

/// Asks which channel, or which of its alarms, is to be copied into which others.
class ApplyDialog final : public QDialog {
 public:
  ApplyDialog(const ApplyQuestion& question, QWidget* parent);

  /// The channel that is copied.
  int Source() const;
  /// The alarm configuration alone; nothing for the whole channel.
  std::optional<int> Config() const;
  std::vector<int> Targets() const;

 private:
  void CheckAll(bool checked);
  void Follow();
  /// The channel of a row.
  int ChannelOf(int row) const;

  QComboBox *source_, *what_;
  QListWidget* targets_;
  QDialogButtonBox* buttons_;
};

}  // namespace ostrel
