#pragma once
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPushButton>
#include <QTextBrowser>

namespace suite {

/// The pages of the help, :/help/<language>/<page>.html, with a way back and a search that goes on
/// from page to page. Its title is the page's. Esc closes it.
class HelpWindow final : public QMainWindow {
  public:
    struct Texts {
        QString contents, back, find, next, notFound;
    };

    HelpWindow();

    /// Also shows the page in front in that language. @param language its suffix, for example "de"
    void setLanguage(const QString& language, const Texts& texts);
    /// Shows a page in front of all other windows, the index when there is no such page.
    void open(const QString& name);

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    void layOut();
    void load(const QString& name);
    void findNext();
    bool foundIn(const QString& name);

    QString language_;
    QString notFound_;
    QTextBrowser* browser_;
    QPushButton* contents_;
    QPushButton* back_;
    QLabel* label_;
    QLineEdit* text_;
    QPushButton* next_;
    QLabel* told_;
};

}  // namespace suite
