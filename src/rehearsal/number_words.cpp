#include "rehearsal/number_words.h"

#include <stdexcept>

namespace rehearsal {

namespace {

class Words final : public core::SprachObjekt {
  public:
    Words(const NumberWords& list, std::string letter) : list_(list), letter_(std::move(letter)) {}
    std::string Wort(const std::string& key) override {
        if (list_.lacking.contains(key) || key.empty() || key.back() != 's' ||
            key.find(' ') != std::string::npos)
            throw std::out_of_range(key);
        if (const auto it = list_.texts.find(key); it != list_.texts.end()) return it->second;
        return letter_ + key.substr(0, key.size() - 1);
    }

  private:
    const NumberWords& list_;
    std::string letter_;
};

}  // namespace

std::unique_ptr<core::SprachObjekt> NumberWords::erzeugen(const std::string& klasse) {
    if (klasse == "melvoralang.de") return std::make_unique<Words>(*this, "W");
    if (klasse == "melvoralang.en") return std::make_unique<Words>(*this, "E");
    return nullptr;
}

}  // namespace rehearsal
