#pragma once
#include "form/form.h"
#include "form/ports.h"

#include <optional>
#include <string>
#include <vector>

namespace rehearsal {

/// A printer that keeps what was printed.
struct RecordingPrinter final : form::Printer {
    std::vector<std::string> pages;    ///< names of forms
    std::optional<std::string> fault;  ///< nothing is printed, and why

    void print(form::Form& form) override {
        if (fault) throw form::PrintFault(*fault);
        pages.push_back(form.name());
    }
};

}  // namespace rehearsal
