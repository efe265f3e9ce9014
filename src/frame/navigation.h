// The ways out of a calculator: to another, to the system's calculator, to the about box.
#pragma once

#include <functional>
#include <string>

namespace brindlex {

class Form;
class MenuItem;

/// Choosing the item runs `leave` (the form's settings, where it has any and writes them on this way), hides the form
/// and shows the target. The item is disabled where the program has no such form.
void BindNavigation(MenuItem& item, const std::string& target, std::function<void()> leave = {});
/// Choosing the item starts the system's calculator; the form stays.
void BindCalculator(MenuItem& item);
/// Choosing the item shows the about box.
void BindAbout(MenuItem& item);

}  // namespace brindlex
