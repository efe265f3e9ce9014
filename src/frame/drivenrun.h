// What a driven run is told beforehand and what it tells afterwards: the queued answers to boxes and dialogs, and the
// record of all that reached the world. A runtime that drives itself, or is driven, reads and fills one of these.
#pragma once

#include "frame/runtime.h"

#include <array>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace brindlex {

struct WindowRegion {
    std::string Form;
    int Left = 0;
    int Top = 0;
    int Right = 0;
    int Bottom = 0;
};

struct DrivenRun {
    // Queued; without an entry a box gets its default button, an input box and a dialog Cancel.
    std::deque<Answer> Answers;
    std::deque<std::string> Inputs;
    std::deque<std::optional<std::string>> Files;  ///< nothing is Cancel
    std::deque<std::optional<PrinterChoice>> Printers;

    // Recorded.
    std::vector<MessageBox> Boxes;
    std::vector<DialogRequest> Dialogs;
    int Beeps = 0;
    std::string Popup;
    std::vector<std::string> Started;
    std::vector<PrintedDocument> Printed;
    std::vector<std::array<std::string, 3>> Toolbars;
    std::vector<WindowRegion> Regions;

    /// Called by the runtime's RunModal: runs the next commands until the form is not visible or the run is over.
    std::function<void(Form&)> ModalLoop;

    // What both runtimes do alike with the queues.

    /// Records the box and takes the next queued answer, or the default one.
    Answer AnswerBox(const MessageBox& box);
    std::string AnswerInput();
    std::optional<std::string> AnswerFile(const DialogRequest& request);
    std::optional<PrinterChoice> AnswerPrinter(const DialogRequest& request);
};

}  // namespace brindlex
