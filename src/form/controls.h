#pragma once
#include "base/runtime_error.h"
#include "form/control.h"
#include "form/signal.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace form {

class Label : public Control {
  public:
    Label(Form& form, Place place) : Control(form, Kind::Label, std::move(place)) {}
};

/// A frame that holds other controls; disabling or hiding it does so to them.
class Group : public Control {
  public:
    Group(Form& form, Place place) : Control(form, Kind::Group, std::move(place)) {}
    /// The user asks for a menu: the right mouse button, or the menu key inside.
    void context();
    Handler onContext;
};

class Button : public Control {
  public:
    Button(Form& form, Place place) : Control(form, Kind::Button, std::move(place)) {}
    /// A user's press; ignored while the button cannot be reached.
    void click();
    Handler onClick;
};

/// A menu that opens where the user points; its entries are the controls that it holds.
class Menu : public Control {
  public:
    Menu(Form& form, Place place) : Control(form, Kind::Menu, std::move(place)) {}
    void open() { opened(); }
    Signal<> opened;
};

/// An entry that carries a check mark. Choosing it runs the handler and leaves the mark alone.
class MenuEntry : public Control {
  public:
    MenuEntry(Form& form, Place place) : Control(form, Kind::MenuEntry, std::move(place)) {}
    void click();
    Property<bool> checked{*this, Aspect::Value, false};
    Handler onClick;
};

/// A picture or area; a click may have a meaning. `picture` is a number that the views know how to
/// draw, -1 for nothing.
class Picture : public Control {
  public:
    Picture(Form& form, Place place) : Control(form, Kind::Picture, std::move(place)) {}
    void click();
    Property<int> picture{*this, Aspect::Picture, -1};
    Handler onClick;
};

/// What has become of an answer.
enum class Verdict { None, Right, Wrong };

/// Steps that follow each other at the clock's pace; none: nothing moves.
struct Flow {
    int steps = 0;
    int milliseconds = 0;  ///< from one step to the next
    friend bool operator==(const Flow&, const Flow&) = default;
};

/// A panel; with `floodPercent` a bar, with a handler a button, with a `flow` a mark that moves.
class Panel : public Control {
  public:
    Panel(Form& form, Place place) : Control(form, Kind::Panel, std::move(place)) {}
    void click();
    /// 0..100.
    Property<int> floodPercent{*this, Aspect::Value, 0};
    Property<Flow> flow{*this, Aspect::Value, {}};
    /// Of an answer that the panel stands for; views show a sign.
    Property<Verdict> verdict{*this, Aspect::Value, Verdict::None};
    Handler onClick;
};

/// One of a group: choosing it unchooses the options of the same name. Every choice is stored, also
/// of what is chosen already; the handler runs when the option becomes chosen.
class Option : public Control {
  public:
    Option(Form& form, Place place) : Control(form, Kind::Option, std::move(place)) {}
    bool value() const { return value_; }
    /// From code.
    void choose();
    /// From the user; ignored while the option cannot be reached.
    void click();
    /// Keeps the choice.
    std::function<void()> store;
    Handler onClick;

  private:
    void take();
    bool value_ = false;
};

/// A list of texts, each with a number of its own.
class ItemList : public Control {
  public:
    struct Item {
        std::string text;  ///< what records and files say
        int data = 0;
        std::string shown = {};  ///< what views say in its place; "" for the text itself

        const std::string& caption() const { return shown.empty() ? text : shown; }
    };

    int count() const { return static_cast<int>(items_.size()); }
    /// @throws run-time error 9 outside 0..count()-1.
    const Item& item(int i) const;
    const std::vector<Item>& items() const { return items_; }
    void add(Item item);
    void add(std::string text, int data = 0) { add(Item{std::move(text), data}); }
    void insert(int i, Item item);
    void remove(int i);
    void setText(int i, std::string text);
    void clear();
    /// Takes these items in place of its own.
    void setItems(std::vector<Item> items);

  protected:
    using Control::Control;
    void check(int i) const;

    std::vector<Item> items_;
    int listIndex_ = -1;
};

