// The life of a form, its window and its lists of controls.
#include "frame/form.h"

#include "frame/picturebox.h"
#include "frame/program.h"

#include <algorithm>
#include <utility>

namespace brindlex {

namespace {

// What a window adds to its inside, in twips: borders, title bar, menu bar.
constexpr double BorderWidth = 120;
constexpr double TitleHeight = 405;
constexpr double MenuHeight = 285;
constexpr int SmallScreen = 600;
constexpr int InchScale = 5;

}  // namespace

Dispatcher& DispatcherOf(Form& form) {
    return form.Owner();
}

Form::Form(Program& program, std::string name, double innerWidth, double innerHeight)
    : program_(program), name_(std::move(name)) {
    state_.innerWidth = innerWidth;
    state_.innerHeight = innerHeight;
}

void Form::FireSelf(const char* what, const std::function<void()>& handler) {
    program_.Run(name_, what, handler);
}

void Form::KeepDesign() {
    design_ = state_;
    designTabOrder_ = tabOrder_;
    designDefault_ = defaultButton_;
    designChildren_ = children_;
    for (Control* const control : controls_) {
        control->KeepDesign();
        if (auto* const container = dynamic_cast<ControlContainer*>(control)) {
            container->designChildren_ = container->children_;
        }
    }
    for (MenuItem* const item : items_) {
        item->design_ = item->state_;
    }
}

void Form::ResetToDesign() {
    state_ = design_;
    tabOrder_ = designTabOrder_;
    defaultButton_ = designDefault_;
    children_ = designChildren_;
    focus_ = nullptr;
    resized_ = false;
    for (Control* const control : controls_) {
        control->ResetToDesign();
        if (auto* const container = dynamic_cast<ControlContainer*>(control)) {
            container->children_ = container->designChildren_;
        }
    }
    for (MenuItem* const item : items_) {
        item->state_ = item->design_;
    }
}

void Form::Load() {
    if (loaded_) {
        return;
    }
    ResetToDesign();
    loaded_ = true;
    program_.NoteLoaded(*this);
    FireSelf("Initialize", [this] { Form_Initialize(); });
    FireSelf("Load", [this] { Form_Load(); });
}

void Form::Unload() {
    if (!loaded_ || unloading_) {
        return;
    }
    unloading_ = true;
    try {
        FireSelf("Unload", [this] { Form_Unload(); });
    } catch (...) {
        unloading_ = false;
        throw;
    }
    visible_ = false;
    for (Form* const dialog : std::vector<Form*>(program_.Forms())) {
        if (dialog->DialogOf() == name_) {
            dialog->Unload();
        }
    }
    program_.Platform().LetGo(*this);
    focus_ = nullptr;
    loaded_ = false;
    unloading_ = false;
    program_.NoteUnloaded(*this);
}

void Form::Show() {
    Load();
    if (visible_ || unloading_ || program_.Ended()) {
        return;
    }
    visible_ = true;
    program_.Platform().ShowForm(*this);
    if (!std::exchange(resized_, true)) {
        FireSelf("Resize", [this] { Form_Resize(); });
    }
    if (focus_ == nullptr || !CanTakeFocus(*focus_)) {
        focus_ = FirstInTabOrder();
    }
    if (focus_ != nullptr) {
        program_.Platform().ControlChanged(*focus_, Aspect::Focus);
        focus_->Fire(focus_->GotFocus, "GotFocus");
    }
    FirePaints();
}

void Form::FirePaints() {
    if (std::exchange(painting_, true)) {
        return;
    }
    for (Control* const control : controls_) {
        if (auto* const picture = dynamic_cast<PictureBox*>(control); picture != nullptr && picture->IsShown()) {
            picture->Fire(picture->Paint, "Paint");
        }
    }
    painting_ = false;
}

void Form::ShowModal() {
    Show();
    if (visible_) {
        program_.RunModal(*this);
    }
}

void Form::Hide() {
    if (visible_) {
        visible_ = false;
        program_.Platform().HideForm(*this);
    }
}

void Form::Refresh() {
    if (visible_) {
        program_.Platform().Refresh(*this);
    }
}

void Form::GoTo(std::string_view form) {
    Hide();
    program_.Get(form).Show();
}

void Form::Caption(const std::string& value) {
    if (value != state_.caption) {
        state_.caption = value;
        program_.Platform().FormChanged(*this);
    }
}

double Form::Chrome() const {
    return BorderWidth + TitleHeight + (menus_.empty() ? 0 : MenuHeight);
}

double Form::Width() const {
    return state_.innerWidth + BorderWidth;
}

double Form::Height() const {
    return state_.innerHeight + Chrome();
}

void Form::Left(double value) {
    MoveByPerson(value, state_.top);
    program_.Platform().FormChanged(*this);
}

void Form::Top(double value) {
    MoveByPerson(state_.left, value);
    program_.Platform().FormChanged(*this);
}

void Form::Width(double value) {
    SetInner(value - BorderWidth, state_.innerHeight);
}

void Form::Height(double value) {
    SetInner(state_.innerWidth, value - Chrome());
}

void Form::SetInner(double innerWidth, double innerHeight) {
    if (innerWidth == state_.innerWidth && innerHeight == state_.innerHeight) {
        return;
    }
    ResizeByPerson(innerWidth, innerHeight);
    program_.Platform().FormChanged(*this);
}

void Form::ScaleMode(int mode) {
    twipsPerUnit_ = mode == InchScale ? TwipsPerInch : 1;
}

void Form::PlaceOnScreen() {
    if (program_.Shared().ScreenH < SmallScreen) {
        Left(0);
        Top(0);
        return;
    }
    const Size screen = program_.Screen();
    Left((screen.Width - Width()) / 2);
    Top((screen.Height - Height()) / 2);
}

void Form::PopupMenu(MenuItem& menu) {
    OpenMenuByPerson(menu);
    program_.Platform().PopupMenu(*this, menu);
}

Control* Form::FindControl(std::string_view name) const {
    const auto found =
        std::find_if(controls_.begin(), controls_.end(), [&](const Control* c) { return c->Name() == name; });
    return found == controls_.end() ? nullptr : *found;
}

MenuItem* Form::FindMenu(std::string_view name) const {
    const auto found = std::find_if(items_.begin(), items_.end(), [&](const MenuItem* m) { return m->Name() == name; });
    return found == items_.end() ? nullptr : *found;
}

void Form::DefaultButton(CommandButton* button) {
    defaultButton_ = button;
}

void Form::Adopt(MenuItem& item, bool onBar) {
    items_.push_back(&item);
    if (onBar) {
        menus_.push_back(&item);
    }
}

void Form::Tell(Control& control, Aspect aspect) {
    if (loaded_) {
        program_.Platform().ControlChanged(control, aspect);
    }
}

void Form::Tell(MenuItem& item) {
    if (loaded_) {
        program_.Platform().MenuChanged(item);
    }
}

int Form::TabIndexOf(const Control& control) const {
    const auto found = std::find(tabOrder_.begin(), tabOrder_.end(), &control);
    return static_cast<int>(found - tabOrder_.begin());
}

void Form::MoveInTabOrder(Control& control, int index) {
    std::erase(tabOrder_, &control);
    const int last = static_cast<int>(tabOrder_.size());
    tabOrder_.insert(tabOrder_.begin() + std::clamp(index, 0, last), &control);
}

Place Form::ToTwips(const Place& place) const {
    return {place.Left * twipsPerUnit_, place.Top * twipsPerUnit_, place.Width * twipsPerUnit_,
            place.Height * twipsPerUnit_};
}

}  // namespace brindlex
