#pragma once

#include <QString>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "desktop/acceptance/AcceptancePanel.h"
#include "desktop/forms/Guard.h"
#include "desktop/plot/PlotPanel.h"
#include "model/LoggerIdentity.h"
#include "platform/Platform.h"
#include "shell/Configurator.h"

class QAction;
class QMainWindow;
class QMenu;

namespace ostrel {

/// What the panels of live values stand on.
struct LivePanelParts {
  QMainWindow& window;
  Configurator& configurator;
  const Platform& platform;
  Guard guard;
  std::string dataFolder;  ///< the user's own
  /// Saves a text or a picture to a file that the operator chooses; `kind` is in words.
  std::function<void(const QString& kind, const QString& ending, const std::string& octets)> save;
  std::function<void(const std::string& node)> goTo;
};

/// The panels at the foot of the window that live on the rounds of live values: the plot and the
/// acceptance. What a round tells is kept whether they are shown or not; while one of them is, the
/// logger is read on any page.
class LivePanels {
 public:
  explicit LivePanels(const LivePanelParts& parts);
  /// Ahead of the window, which would still ask the panels for what has gone.
  ~LivePanels();
  LivePanels(const LivePanels&) = delete;
  LivePanels& operator=(const LivePanels&) = delete;

  /// Adds the switches that show and hide the panels.
  void AddTo(QMenu& menu);
  /// The window's own words anew.
  void Retranslate();
  /// Follows the session and the configuration, of which `file` is the path; empty for none.
  void Look(const std::string& file);
  /// Whether what they offer may ask a question now.
  void SetMaySave(bool may);

 private:
  QAction* AddSwitch(QMenu& menu, QDockWidget& panel, const char* keys);
  void TakeRound(const LiveRound& round);
  void Shown();
  void FollowConfiguration();
  void SavePicture();

  LivePanelParts parts_;
  Configurator& configurator_;
  LiveHistory history_;
  LoggerFollower historyOf_;
  AcceptanceWork work_;
  std::string file_;                  ///< of the configuration
  std::optional<DeviceConf> workOn_;  ///< the configuration whose inputs are shown
  PlotPanel* plot_;
  AcceptancePanel* acceptance_;
  QAction *plotSwitch_ = nullptr, *acceptanceSwitch_ = nullptr;
  LivePoll::RoundFeed::Subscription rounds_;
  std::shared_ptr<const void> going_;  ///< while a panel is shown
};

}  // namespace ostrel
