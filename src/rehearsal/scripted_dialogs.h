#pragma once
#include "form/ports.h"

#include <deque>
#include <functional>
#include <string>
#include <vector>

namespace rehearsal {

/// Message boxes that are answered at once, as it was laid down. Whoever rehearses for long empties
/// what they keep.
struct ScriptedDialogs final : form::Dialogs {
    struct Message {
        std::string title, text;
    };
    std::vector<Message> messages;
    std::vector<std::string> questions;  ///< "title|text", of files "title|proposal"
    std::deque<bool> answers;            ///< to the next questions
    bool otherwise = false;              ///< the answer when none is left
    std::function<void()> whileAsked;    ///< what happens before a question is answered
    std::deque<std::string> files;       ///< what the file dialogs give; "" when none is left

    void message(form::Icon, const std::string& title, const std::string& text) override {
        messages.push_back({title, text});
    }
    bool askYesNo(const std::string& title, const std::string& text) override {
        questions.push_back(title + "|" + text);
        if (whileAsked) whileAsked();
        return next(answers, otherwise);
    }
    bool confirm(const std::string& title, const std::string& text) override {
        return askYesNo(title, text);
    }
    std::string askOpenFile(const FileQuestion& question) override { return file(question); }
    std::string askSaveFile(const FileQuestion& question) override { return file(question); }

  private:
    template <class T>
    static T next(std::deque<T>& script, T otherwise) {
        if (script.empty()) return otherwise;
        T answer = std::move(script.front());
        script.pop_front();
        return answer;
    }
    std::string file(const FileQuestion& question) {
        questions.push_back(question.title + "|" + question.proposal);
        return next(files, std::string());
    }
};

}  // namespace rehearsal
