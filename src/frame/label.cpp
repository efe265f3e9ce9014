// Labels and frames.
#include "frame/label.h"

#include "frame/fontwidths.h"

namespace brindlex {

Label::Label(ControlContainer& container, std::string name, const Place& place, std::string caption)
    : Control(container, std::move(name), place), caption_(std::move(caption)) {
}

void Label::Caption(const std::string& value) {
    if (value != caption_) {
        caption_ = value;
        FitWidth();
        Changed(Aspect::Caption);
    }
}

void Label::AutoSize(bool value) {
    autoSize_ = value;
    FitWidth();
}

void Label::FontChanged() {
    FitWidth();
}

void Label::FitWidth() {
    if (autoSize_) {
        // Widths are whole pixels, as on any screen.
        const double twips = TextWidth(caption_, FontSize(), FontBold());
        Width(PlaceWidthFromTwips(twips));
    }
}

void Label::KeepDesign() {
    Control::KeepDesign();
    designCaption_ = caption_;
}

void Label::ResetToDesign() {
    Control::ResetToDesign();
    caption_ = designCaption_;
}

Frame::Frame(ControlContainer& container, std::string name, const Place& place, std::string caption)
    : Control(container, std::move(name), place), caption_(std::move(caption)) {
}

void Frame::Caption(const std::string& value) {
    if (value != caption_) {
        caption_ = value;
        Changed(Aspect::Caption);
    }
}

void Frame::KeepDesign() {
    Control::KeepDesign();
    designCaption_ = caption_;
}

void Frame::ResetToDesign() {
    Control::ResetToDesign();
    caption_ = designCaption_;
}

}  // namespace brindlex
