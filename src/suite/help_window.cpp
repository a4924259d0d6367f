#include "suite/help_window.h"

#include "suite/look.h"

#include <QApplication>
#include <QDir>
#include <QHBoxLayout>
#include <QShortcut>
#include <QTextDocument>
#include <QUrl>
#include <QVBoxLayout>

namespace suite {

namespace {

const QString start = QStringLiteral("index");

}  // namespace

HelpWindow::HelpWindow()
    : browser_(new QTextBrowser),
      contents_(new QPushButton),
      back_(new QPushButton),
      label_(new QLabel),
      text_(new QLineEdit),
      next_(new QPushButton),
      told_(new QLabel) {
    setObjectName(QStringLiteral("help"));
    layOut();
    darkenFrames(*this);
    resize(700, 640);
    connect(contents_, &QPushButton::clicked, this, [this] { load(start); });
    connect(back_, &QPushButton::clicked, browser_, &QTextBrowser::backward);
    connect(next_, &QPushButton::clicked, this, &HelpWindow::findNext);
    connect(text_, &QLineEdit::returnPressed, this, &HelpWindow::findNext);
    connect(text_, &QLineEdit::textChanged, this, [this](const QString& wanted) {
        next_->setEnabled(!wanted.isEmpty());
        told_->clear();
    });
    connect(browser_, &QTextBrowser::backwardAvailable, back_, &QWidget::setEnabled);
    connect(browser_, &QTextBrowser::sourceChanged, this, [this] {
        browser_->document()->setDocumentMargin(16);
        setWindowTitle(browser_->documentTitle());
        browser_->setAccessibleName(browser_->documentTitle());
    });
    const auto shortcut = [this](const QKeySequence& key, auto call) {
        connect(new QShortcut(key, this), &QShortcut::activated, this, call);
    };
    shortcut(Qt::Key_Escape, [this] { close(); });
    shortcut(QKeySequence::Find, [this] {
        text_->setFocus();
        text_->selectAll();
    });
    shortcut(QKeySequence::FindNext, [this] { findNext(); });
    shortcut(QKeySequence::Back, [this] { browser_->backward(); });
}

void HelpWindow::layOut() {
    label_->setBuddy(text_);
    text_->setClearButtonEnabled(true);
    browser_->setOpenExternalLinks(true);
    back_->setEnabled(false);
    next_->setEnabled(false);
    auto* bar = new QHBoxLayout;
    for (QWidget* widget : std::initializer_list<QWidget*>{contents_, back_, label_})
        bar->addWidget(widget);
    bar->insertSpacing(2, margin);
    bar->addWidget(text_, 1);
    bar->addWidget(next_);
    auto* column = new QVBoxLayout;
    column->setContentsMargins(pageMargins);
    column->addLayout(bar);
    column->addWidget(browser_, 1);
    column->addWidget(told_);
    auto* middle = new QWidget(this);
    middle->setLayout(column);
    setCentralWidget(middle);
    for (QPushButton* button : {contents_, back_, next_}) button->setAutoDefault(true);
}

void HelpWindow::setLanguage(const QString& language, const Texts& texts) {
    const QString shown = QFileInfo(browser_->source().path()).completeBaseName();
    language_ = language;
    notFound_ = texts.notFound;
    contents_->setText(texts.contents);
    back_->setText(texts.back);
    label_->setText(texts.find);
    next_->setText(texts.next);
    told_->clear();
    if (!shown.isEmpty()) {
        load(shown);
        browser_->clearHistory();
    }
}

void HelpWindow::load(const QString& name) {
    const QString path = QStringLiteral("/help/%1/%2.html");
    const bool isThere = QFile::exists(QChar(':') + path.arg(language_, name));
    browser_->setSource(QUrl(QStringLiteral("qrc:") + path.arg(language_, isThere ? name : start)));
}

void HelpWindow::open(const QString& name) {
    // Beside a dialog that holds up everything else it must be usable too.
    const auto modality = QApplication::activeModalWidget() ? Qt::ApplicationModal : Qt::NonModal;
    if (modality != windowModality()) {
        hide();
        setWindowModality(modality);
    }
    load(name);
    if (isMinimized()) showNormal();
    show();
    raise();
    activateWindow();
}

void HelpWindow::showEvent(QShowEvent* event) {
    QMainWindow::showEvent(event);
    browser_->setFocus();
}

/// From the place in front to the end of this page, then page by page, and at last this page from
/// its beginning.
void HelpWindow::findNext() {
    const QString wanted = text_->text();
    told_->clear();
    if (wanted.isEmpty() || browser_->find(wanted)) return;
    const QString here = QFileInfo(browser_->source().path()).completeBaseName();
    QStringList pages;
    for (const QString& file :
         QDir(QStringLiteral(":/help/") + language_).entryList({QStringLiteral("*.html")}))
        pages.append(QFileInfo(file).completeBaseName());
    const auto first = pages.indexOf(here) + 1;
    for (qsizetype i = 0; i < pages.size(); ++i)
        if (foundIn(pages[(first + i) % pages.size()])) return;
    told_->setText(notFound_);
}

bool HelpWindow::foundIn(const QString& name) {
    const QUrl url(QStringLiteral("qrc:/help/%1/%2.html").arg(language_, name));
    QFile file(QChar(':') + url.path());
    if (!file.open(QIODevice::ReadOnly)) return false;
    QTextDocument document;
    document.setHtml(QString::fromUtf8(file.readAll()));
    if (document.find(text_->text()).isNull()) return false;
    if (browser_->source() != url) browser_->setSource(url);
    browser_->moveCursor(QTextCursor::Start);
    return browser_->find(text_->text());
}

}  // namespace suite
