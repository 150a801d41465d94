#pragma once

#include <QImage>
#include <QString>

namespace Orders {

class SheetWindow;

/// Plays a user who is in the middle of an edit, in one of the first rows and the first column with an editor, with so
/// much typed behind what is there; and draws the window as it then is.
QImage PictureOfAnEdit(SheetWindow& window, const QString& typed = {});

} // namespace Orders
