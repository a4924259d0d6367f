#include "qt/windows.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace qt {

namespace {

struct Layout {
    std::string_view form;
    void (*build)(FormWindow&);
};
constexpr std::array layouts{
    Layout{"einstellung1b", layoutEinstellung}, Layout{"grd_einst", layoutGrdEinst},
    Layout{"einstellung1", layoutEinstellung},  Layout{"arbeitsblatt1", layoutBestimmen},
    Layout{"arbeitsblatt1b", layoutBestimmen},  Layout{"arbeitsblatt4", layoutSchreiben},
    Layout{"arbeitsblatt4b", layoutSchreiben},  Layout{"testergebnis", layoutTestergebnis},
    Layout{"frmMessage", layoutFrmMessage},     Layout{"frmSave", layoutFrmSave},
    Layout{"frmLoad", layoutFrmLoad},
};

}  // namespace

Windows::Windows(form::Forms& forms) {
    made_ = forms.made.connect([this](form::Form& form) {
        const auto* layout =
            std::ranges::find(layouts, std::string_view(form.name()), &Layout::form);
        if (layout == layouts.end()) return;
        auto window = std::unique_ptr<FormWindow, Later>(new FormWindow(form, middle_));
        layout->build(*window);
        windows_[&form] = std::move(window);
    });
    // A window may go inside one of its own events: the toolkit takes it away afterwards, but what
    // ties it to the form must end now.
    gone_ = forms.gone.connect([this](form::Form& form) { windows_.erase(&form); });
}

Windows::~Windows() {
    for (auto& [form, window] : windows_) delete window.release();
}

FormWindow* Windows::of(const form::Form& form) const {
    const auto it = windows_.find(&form);
    return it == windows_.end() ? nullptr : it->second.get();
}

}  // namespace qt
