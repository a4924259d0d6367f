#include "form/controls.h"

#include "base/runtime_error.h"
#include "form/form.h"
#include "form/message_loop.h"

#include <algorithm>

namespace form {

void Button::click() {
    if (usable()) raise(onClick);
}

void Group::context() { raise(onContext); }

void MenuEntry::click() {
    if (usable()) raise(onClick);
}

void Picture::click() {
    if (usable()) raise(onClick);
}

void Panel::click() {
    if (usable()) raise(onClick);
}

void Option::take() {
    for (Control* c : form().controls()) {
        auto* other =
            c->kind() == Kind::Option && c->name() == name() ? static_cast<Option*>(c) : nullptr;
        if (!other || other == this || !other->value_) continue;
        other->value_ = false;
        other->tell(Aspect::Value);
    }
    if (value_) return;
    value_ = true;
    tell(Aspect::Value);
}

void Option::choose() {
    const bool becomesChosen = !value_;
    take();
    raise({onClick.procedure, [this, becomesChosen] {
               if (store) store();
               if (becomesChosen && onClick.run) onClick.run();
           }});
}

void Option::click() {
    if (usable()) choose();
}

void ItemList::check(int i) const {
    if (i < 0 || i >= count()) base::throwSubscript();
}

const ItemList::Item& ItemList::item(int i) const {
    check(i);
    return items_[static_cast<std::size_t>(i)];
}

void ItemList::add(Item item) { insert(count(), std::move(item)); }

void ItemList::insert(int i, Item item) {
    if (i < 0 || i > count()) base::throwSubscript();
    items_.insert(items_.begin() + i, std::move(item));
    if (listIndex_ >= i) ++listIndex_;
    tell(Aspect::Items);
}

void ItemList::remove(int i) {
    check(i);
    items_.erase(items_.begin() + i);
    if (listIndex_ == i) listIndex_ = -1;
    if (listIndex_ > i) --listIndex_;
    tell(Aspect::Items);
}

void ItemList::setText(int i, std::string text) {
    check(i);
    auto& item = items_[static_cast<std::size_t>(i)];
    if (item.text == text) return;
    item.text = std::move(text);
    tell(Aspect::Items);
}

void ItemList::clear() {
    listIndex_ = -1;
    if (items_.empty()) return;
    items_.clear();
    tell(Aspect::Items);
}

void ItemList::setItems(std::vector<Item> items) {
    listIndex_ = -1;
    items_ = std::move(items);
    tell(Aspect::Items);
}

void Combo::setListIndex(int i) {
    if (i != -1) check(i);
    const bool moved = i != listIndex_;
    listIndex_ = i;
    if (moved) tell(Aspect::Value);
    if (i != -1) raise(onSelect);
}

std::string Combo::text() const { return listIndex_ < 0 ? std::string() : item(listIndex_).text; }

void Combo::setOnTop(std::vector<int> items) {
    for (const int i : items) check(i);
    onTop_ = std::move(items);
    tell(Aspect::Items);
}

void Combo::setNotes(std::vector<std::string> notes) {
    if (notes == notes_) return;
    notes_ = std::move(notes);
    tell(Aspect::Items);
}

std::string Combo::shown(int i) const {
    const auto index = static_cast<std::size_t>(i);
    const std::string& note = index < notes_.size() ? notes_[index] : std::string();
    return item(i).caption() + (note.empty() ? "" : " " + note);
}

void ListBox::click(int i) {
    check(i);
    listIndex_ = i;
    raise(onClick);
}

void Slider::setValue(int value) {
    const int inside = std::clamp(value, minimum_, maximum_);
    const bool moved = inside != value_;
    value_ = inside;
    if (moved) tell(Aspect::Value);
    raise(onChange);
}

Timer::Timer(Form& form, Place place, int interval)
    : Control(form, Kind::Timer, std::move(place)), interval_(interval) {}

void Timer::setInterval(int milliseconds) {
    interval_ = milliseconds;
    if (running()) await();
}

void Timer::start() {
    if (!running()) await();
}

/// The tick after this one is asked for first: the handler may wait, or stop the timer.
void Timer::await() {
    next_ = form().loop().after(interval_, [this] {
        await();
        raise(onTick);
    });
}

}  // namespace form
