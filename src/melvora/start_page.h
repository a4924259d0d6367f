#pragma once
#include "melvora/host.h"
#include "melvora/page.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>

namespace melvora {

/// Who practises, in which language, on which device, and the button that starts the module.
class StartPage final : public Page {
    Q_OBJECT
  public:
    explicit StartPage(Host& host, QWidget* parent = nullptr);
    void retranslate() override;

  public slots:
    void showUsers();
    /// Lists the MIDI ports that are there now.
    void showMidiDevices();
    void showModule();

  signals:
    void usersWanted();

  private:
    void layOut();

    Host& host_;
    QLabel* title_;
    QLabel* subtitle_;
    QLabel* userLabel_;
    QComboBox* user_;
    QPushButton* manage_;
    QLabel* languageLabel_;
    QComboBox* language_;
    QLabel* midiLabel_;
    QComboBox* midi_;
    QPushButton* start_;
    QLabel* description_;
};

}  // namespace melvora
