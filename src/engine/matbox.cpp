#include "engine/matbox.h"

#include "base/rounding.h"
#include "base/runtime_error.h"

#include <cstdlib>
#include <utility>

namespace engine {

using base::sgn;

namespace {

constexpr int beide = 2;

/// +1 for ascending (0), -1 for descending (1).
int vorzeichen(int richtung) { return richtung % 2 == 0 ? 1 : -1; }

}  // namespace

void Matbox::PotSkalaBestimmen() {
    const int skalen = z.skal_anz + 1;
    if (z.ska_ausw != 0) {
        z.potSkala = z.einzelAnz + 1;
        return;
    }
    if (z.richtung != beide) z.akt_richtung = vorzeichen(z.richtung);
    z.potSkala = z.richtung == beide ? 2 * skalen : skalen;
}

void Matbox::TrainingBeginnen() {
    const int n = z.potSkala;
    z.wiederholung = startgewicht(n);
    z.matboxanz = n * z.wiederholung;
    z.matbox.redim(z.matboxanz, 1);
    z.mathaeufgk_box.redim(n, 1);
    for (int i = 1; i <= n; ++i) {
        i16& code = z.mathaeufgk_box(i, 0);
        if (z.ska_ausw != 0)
            code = z.einzel_wahl[i - 1];
        else if (z.richtung != beide)
            code = i * z.akt_richtung;
        else  // each scale first downward, then upward
            code = (i + 1) / 2 * (i % 2 == 1 ? -1 : 1);
        z.mathaeufgk_box(i, 1) = z.wiederholung;
    }
    anwesenheitMerken();
    MatAusBox(0);
    z.matbox_zahl = n * z.wiederholung;
}

void Matbox::TrainingFortsetzen() {
    z.wiederholung = startgewicht(z.potSkala);
    z.matboxanz = 0;
    for (int i = 1; i <= z.potSkala; ++i)
        if (z.mathaeufgk_box(i, 1) > 0) z.matboxanz += z.mathaeufgk_box(i, 1);
    z.matbox.redim(z.matboxanz, 1);
    anwesenheitMerken();
    MatAusBox(0);
    MatNeu();
}

void Matbox::anwesenheitMerken() {
    for (int i = 1; i <= z.potSkala; ++i)
        auswertung_.Increment(core::skalaSlot(z.mathaeufgk_box(i, 0), z.skal_anz), anwesendSpalte);
}

void Matbox::PruefungBeginnen(int zeilen) {
    z.matboxanz = zeilen;
    z.matbox.redim(zeilen, 1);
    MatFuellen(z.richtung);
}

i16 Matbox::fuellCode(int zeile, i16 richtungsArt) {
    if (z.ska_ausw != 0) return z.einzel_wahl[zeile - 1];
    if (richtungsArt < beide) return zeile * vorzeichen(richtungsArt);
    // The first block is downward, the next upward.
    const int skalen = z.skal_anz + 1;
    const int block = (zeile - 1) / skalen;
    return ((zeile - 1) % skalen + 1) * (block % 2 == 0 ? -1 : 1);
}

i16 Matbox::freierCode(i16 richtungsArt) {
    if (z.ska_ausw != 0) return z.einzel_wahl[rnd_.below(z.einzelAnz + 1)];
    if (richtungsArt < beide) return rnd_.upTo(z.potSkala) * vorzeichen(richtungsArt);
    const int richtung = rnd_.sign();
    return rnd_.upTo(z.skal_anz + 1) * richtung;
}

void Matbox::MatFuellen(i16 richtungsArt) {
    const int n = z.potSkala;
    for (int i = 1; i <= z.matboxanz; ++i) {
        z.matbox(i, 0) = i <= n ? fuellCode(i, richtungsArt) : freierCode(richtungsArt);
        if (zeileGefuellt) zeileGefuellt(i);
    }
    for (int i = 1; i <= n; ++i)
        auswertung_.Increment(core::skalaSlot(z.matbox(i, 0), z.skal_anz), anwesendSpalte);
}

void Matbox::MatNeu() {
    auto& box = z.mathaeufgk_box;
    const int n = z.potSkala;
    // The order that this exchange leaves among equal weights decides what the front of the pool
    // is.
    for (int i = 1; i < n; ++i)
        for (int j = i + 1; j <= n; ++j)
            if (box(j, 1) > box(i, 1)) {
                std::swap(box(i, 0), box(j, 0));
                std::swap(box(i, 1), box(j, 1));
            }
    z.matbox_zahl = 0;
    for (int i = 1; i <= n && box(i, 1) > 0; ++i) z.matbox_zahl += box(i, 1);
    if (z.matbox_zahl >= n * 8 - 1 || z.matbox_zahl <= 0) return;

    i16 versatz = 0;
    z.matboxanz = z.matbox_zahl;
    if (box(n, 1) < 1) {
        versatz = std::abs(box(n, 1)) + 1;
        z.matboxanz = 0;
        for (int i = 1; i <= n; ++i) z.matboxanz += box(i, 1) + versatz;
    }
    z.matbox.redim(z.matboxanz, 1);
    MatAusBox(versatz);
}

void Matbox::MatAusBox(i16 versatz) {
    int k = 0;
    for (int i = 1; i <= z.potSkala; ++i) {
        const int c = z.mathaeufgk_box(i, 1) + versatz;
        for (int j = 1; j <= c; ++j) z.matbox(k + j, 0) = z.mathaeufgk_box(i, 0);
        if (c >= 1) k += c;
    }
}

void Matbox::gewichten(i16 code, i16 mehr) {
    for (int i = 1; i <= z.potSkala; ++i)
        if (z.mathaeufgk_box(i, 0) == code) {
            z.mathaeufgk_box(i, 1) += mehr;
            return;
        }
}

/// Near the goal mostly from the front of the pool, where the last weak scales stand.
i16 Matbox::trainingsZeile(int floodPercent) {
    const int x = 50 - floodPercent;
    if (x <= 30) return rnd_.upTo(z.matboxanz);
    const int t = 2 * x - 20;
    if (rnd_.below(100) > t) return rnd_.upTo(z.matboxanz);
    const double anzahl = static_cast<double>(z.matboxanz);
    return base::floorInt(static_cast<double>(rnd_.R()) * (anzahl - anzahl / 100 * x)) + 1;
}

i16 Matbox::Ziehen(bool nutzeBox, int floodPercent) {
    i16 zeile = 0;
    i16 code = 0;
    if (!nutzeBox) {
        if (z.ska_ausw == 0) {
            z.skala_nr = rnd_.below(z.skal_anz + 1);
            if (z.richtung == beide) z.akt_richtung = rnd_.sign();
            return 0;
        }
        code = z.einzel_wahl[rnd_.below(z.einzelAnz + 1)];
    } else if (z.uebungsmodus <= core::modus::fortsetzung) {
        zeile = trainingsZeile(floodPercent);
        code = z.matbox(zeile, 0);
    } else {
        do {
            zeile = rnd_.upTo(z.matboxanz);
            code = z.matbox(zeile, 0);
        } while (code == 0);
    }
    z.skala_nr = std::abs(code) - 1;
    z.akt_richtung = sgn(code);
    return zeile;
}

void Matbox::verbrauchen(i16 code) {
    for (int i = 1; i <= z.matboxanz; ++i)
        if (z.matbox(i, 0) == code) {
            z.matbox(i, 0) = 0;
            return;
        }
}

}  // namespace engine
