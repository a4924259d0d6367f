#include "melvora/start_page.h"

#include "core/wort.h"
#include "fontfile/font_files.h"
#include "melvora/midi_ports.h"
#include "melvora/wrapped.h"
#include "suite/look.h"

#include <QFileInfo>
#include <QGridLayout>
#include <QSignalBlocker>

namespace melvora {

namespace wort = core::wort;

namespace {

/// Greatest width of the page's column in average characters.
constexpr int columnWidth = 90;
constexpr int longestName = 120;

void select(QComboBox* combo, const QString& data) {
    combo->setCurrentIndex(std::max(0, combo->findData(data)));
}

}  // namespace

StartPage::StartPage(Host& host, QWidget* parent)
    : Page(parent),
      host_(host),
      title_(new QLabel("Melvora", this)),
      subtitle_(new QLabel(this)),
      userLabel_(new QLabel(this)),
      user_(new Combo(this)),
      logIn_(new QPushButton(this)),
      logOut_(new QPushButton(this)),
      loggedIn_(new QLabel(this)),
      manage_(new QPushButton(this)),
      languageLabel_(new QLabel(this)),
      language_(new Combo(this)),
      midiLabel_(new QLabel(this)),
      midi_(new Combo(this, [this] { showMidiDevices(); })),
      fontLabel_(new QLabel(this)),
      font_(new Combo(this, [this] { showFonts(); })),
      locked_(new QLabel(this)),
      start_(new QPushButton(this)),
      description_(new QLabel(this)) {
    layOut();
    for (const QString& name : host_.words().languages()) language_->addItem(name, name);
    select(language_, host_.words().language());
    retranslate();

    connect(user_, &QComboBox::currentIndexChanged, this, &StartPage::showChoice);
    connect(logIn_, &QPushButton::clicked, this,
            [this] { logIn(user_->currentData().toString()); });
    connect(logOut_, &QPushButton::clicked, this, [this] { logIn({}); });
    connect(language_, &QComboBox::activated, this,
            [this] { host_.chooseLanguage(language_->currentData().toString()); });
    connect(midi_, &QComboBox::activated, this,
            [this] { host_.chooseMidiDevice(midi_->currentData().toString()); });
    connect(font_, &QComboBox::activated, this,
            [this] { host_.chooseSoundfont(font_->currentData().toString()); });
    connect(manage_, &QPushButton::clicked, this, &StartPage::usersWanted);
    connect(start_, &QPushButton::clicked, this,
            [this] { host_.startModule(ModuleProcess::known().first()); });
    connect(&host_, &Host::usersChanged, this, &StartPage::showUsers);
    connect(&host_, &Host::moduleStarted, this, &StartPage::showModule);
    connect(&host_, &Host::moduleEnded, this, &StartPage::showModule);
    setFocusProxy(start_);
}

void StartPage::layOut() {
    suite::font(*title_, 2.2);
    subtitle_->setForegroundRole(QPalette::PlaceholderText);
    suite::font(*start_, 1.4, QFont::DemiBold);
    start_->setMinimumHeight(3 * fontMetrics().height() + 8);
    start_->setDefault(true);
    start_->setAutoDefault(true);
    QPalette accent = palette();
    // The style lightens what is to be pressed; the letters are white.
    accent.setColor(QPalette::Button, accent.color(QPalette::Highlight).darker(125));
    accent.setColor(QPalette::ButtonText, accent.color(QPalette::HighlightedText));
    accent.setColor(QPalette::Disabled, QPalette::Button, palette().color(QPalette::Button));
    accent.setColor(QPalette::Disabled, QPalette::ButtonText,
                    palette().color(QPalette::Disabled, QPalette::ButtonText));
    start_->setPalette(accent);
    description_->setWordWrap(true);
    description_->setAlignment(Qt::AlignHCenter);
    description_->setForegroundRole(QPalette::PlaceholderText);
    for (QWidget* control :
         std::initializer_list<QWidget*>{user_, logIn_, logOut_, manage_, language_, midi_, font_})
        control->setMinimumHeight(2 * fontMetrics().height());
    for (QLabel* line : {loggedIn_, locked_}) {
        line->setWordWrap(true);
        line->setTextFormat(Qt::PlainText);
    }
    userLabel_->setBuddy(user_);
    languageLabel_->setBuddy(language_);
    midiLabel_->setBuddy(midi_);
    fontLabel_->setBuddy(font_);

    auto* choices = new QGridLayout;
    choices->setHorizontalSpacing(suite::margin);
    choices->setVerticalSpacing(10);
    choices->setColumnStretch(1, 1);
    choices->addWidget(userLabel_, 0, 0);
    choices->addWidget(user_, 0, 1);
    choices->addWidget(logIn_, 0, 2);
    choices->addWidget(logOut_, 0, 3);
    choices->addWidget(loggedIn_, 1, 1);
    choices->addWidget(manage_, 1, 2, 1, 2);
    choices->addWidget(languageLabel_, 2, 0);
    choices->addWidget(language_, 2, 1);
    choices->addWidget(midiLabel_, 3, 0);
    choices->addWidget(midi_, 3, 1);
    choices->addWidget(fontLabel_, 4, 0);
    choices->addWidget(font_, 4, 1);
    choices->addWidget(locked_, 5, 0, 1, 4);

    auto* column = new QVBoxLayout;
    column->setSpacing(0);
    column->addStretch(1);
    column->addWidget(title_);
    column->addSpacing(4);
    column->addWidget(subtitle_);
    column->addSpacing(28);
    column->addLayout(choices);
    column->addSpacing(32);
    column->addWidget(start_);
    column->addSpacing(suite::gap);
    column->addWidget(description_);
    column->addStretch(2);

    auto* middle = new QWidget(this);
    middle->setMaximumWidth(columnWidth * fontMetrics().averageCharWidth());
    middle->setLayout(column);
    column->setContentsMargins(0, 0, 0, 0);
    auto* page = new QHBoxLayout(this);
    page->setContentsMargins(24, 24, 24, 24);
    page->addStretch(1);
    page->addWidget(middle, 100);
    page->addStretch(1);
    QWidget* order[] = {start_, user_, logIn_, logOut_, manage_, language_, midi_, font_};
    for (std::size_t i = 1; i < std::size(order); ++i) setTabOrder(order[i - 1], order[i]);
}

void StartPage::retranslate() {
    const Words& words = host_.words();
    subtitle_->setText(words.wort(wort::subtitle));
    userLabel_->setText(words.wort(wort::userLabel));
    logIn_->setText(words.wort(wort::logIn));
    logOut_->setText(words.wort(wort::logOut));
    manage_->setText(words.wort(wort::manageUsers));
    for (QPushButton* button : {logIn_, logOut_, manage_})
        button->setMinimumWidth(button->sizeHint().width() + fontMetrics().height() / 2);
    locked_->setText(words.wort(wort::lockedNow));
    languageLabel_->setText(words.wort(wort::languageLabel));
    midiLabel_->setText(words.wort(wort::midiDeviceLabel));
    fontLabel_->setText(words.wort(wort::soundfontLabel));
    start_->setText(words.wort(wort::practiseScales));
    start_->setAccessibleDescription(words.wort(wort::practiseScalesAbout));
    description_->setText(words.wort(wort::practiseScalesAbout));
    select(language_, words.language());
    showUsers();
    showMidiDevices();
    showFonts();
    showModule();
}

void StartPage::showUsers() {
    host_.guarded([this] {
        const QSignalBlocker silence(user_);
        user_->clear();
        user_->addItem(host_.words().wort(wort::nobody), QString());
        for (const User& user : host_.store().users.all())
            user_->addItem(QString("%1 (%2)").arg(user.fullName(), user.key), user.key);
        select(user_, host_.user() ? host_.userKey() : QString());
    });
    const QString name = host_.user() ? host_.user()->fullName() : host_.words().wort(wort::nobody);
    loggedIn_->setText(wrapped(host_.words().wort(wort::loggedIn).arg(name), longestName));
    loggedIn_->setToolTip("<span>" + name.toHtmlEscaped() + "</span>");
    loggedIn_->setAccessibleDescription(name);
    showChoice();
}

void StartPage::showChoice() {
    const QString chosen = user_->currentData().toString();
    const bool locked = host_.isLocked();
    logIn_->setEnabled(!locked && !chosen.isEmpty() && chosen != host_.userKey());
    logOut_->setEnabled(!locked && host_.user());
}

/// The button that was pressed can no longer be used: the focus goes where it does no harm.
void StartPage::logIn(const QString& key) {
    user_->setFocus();
    host_.logIn(key);
}

void StartPage::showFonts() {
    const QString chosen = host_.soundfont();
    const QSignalBlocker silence(font_);
    font_->clear();
    font_->addItem(host_.words().wort(wort::usualSoundfont), QString());
    for (const auto& file : fontfile::installedFonts())
        font_->addItem(QString::fromStdString(file.stem()), QString::fromStdString(file));
    if (font_->findData(chosen) < 0)
        font_->addItem(host_.words().wort(wort::missingSoundfont).arg(QFileInfo(chosen).baseName()),
                       chosen);
    select(font_, chosen);
}

void StartPage::showMidiDevices() {
    const QString chosen = host_.midiDevice();
    const QSignalBlocker silence(midi_);
    midi_->clear();
    midi_->addItem(host_.words().wort(wort::builtInSynthesiser), QString());
    for (const QString& port : midiPorts())
        if (const QString name = steadyName(port); midi_->findData(name) < 0)
            midi_->addItem(name, name);
    if (midi_->findData(chosen) < 0)
        midi_->addItem(host_.words().wort(wort::notConnected).arg(chosen), chosen);
    select(midi_, chosen);
}

void StartPage::showModule() {
    const bool locked = host_.isLocked();
    start_->setEnabled(!host_.module().runs());
    const QString why = locked ? host_.words().wort(wort::lockedNow) : QString();
    for (QWidget* control : std::initializer_list<QWidget*>{user_, logIn_, logOut_, language_})
        control->setToolTip(why);
    for (QWidget* control : {user_, language_}) control->setEnabled(!locked);
    locked_->setVisible(locked);
    showChoice();
}

}  // namespace melvora
