#include "forms/user.h"

#include "form/controls.h"
#include "staff/note_entry.h"

#include <array>
#include <utility>

namespace soak {

namespace {

constexpr int deepest = 10;

/// How often a control is used, in place of the usual once.
struct Liking {
    const char* name;
    int weight;
};
constexpr int usual = 4;
constexpr std::array likings{
    Liking{"cmdOK", 24},          Liking{"CmdNextAufg", 40}, Liking{"zurueck", 1},
    Liking{"cmdZurueck", 1},      Liking{"ueb_typ", 16},     Liking{"cmdEnde", 1},
    Liking{"cmdHilfe", 1},        Liking{"ska_ausw", 6},     Liking{"lst_ska", 30},
    Liking{"training_Combo", 12}, Liking{"cmdPrint", 2},     Liking{"tonart", 12},
    Liking{"ton_art", 12},        Liking{"klang_contr", 8},
};

int weight(const form::Control& control) {
    const auto liking = std::ranges::find(likings, control.name(), &Liking::name);
    return liking == likings.end() ? usual : liking->weight;
}

/// It leads away from a form, which would happen too often where little else can be used.
bool leads(const form::Control& control) {
    constexpr std::array names{"zurueck", "cmdZurueck", "cmdEnde"};
    return std::ranges::find(names, control.name()) != names.end();
}

/// A user can do something with it.
bool answers(const form::Control& control) {
    if (!control.usable()) return false;
    switch (control.kind()) {
        case form::Kind::Button:
        case form::Kind::Option:
        case form::Kind::Slider:
        case form::Kind::MenuEntry:
            return true;
        case form::Kind::Combo:
        case form::Kind::ListBox:
            return static_cast<const form::ItemList&>(control).count() > 0;
        case form::Kind::Panel:
            return bool(static_cast<const form::Panel&>(control).onClick.run);
        case form::Kind::Picture:
            return bool(static_cast<const form::Picture&>(control).onClick.run);
        case form::Kind::Group:
            return bool(static_cast<const form::Group&>(control).onContext.run);
        case form::Kind::TextBox:
            return static_cast<const form::TextBox&>(control).size() == form::TextBox::Size::Line;
        default:
            return false;
    }
}

std::string learnerKind(base::Rnd& chance) {
    constexpr std::array kinds{"perfect",  "wrong",      "random:0.5", "random:0.9",
                               "slow:4.5", "enharmonic", "confuse:0:1"};
    return kinds.at(static_cast<std::size_t>(int(chance.below(int(kinds.size())))));
}

}  // namespace

User::User(drill::Drill& drill, form::VirtualTime& loop, Answers& answers, Watch& watch,
           base::Rnd& chance, Tally& tally)
    : drill_(drill), loop_(loop), answers_(answers), watch_(watch), chance_(chance), tally_(tally) {
    form::Forms& forms = drill.programm.forms;
    made_ = forms.made.connect([this](form::Form& form) {
        if (auto* sheet = dynamic_cast<worksheets::Worksheet*>(&form)) seat(*sheet);
        if (form.name() != "testergebnis") return;
        boxesBelow_ = answers_.open();
        if (pupil_) pupil_->readResult(form, [] {});
    });
    gone_ = forms.gone.connect([this](form::Form& form) {
        if (form.name() == "testergebnis") boxesBelow_ = 0;
        if (&form != sheet_ && form.name() != "testergebnis") return;
        standUp();
        if (&form == sheet_) sheet_ = nullptr;
    });
    plan();
}

void User::seat(worksheets::Worksheet& sheet) {
    sheet_ = &sheet;
    turns_ = sheet.turn.connect([this](worksheets::Worksheet::Turn now) { turn(now); });
}

void User::turn(worksheets::Worksheet::Turn turn) {
    using enum worksheets::Worksheet::Turn;
    if (turn == RunReady && !leaving_ && oncePer(chance_, 2)) {
        learners_.push_back(std::make_unique<sim::Learner>(learnerKind(chance_)));
        pupils_.push_back(
            std::make_unique<sim::Pupil>(loop_, *learners_.back(), chance_.below(1 << 20)));
        pupil_ = pupils_.back().get();
        pupil_->begin(*sheet_, oncePer(chance_, 2) ? chance_.upTo(12) : 1 << 20);
        ++tally_.reached["learners"];
        tally_.note("a learner sits down");
    }
    if (!pupil_) return;
    pupil_->notice(turn);
    if (turn == Closed && oncePer(chance_, 25)) standUp();
}

void User::standUp() {
    if (!pupil_) return;
    pupil_->rest();
    pupil_ = nullptr;
    tally_.note("the learner goes");
}

void User::plan() {
    const int kind = chance_.below(40);
    const int pause = kind < 8    ? 1
                      : kind < 30 ? chance_.below(400)
                      : kind < 38 ? chance_.below(3000)
                      : kind < 39 ? chance_.below(20000)
                                  : chance_.below(120000);
    hand_ = loop_.after(impatient_.empty() ? pause : chance_.upTo(200), [this] { act(); });
}

/// The form that the user has in front: one that is modal, or any that can be seen.
form::Form* User::before() {
    form::Forms& forms = drill_.programm.forms;
    for (const char* name : {"frmMessage", "frmSave", "frmLoad", "testergebnis"})
        if (form::Form* form = forms.loaded(name); form && form->visible()) return form;
    std::vector<form::Form*> seen;
    for (const char* name : {"grd_einst", "einstellung1", "einstellung1b", "arbeitsblatt1",
                             "arbeitsblatt1b", "arbeitsblatt4", "arbeitsblatt4b"})
        if (form::Form* form = forms.loaded(name); form && form->visible()) seen.push_back(form);
    if (seen.empty()) return nullptr;
    return seen[static_cast<std::size_t>(int(chance_.below(static_cast<int>(seen.size()))))];
}

void User::act() {
    plan();
    if (!tally_.broken.empty() || answers_.open() > boxesBelow_ || depth_ >= deepest) return;
    watch_.look();
    if (watch_.ended()) return;
    form::Form* const form = before();
    if (!form) return;
    ++depth_;
    ++done_;
    ++tally_.actions;
    try {
        if (leaving_) {
            standUp();
            ++left_;
            close(*form);
        } else {
            use(*form);
        }
    } catch (const std::exception& fault) {
        tally_.law(false, std::string("uncaught: ") + fault.what());
    }
    --depth_;
}

void User::use(form::Form& form) {
    // The close box is pressed once more, while the form is still on its way out.
    if (std::exchange(impatient_, "") == form.name()) return close(form);
    if (oncePer(chance_, 400)) return close(form);
    if (pupil_) {
        // One worksheet cannot be written on by two.
        if (oncePer(chance_, 300)) close(form);
        return;
    }
    if (!form.enabled()) return;
    auto* sheet = dynamic_cast<worksheets::Worksheet*>(&form);
    if (sheet && sheet->run().exercise().isWritten()) {
        const int way = chance_.below(10);
        if (way < 4) return drag(*sheet);
        if (way < 6) return writeByKey(*sheet);
    }
    if (oncePer(chance_, 12)) return key(form);
    std::vector<form::Control*> all;
    int sum = 0;
    for (form::Control* one : form.controls())
        if (answers(*one)) {
            all.push_back(one);
            sum += weight(*one);
        }
    if (all.empty()) return;
    int at = chance_.below(sum);
    for (form::Control* one : all)
        if ((at -= weight(*one)) < 0) return control(form, *one);
}

void User::control(form::Form& form, form::Control& control) {
    const auto any = [&](int count) { return int(chance_.below(count)); };
    if (leads(control) && !oncePer(chance_, 20)) return;
    std::string doing = form.name() + "." + control.id();
    switch (control.kind()) {
        case form::Kind::Button:
            tally_.note(doing);
            return static_cast<form::Button&>(control).click();
        case form::Kind::Option:
            tally_.note(doing);
            return static_cast<form::Option&>(control).click();
        case form::Kind::MenuEntry:
            tally_.note(doing);
            return static_cast<form::MenuEntry&>(control).click();
        case form::Kind::Panel:
            tally_.note(doing);
            return static_cast<form::Panel&>(control).click();
        case form::Kind::Picture:
            tally_.note(doing);
            return static_cast<form::Picture&>(control).click();
        case form::Kind::Group:
            tally_.note(doing + " menu");
            return static_cast<form::Group&>(control).context();
        case form::Kind::Slider: {
            auto& slider = static_cast<form::Slider&>(control);
            return slider.setValue(slider.minimum() + any(slider.maximum() - slider.minimum() + 1));
        }
        case form::Kind::Combo: {
            auto& combo = static_cast<form::Combo&>(control);
            const int item = any(combo.count());
            tally_.note(doing + " = " + std::to_string(item));
            return combo.setListIndex(item);
        }
        case form::Kind::ListBox: {
            auto& list = static_cast<form::ListBox&>(control);
            const int item = any(list.count());
            tally_.note(doing + " = " + std::to_string(item));
            return list.click(item);
        }
        case form::Kind::TextBox:
            tally_.note(doing + " written");
            static_cast<form::TextBox&>(control).text =
                control.index() == 0 ? answers_.path() : "<ä \"&\">";
            return;
        default:
            return;
    }
}

/// An accidental is carried over the staff, and dropped somewhere: while it is carried, time
/// passes.
void User::drag(worksheets::Worksheet& sheet) {
    const form::Control* field =
        sheet.find(staff::source::control, chance_.below(staff::source::count));
    if (!field->usable()) return;
    staff::Staff& staff = *sheet.staff();
    staff::Canvas& target = staff.PicB(staff.SchlZ());
    const std::string name = sheet.name();
    const auto there = [&] {
        return drill_.programm.forms.loaded(name) == &sheet && target.usable() && field->usable();
    };
    const bool aims = !oncePer(chance_, 4);
    const auto place = [&] {
        const int width = target.bounds().width, height = target.bounds().height;
        float x = static_cast<float>(chance_.below(width + 80) - 40);
        float y = static_cast<float>(chance_.below(height + 80) - 40);
        if (aims) {
            const int column = chance_.below(staff.tonAnz());
            x = static_cast<float>(staff.layout().x(column) + chance_.below(30) - 15);
            y = static_cast<float>(int(staff.NotSelb(column).y())) + chance_.R() * 40 - 20;
        }
        return staff::Drag{*field, x, y};
    };
    using enum staff::DragPhase;
    tally_.note("drags " + field->id());
    target.dragOver(place(), Enter);
    for (int i = chance_.below(4); i > 0; --i) {
        loop_.advance(oncePer(chance_, 20) ? chance_.below(15000) : chance_.below(60));
        if (!there()) return;
        target.dragOver(place(), Over);
    }
    if (oncePer(chance_, 6)) return target.dragOver(place(), Leave);
    const auto end = place();
    tally_.reached["drops refused"] += target.wouldRefuse(end) ? 1 : 0;
    ++tally_.reached["drops"];
    target.drop(end);
}

void User::writeByKey(worksheets::Worksheet& sheet) {
    staff::Canvas& holder = sheet.staff()->PicBNot;
    if (!holder.usable()) return;
    constexpr int keys = static_cast<int>(staff::WritingKey::Five) + 1;
    const auto key = static_cast<staff::WritingKey>(int(chance_.below(keys)));
    if (key == staff::WritingKey::Drop && !holder.takesEnter()) return;
    ++tally_.reached["keys on the staff"];
    holder.key(key);
}

void User::key(form::Form& form) {
    constexpr int kinds = static_cast<int>(form::Key::Kind::Help) + 1;
    const form::Key key{static_cast<form::Key::Kind>(int(chance_.below(kinds))),
                        int(chance_.below(10))};
    // Escape would leave too often.
    if (key.kind == form::Key::Kind::Escape && !oncePer(chance_, 6)) return;
    tally_.note(form.name() + " key " + std::to_string(static_cast<int>(key.kind)));
    form.handle({"key.", [&form, key] { form.key(key); }});
}

void User::close(form::Form& form) {
    tally_.note(form.name() + " is closed");
    impatient_ = oncePer(chance_, 2) ? form.name() : std::string();
    if (!impatient_.empty()) plan();
    form.handle({"closeBox.", [&form] { form.closeBox(); }});
}

}  // namespace soak
