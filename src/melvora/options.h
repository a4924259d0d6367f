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
    /// Absolute path of a file of settings; the module it is for stands in `module` then.
    std::optional<QString> settingsFile;
};

/// A command line that cannot be carried out.
class UsageError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// Does not look whether the file of settings is there.
/// @param arguments with the program's name first
/// @throws UsageError
Options parseOptions(const QStringList& arguments);

/// Text of --help.
QString helpText();

}  // namespace melvora
