#pragma once

#include <QSocketNotifier>
#include <functional>
#include <memory>
#include <string>

#include "platform/qt/QtEventLoop.h"

namespace ostrel::cli {

/// The lines of standard input, each as it comes, and then its end. What was read for it is lost to
/// whoever reads standard input later.
class InputLines {
 public:
  using OnLine = std::function<void(std::string line)>;
  using OnEnd = std::function<void()>;

  InputLines(QtEventLoop& loop, OnLine onLine, OnEnd onEnd);

 private:
  void Read();

  OnLine onLine_;
  OnEnd onEnd_;
  std::string line_;  ///< the one under way
  std::unique_ptr<QSocketNotifier> readable_;
};

}  // namespace ostrel::cli
