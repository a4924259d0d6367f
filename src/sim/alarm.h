#pragma once
#include "form/controls.h"
#include "form/form.h"
#include "form/forms.h"

#include <functional>

namespace sim {

/// Has one thing at a time happen as an event of the loop, whatever becomes of the drill's forms.
class Alarm {
  public:
    explicit Alarm(form::MessageLoop& loop) : forms_(loop), form_(forms_) {}

    /// Lets `call` happen in some milliseconds, in place of what was to happen.
    void in(int milliseconds, std::function<void()> call) {
        form_.in(milliseconds, std::move(call));
    }
    void cancel() { form_.timer.stop(); }

  private:
    /// Timers live on forms.
    struct Clock final : form::Form {
        explicit Clock(form::Forms& forms);
        void in(int milliseconds, std::function<void()> call);
        void closeBox() override {}
        void failed(const std::string&, const std::exception&) override { throw; }
        std::function<void()> call_;
        form::Timer timer{*this, {"alarm"}, 1};
    };
    form::Forms forms_;
    Clock form_;
};

}  // namespace sim
