#pragma once
#include "form/form.h"
#include "form/signal.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace form {

class MessageLoop;

/// The forms of a program by name: how each is made, and which are loaded, in the order of loading.
/// Forms reach each other through it, so that their classes do not know each other.
class Forms {
  public:
    using Factory = std::function<std::unique_ptr<Form>()>;

    explicit Forms(MessageLoop& loop) : loop_(loop) {}
    ~Forms();

    void add(std::string name, Factory factory) {
        factories_[std::move(name)] = std::move(factory);
    }
    bool knows(const std::string& name) const { return factories_.contains(name); }
    MessageLoop& loop() const { return loop_; }

    /// The form of that name, made and loaded when it was not there.
    /// @throws std::out_of_range for a name that was never added.
    Form& load(const std::string& name);
    /// nullptr when the form is not loaded.
    Form* loaded(const std::string& name) const;
    /// Loads when needed, makes visible and tells the form that it is active.
    void show(const std::string& name);
    /// Loads a form that shows itself when it is ready, and returns when it is hidden or unloaded.
    void runModal(const std::string& name);
    void hide(const std::string& name);
    /// Takes the form out at once; it is destroyed when none of its handlers is running any more.
    void unload(const std::string& name);
    /// Last one first.
    void unloadAll();
    /// The form loaded last, nullptr without any.
    Form* last() const { return loaded_.empty() ? nullptr : loaded_.back().get(); }

    /// A form was made, before its load handler runs: the place to give it a window.
    Signal<Form&> made;
    /// A form has gone from the loaded ones: the place to take its window away.
    Signal<Form&> gone;
    /// The last form has gone: the program ends.
    Signal<> empty;

  private:
    void bury();

    MessageLoop& loop_;
    std::map<std::string, Factory> factories_;
    std::vector<std::unique_ptr<Form>> loaded_;
    std::vector<std::unique_ptr<Form>> unloaded_;
    std::shared_ptr<Forms*> self_ = std::make_shared<Forms*>(this);
};

}  // namespace form
