#include "look/toolkit_texts.h"

#include <QCoreApplication>
#include <QLibraryInfo>

namespace look {

void ToolkitTexts::take(const QString& suffix) {
    QCoreApplication::removeTranslator(&texts_);
    if (texts_.load(QStringLiteral("qtbase_") + suffix,
                    QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&texts_);
}

}  // namespace look
