#pragma once

#include <exception>
#include <functional>
#include <memory>
#include <string>

#include "desktop/window/MainWindow.h"
#include "shell/Configurator.h"
#include "shell/navigation/Navigation.h"

namespace ostrel {

/// One whole program with its window. It needs an application object.
class Desktop {
 public:
  /// `dataFolder` is the user's own; `inspector` tells of the ports of `platform`.
  Desktop(const Platform& platform, const ConfiguratorOptions& options,
          const std::string& dataFolder, PortInspector& inspector);

  /// Starts in the order that the product gives: settings, questions, model, pages, the file. Then
  /// shows the choice of the model, or the general page when there is a file. `file` is empty for
  /// none.
  void Start(const std::string& file);
  /// Shows what was thrown where an event came in, and goes on.
  void ShowFault(std::exception_ptr fault);

  Configurator& Core() { return configurator_; }
  Navigation& Navigator() { return navigation_; }
  MainWindow& Window() { return window_; }

 private:
  void Guarded(const std::function<void()>& run);

  TappedPort port_;
  Platform platform_;
  Configurator configurator_;
  Navigation navigation_;
  MainWindow window_;
  bool faultBoxUp_ = false;
};

}  // namespace ostrel
