// Names by which a screen reader calls the controls of a window: the caption that a person reads beside each.
#pragma once

namespace brindlex {

class FormWindow;

/// Gives every control that has no caption of its own the name of the label to its left or above it.
void NameForReaders(FormWindow& window);

}  // namespace brindlex
