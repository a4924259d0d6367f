#include "engine/trainingsstand.h"

#include "base/rounding.h"
#include "base/runtime_error.h"
#include "engine/matbox.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <set>
#include <vector>

namespace engine {

namespace {

constexpr int wertungen = 3;
constexpr std::size_t jeSkala = 6;
constexpr std::size_t einmal = 4;

float kommazahl(const std::string& text) {
    float v = 0;
    const auto [ende, fehler] =
        std::from_chars(text.data(), text.data() + text.size(), v, std::chars_format::fixed);
    if (fehler != std::errc() || ende != text.data() + text.size() || !std::isfinite(v))
        base::throwTypeMismatch(text);
    return v;
}

[[noreturn]] void passtNicht(const char* was) {
    throw base::RuntimeError(base::ErrorNumber::InvalidCall, std::string("saved training: ") + was);
}

struct Skala {
    i16 code, gewicht, slot;
    std::array<float, wertungen> wertung;
};

/// Reads the texts one after the other.
class Leser {
  public:
    explicit Leser(const core::Value& satz) : satz_(satz) {}
    std::string text() { return satz_.at(stelle_++).text(); }
    i16 zahl() { return base::parseInt(text()); }
    int anzahl() {
        const i16 n = zahl();
        if (n < 0) passtNicht("counter");
        return n;
    }

  private:
    const core::Value& satz_;
    std::size_t stelle_ = 0;
};

/// What the drill itself would never have saved is refused.
void pruefen(const std::vector<Skala>& skalen, const core::Zustand& z) {
    std::set<int> codes;
    int summe = 0;
    for (const Skala& s : skalen) {
        const int groesse = std::abs(int(s.code));
        if (groesse < 1 || groesse > z.skal_anz + 1) passtNicht("scale code");
        if (!codes.insert(s.code).second) passtNicht("scale code twice");
        if (s.slot != core::skalaSlot(s.code, z.skal_anz)) passtNicht("slot");
        if (s.wertung[0] < 0) passtNicht("number of tasks");
        if (s.gewicht > 0) summe += s.gewicht;
    }
    const int n = static_cast<int>(skalen.size());
    if (summe < 1 || summe >= 2 * n * Matbox::startgewicht(n)) passtNicht("weights");
}

}  // namespace

core::Value::Array TrainingsstandSchreiben(const core::Zustand& z, int n,
                                           const results::Auswertung& auswertung,
                                           const Zaehlerstand& zaehler) {
    core::Value::Array satz{"true"};
    using namespace core::gewicht;
    for (const int spalte : {spalteCode, spalteGewicht})
        for (int i = 1; i <= n; ++i) satz.push_back(std::to_string(z.mathaeufgk_box(i, spalte)));
    for (int i = 1; i <= n; ++i) {
        const i16 slot = core::skalaSlot(z.mathaeufgk_box(i, spalteCode), z.skal_anz);
        satz.push_back(std::to_string(slot));
        for (int x = 0; x < wertungen; ++x) satz.push_back(base::decimal(auswertung.read(slot, x)));
    }
    for (const int anzahl : {zaehler.richtig, zaehler.falsch, zaehler.wiederholungen})
        satz.push_back(std::to_string(anzahl));
    return satz;
}

Zaehlerstand TrainingsstandLesen(const core::Value& satz, int n, core::Zustand& z,
                                 results::Auswertung& auswertung) {
    const auto anzahl = static_cast<std::size_t>(n);
    if (satz.items().size() != jeSkala * anzahl + einmal) passtNicht("length");
    Leser leser(satz);
    if (leser.text() != "true") passtNicht("not interrupted");
    std::vector<Skala> skalen(anzahl);
    for (Skala& s : skalen) s.code = leser.zahl();
    for (Skala& s : skalen) s.gewicht = leser.zahl();
    for (Skala& s : skalen) {
        s.slot = leser.zahl();
        for (float& wert : s.wertung) wert = kommazahl(leser.text());
    }
    const Zaehlerstand zaehler{leser.anzahl(), leser.anzahl(), leser.anzahl()};
    pruefen(skalen, z);

    z.mathaeufgk_box.redim(n, 1);
    for (int i = 1; i <= n; ++i) {
        const Skala& s = base::at(skalen, i - 1);
        z.mathaeufgk_box(i, core::gewicht::spalteCode) = s.code;
        z.mathaeufgk_box(i, core::gewicht::spalteGewicht) = s.gewicht;
        for (int x = 0; x < wertungen; ++x) auswertung.Save(s.slot, x, base::at(s.wertung, x));
    }
    return zaehler;
}

}  // namespace engine
