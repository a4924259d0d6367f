#pragma once
#include "melvora/host.h"
#include "melvora/notice_bar.h"
#include "melvora/page.h"

#include <QTabWidget>
#include <QWidget>

#include <array>

namespace melvora {

/// The host's menu. It is hidden while a module runs; closing it ends the host, but only hides it
/// while a module runs.
class MainWindow final : public QWidget {
    Q_OBJECT
  public:
    explicit MainWindow(Host& host);

    enum Tab { Start, Results, LogLines, Users, tabCount };
    void open(Tab tab);
    /// Shows the window before all others.
    void raiseUp();

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    Page* makePage(Tab tab);
    void fill(int tab);
    void retranslate();

    Host& host_;
    NoticeBar* notice_;
    QTabWidget* tabs_;
    std::array<Page*, tabCount> pages_{};
};

}  // namespace melvora
