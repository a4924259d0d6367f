#include "engine/saved_training.h"

#include "base/rounding.h"
#include "base/runtime_error.h"
#include "engine/task_pool.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <set>
#include <vector>

namespace engine {

namespace {

constexpr int scoresKept = 3;
constexpr std::size_t perScale = 6;
constexpr std::size_t once = 4;

float decimalNumber(const std::string& text) {
    float v = 0;
    const auto [end, error] =
        std::from_chars(text.data(), text.data() + text.size(), v, std::chars_format::fixed);
    if (error != std::errc() || end != text.data() + text.size() || !std::isfinite(v))
        base::throwTypeMismatch(text);
    return v;
}

[[noreturn]] void refuse(const char* what) {
    throw base::RuntimeError(base::ErrorNumber::InvalidCall,
                             std::string("saved training: ") + what);
}

struct ScaleRow {
    i16 code, weight, slot;
    std::array<float, scoresKept> scores;
};

/// Reads the texts one after the other.
class Reader {
  public:
    explicit Reader(const core::Value& record) : record_(record) {}
    std::string text() { return record_.at(position_++).text(); }
    i16 number() { return base::parseInt(text()); }
    int count() {
        const i16 n = number();
        if (n < 0) refuse("counter");
        return n;
    }

  private:
    const core::Value& record_;
    std::size_t position_ = 0;
};

/// What the drill itself would never have saved is refused.
void check(const std::vector<ScaleRow>& scales, const core::Zustand& z) {
    std::set<int> codes;
    int summe = 0;
    for (const ScaleRow& s : scales) {
        const int number = std::abs(int(s.code));
        if (number < 1 || number > z.skal_anz + 1) refuse("scale code");
        if (!codes.insert(s.code).second) refuse("scale code twice");
        if (s.slot != core::skalaSlot(s.code, z.skal_anz)) refuse("slot");
        if (s.scores[0] < 0) refuse("number of tasks");
        if (s.weight > 0) summe += s.weight;
    }
    const int n = static_cast<int>(scales.size());
    if (summe < 1 || summe >= 2 * n * TaskPool::startWeight(n)) refuse("weights");
}

}  // namespace

core::Value::Array writeTraining(const core::Zustand& z, int n,
                                 const results::Auswertung& auswertung, const Counters& counters) {
    core::Value::Array record{"true"};
    using namespace core::gewicht;
    for (const int column : {spalteCode, spalteGewicht})
        for (int i = 1; i <= n; ++i) record.push_back(std::to_string(z.mathaeufgk_box(i, column)));
    for (int i = 1; i <= n; ++i) {
        const i16 slot = core::skalaSlot(z.mathaeufgk_box(i, spalteCode), z.skal_anz);
        record.push_back(std::to_string(slot));
        for (int x = 0; x < scoresKept; ++x)
            record.push_back(base::decimal(auswertung.read(slot, x)));
    }
    for (const int count : {counters.right, counters.wrong, counters.repetitions})
        record.push_back(std::to_string(count));
    return record;
}

Counters readTraining(const core::Value& record, int n, core::Zustand& z,
                      results::Auswertung& auswertung) {
    const auto count = static_cast<std::size_t>(n);
    if (record.items().size() != perScale * count + once) refuse("length");
    Reader reader(record);
    if (reader.text() != "true") refuse("not interrupted");
    std::vector<ScaleRow> scales(count);
    for (ScaleRow& s : scales) s.code = reader.number();
    for (ScaleRow& s : scales) s.weight = reader.number();
    for (ScaleRow& s : scales) {
        s.slot = reader.number();
        for (float& value : s.scores) value = decimalNumber(reader.text());
    }
    const Counters counters{reader.count(), reader.count(), reader.count()};
    check(scales, z);

    z.mathaeufgk_box.redim(n, 1);
    for (int i = 1; i <= n; ++i) {
        const ScaleRow& s = base::at(scales, i - 1);
        z.mathaeufgk_box(i, core::gewicht::spalteCode) = s.code;
        z.mathaeufgk_box(i, core::gewicht::spalteGewicht) = s.weight;
        for (int x = 0; x < scoresKept; ++x) auswertung.Save(s.slot, x, base::at(s.scores, x));
    }
    return counters;
}

}  // namespace engine
