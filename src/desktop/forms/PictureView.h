#pragma once

#include <QWidget>

#include "desktop/forms/Binder.h"

namespace ostrel {

/// Makes the view of a picture control: the jumpers of a logger's board, the picture of
/// a file, or the sign of a warning.
Bound MakePictureView(Picture& picture, QWidget* parent);

}  // namespace ostrel
