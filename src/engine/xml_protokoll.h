#pragma once
#include "core/katalog.h"
#include "core/zustand.h"
#include "engine/protokoll.h"
#include "engine/uebung.h"
#include "results/skalaxml.h"

namespace engine {

/// The record of a run, task by task, in the XML document that the suite collects.
class XmlProtokoll final : public Protokoll {
  public:
    XmlProtokoll(results::Skalaxml& xml, const core::Katalog& katalog, const core::Zustand& zustand,
                 const Uebung& uebung)
        : xml_(xml), katalog_(katalog), z(zustand), uebung_(uebung) {}

    void aufgabe(const Aufgabe& a) override;
    void antwort(const Aufgabe& a, const Antwort& antwort) override;
    void weitererVersuch(i16 nr) override;

  private:
    results::Skalaxml& xml_;
    const core::Katalog& katalog_;
    const core::Zustand& z;
    const Uebung& uebung_;
};

}  // namespace engine
