#include "desktop/session/SessionBar.h"

#include <QAction>

#include "desktop/forms/AccessKeys.h"
#include "desktop/forms/Icons.h"
#include "desktop/forms/Words.h"

namespace ostrel {

SessionBar::SessionBar(QWidget* parent) : QToolBar(parent), link_(new LinkPanel(this)) {
  setObjectName("Session");
  setMovable(false);
  setContextMenuPolicy(Qt::PreventContextMenu);
  setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  setIconSize({22, 22});
  const auto add = [this](Sign sign, const char* name, std::function<void()> SessionBar::*run) {
    QAction* action = addAction(MakeIcon(sign, palette()), QString());
    action->setObjectName(name);
    connect(action, &QAction::triggered, this, [this, run] {
      if (this->*run) (this->*run)();
    });
    return action;
  };
  read_ = add(Sign::Read, "ReadTool", &SessionBar::OnRead);
  write_ = add(Sign::Write, "WriteTool", &SessionBar::OnWrite);
  cancel_ = add(Sign::Cancel, "CancelTool", &SessionBar::OnCancel);
  read_->setShortcut(QKeySequence(Qt::Key_F5));
  LetTabReachTools(*this);
  addSeparator();
  link_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  addWidget(link_);
  Retranslate();
  Allow({});
}

void SessionBar::Retranslate() {
  setWindowTitle(Words::tr("Session"));
  read_->setText(Words::tr("Read"));
  read_->setToolTip(Words::tr("Read the logger's configuration") + " (" +
                    read_->shortcut().toString(QKeySequence::NativeText) + ")");
  write_->setText(Words::tr("Write"));
  cancel_->setText(Words::tr("Cancel"));
  cancel_->setToolTip(Words::tr("Break off what is under way and close the session"));
  link_->Retranslate();
}

void SessionBar::Allow(const Allowed& allowed) {
  read_->setEnabled(allowed.read);
  write_->setEnabled(allowed.write);
  cancel_->setEnabled(allowed.cancel);
  write_->setToolTip(allowed.whyNot.isEmpty() ? Words::tr("Write the configuration to the logger")
                                              : allowed.whyNot);
}

}  // namespace ostrel
