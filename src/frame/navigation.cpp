// Navigation items.
#include "frame/navigation.h"

#include "frame/form.h"
#include "frame/program.h"

#include <utility>

namespace brindlex {

void BindNavigation(MenuItem& item, const std::string& target, std::function<void()> leave) {
    Form& form = item.Parent();
    item.Enabled(form.Owner().Knows(target));
    item.Click.Bind([&form, target, leave = std::move(leave)] {
        if (leave) {
            leave();
        }
        form.GoTo(target);
    });
}

void BindCalculator(MenuItem& item) {
    item.Click.Bind([&item] { item.Parent().Owner().WinCalc(); });
}

void BindAbout(MenuItem& item) {
    item.Enabled(item.Parent().Owner().Knows("Form7"));
    item.Click.Bind([&item] { item.Parent().Owner().Get("Form7").ShowModal(); });
}

}  // namespace brindlex
