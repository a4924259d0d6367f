#include "worksheets/note_field.h"

#include "base/whole_file.h"
#include "core/wort.h"
#include "staff/ink.h"
#include "staff/note_name.h"
#include "worksheets/rtf.h"

#include <array>
#include <exception>

namespace worksheets {

namespace wort = core::wort;

namespace {

/// A hint is a page of text.
constexpr std::size_t largestHint = 1 << 18;

}  // namespace

NoteField::NoteField(const FieldPlace& at)
    : AnswerField(at),
      view_(form_, p, at.area),
      palette_(form_, view_.staff.PicBNot),
      entry_(view_.staff),
      keyboard_(view_.staff, entry_, palette_),
      cmdOK(form_, {"cmdOK", &at.area}),
      HinweisMeldung(form_, {"HinweisMeldung", &at.area}, form::TextBox::Size::Rich) {
    palette_.pbNoten.setContainer(at.area);
    view_.staff.PicBNot.inWords = [this] { return inWords(); };
    entry_.dropped = [this] { cmdOK.enabled = true; };
    cmdOK.onClick = {"cmdOK_click.", [this] { cmdOK_click(); }};
    cmdOK.enabled = false;
    if (run_.exercise().sounds()) return;
    Label2 = std::make_unique<form::Label>(form_, form::Place{"Label2", &at.side});
    aufg = std::make_unique<form::Label>(form_, form::Place{"aufg", &at.side});
}

void NoteField::prepare() {
    form_.beschriften({{cmdOK, wort::done}});
    form_.benennen({{HinweisMeldung, wort::hint}});
    constexpr std::array signTexts{wort::doubleFlat, wort::flat, wort::natural, wort::sharp,
                                   wort::doubleSharp};
    for (int i = 0; i < staff::source::count; ++i)
        palette_.NotP(i).accessibleName = p.Wort(base::at(signTexts, i));
    palette_.PaletteMalen();
    view_.prepare(core::katalog::kategorie(z.skal_typ).tonAnz, false);
    loadHint();
    if (!aufg) return;
    form_.beschriften({{*Label2, wort::writeThisScale}});
    aufg->caption = "";
}

void NoteField::loadHint() {
    const std::string& language = p.Wort(wort::languageCode);
    const std::string path = p.aufruf.programmOrdner + "/zepha9/txt_" + language +
                             "/tb05_schreibenSkal_" + language + ".rtf";
    HinweisMeldung.visible = false;
    try {
        HinweisMeldung.text = rtfToHtml(base::readWhole(path, largestHint));
        HinweisMeldung.visible = true;
    } catch (const std::exception&) {
        return;  // without its text there is no hint
    }
}

void NoteField::show(const engine::Task& a) {
    view_.layOut(a, false);
    keyboard_.beginTask();
    for (int c = 0; c < a.tonAnz; ++c)
        view_.staff.NoteSetzen(c, a.shown(a.index(c)), staff::ink::black);
    view_.staff.GrenzLinienMalen();
    if (aufg) aufg->caption = p.katalog.skal_name[z.skal_typ][a.skala_nr];
}

void NoteField::open() {
    palette_.PaletteEin();
    cmdOK.enabled = true;
}

/// A form that is being left shows what stood there to the end.
void NoteField::close() {
    if (leaving_) return;
    palette_.PaletteAus();
    cmdOK.enabled = false;
}

void NoteField::cmdOK_click() {
    if (leaving_) return;
    cmdOK.enabled = false;
    form_.handle({"skal_antw_click.", [this] { skal_antw(); }});
}

void NoteField::skal_antw() {
    const engine::Task& a = run_.task();
    for (int c = 0; c < a.tonAnz; ++c) ownVersion_[c] = view_.staff.NotSelb(c).midi;
    give(engine::writtenAnswer(a, [this](int c) { return view_.staff.NotSelb(c).pitch(); }));
}

void NoteField::scored() {
    if (run_.aufgZustand() == engine::TaskState::TryAgain) return;
    LoesungZeigen(run_.task());
    close();
    HinweisMeldung.visible = false;
}

/// The right notes with red heads in place of the wrong ones; right ones turn black. Below each
/// stands what became of it.
void NoteField::LoesungZeigen(const engine::Task& a) {
    staff::Staff& staff = view_.staff;
    const auto isRight = [&](int c) { return staff.NotSelb(c).pitch() == a.pitchAt(c); };
    base::FixedArray<bool, staff::ColumnLayout::columns> right;
    for (int c = 1; c <= a.tonAnz - 2; ++c) right[c] = isRight(c);
    if (!run_.lastAnswer().right)
        for (int c = 1; c <= a.tonAnz - 2; ++c)
            staff.NoteSetzen(c, a.pitchAt(c), right[c] ? staff::ink::black : staff::ink::red);
    for (int c = 1; c <= a.tonAnz - 2; ++c) staff.paintVerdict(c, right[c]);
}

/// The notes in words, and what stands under the hand.
std::string NoteField::inWords() const {
    std::string text = view_.inWords();
    const i16 here = keyboard_.column();
    const staff::Column& note = view_.staff.NotSelb(here);
    if (!note.hasNote()) return text;
    return std::to_string(here) + ": " + staff::noteName(p.worte, note.qz) + " (" + text + ")";
}

bool NoteField::key(form::Key key) {
    if (key.kind != form::Key::Kind::Enter || !cmdOK.usable()) return false;
    cmdOK.click();
    return true;
}

}  // namespace worksheets
