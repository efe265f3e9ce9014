// A text that stands on a form, and the frame that groups controls.
#pragma once

#include "frame/control.h"

#include <string>

namespace brindlex {

class Label : public Control {
public:
    Label(ControlContainer& container, std::string name, const Place& place, std::string caption = {});

    [[nodiscard]] const std::string& Caption() const { return caption_; }
    void Caption(const std::string& value);

    /// Part of the design: the label takes the width of its caption, by the table of character widths.
    [[nodiscard]] bool AutoSize() const { return autoSize_; }
    void AutoSize(bool value);
    /// Part of the design.
    enum class Alignment { Left, Right, Center };
    [[nodiscard]] Alignment Align() const { return align_; }
    void Align(Alignment value) { align_ = value; }
    /// Part of the design: a label on a picture may let it shine through.
    [[nodiscard]] bool Transparent() const { return transparent_; }
    void Transparent(bool value) { transparent_ = value; }

protected:
    void KeepDesign() override;
    void ResetToDesign() override;
    void FontChanged() override;

private:
    void FitWidth();

    std::string caption_;
    std::string designCaption_;
    Alignment align_ = Alignment::Left;
    bool autoSize_ = false;
    bool transparent_ = false;
};

/// A titled box around controls. Disabled or hidden, it takes what it contains with it. Its scale is twips.
class Frame : public Control, public ControlContainer {
public:
    Frame(ControlContainer& container, std::string name, const Place& place, std::string caption = {});

    [[nodiscard]] const std::string& Caption() const { return caption_; }
    void Caption(const std::string& value);

    [[nodiscard]] Form& ContainerForm() override { return Parent(); }
    [[nodiscard]] Control* ContainerControl() override { return this; }
    [[nodiscard]] Place ToTwips(const Place& place) const override { return place; }

protected:
    void KeepDesign() override;
    void ResetToDesign() override;

private:
    std::string caption_;
    std::string designCaption_;
};

}  // namespace brindlex
