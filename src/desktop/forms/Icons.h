#pragma once

#include <QIcon>
#include <QPixmap>
#include <QRect>

#include "platform/Dialogs.h"

class QPainter;
class QPalette;

namespace ostrel {

/// The signs of the tool bar.
enum class Sign {
  Read,
  Write,
  Cancel,
  Open,
  Save,
  SaveAs,
  Recent,
  Copies,
  Undo,
  Redo,
  Compare,
  Channels,
  Schedule,
  Report,
  Doctor,
  Live,
  History,
  Trace,
  Findings,
  More,
  Language
};

/// A sign drawn in the colours of a palette, sharp at any scale.
QIcon MakeIcon(Sign sign, const QPalette& palette);

/// The program's own icon.
QIcon ProgramIcon();

/// The picture of a message box; empty for a box without.
QPixmap BoxPicture(BoxIcon icon);

/// A triangle with an exclamation mark.
void DrawWarningSign(QPainter& painter, const QRect& where);

}  // namespace ostrel
