#include "melvora/main_window.h"

#include "core/wort.h"
#include "melvora/log_page.h"
#include "melvora/results_page.h"
#include "melvora/start_page.h"
#include "melvora/users_page.h"
#include "suite/look.h"
#include "suite/window_place.h"

#include <QApplication>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QMenu>
#include <QScreen>
#include <QShortcut>
#include <QVBoxLayout>

/// The pages lie in a library: the linker keeps them only when they are asked for.
static void takePages() { Q_INIT_RESOURCE(help); }

namespace melvora {

namespace wort = core::wort;

MainWindow::MainWindow(Host& host)
    : host_(host),
      notice_(new NoticeBar(this)),
      tabs_(new QTabWidget(this)),
      help_(new QPushButton(this)),
      more_(new QPushButton(this)),
      logEntry_(new QAction(this)),
      quitEntry_(new QAction(this)) {
    setWindowTitle("Melvora");
    layOut();
    suite::darkenFrames(*this);
    retranslate();
    fill(Start);
    pages_[Start]->setFocus();
    const QSize roomy{128 * fontMetrics().averageCharWidth(), 40 * fontMetrics().height()};
    resize(sizeHint().expandedTo(roomy).boundedTo(screen()->availableSize() * 0.9));
    rememberPlace(this, "window");

    connect(tabs_, &QTabWidget::currentChanged, this, &MainWindow::fill);
    connect(logEntry_, &QAction::triggered, this, &MainWindow::openLog);
    connect(quitEntry_, &QAction::triggered, this, &QWidget::close);
    const auto helpHere = [this] { openHelp(pages_[tabs_->currentIndex()]->helpPage()); };
    connect(help_, &QPushButton::clicked, this, helpHere);
    connect(new QShortcut(QKeySequence::HelpContents, this), &QShortcut::activated, this, helpHere);
    connect(&host_, &Host::helpWanted, this, &MainWindow::openHelp);
    connect(&host_, &Host::languageChanged, this, &MainWindow::retranslate);
    connect(&host_, &Host::noticed, this, &MainWindow::tell);
    connect(&host_, &Host::moduleStarted, this, [this] {
        notice_->hide();
        hide();
    });
    // Disabled while a module runs, the button that starts it loses the focus.
    connect(&host_, &Host::moduleEnded, this, [this] {
        if (tabs_->currentIndex() == Start) pages_[Start]->setFocus();
    });
    connect(&host_, &Host::menuWanted, this, &MainWindow::raiseUp);
    connect(&host_, &Host::raiseWanted, this, [this] {
        if (host_.module().runs())
            notice_->show(host_.words().wort(wort::moduleRuns).arg(host_.moduleTitle()));
        raiseUp();
    });
}

/// Its place is kept while all of it is there.
MainWindow::~MainWindow() { hide(); }

void MainWindow::layOut() {
    auto* menu = new QMenu(more_);
    menu->addActions({logEntry_, quitEntry_});
    more_->setMenu(menu);
    auto* corner = new QWidget(tabs_);
    auto* buttons = new QHBoxLayout(corner);
    buttons->setContentsMargins(0, 0, 8, 4);
    for (QPushButton* button : {help_, more_}) buttons->addWidget(button);
    tabs_->setCornerWidget(corner);
    tabs_->setDocumentMode(true);
    auto* middle = new QWidget(this);
    auto* layout = new QVBoxLayout(middle);
    layout->setContentsMargins(0, 4, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(notice_);
    layout->addWidget(tabs_);
    setCentralWidget(middle);
    for (int tab = 0; tab < tabCount; ++tab) {
        auto* holder = new QWidget(tabs_);
        (new QVBoxLayout(holder))->setContentsMargins(0, 0, 0, 0);
        tabs_->addTab(holder, {});
    }
}

void MainWindow::open(Tab tab) { tabs_->setCurrentIndex(tab); }

void MainWindow::openLog() {
    if (!logWindow_) {
        logWindow_ = std::make_unique<QMainWindow>();
        log_ = new LogPage(host_, logWindow_.get());
        logWindow_->setCentralWidget(log_);
        suite::darkenFrames(*logWindow_);
        logWindow_->setWindowTitle(log_->windowTitle());
        logWindow_->resize(size());
        rememberPlace(logWindow_.get(), "window.log");
        const auto shortcut = [this](const QKeySequence& key, auto call) {
            connect(new QShortcut(key, logWindow_.get()), &QShortcut::activated, this, call);
        };
        shortcut(Qt::Key_Escape, [this] { logWindow_->close(); });
        shortcut(QKeySequence::HelpContents, [this] { openHelp(log_->helpPage()); });
    }
    logWindow_->show();
    logWindow_->raise();
    logWindow_->activateWindow();
}

void MainWindow::openHelp(const QString& page) {
    if (!helpWindow_) {
        takePages();
        helpWindow_ = std::make_unique<suite::HelpWindow>();
        helpWindow_->setLanguage(host_.words().suffix(), helpTexts());
        rememberPlace(helpWindow_.get(), "window.help");
    }
    helpWindow_->open(page);
}

suite::HelpWindow::Texts MainWindow::helpTexts() const {
    const Words& words = host_.words();
    return {words.wort(wort::helpIndex), words.wort(wort::helpBack), words.wort(wort::helpFind),
            words.wort(wort::helpFindNext), words.wort(wort::helpNotFound)};
}

void MainWindow::rememberPlace(QWidget* window, const QString& name) {
    new suite::WindowPlace(
        window,
        [&] {
            QString place;
            host_.guarded([&] { place = host_.store().settings.get(name); });
            return QByteArray::fromBase64(place.toLatin1());
        },
        [this, name](const QByteArray& place) {
            host_.inTurn([this, name, text = QString::fromLatin1(place.toBase64())] {
                host_.store().settings.set(name, text);
            });
        });
}

void MainWindow::raiseUp() {
    if (isMinimized())
        showNormal();
    else
        show();
    raise();
    activateWindow();
}

void MainWindow::closeEvent(QCloseEvent* event) {
    event->accept();
    if (!host_.module().runs()) QApplication::quit();
}

/// What went well does not push aside what did not.
void MainWindow::tell(const QString& notice, Host::Details where) {
    const Words& words = host_.words();
    switch (where) {
        case Host::Details::Here:
            return notice_->show(notice);
        case Host::Details::Log:
            return notice_->show(notice, {words.wort(wort::showLog), [this] { openLog(); }});
        case Host::Details::Results:
            if (notice_->isVisibleTo(this)) return;
            return notice_->show(notice,
                                 {words.wort(wort::showResults), [this] {
                                      open(Results);
                                      static_cast<ResultsPage*>(pages_[Results])->chooseNewest();
                                  }});
    }
}

Page* MainWindow::makePage(Tab tab) {
    switch (tab) {
        case Start: {
            auto* page = new StartPage(host_, this);
            connect(page, &StartPage::usersWanted, this, [this] { open(Users); });
            return page;
        }
        case Results:
            return new ResultsPage(host_, this);
        case Users:
            return new UsersPage(host_, this);
        case tabCount:
            break;
    }
    return nullptr;
}

void MainWindow::fill(int tab) {
    Page*& page = pages_[static_cast<std::size_t>(tab)];
    if (page) return;
    page = makePage(static_cast<Tab>(tab));
    suite::darkenFrames(*page);
    tabs_->widget(tab)->layout()->addWidget(page);
    page->show();
}

void MainWindow::retranslate() {
    const Words& words = host_.words();
    const wort::Id titles[] = {wort::startPage, wort::resultsPage, wort::usersPage};
    for (int tab = 0; tab < tabCount; ++tab) {
        tabs_->setTabText(tab, words.wort(titles[tab]));
        if (Page* page = pages_[static_cast<std::size_t>(tab)]) page->retranslate();
    }
    notice_->setCloseText(words.wort(wort::closeNotice));
    help_->setText(words.wort(wort::helpButton));
    more_->setText(words.wort(wort::moreButton));
    logEntry_->setText(words.wort(wort::logEntry));
    quitEntry_->setText(words.wort(wort::quitEntry));
    if (log_) {
        log_->retranslate();
        logWindow_->setWindowTitle(log_->windowTitle());
    }
    if (helpWindow_) helpWindow_->setLanguage(words.suffix(), helpTexts());
}

}  // namespace melvora
