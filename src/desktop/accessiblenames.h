// Names by which a screen reader calls the controls of a window: the caption that a person reads beside each.
#pragma once

namespace brindlex {

class Control;
class FormWindow;

/// Gives every control that has no caption of its own the name of the label to its left or above it.
void NameForReaders(FormWindow& window);
/// The same once a caption has changed: only what stands beside it can have another name.
void NameAfterCaption(FormWindow& window, const Control& changed);

}  // namespace brindlex
