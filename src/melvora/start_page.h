#pragma once
#include "melvora/combo.h"
#include "melvora/host.h"
#include "melvora/page.h"

#include <QLabel>
#include <QPushButton>

namespace melvora {

/// Who practises, in which language, on which device, and the button that starts the module. A
/// user is chosen first and logged in by a button.
class StartPage final : public Page {
    Q_OBJECT
  public:
    explicit StartPage(Host& host, QWidget* parent = nullptr);
    void retranslate() override;
    QString helpPage() const override { return "melvora"; }

  public slots:
    /// The list, with who is logged in chosen.
    void showUsers();
    /// Lists the MIDI ports that are there now.
    void showMidiDevices();
    /// Lists the soundfonts that are installed now.
    void showFonts();
    void showModule();

  signals:
    void usersWanted();

  private:
    void layOut();
    /// What can be done with who is chosen.
    void showChoice();
    void logIn(const QString& key);

    Host& host_;
    QLabel* title_;
    QLabel* subtitle_;
    QLabel* userLabel_;
    Combo* user_;
    QPushButton* logIn_;
    QPushButton* logOut_;
    QLabel* loggedIn_;
    QPushButton* manage_;
    QLabel* languageLabel_;
    Combo* language_;
    QLabel* midiLabel_;
    Combo* midi_;
    QLabel* fontLabel_;
    Combo* font_;
    QLabel* locked_;
    QPushButton* start_;
    QLabel* description_;
};

}  // namespace melvora
