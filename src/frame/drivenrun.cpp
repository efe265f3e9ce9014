// Queued answers, recorded questions.
#include "frame/drivenrun.h"

namespace brindlex {

namespace {

template <class Item>
std::optional<Item> Next(std::deque<Item>& queue) {
    if (queue.empty()) {
        return std::nullopt;
    }
    Item item = std::move(queue.front());
    queue.pop_front();
    return item;
}

}  // namespace

Answer DrivenRun::AnswerBox(const MessageBox& box) {
    Boxes.push_back(box);
    return Next(Answers).value_or(box.DefaultAnswer());
}

std::string DrivenRun::AnswerInput() {
    return Next(Inputs).value_or(std::string());
}

std::optional<std::string> DrivenRun::AnswerFile(const DialogRequest& request) {
    Dialogs.push_back(request);
    return Next(Files).value_or(std::nullopt);
}

std::optional<PrinterChoice> DrivenRun::AnswerPrinter(const DialogRequest& request) {
    Dialogs.push_back(request);
    return Next(Printers).value_or(std::nullopt);
}

}  // namespace brindlex
