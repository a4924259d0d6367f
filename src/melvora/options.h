#pragma once
#include <QString>
#include <QStringList>

#include <optional>
#include <stdexcept>

namespace melvora {

/// What the command line says.
struct Options {
    bool help = false;
    bool version = false;
    bool teacher = false;
    std::optional<QString> module;
    std::optional<QString> user;
    std::optional<QString> language;
    std::optional<QString> data;

    /// Nothing but the program's name was given.
    bool plain() const;
};

/// A command line that cannot be carried out.
class UsageError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// @param arguments with the program's name first
/// @throws UsageError
Options parseOptions(const QStringList& arguments);

/// Text of --help.
QString helpText();

}  // namespace melvora
