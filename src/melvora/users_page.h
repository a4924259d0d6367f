#pragma once
#include "melvora/host.h"
#include "melvora/page.h"
#include "melvora/text_table.h"

#include <QPushButton>

namespace melvora {

/// The list of users: add, edit, delete, log in, log out.
class UsersPage final : public Page {
    Q_OBJECT
  public:
    explicit UsersPage(Host& host, QWidget* parent = nullptr);
    void retranslate() override;

  private:
    void showUsers();
    void showButtons();
    /// @return nullptr when none is chosen
    const User* chosen() const;
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
};

}  // namespace melvora
