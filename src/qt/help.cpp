#include "qt/help.h"

#include <QApplication>
#include <QDesktopServices>
#include <QFile>
#include <QShortcut>
#include <QTextBrowser>
#include <QTextDocument>
#include <QUrl>

/// The pages lie in a library: the linker keeps them only when they are asked for.
static void takePages() { Q_INIT_RESOURCE(help); }

namespace qt {

QtHelp::QtHelp() { takePages(); }
QtHelp::~QtHelp() = default;

void QtHelp::open(const std::string& page, const std::string& language) {
    const QString folder = QStringLiteral("/help/") + QString::fromStdString(language) + '/';
    QString file = folder + QString::fromStdString(page) + QStringLiteral(".html");
    if (!QFile::exists(':' + file)) file = folder + QStringLiteral("index.html");
    if (!browser_) {
        browser_ = std::make_unique<QTextBrowser>();
        browser_->setObjectName(QStringLiteral("help"));
        browser_->setOpenExternalLinks(true);
        browser_->resize(640, 620);
        new QShortcut(Qt::Key_Escape, browser_.get(), [this] { browser_->close(); });
    }
    // Beside a dialog that holds up everything else it must be usable too.
    browser_->hide();
    browser_->setWindowModality(QApplication::activeModalWidget() ? Qt::ApplicationModal
                                                                  : Qt::NonModal);
    browser_->setSource(QUrl(QStringLiteral("qrc") + ':' + file));
    browser_->document()->setDocumentMargin(16);
    browser_->setWindowTitle(browser_->documentTitle());
    browser_->show();
    browser_->raise();
    browser_->activateWindow();
    const QString suite = QCoreApplication::applicationDirPath() + QStringLiteral("/melvora.chm");
    if (QFile::exists(suite)) QDesktopServices::openUrl(QUrl::fromLocalFile(suite));
}

}  // namespace qt
