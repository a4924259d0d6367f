#pragma once
#include "melvora/host.h"

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace melvora {

/// Asks for the data of one user. The key of a new user is proposed from the name until it is typed
/// over; the key of an old one stands, since records and results bear it.
class UserDialog final : public QDialog {
    Q_OBJECT
  public:
    /// @param user to be edited; nothing for a new one
    UserDialog(Host& host, const std::optional<User>& user, QWidget* parent);

    User user() const;

  private:
    void layOut();
    void proposeKey();
    void check();
    /// What is wrong with the input; "" when it can be saved.
    QString complaint() const;

    Host& host_;
    const bool isNew_;
    QLineEdit* surname_;
    QLineEdit* firstName_;
    QLineEdit* matriculation_;
    QLineEdit* key_;
    QLabel* complaint_;
    QPushButton* save_;
};

}  // namespace melvora
