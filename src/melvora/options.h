#pragma once
#include "base/usage_error.h"

#include <QString>
#include <QStringList>

#include <optional>

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
    /// A soundfont to measure, and nothing else.
    std::optional<QString> font;
    /// Absolute path of a file of settings; the module it is for stands in `module` then.
    std::optional<QString> settingsFile;
};

/// Does not look whether the file of settings is there.
/// @param arguments with the program's name first
/// @throws base::UsageError
Options parseOptions(const QStringList& arguments);

/// Text of --help.
QString helpText();

}  // namespace melvora
