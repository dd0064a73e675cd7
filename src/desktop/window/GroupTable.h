#pragma once

#include <QWidget>
#include <functional>
#include <string>
#include <vector>

#include "shell/navigation/ChannelOverview.h"

class QLabel;
class QTableWidget;

namespace ostrel {

/// The channels of a group as a table, from which one opens. It only shows.
class GroupTable final : public QWidget {
 public:
  explicit GroupTable(QWidget* parent);

  void ShowGroup(const QString& title, const ChannelTable& table, bool isS100);

  /// The channels that are selected.
  std::vector<int> SelectedChannels() const;

  /// Runs when the operator opens a channel. Set by the window.
  std::function<void(const std::string& node)> OnChannel;

 private:
  QLabel* heading_;
  QTableWidget* table_;
  std::vector<std::string> nodes_;
  std::vector<int> channels_;
};

}  // namespace ostrel
