// What a screen reader is told of the controls: names, descriptions, and the roles and values of painted labels.
#pragma once

#include "platform/forms/placed.h"

namespace zv::forms {

class Label;

/// Gives each control of a form that has none a name and a description. The name is its own words; else the caption to
/// the left of it in its row, or above it; else its tip. A picture goes by its tip first, then, like a bar, also by the
/// caption below it. Of several boxes in a row behind one caption the later ones add their tip to it, or their number;
/// a caption that stands more than once follows the name of the box before it. The description is the tip, else the
/// name, and follows the tip when that changes.
void nameControls(const std::vector<Placed*>& controls);

/// The name that a control goes by: the one it was given, else its own words.
QString spokenName(const QWidget& widget);

/// Whether the words of a label are a value, which goes by another name.
bool showsValue(const Label& label);

/// Gives the control its tip, or else its name, as description.
void describe(Placed& control);

/// Lets assistive tools see labels with their values, label-buttons as buttons, and pictures, to be pressed where the
/// mouse can press them. Done once for the process, however often it is called.
void installSpokenLabels();

} // namespace zv::forms
