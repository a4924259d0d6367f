#pragma once
#include "core/programm.h"

#include <pugixml.hpp>

#include <string>

namespace results {

using base::i16;

/// The record of a run: settings, tasks and every answer, as an XML document that the suite
/// collects from the temporary folder.
class Skalaxml {
  public:
    explicit Skalaxml(core::Programm& programm) : p(programm) {}

    /// Starts a record; its file is named for this moment.
    void SkalaXmlNeu();
    /// A task begins. @param tonskala name of its scale.
    void LektionNeu(const std::string& tonskala);
    /// The lesson in hand.
    pugi::xml_node lektion() const { return lektion_; }
    /// The answer in hand, of the lesson in hand; empty when it has none.
    pugi::xml_node antwort() const { return lektion_.child("answers").last_child(); }
    pugi::xml_node AntwortNeu(pugi::xml_node lektion, i16 lfd);
    /// Answer time in tenths of a second and repetitions, into the answer in hand.
    pugi::xml_node AntwortSchluss(float dauer, int whlg);
    void AntwortEigenschaft(pugi::xml_node node, const char* key, const std::string& value);
    void EinstellungenSchreiben(const std::vector<std::string>& liste);
    /// Finishes and saves: written beside and renamed, so that the file is never half there.
    /// @throws run-time error 75 naming the path.
    void SkalaXmlSichern(const std::vector<std::string>& liste);

    const std::string& datei() const { return datei_; }
    /// The record as it stands, as text.
    std::string text() const;

  private:
    core::Programm& p;
    pugi::xml_document dokument_;
    pugi::xml_node lektionen_, lektion_;
    std::string datei_;
};

}  // namespace results
