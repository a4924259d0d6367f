#include "qt/help.h"

#include <QApplication>
#include <QDesktopServices>
#include <QFile>
#include <QUrl>

/// The pages lie in a library: the linker keeps them only when they are asked for.
static void takePages() { Q_INIT_RESOURCE(help); }

namespace qt {

QtHelp::QtHelp() { takePages(); }
QtHelp::~QtHelp() = default;

void QtHelp::open(const std::string& page, const std::string& language) {
    if (!window_) window_ = std::make_unique<suite::HelpWindow>();
    // Beside a dialog that holds up everything else it must be usable too.
    window_->hide();
    window_->setWindowModality(QApplication::activeModalWidget() ? Qt::ApplicationModal
                                                                 : Qt::NonModal);
    window_->setLanguage(QString::fromStdString(language),
                         texts ? texts() : suite::HelpWindow::Texts{});
    window_->open(QString::fromStdString(page));
    const QString suite = QCoreApplication::applicationDirPath() + QStringLiteral("/melvora.chm");
    if (QFile::exists(suite)) QDesktopServices::openUrl(QUrl::fromLocalFile(suite));
}

}  // namespace qt
