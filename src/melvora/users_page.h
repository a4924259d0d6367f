#pragma once
#include "melvora/host.h"
#include "melvora/page.h"
#include "melvora/text_table.h"
#include "melvora/trainings_panel.h"

#include <QPushButton>
#include <QTimer>

namespace melvora {

/// The list of users: add, edit, delete, log in, log out, and the chosen one's saved trainings.
/// Trainings of nobody are shown like a user's, in a last row that is there as long as they are.
class UsersPage final : public Page {
    Q_OBJECT
  public:
    explicit UsersPage(Host& host, QWidget* parent = nullptr);
    void retranslate() override;
    QString helpPage() const override { return "melvora_users"; }

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    void showUsers();
    void showChosen();
    /// @return nullptr when none is chosen
    const User* chosen() const;
    QString nameOf(const User& user) const;
    void choose(const QString& key);
    void add();
    void edit();
    void remove();
    void logIn();

    Host& host_;
    QList<User> users_;
    TextTable* table_;
    QPushButton* add_;
    QPushButton* edit_;
    QPushButton* remove_;
    QPushButton* logIn_;
    QPushButton* logOut_;
    QLabel* locked_;
    TrainingsPanel* trainings_;
    QTimer later_;
};

}  // namespace melvora
