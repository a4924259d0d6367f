#include "qt/picture_widget.h"
#include "qt/windows.h"
#include "suite/look.h"

#include <QLabel>
#include <QVBoxLayout>

namespace qt {

void layoutGrdEinst(FormWindow& window) {
    Binder& bind = window.binder();
    auto* page = new QVBoxLayout(&window);
    page->setContentsMargins(24, 20, 24, 12);
    page->setSpacing(suite::margin);

    auto* pictures = new QHBoxLayout;
    pictures->setSpacing(suite::margin);
    // A mode that rises, and the one that a minor scale is.
    for (const auto& [name, number] : {std::pair{"PicAktion", 0}, {"MThPic", 5}}) {
        auto* picture = static_cast<PictureWidget*>(bind(name));
        picture->setPicture(number);
        picture->setFixedHeight(110);
        pictures->addWidget(picture);
    }
    page->addLayout(pictures);

    auto* choices = new QHBoxLayout;
    choices->setSpacing(suite::margin);
    const auto group = [&](int index) {
        QWidget* frame = bind("grdeinst", index);
        auto* column = new QVBoxLayout(frame);
        column->setContentsMargins(18, 14, 18, 14);
        column->setSpacing(suite::gap);
        choices->addWidget(frame, 1);
        frame->setFocusPolicy(Qt::ClickFocus);
        auto* head = static_cast<QLabel*>(bind("grdeinst_lb", 1 - index));
        suite::font(*head, 1, QFont::Bold);
        head->setBuddy(frame);
        column->addWidget(head);
        return column;
    };
    const auto option = [&](QVBoxLayout* column, const char* name, int index) {
        QWidget* widget = bind(name, index);
        suite::font(*widget, 1.15);
        column->addWidget(widget);
    };
    QVBoxLayout* branch = group(0);
    option(branch, "Theoriewahl", 0);
    option(branch, "Theoriewahl", 1);
    branch->addStretch();
    QVBoxLayout* type = group(1);
    option(type, "ueb_typ", 1);
    option(type, "ueb_typ", 4);
    type->addStretch();
    page->addLayout(choices, 1);

    auto* actions = new QHBoxLayout;
    actions->addWidget(bind("cmdHilfe"));
    actions->addStretch();
    actions->addWidget(bind("cmdEnde"));
    QWidget* ok = bind("cmdOK");
    suite::leadingButton(*ok);
    actions->addWidget(ok);
    page->addLayout(actions);
    QWidget* footer = bind("copyright");
    suite::quiet(*footer);
    page->addWidget(footer, 0, Qt::AlignRight);
    window.openWith({620, 400});
}

}  // namespace qt
