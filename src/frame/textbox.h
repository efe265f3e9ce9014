// A box with a line of text, or with several where its design says so.
#pragma once

#include "frame/editcontrol.h"

namespace brindlex {

class TextBox : public EditControl {
public:
    TextBox(ControlContainer& container, std::string name, const Place& place, std::string text = {});

    using EditControl::Text;
    /// Setting a text to what it is fires nothing; any other fires Change. The caret goes to the start.
    void Text(const std::string& value);

    /// Part of the design: several lines, with scroll bars where the text needs them.
    [[nodiscard]] bool MultiLine() const override { return multiLine_; }
    void MultiLine(bool value) { multiLine_ = value; }
    /// Part of the design: figures stand at the right.
    [[nodiscard]] bool RightAligned() const { return rightAligned_; }
    void RightAligned(bool value) { rightAligned_ = value; }

private:
    bool multiLine_ = false;
    bool rightAligned_ = false;
};

}  // namespace brindlex
