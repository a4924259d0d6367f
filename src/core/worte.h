#pragma once
#include "core/wort.h"

#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace core {

/// The words of one language.
class SprachObjekt {
  public:
    virtual ~SprachObjekt() = default;
    /// @param key the word's number in plain decimal, followed by "s".
    /// @throws std::out_of_range for a key that the language lacks.
    virtual std::string Wort(const std::string& key) = 0;
};

/// The installed languages.
class SprachListe {
  public:
    struct Sprache {
        std::string name;    ///< in the language itself, for example "Deutsch"
        std::string suffix;  ///< for example "de"
    };
    virtual ~SprachListe() = default;
    virtual std::vector<Sprache> sprachen() = 0;
    /// @param klasse "melvoralang." and the suffix. @return nullptr when it can't be made.
    virtual std::unique_ptr<SprachObjekt> erzeugen(const std::string& klasse) = 0;
};

/// Every visible word, by number, in the language in force.
class Worte {
  public:
    /// @param liste may be nullptr: then there is no language.
    explicit Worte(SprachListe* liste) : sprachListe_(liste) {}

    void SprachenLaden();
    /// Takes the language of that name; an unknown name changes nothing.
    void SpracheSetzen(const std::string& name);
    bool hatSprache() const { return sprachObjekt_ != nullptr; }
    /// The word, "VOID" when there is no language or it lacks the text.
    const std::string& Wort(wort::Id wort);
    /// Of the language in force, "de" without one.
    const std::string& suffix() const { return suffix_; }

  private:
    SprachListe* sprachListe_;
    std::vector<SprachListe::Sprache> sprachen_;
    std::unique_ptr<SprachObjekt> sprachObjekt_;
    std::string suffix_ = "de";
    std::unordered_map<wort::Id, std::string> gelesen_;
};

/// A text with its "%1" replaced, and with a second value its "%2".
std::string eingesetzt(std::string text, const std::string& wert, const std::string& zweiter = {});

}  // namespace core
