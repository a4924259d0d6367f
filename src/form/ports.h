#pragma once
#include <stdexcept>
#include <string>
#include <string_view>

namespace form {

class Form;

enum class Icon { Exclamation, Stop, Question };

/// Message boxes. They return when the user has answered.
class Dialogs {
  public:
    virtual ~Dialogs() = default;
    virtual void message(Icon icon, const std::string& title, const std::string& text) = 0;
    /// Whether to do something that keeps what was done: yes unless the user says no in so many
    /// words; Esc and the close box are no answer.
    virtual bool askYesNo(const std::string& title, const std::string& text) = 0;
    /// Whether to do something that loses what was done: no unless the user says yes; Esc and the
    /// close box mean no.
    virtual bool confirm(const std::string& title, const std::string& text) = 0;

    /// What a file dialog offers.
    struct FileQuestion {
        std::string title;
        std::string proposal;  ///< folder, or path of the file proposed
        std::string kind;      ///< of the files, for example "Melvora Settings"
        std::string pattern;   ///< for example "*.mvs"
    };
    /// @return path of the file chosen, "" when the user chose none.
    virtual std::string askOpenFile(const FileQuestion& question) = 0;
    virtual std::string askSaveFile(const FileQuestion& question) = 0;
};

/// Nothing was printed.
class PrintFault : public std::runtime_error {
  public:
    /// @param printer the one that took nothing, "" when there is none.
    explicit PrintFault(const std::string& printer) : std::runtime_error(printer) {}
    bool noPrinter() const { return std::string_view(what()).empty(); }
};

/// Puts what stands on a form on paper.
class Printer {
  public:
    virtual ~Printer() = default;
    /// On the default printer, in landscape; asks nothing. @throws PrintFault
    virtual void print(Form& form) = 0;
};

/// The program's help.
class Help {
  public:
    virtual ~Help() = default;
    /// Opens the page of a form in a language; `language` is its suffix, for example "de".
    virtual void open(const std::string& page, const std::string& language) = 0;
};

}  // namespace form
