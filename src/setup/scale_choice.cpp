#include "setup/scale_choice.h"

#include "core/wort.h"
#include "setup/choices.h"

#include <algorithm>

namespace setup {

namespace wort = core::wort;

ScaleChoice::ScaleChoice(core::Formular& form, core::Programm& programm, form::Group& vorkommen,
                         form::Group& einzeln)
    : p(programm),
      z(programm.zustand),
      einzeln_(einzeln),
      ska_ausw(form, "ska_ausw", 2, &vorkommen),
      kl_rahmen(form, "kl_rahmen", 2, &einzeln),
      lst_ska0(form, {"lst_ska", 0, &kl_rahmen(0)}),
      lst_ska1(form, {"lst_ska", 1, &kl_rahmen(1)}),
      lb10(form, "lb10", 3, &einzeln),
      wahlStand(form, {"wahlStand", &einzeln}) {
    einzeln.visible = false;
    lb10(0).foreColour = base::colours::red;
    form.beschriften({{ska_ausw(0), wort::allScales},
                      {ska_ausw(1), wort::selectedScales},
                      {lb10(1), wort::availableList},
                      {lb10(2), wort::selectedList}});
    form.benennen({{lst_ska0, wort::availableList}, {lst_ska1, wort::selectedList}});
    AuswahlStandZeigen();

    connect(ska_ausw, z, [this] { ska_ausw_click(); });
    auswahlGesperrt_ = vorkommen.changed.connect([this](form::Aspect aspect) {
        if (aspect == form::Aspect::Enabled) AuswahlStandZeigen();
    });
    // An exam stores "all" over lists that stay open.
    ska_ausw(1).store = [this] {
        const bool nochOffen = z.ska_ausw == 0 && einzeln_.visible();
        z.ska_ausw = 1;
        if (nochOffen) AuswahlWiederaufnehmen();
    };
    lst_ska0.onClick = {"lst_ska_click.", [this] { lst_ska_click(lst_ska0, lst_ska1); }};
    lst_ska1.onClick = {"lst_ska_click.", [this] { lst_ska_click(lst_ska1, lst_ska0); }};
    listeGeaendert_ = lst_ska1.changed.connect([this](form::Aspect aspect) {
        if (aspect == form::Aspect::Items) AuswahlStandZeigen();
    });
}

void ScaleChoice::ska_ausw_click() {
    if (z.ska_ausw == 1) AuswahlOeffnen();
    AuswahlZeigen();
}

/// What was picked stays, unless meanwhile other scales are to be had.
void ScaleChoice::AuswahlWiederaufnehmen() {
    if (zurWahl_ != ZurWahl()) return ska_ausw_click();
    AuswahlZeigen();
    selectionCheck();
}

void ScaleChoice::AuswahlZeigen() {
    const bool zeigen = z.ska_ausw != 0;
    einzeln_.visible = zeigen;
    AuswahlStandZeigen();
    onShown(zeigen);
}

void ScaleChoice::AuswahlOeffnen() {
    zurWahl_ = ZurWahl();
    onJudged(false);
    lb10(0).visible = true;
    lst_ska0.setItems(skalenZurWahl(p.katalog, z.skal_typ, richtungen()));
    lst_ska1.clear();
}

/// Both lists stay sorted: the item takes its place among those of the other.
void ScaleChoice::lst_ska_click(form::ListBox& quelle, form::ListBox& ziel) {
    const int geklickt = quelle.clicked();
    const form::ItemList::Item skala = quelle.item(geklickt);
    ziel.insert(sortierteStelle(ziel.items(), skala.data), skala);
    quelle.remove(geklickt);
    z.einzelAnz = lst_ska1.count() - 1;
    selectionCheck();
}

void ScaleChoice::selectionCheck() {
    const Urteil urteil = auswahlBeurteilen(lst_ska1.items(), z.final, richtungen());
    // With one direction the hint keeps what it told last.
    if (richtungen().beide() && urteil != Urteil::Genug)
        writeHint(urteil == Urteil::Ungleich ? 1 : 0);
    lb10(0).visible = urteil != Urteil::Genug;
    onJudged(urteil == Urteil::Genug);
}

void ScaleChoice::writeHint(int flag) {
    lb10(0).caption = p.Wort(hinweisWort(z.final, richtungen(), flag));
}

void ScaleChoice::AuswahlStandZeigen() {
    const int anzahl = lst_ska1.count();
    wahlStand.caption = z.ska_ausw == 0
                            ? p.Wort(wort::choiceDoesNotCount)
                            : core::eingesetzt(p.Wort(wort::chosenCount), std::to_string(anzahl));
    wahlStand.foreColour =
        z.ska_ausw != 0 && anzahl > wahlPlaetze ? base::colours::red : base::colours::black;
}

std::vector<std::string> ScaleChoice::chosen() const {
    std::vector<std::string> texte;
    for (int i = 0; z.ska_ausw == 1 && i <= z.einzelAnz; ++i)
        texte.push_back(lst_ska1.item(i).text);
    return texte;
}

void ScaleChoice::choose(const std::string& text) {
    const auto& liste = lst_ska0.items();
    const auto skala = std::ranges::find(liste, text, &form::ItemList::Item::text);
    if (skala != liste.end()) lst_ska0.click(static_cast<int>(skala - liste.begin()));
}

void ScaleChoice::choose(int code) {
    const auto& liste = lst_ska0.items();
    const auto skala = std::ranges::find(liste, code, &form::ItemList::Item::data);
    if (skala != liste.end()) lst_ska0.click(static_cast<int>(skala - liste.begin()));
}

void ScaleChoice::AuswahlUebernehmen() const {
    for (int i = 0; i < lst_ska1.count(); ++i) z.einzel_wahl[i] = lst_ska1.item(i).data;
}

}  // namespace setup
