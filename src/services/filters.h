// Key filters of the boxes that hold numbers: seven families, one table of members over all forms.
// A filter works on one key before it reaches the box and swallows it by setting it to 0.
#pragma once

namespace brindlex {

class Form;

/// Binds the KeyPress of every box and combo of the form that is a member of a family. Called once, by the form's
/// constructor, after its controls are there; rows that name a control which the form does not have are an error.
void BindFilters(Form& form);

}  // namespace brindlex
