#include "melvora/users_page.h"

#include "melvora/user_dialog.h"

#include <QHBoxLayout>
#include <QMessageBox>

namespace melvora {

UsersPage::UsersPage(Host& host, QWidget* parent)
    : Page(parent),
      host_(host),
      table_(new TextTable(this)),
      add_(new QPushButton(this)),
      edit_(new QPushButton(this)),
      remove_(new QPushButton(this)),
      logIn_(new QPushButton(this)),
      logOut_(new QPushButton(this)) {
    auto* buttons = new QVBoxLayout;
    for (QPushButton* button : {add_, edit_, remove_}) buttons->addWidget(button);
    buttons->addSpacing(16);
    for (QPushButton* button : {logIn_, logOut_}) buttons->addWidget(button);
    buttons->addStretch();
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(12, 12, 12, 12);
    layout->setSpacing(12);
    layout->addWidget(table_, 1);
    layout->addLayout(buttons);
    connect(add_, &QPushButton::clicked, this, &UsersPage::add);
    connect(edit_, &QPushButton::clicked, this, &UsersPage::edit);
    connect(remove_, &QPushButton::clicked, this, &UsersPage::remove);
    connect(logIn_, &QPushButton::clicked, this, &UsersPage::logIn);
    connect(logOut_, &QPushButton::clicked, this, [this] { host_.logIn({}); });
    connect(table_, &TextTable::chosen, this, &UsersPage::showButtons);
    connect(table_, &TextTable::opened, this, &UsersPage::logIn);
    connect(&host_, &Host::usersChanged, this, &UsersPage::showUsers);
    retranslate();
}

void UsersPage::retranslate() {
    const Words& words = host_.words();
    table_->setHeadings({words.wort(918), words.wort(919), words.wort(920), words.wort(921)});
    table_->setEmptyText(words.wort(961));
    table_->view()->setAccessibleName(words.wort(903));
    add_->setText(words.wort(915));
    edit_->setText(words.wort(916));
    remove_->setText(words.wort(917));
    logIn_->setText(words.wort(913));
    logOut_->setText(words.wort(914));
    showUsers();
}

void UsersPage::showUsers() {
    host_.guarded([this] {
        users_ = host_.store().users.all();
        QList<QStringList> rows;
        for (const User& user : users_)
            rows.append({user.surname, user.firstName, user.matriculation,
                         user.key == host_.userKey() ? user.key + "  ✓" : user.key});
        table_->setRows(rows);
    });
    showButtons();
}

void UsersPage::showButtons() {
    const User* user = chosen();
    edit_->setEnabled(user);
    remove_->setEnabled(user);
    logIn_->setEnabled(user && user->key != host_.userKey());
    logOut_->setEnabled(host_.user().has_value());
}

const User* UsersPage::chosen() const {
    const int row = table_->row();
    return row >= 0 && row < users_.size() ? &users_[row] : nullptr;
}

void UsersPage::add() {
    UserDialog dialog(host_, {}, this);
    if (dialog.exec() != QDialog::Accepted) return;
    const User user = dialog.user();
    host_.putUser(user);
    if (!host_.user()) host_.logIn(user.key);
}

void UsersPage::edit() {
    const User* user = chosen();
    if (!user) return;
    UserDialog dialog(host_, *user, this);
    if (dialog.exec() == QDialog::Accepted) host_.putUser(dialog.user());
}

void UsersPage::remove() {
    const User* user = chosen();
    if (!user) return;
    const Words& words = host_.words();
    const QString key = user->key;
    QMessageBox question(QMessageBox::Question, "Melvora", words.wort(928).arg(user->fullName()),
                         QMessageBox::NoButton, this);
    auto* yes = question.addButton(words.wort(957), QMessageBox::DestructiveRole);
    question.setDefaultButton(question.addButton(words.wort(923), QMessageBox::RejectRole));
    question.exec();
    if (question.clickedButton() == yes) host_.removeUser(key);
}

void UsersPage::logIn() {
    if (const User* user = chosen()) host_.logIn(user->key);
}

}  // namespace melvora
