#pragma once
#include "melvora/host.h"
#include "melvora/notice_bar.h"
#include "melvora/page.h"
#include "suite/help_window.h"

#include <QAction>
#include <QMainWindow>
#include <QPushButton>
#include <QTabWidget>

#include <array>
#include <memory>

namespace melvora {

/// The host's menu. It is hidden while a module runs; closing it ends the host, but only hides it
/// while a module runs. Log and help have windows of their own, made when they are first shown.
class MainWindow final : public QMainWindow {
    Q_OBJECT
  public:
    explicit MainWindow(Host& host);
    ~MainWindow() override;

    enum Tab { Start, Results, Users, tabCount };
    void open(Tab tab);
    void openLog();
    void openHelp(const QString& page);
    /// Shows the window before all others.
    void raiseUp();

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    void layOut();
    Page* makePage(Tab tab);
    void fill(int tab);
    void retranslate();
    void tell(const QString& notice, Host::Details where);
    void rememberPlace(QWidget* window, const QString& name);
    suite::HelpWindow::Texts helpTexts() const;

    Host& host_;
    NoticeBar* notice_;
    QTabWidget* tabs_;
    QPushButton* help_;
    QPushButton* more_;
    QAction* logEntry_;
    QAction* quitEntry_;
    std::array<Page*, tabCount> pages_{};
    Page* log_ = nullptr;
    std::unique_ptr<QMainWindow> logWindow_;
    std::unique_ptr<suite::HelpWindow> helpWindow_;
};

}  // namespace melvora
