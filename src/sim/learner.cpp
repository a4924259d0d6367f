#include "sim/learner.h"

#include "sim/number.h"
#include "sim/usage_error.h"

#include <algorithm>
#include <vector>

namespace sim {

namespace {

constexpr int highestScale = 9;
constexpr double longest = 3600;  // seconds

std::vector<std::string> split(const std::string& text) {
    std::vector<std::string> parts(1);
    for (const char c : text)
        if (c == ':')
            parts.emplace_back();
        else
            parts.back() += c;
    return parts;
}

}  // namespace

Learner::Learner(const std::string& text) {
    const auto parts = split(text);
    const auto is = [&](const char* kind, std::size_t arguments) {
        return parts[0] == kind && parts.size() == arguments + 1;
    };
    const auto scale = [&](std::size_t i) {
        return static_cast<int>(wholeNumber("learner confuse", parts[i], 0, highestScale));
    };
    if (is("perfect", 0)) {
        kind_ = Kind::Perfect;
    } else if (is("wrong", 0)) {
        kind_ = Kind::Wrong;
    } else if (is("random", 1)) {
        kind_ = Kind::Random;
        chanceOfRight_ = static_cast<float>(decimalNumber("learner random", parts[1], 0, 1));
    } else if (is("confuse", 2)) {
        kind_ = Kind::Confuse;
        a_ = scale(1);
        b_ = scale(2);
    } else if (is("slow", 1)) {
        kind_ = Kind::Slow;
        time_ = static_cast<int>(decimalNumber("learner slow", parts[1], 0, longest) * 1000);
    } else if (is("enharmonic", 0)) {
        kind_ = Kind::Enharmonic;
    } else {
        throw UsageError("no learner \"" + text +
                         "\": perfect, wrong, random:P, confuse:A:B, slow:SECONDS or enharmonic");
    }
}

int Learner::answer(const Question& question, base::Rnd& chance) const {
    switch (kind_) {
        case Kind::Perfect:
        case Kind::Slow:
        case Kind::Enharmonic:
            return question.right;
        case Kind::Wrong:
            return wrongAnswer(question, chance);
        case Kind::Random:
            return chance.R() < chanceOfRight_ ? question.right : wrongAnswer(question, chance);
        case Kind::Confuse:
            return confused(question);
    }
    return question.right;
}

Writing Learner::writes(const Question& question, base::Rnd& chance) const {
    const bool confusing = question.right == a_ || question.right == b_;
    switch (kind_) {
        case Kind::Perfect:
        case Kind::Slow:
            return Writing::Right;
        case Kind::Wrong:
            return Writing::Wrong;
        case Kind::Random:
            return chance.R() < chanceOfRight_ ? Writing::Right : Writing::Wrong;
        case Kind::Confuse:
            return question.tries == 0 && confusing ? Writing::Wrong : Writing::Right;
        case Kind::Enharmonic:
            return Writing::Enharmonic;
    }
    return Writing::Right;
}

/// Any open answer but the right one, which is all that is left when there is no other.
int Learner::wrongAnswer(const Question& question, base::Rnd& chance) {
    const auto wrongs = static_cast<int>(
        std::ranges::count_if(question.open, [&](int i) { return i != question.right; }));
    if (wrongs == 0) return question.right;
    int left = chance.below(wrongs);
    for (const int i : question.open)
        if (i != question.right && left-- == 0) return i;
    return question.right;
}

int Learner::confused(const Question& question) const {
    if (question.tries > 0) return question.right;
    const int taken = question.right == a_ ? b_ : question.right == b_ ? a_ : question.right;
    return std::ranges::find(question.open, taken) != question.open.end() ? taken : question.right;
}

}  // namespace sim
