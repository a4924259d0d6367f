#pragma once
#include "form/ports.h"

#include <stdexcept>
#include <string>
#include <vector>

namespace rehearsal {

/// Help that keeps which pages were opened.
struct RecordingHelp final : form::Help {
    std::vector<std::string> opened;  ///< "page/language"
    bool broken = false;              ///< opening throws

    void open(const std::string& page, const std::string& language) override {
        if (broken) throw std::runtime_error("no help");
        opened.push_back(page + "/" + language);
    }
};

}  // namespace rehearsal
