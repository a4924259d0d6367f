#pragma once
#include "form/form.h"
#include "form/ports.h"

#include <deque>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace support {

/// Message boxes that are answered at once: questions from `answers`, "no" when none is left.
struct ScriptedDialogs final : form::Dialogs {
    struct Message {
        std::string title, text;
    };
    std::vector<Message> messages;
    std::vector<std::string> questions;  ///< "title|text"
    std::deque<bool> answers;
    std::deque<std::string> files;  ///< what the file dialogs give; "" when none is left

    void message(form::Icon, const std::string& title, const std::string& text) override {
        messages.push_back({title, text});
    }
    bool askYesNo(const std::string& title, const std::string& text) override {
        questions.push_back(title + "|" + text);
        if (answers.empty()) return false;
        const bool yes = answers.front();
        answers.pop_front();
        return yes;
    }
    std::string askOpenFile(const FileQuestion& question) override { return file(question); }
    std::string askSaveFile(const FileQuestion& question) override { return file(question); }

  private:
    std::string file(const FileQuestion& question) {
        questions.push_back(question.title + "|" + question.proposal);
        if (files.empty()) return {};
        std::string path = files.front();
        files.pop_front();
        return path;
    }
};

/// A printer that remembers what was printed, or fails.
struct FakePrinter final : form::Printer {
    std::vector<std::string> pages;  ///< names of forms
    std::optional<std::string> fault;

    void print(form::Form& form) override {
        if (fault) throw form::PrintFault(*fault);
        pages.push_back(form.name());
    }
};

struct FakeHelp final : form::Help {
    std::vector<std::string> opened;  ///< "page/language"
    bool broken = false;

    void open(const std::string& page, const std::string& language) override {
        if (broken) throw std::runtime_error("no help");
        opened.push_back(page + "/" + language);
    }
};

}  // namespace support