/// Choosing an item, from code or by the user, runs the handler, also when it was chosen already.
/// Choosing none does not: what was chosen last stays stored.
class Combo : public ItemList {
  public:
    Combo(Form& form, Place place) : ItemList(form, Kind::Combo, std::move(place)) {}
    /// -1 while nothing is chosen.
    int listIndex() const { return listIndex_; }
    /// @throws run-time error 9 outside -1..count()-1.
    void setListIndex(int i);
    /// The text of the chosen item, "" without one.
    std::string text() const;
    /// Items that views offer once more above all others. The list stays as it is afterwards.
    /// @throws run-time error 9 for one outside 0..count()-1.
    void setOnTop(std::vector<int> items);
    const std::vector<int>& onTop() const { return onTop_; }
    /// What views say behind each item, of all or of none.
    void setNotes(std::vector<std::string> notes);
    /// An item as views say it.
    std::string shown(int i) const;
    Handler onSelect;

  private:
    std::vector<int> onTop_;
    std::vector<std::string> notes_;
};

/// A click on an item, from code or by the user, runs the handler, which finds it in `clicked`.
class ListBox : public ItemList {
  public:
    ListBox(Form& form, Place place) : ItemList(form, Kind::ListBox, std::move(place)) {}
    void click(int i);
    int clicked() const { return listIndex_; }
    Handler onClick;
};

/// Setting the value, from code or by the user, runs the handler.
class Slider : public Control {
  public:
    Slider(Form& form, Place place, int minimum, int maximum)
        : Control(form, Kind::Slider, std::move(place)), minimum_(minimum), maximum_(maximum) {}
    int minimum() const { return minimum_; }
    int maximum() const { return maximum_; }
    int value() const { return value_; }
    /// Clamped to the slider's range.
    void setValue(int value);
    Handler onChange;

  private:
    int minimum_, maximum_, value_ = 0;
};

class TextBox : public Control {
  public:
    /// A page is only read, rich text is a page of HTML; a line is written by the user.
    enum class Size { Page, Line, Rich };
    TextBox(Form& form, Place place, Size size = Size::Page)
        : Control(form, Kind::TextBox, std::move(place)), size_(size) {}
    Size size() const { return size_; }
    Property<std::string> text{*this, Aspect::Value, {}};

  private:
    Size size_;
};

/// Runs its handler every `interval` milliseconds while it is enabled; a handler that disables it
/// first makes it one-shot.
class Timer : public Control {
  public:
    Timer(Form& form, Place place, int interval);
    int interval() const { return interval_; }
    /// Milliseconds, above 0. A running timer starts anew.
    void setInterval(int milliseconds);
    void start();
    void stop() { next_.reset(); }
    bool running() const { return next_.has_value(); }
    Handler onTick;

  private:
    void await();

    int interval_;
    std::optional<Connection> next_;  ///< the next tick, while it runs
};

/// An array of like controls with one name and any indices.
template <class C>
class ControlArray {
  public:
    template <class... Args>
    ControlArray(Form& form, const std::string& name, const std::vector<int>& indices,
                 Control* container = nullptr, Args&&... args) {
        for (const int i : indices) add(form, name, i, container, args...);
    }
    /// Indices 0..count-1.
    template <class... Args>
    ControlArray(Form& form, const std::string& name, int count, Control* container = nullptr,
                 Args&&... args) {
        for (int i = 0; i < count; ++i) add(form, name, i, container, args...);
    }
    /// @throws run-time error 9 for an index that the array has not.
    C& operator()(int index) const {
        if (index < 0 || index >= static_cast<int>(at_.size()) ||
            !at_[static_cast<std::size_t>(index)])
            base::throwSubscript();
        return *at_[static_cast<std::size_t>(index)];
    }
    auto begin() const { return Iterator{held_.begin()}; }
    auto end() const { return Iterator{held_.end()}; }

  private:
    struct Iterator {
        typename std::vector<std::unique_ptr<C>>::const_iterator at;
        C& operator*() const { return **at; }
        Iterator& operator++() {
            ++at;
            return *this;
        }
        bool operator!=(const Iterator& o) const { return at != o.at; }
    };
    template <class... Args>
    void add(Form& form, const std::string& name, int index, Control* container, Args&&... args) {
        held_.push_back(std::make_unique<C>(form, Place{name, index, container}, args...));
        const auto i = static_cast<std::size_t>(index);
        if (at_.size() <= i) at_.resize(i + 1);
        at_[i] = held_.back().get();
    }
    std::vector<std::unique_ptr<C>> held_;
    std::vector<C*> at_;
};

}  // namespace form
