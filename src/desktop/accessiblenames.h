// Names by which a screen reader calls the controls of a window: the caption that a person reads beside each.
#pragma once

namespace brindlex {

class FormWindow;

/// Gives every control that has no caption of its own a name: that of the label to its left or above it, of the letter
/// beside it on a picture, of the options on its line, or of its frame. Says of each picture that its words have
/// changed.
void NameForReaders(FormWindow& window);

}  // namespace brindlex
