#include "melvora/user_dialog.h"

#include "core/wort.h"
#include "suite/look.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QShortcut>

namespace melvora {

namespace wort = core::wort;

UserDialog::UserDialog(Host& host, const std::optional<User>& user, QWidget* parent)
    : QDialog(parent),
      host_(host),
      isNew_(!user),
      surname_(new QLineEdit(this)),
      firstName_(new QLineEdit(this)),
      matriculation_(new QLineEdit(this)),
      key_(new QLineEdit(this)),
      complaint_(new QLabel(this)),
      save_(new QPushButton(this)) {
    layOut();
    if (user) {
        surname_->setText(user->surname);
        firstName_->setText(user->firstName);
        matriculation_->setText(user->matriculation);
        key_->setText(user->key);
    }
    key_->setEnabled(isNew_);
    for (QLineEdit* name : {surname_, firstName_})
        connect(name, &QLineEdit::textEdited, this, &UserDialog::proposeKey);
    for (QLineEdit* field : {surname_, firstName_, key_})
        connect(field, &QLineEdit::textChanged, this, &UserDialog::check);
    check();
}

void UserDialog::layOut() {
    const Words& words = host_.words();
    setWindowTitle(words.wort(isNew_ ? wort::newUserTitle : wort::editUserTitle));
    for (QLineEdit* field : {surname_, firstName_, matriculation_, key_}) {
        field->setMaxLength(80);
        field->setMinimumWidth(fontMetrics().averageCharWidth() * 34);
    }
    complaint_->setForegroundRole(QPalette::PlaceholderText);
    save_->setText(words.wort(wort::save));
    save_->setDefault(true);

    auto* buttons = new QDialogButtonBox(this);
    buttons->addButton(save_, QDialogButtonBox::AcceptRole);
    buttons->addButton(words.wort(wort::cancel), QDialogButtonBox::RejectRole);
    auto* help = buttons->addButton(words.wort(wort::helpButton), QDialogButtonBox::HelpRole);
    const auto openHelp = [this] { emit host_.helpWanted("melvora_users"); };
    connect(help, &QPushButton::clicked, this, openHelp);
    connect(new QShortcut(QKeySequence::HelpContents, this), &QShortcut::activated, this, openHelp);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* form = new QFormLayout(this);
    form->setContentsMargins(20, 20, 20, 16);
    form->setSpacing(10);
    form->addRow(words.wort(wort::askSurname), surname_);
    form->addRow(words.wort(wort::askFirstName), firstName_);
    form->addRow(words.wort(wort::askMatriculation), matriculation_);
    form->addRow(words.wort(wort::askUserKey), key_);
    form->addRow(complaint_);
    form->addRow(buttons);
    suite::darkenFrames(*this);
}

User UserDialog::user() const {
    return {key_->text().trimmed(), surname_->text().trimmed(), firstName_->text().trimmed(),
            matriculation_->text().trimmed()};
}

void UserDialog::proposeKey() {
    if (!isNew_ || key_->isModified()) return;
    host_.guarded([this] {
        key_->setText(host_.store().users.proposeKey(surname_->text(), firstName_->text()));
    });
}

void UserDialog::check() {
    const QString text = complaint();
    complaint_->setText(text);
    save_->setEnabled(text.isEmpty());
}

QString UserDialog::complaint() const {
    const User input = user();
    const Words& words = host_.words();
    if (input.surname.isEmpty() && input.firstName.isEmpty()) return words.wort(wort::enterName);
    if (!isAllowedKey(input.key)) return words.wort(wort::keyNotAllowed);
    bool taken = false;
    host_.guarded([&] { taken = isNew_ && host_.store().users.find(input.key); });
    return taken ? words.wort(wort::keyTaken).arg(input.key) : QString();
}

}  // namespace melvora
