#pragma once

#include <QToolBar>
#include <functional>

#include "desktop/session/LinkPanel.h"

class QAction;

namespace ostrel {

/// The session on every page: reading, writing, cancelling, and what the link is doing.
class SessionBar final : public QToolBar {
 public:
  explicit SessionBar(QWidget* parent);

  /// What may be done now. `whyNot` tells why writing rests, where there is more to say.
  struct Allowed {
    bool read = false;
    bool write = false;
    bool cancel = false;
    QString whyNot{};
  };
  void Allow(const Allowed& allowed);
  void Retranslate();
  LinkPanel& Link() { return *link_; }

  // Set by the window.
  std::function<void()> OnRead, OnWrite, OnCancel;

 private:
  QAction *read_, *write_, *cancel_;
  LinkPanel* link_;
};

}  // namespace ostrel
