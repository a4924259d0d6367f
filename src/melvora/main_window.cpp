#include "melvora/main_window.h"

#include "core/wort.h"
#include "melvora/log_page.h"
#include "melvora/results_page.h"
#include "melvora/start_page.h"
#include "melvora/users_page.h"

#include <QApplication>
#include <QCloseEvent>
#include <QVBoxLayout>

namespace melvora {

namespace wort = core::wort;

MainWindow::MainWindow(Host& host)
    : host_(host), notice_(new NoticeBar(this)), tabs_(new QTabWidget(this)) {
    setWindowTitle("Melvora");
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 4, 0, 0);
    layout->setSpacing(4);
    tabs_->setDocumentMode(true);
    layout->addWidget(notice_);
    layout->addWidget(tabs_);
    for (int tab = 0; tab < tabCount; ++tab) {
        auto* holder = new QWidget(tabs_);
        (new QVBoxLayout(holder))->setContentsMargins(0, 0, 0, 0);
        tabs_->addTab(holder, {});
    }
    retranslate();
    fill(Start);
    pages_[Start]->setFocus();
    resize(sizeHint().expandedTo(
        {100 * fontMetrics().averageCharWidth(), 36 * fontMetrics().height()}));

    connect(tabs_, &QTabWidget::currentChanged, this, &MainWindow::fill);
    connect(&host_, &Host::languageChanged, this, &MainWindow::retranslate);
    connect(&host_, &Host::noticed, notice_, &NoticeBar::show);
    connect(&host_, &Host::moduleStarted, this, &QWidget::hide);
    // Disabled while a module runs, the button that starts it loses the focus.
    connect(&host_, &Host::moduleEnded, this, [this] {
        if (tabs_->currentIndex() == Start) pages_[Start]->setFocus();
    });
    connect(&host_, &Host::menuWanted, this, &MainWindow::raiseUp);
    connect(&host_, &Host::raiseWanted, this, [this] {
        if (host_.module().runs())
            notice_->show(host_.words().wort(wort::moduleRuns).arg(host_.module().name()));
        raiseUp();
    });
}

void MainWindow::open(Tab tab) { tabs_->setCurrentIndex(tab); }

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

Page* MainWindow::makePage(Tab tab) {
    switch (tab) {
        case Start: {
            auto* page = new StartPage(host_, this);
            connect(page, &StartPage::usersWanted, this, [this] { open(Users); });
            return page;
        }
        case Results:
            return new ResultsPage(host_, this);
        case LogLines:
            return new LogPage(host_, this);
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
    tabs_->widget(tab)->layout()->addWidget(page);
}

void MainWindow::retranslate() {
    const wort::Id titles[] = {wort::startPage, wort::resultsPage, wort::logPage, wort::usersPage};
    for (int tab = 0; tab < tabCount; ++tab) {
        tabs_->setTabText(tab, host_.words().wort(titles[tab]));
        if (Page* page = pages_[static_cast<std::size_t>(tab)]) page->retranslate();
    }
    notice_->setCloseText(host_.words().wort(wort::closeNotice));
}

}  // namespace melvora
