#include "melvora/users_page.h"

#include "core/wort.h"
#include "melvora/confirm.h"
#include "melvora/user_dialog.h"
#include "suite/look.h"

#include <QHBoxLayout>

#include <algorithm>

namespace melvora {

namespace wort = core::wort;

UsersPage::UsersPage(Host& host, QWidget* parent)
    : Page(parent),
      host_(host),
      table_(new TextTable(this)),
      add_(new QPushButton(this)),
      edit_(new QPushButton(this)),
      remove_(new QPushButton(this)),
      logIn_(new QPushButton(this)),
      logOut_(new QPushButton(this)),
      locked_(new QLabel(this)),
      trainings_(new TrainingsPanel(host, this)) {
    table_->makeSortable();
    locked_->setWordWrap(true);
    auto* buttons = new QVBoxLayout;
    for (QPushButton* button : {add_, edit_, remove_}) buttons->addWidget(button);
    buttons->addSpacing(16);
    for (QPushButton* button : {logIn_, logOut_}) buttons->addWidget(button);
    buttons->addStretch();
    auto* users = new QHBoxLayout;
    users->setSpacing(suite::margin);
    users->addWidget(table_, 1);
    users->addLayout(buttons);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(suite::pageMargins);
    layout->setSpacing(16);
    layout->addLayout(users, 1);
    layout->addWidget(locked_);
    layout->addWidget(trainings_);
    connect(add_, &QPushButton::clicked, this, &UsersPage::add);
    connect(edit_, &QPushButton::clicked, this, &UsersPage::edit);
    connect(remove_, &QPushButton::clicked, this, &UsersPage::remove);
    connect(logIn_, &QPushButton::clicked, this, &UsersPage::logIn);
    connect(logOut_, &QPushButton::clicked, this, [this] { host_.logIn({}); });
    connect(table_, &TextTable::chosen, this, &UsersPage::showChosen);
    connect(table_, &TextTable::opened, this, &UsersPage::logIn);
    connect(table_, &TextTable::deletionWanted, this, &UsersPage::remove);
    connect(&host_, &Host::usersChanged, this, &UsersPage::showUsers);
    connect(&host_, &Host::moduleStarted, this, &UsersPage::showChosen);
    connect(&host_, &Host::moduleEnded, this, &UsersPage::showChosen);
    // A module that stores is answered first.
    later_.setSingleShot(true);
    connect(&later_, &QTimer::timeout, this, &UsersPage::showUsers);
    connect(&host_, &Host::recordsChanged, this, [this] {
        if (isVisible()) later_.start(0);
    });
    retranslate();
}

void UsersPage::showEvent(QShowEvent* event) {
    Page::showEvent(event);
    showUsers();
}

void UsersPage::retranslate() {
    const Words& words = host_.words();
    table_->setHeadings({words.wort(wort::surname), words.wort(wort::firstName),
                         words.wort(wort::matriculation), words.wort(wort::userKey),
                         words.wort(wort::loggedInHeading)});
    table_->setEmptyText(words.wort(wort::noUsers));
    table_->view()->setAccessibleName(words.wort(wort::usersPage));
    add_->setText(words.wort(wort::addUser));
    edit_->setText(words.wort(wort::editUser));
    remove_->setText(words.wort(wort::deleteUser));
    logIn_->setText(words.wort(wort::logIn));
    logOut_->setText(words.wort(wort::logOut));
    locked_->setText(words.wort(wort::lockedNow));
    trainings_->retranslate();
    QPushButton* const column[] = {add_, edit_, remove_, logIn_, logOut_, trainings_->button()};
    int width = 0;
    for (const QPushButton* button : column) width = std::max(width, button->sizeHint().width());
    for (QPushButton* button : column) button->setFixedWidth(width + fontMetrics().height());
    showUsers();
}

void UsersPage::showUsers() {
    host_.guarded([this] {
        const QString before = chosen() ? chosen()->key : host_.userKey();
        users_ = host_.store().users.all();
        if (!host_.store().trainings.of(nobody).isEmpty()) users_.append({nobody, {}, {}, {}});
        QList<QStringList> rows;
        for (const User& user : users_)
            rows.append(user.key == nobody
                            ? QStringList{nameOf(user), {}, {}, shownKey(user.key), {}}
                            : QStringList{user.surname, user.firstName, user.matriculation,
                                          user.key, user.key == host_.userKey() ? "✓" : ""});
        table_->setRows(rows);
        choose(before);
    });
    showChosen();
}

void UsersPage::showChosen() {
    const User* user = chosen();
    const bool isPerson = user && user->key != nobody;
    edit_->setEnabled(isPerson);
    const bool locked = host_.isLocked(), isLoggedIn = isPerson && user->key == host_.userKey();
    remove_->setEnabled(isPerson && !(locked && isLoggedIn));
    logIn_->setEnabled(isPerson && !isLoggedIn && !locked);
    logOut_->setEnabled(host_.user() && !locked);
    const QString why = locked ? host_.words().wort(wort::lockedNow) : QString();
    for (QPushButton* button : {remove_, logIn_, logOut_}) button->setToolTip(why);
    locked_->setVisible(locked);
    trainings_->setVisible(user);
    if (user) trainings_->showUser(user->key, nameOf(*user));
}

const User* UsersPage::chosen() const {
    const int row = table_->row();
    return row >= 0 && row < users_.size() ? &users_[row] : nullptr;
}

QString UsersPage::nameOf(const User& user) const {
    return user.key == nobody ? host_.words().wort(wort::withoutLogin) : user.fullName();
}

/// Chooses the user with that key, the first one when there is none.
void UsersPage::choose(const QString& key) {
    const auto found = std::ranges::find(users_, key, &User::key);
    table_->chooseRow(found == users_.end() ? 0 : static_cast<int>(found - users_.begin()));
}

void UsersPage::add() {
    UserDialog dialog(host_, {}, this);
    if (dialog.exec() != QDialog::Accepted) return;
    const User user = dialog.user();
    host_.putUser(user);
    host_.inTurn([this, key = user.key] {
        if (!host_.user() && !host_.isLocked()) host_.logIn(key);
    });
    choose(user.key);
}

void UsersPage::edit() {
    const User* user = chosen();
    if (!user) return;
    UserDialog dialog(host_, *user, this);
    if (dialog.exec() == QDialog::Accepted) host_.putUser(dialog.user());
}

void UsersPage::remove() {
    const User* user = chosen();
    if (!user || !remove_->isEnabled()) return;
    const QString key = user->key;
    const QString question = host_.words().wort(wort::deleteUserQuestion).arg(user->fullName());
    if (confirmsDeletion(this, host_.words(), question)) host_.removeUser(key);
}

void UsersPage::logIn() {
    if (const User* user = chosen(); user && user->key != nobody) host_.logIn(user->key);
}

}  // namespace melvora
