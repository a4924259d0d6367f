#include "engine/task_pool.h"

#include "base/rounding.h"

#include <cstdlib>
#include <utility>

namespace engine {

using core::gewicht::spalteCode;
using core::gewicht::spalteGewicht;

namespace {

constexpr int both = 2;

/// +1 for ascending (0), -1 for descending (1).
int directionSign(int richtung) { return richtung % 2 == 0 ? 1 : -1; }

}  // namespace

void TaskPool::countCodes() {
    const int scales = z.skal_anz + 1;
    if (z.ska_ausw != 0)
        potSkala_ = z.einzelAnz + 1;
    else
        potSkala_ = z.richtung == both ? 2 * scales : scales;
}

/// Code of a new training: each scale first downward, then upward.
i16 TaskPool::newCode(int i) const {
    if (z.ska_ausw != 0) return z.einzel_wahl[i - 1];
    if (z.richtung != both) return i * directionSign(z.richtung);
    return (i + 1) / 2 * (i % 2 == 1 ? -1 : 1);
}

void TaskPool::beginTraining() {
    wiederholung_ = startWeight(potSkala_);
    matbox_zahl_ = matboxanz_ = potSkala_ * wiederholung_;
    matbox_.redim(matboxanz_, 1);
    z.mathaeufgk_box.redim(potSkala_, 1);
    for (int i = 1; i <= potSkala_; ++i) {
        z.mathaeufgk_box(i, spalteCode) = newCode(i);
        z.mathaeufgk_box(i, spalteGewicht) = wiederholung_;
    }
    markPresent();
    MatAusBox(0);
}

void TaskPool::resumeTraining() {
    wiederholung_ = startWeight(potSkala_);
    matboxanz_ = 0;
    for (int i = 1; i <= potSkala_; ++i)
        if (const i16 w = z.mathaeufgk_box(i, spalteGewicht); w > 0) matboxanz_ += w;
    matbox_.redim(matboxanz_, 1);
    markPresent();
    MatAusBox(0);
    MatNeu();
}

void TaskPool::markPresent() {
    for (int i = 1; i <= potSkala_; ++i)
        wertung_.AnwesenheitMerken(z.mathaeufgk_box(i, spalteCode));
}

void TaskPool::beginExam(int rows) {
    matboxanz_ = rows;
    matbox_.redim(rows, 1);
    MatFuellen();
}

/// Code of the rows that hold every scale once. The first block is downward, the next upward.
i16 TaskPool::fillCode(int row) const {
    if (z.ska_ausw != 0) return z.einzel_wahl[row - 1];
    if (z.richtung < both) return row * directionSign(z.richtung);
    const int scales = z.skal_anz + 1;
    const int block = (row - 1) / scales;
    return ((row - 1) % scales + 1) * (block % 2 == 0 ? -1 : 1);
}

i16 TaskPool::freeCode() {
    if (z.ska_ausw != 0) return z.einzel_wahl[rnd_.below(z.einzelAnz + 1)];
    if (z.richtung < both) return rnd_.upTo(potSkala_) * directionSign(z.richtung);
    const int richtung = rnd_.sign();
    return rnd_.upTo(z.skal_anz + 1) * richtung;
}

void TaskPool::MatFuellen() {
    for (int i = 1; i <= matboxanz_; ++i) {
        const i16 code = i <= potSkala_ ? fillCode(i) : freeCode();
        matbox_(i, poolCode) = code;
        if (withTonality_)
            matbox_(i, poolTonality) = tonalities_.draw(std::abs(int(code)) - 1, matboxanz_, rnd_);
    }
    for (int i = 1; i <= potSkala_; ++i) wertung_.AnwesenheitMerken(code(i));
}

void TaskPool::MatNeu() {
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
void TaskPool::MatAusBox(i16 versatz) {
    int k = 0;
    for (int i = 1; i <= potSkala_; ++i) {
        const int count = z.mathaeufgk_box(i, spalteGewicht) + versatz;
        for (int j = 0; j < count; ++j) matbox_(++k, poolCode) = z.mathaeufgk_box(i, spalteCode);
    }
}

void TaskPool::addWeight(i16 code, i16 more) {
    for (int i = 1; i <= potSkala_; ++i)
        if (z.mathaeufgk_box(i, spalteCode) == code) {
            z.mathaeufgk_box(i, spalteGewicht) += more;
            return;
        }
}

TaskPool::TrainingState TaskPool::update() {
    MatNeu();
    if (matbox_zahl_ < 1) {
        matbox_zahl_ = 0;
        return TrainingState::GoalReached;
    }
    if (matbox_zahl_ > obergrenze() - 1) {
        matbox_zahl_ = obergrenze();
        return TrainingState::Failed;
    }
    return TrainingState::GoesOn;
}

int TaskPool::percent() const {
    if (!core::isTraining(z)) return 0;
    return base::rounded(static_cast<double>(matbox_zahl_) / obergrenze() * 100);
}

/// Near the goal mostly from the front of the pool, where the last weak scales stand.
i16 TaskPool::trainingRow() {
    const int x = 50 - percent();
    if (x <= 30) return rnd_.upTo(matboxanz_);
    const int t = 2 * x - 20;
    if (rnd_.below(100) > t) return rnd_.upTo(matboxanz_);
    const double count = static_cast<double>(matboxanz_);
    return base::floorInt(static_cast<double>(rnd_.R()) * (count - count / 100 * x)) + 1;
}

i16 TaskPool::draw(bool nutzeBox, Task& a) {
    i16 row = 0;
    i16 drawn = 0;
    if (!nutzeBox) {
        if (z.ska_ausw == 0) {
            a.skala_nr = rnd_.below(z.skal_anz + 1);
            a.akt_richtung = z.richtung == both ? rnd_.sign() : directionSign(z.richtung);
            return 0;
        }
        drawn = z.einzel_wahl[rnd_.below(z.einzelAnz + 1)];
    } else if (!core::isTest(z)) {
        row = trainingRow();
        drawn = code(row);
    } else {
        do {
            row = rnd_.upTo(matboxanz_);
            drawn = code(row);
        } while (drawn == 0);
    }
    a.skala_nr = std::abs(drawn) - 1;
    a.akt_richtung = base::sgn(drawn);
    return row;
}

void TaskPool::takeOut(i16 drawn) {
    for (int i = 1; i <= matboxanz_; ++i)
        if (code(i) == drawn) {
            matbox_(i, poolCode) = 0;
            return;
        }
}

}  // namespace engine
