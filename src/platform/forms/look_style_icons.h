// Signs of the message boxes.
#pragma once

#include <QIcon>
#include <QStyle>

namespace zv::forms::draw {

/// The sign of a message box at that size in pixels; a null icon for anything else.
QIcon messageIcon(QStyle::StandardPixmap which, int pixels);

} // namespace zv::forms::draw
