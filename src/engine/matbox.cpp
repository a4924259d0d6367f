#include "engine/matbox.h"

#include "base/rounding.h"

#include <cstdlib>
#include <utility>

namespace engine {

using core::gewicht::spalteCode;
using core::gewicht::spalteGewicht;

namespace {

constexpr int beide = 2;

/// +1 for ascending (0), -1 for descending (1).
int vorzeichen(int richtung) { return richtung % 2 == 0 ? 1 : -1; }

}  // namespace

void Matbox::PotSkalaBestimmen() {
    const int skalen = z.skal_anz + 1;
    if (z.ska_ausw != 0)
        potSkala_ = z.einzelAnz + 1;
    else
        potSkala_ = z.richtung == beide ? 2 * skalen : skalen;
}

/// Code of a new training: each scale first downward, then upward.
i16 Matbox::neuerCode(int i) const {
    if (z.ska_ausw != 0) return z.einzel_wahl[i - 1];
    if (z.richtung != beide) return i * vorzeichen(z.richtung);
    return (i + 1) / 2 * (i % 2 == 1 ? -1 : 1);
}

void Matbox::TrainingBeginnen() {
    wiederholung_ = startgewicht(potSkala_);
    matbox_zahl_ = matboxanz_ = potSkala_ * wiederholung_;
    matbox_.redim(matboxanz_, 1);
    z.mathaeufgk_box.redim(potSkala_, 1);
    for (int i = 1; i <= potSkala_; ++i) {
        z.mathaeufgk_box(i, spalteCode) = neuerCode(i);
        z.mathaeufgk_box(i, spalteGewicht) = wiederholung_;
    }
    anwesenheitMerken();
    MatAusBox(0);
}

void Matbox::TrainingFortsetzen() {
    wiederholung_ = startgewicht(potSkala_);
    matboxanz_ = 0;
    for (int i = 1; i <= potSkala_; ++i)
        if (const i16 w = z.mathaeufgk_box(i, spalteGewicht); w > 0) matboxanz_ += w;
    matbox_.redim(matboxanz_, 1);
    anwesenheitMerken();
    MatAusBox(0);
    MatNeu();
}

void Matbox::anwesenheitMerken() {
    for (int i = 1; i <= potSkala_; ++i)
        wertung_.AnwesenheitMerken(z.mathaeufgk_box(i, spalteCode));
}

void Matbox::PruefungBeginnen(int zeilen) {
    matboxanz_ = zeilen;
    matbox_.redim(zeilen, 1);
    MatFuellen();
}

/// Code of the rows that hold every scale once. The first block is downward, the next upward.
i16 Matbox::fuellCode(int zeile) const {
    if (z.ska_ausw != 0) return z.einzel_wahl[zeile - 1];
    if (z.richtung < beide) return zeile * vorzeichen(z.richtung);
    const int skalen = z.skal_anz + 1;
    const int block = (zeile - 1) / skalen;
    return ((zeile - 1) % skalen + 1) * (block % 2 == 0 ? -1 : 1);
}

i16 Matbox::freierCode() {
    if (z.ska_ausw != 0) return z.einzel_wahl[rnd_.below(z.einzelAnz + 1)];
    if (z.richtung < beide) return rnd_.upTo(potSkala_) * vorzeichen(z.richtung);
    const int richtung = rnd_.sign();
    return rnd_.upTo(z.skal_anz + 1) * richtung;
}

void Matbox::MatFuellen() {
    for (int i = 1; i <= matboxanz_; ++i) {
        const i16 code = i <= potSkala_ ? fuellCode(i) : freierCode();
        matbox_(i, poolCode) = code;
        if (mitTonart_)
            matbox_(i, poolTonart) = tonarten_.Ziehen(std::abs(int(code)) - 1, matboxanz_, rnd_);
    }
    for (int i = 1; i <= potSkala_; ++i) wertung_.AnwesenheitMerken(code(i));
}

void Matbox::MatNeu() {
    auto& box = z.mathaeufgk_box;
    const int n = potSkala_;
    // The order that this exchange leaves among equal weights decides what the front of the pool
    // is.
    for (int i = 1; i < n; ++i)
        for (int j = i + 1; j <= n; ++j)
            if (box(j, spalteGewicht) > box(i, spalteGewicht)) {
                std::swap(box(i, spalteCode), box(j, spalteCode));
                std::swap(box(i, spalteGewicht), box(j, spalteGewicht));
            }
    matbox_zahl_ = 0;
    for (int i = 1; i <= n && box(i, spalteGewicht) > 0; ++i) matbox_zahl_ += box(i, spalteGewicht);
    if (matbox_zahl_ >= n * 8 - 1 || matbox_zahl_ <= 0) return;

    i16 versatz = 0;
    matboxanz_ = matbox_zahl_;
    if (box(n, spalteGewicht) < 1) {
        versatz = std::abs(box(n, spalteGewicht)) + 1;
        matboxanz_ = 0;
        for (int i = 1; i <= n; ++i) matboxanz_ += box(i, spalteGewicht) + versatz;
    }
    matbox_.redim(matboxanz_, 1);
    MatAusBox(versatz);
}

/// Writes the pool from the weights, each raised by `versatz`.
void Matbox::MatAusBox(i16 versatz) {
    int k = 0;
    for (int i = 1; i <= potSkala_; ++i) {
        const int anzahl = z.mathaeufgk_box(i, spalteGewicht) + versatz;
        for (int j = 0; j < anzahl; ++j) matbox_(++k, poolCode) = z.mathaeufgk_box(i, spalteCode);
    }
}

void Matbox::gewichten(i16 code, i16 mehr) {
    for (int i = 1; i <= potSkala_; ++i)
        if (z.mathaeufgk_box(i, spalteCode) == code) {
            z.mathaeufgk_box(i, spalteGewicht) += mehr;
            return;
        }
}

Matbox::Trainingsstand Matbox::fortschreiben() {
    MatNeu();
    if (matbox_zahl_ < 1) {
        matbox_zahl_ = 0;
        return Trainingsstand::Ziel;
    }
    if (matbox_zahl_ > obergrenze() - 1) {
        matbox_zahl_ = obergrenze();
        return Trainingsstand::Gescheitert;
    }
    return Trainingsstand::Laeuft;
}

int Matbox::prozent() const {
    if (!core::imTraining(z)) return 0;
    return base::rounded(static_cast<double>(matbox_zahl_) / obergrenze() * 100);
}

/// Near the goal mostly from the front of the pool, where the last weak scales stand.
i16 Matbox::trainingsZeile() {
    const int x = 50 - prozent();
    if (x <= 30) return rnd_.upTo(matboxanz_);
    const int t = 2 * x - 20;
    if (rnd_.below(100) > t) return rnd_.upTo(matboxanz_);
    const double anzahl = static_cast<double>(matboxanz_);
    return base::floorInt(static_cast<double>(rnd_.R()) * (anzahl - anzahl / 100 * x)) + 1;
}

i16 Matbox::Ziehen(bool nutzeBox, Aufgabe& a) {
    i16 zeile = 0;
    i16 gezogen = 0;
    if (!nutzeBox) {
        if (z.ska_ausw == 0) {
            a.skala_nr = rnd_.below(z.skal_anz + 1);
            a.akt_richtung = z.richtung == beide ? rnd_.sign() : vorzeichen(z.richtung);
            return 0;
        }
        gezogen = z.einzel_wahl[rnd_.below(z.einzelAnz + 1)];
    } else if (!core::imTest(z)) {
        zeile = trainingsZeile();
        gezogen = code(zeile);
    } else {
        do {
            zeile = rnd_.upTo(matboxanz_);
            gezogen = code(zeile);
        } while (gezogen == 0);
    }
    a.skala_nr = std::abs(gezogen) - 1;
    a.akt_richtung = base::sgn(gezogen);
    return zeile;
}

void Matbox::verbrauchen(i16 gezogen) {
    for (int i = 1; i <= matboxanz_; ++i)
        if (code(i) == gezogen) {
            matbox_(i, poolCode) = 0;
            return;
        }
}

}  // namespace engine
