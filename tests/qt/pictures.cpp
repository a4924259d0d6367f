#include "pictures.h"

#include "qt/help.h"
#include "support/painted.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QScrollArea>

#include <gtest/gtest.h>

namespace {

/// What a window gets of a small and of a large screen.
const std::vector<std::pair<std::string, QSize>> sizes{{"1024x768", {1000, 700}},
                                                       {"2560x1440", {2560, 1400}}};

int widthOfText(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return label->wordWrap() ? 0 : label->sizeHint().width();
    if (qobject_cast<const QAbstractButton*>(&widget)) return widget.sizeHint().width();
    if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) {
        int widest = 0;
        for (int i = 0; i < combo->count(); ++i)
            widest = std::max(widest, combo->fontMetrics().horizontalAdvance(combo->itemText(i)));
        return widest + 30;
    }
    return 0;
}

/// The area that scrolls a widget; nullptr for one that stands still.
const QScrollArea* scrollerOf(const QWidget& widget) {
    for (const QWidget* w = widget.parentWidget(); w; w = w->parentWidget())
        if (const auto* area = qobject_cast<const QScrollArea*>(w)) return area;
    return nullptr;
}

void expectReadable(QWidget& window) {
    SCOPED_TRACE(window.objectName().toStdString());
    std::vector<QWidget*> seen;
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        const std::string name = widget->objectName().toStdString();
        if (!widget->isVisible() || name.empty() || widget->window() != &window) continue;
        if (name.starts_with("qt_")) continue;
        EXPECT_LE(widthOfText(*widget), widget->width()) << "cut off: " << name;
        EXPECT_FALSE(widget->focusPolicy() != Qt::NoFocus && widget->accessibleName().isEmpty())
            << "no name: " << name;
        const QRect area(widget->mapTo(&window, QPoint()), widget->size());
        const QScrollArea* scroller = scrollerOf(*widget);
        EXPECT_TRUE(scroller ? scroller->widget()->width() <= scroller->viewport()->width()
                             : window.rect().contains(area))
            << "outside: " << name;
        for (QWidget* other : seen) {
            if (other->isAncestorOf(widget) || widget->isAncestorOf(other)) continue;
            if (scrollerOf(*other) != scroller) continue;
            const QRect otherArea(other->mapTo(&window, QPoint()), other->size());
            EXPECT_FALSE(otherArea.intersects(area))
                << name << " over " << other->objectName().toStdString();
        }
        seen.push_back(widget);
    }
    EXPECT_GT(seen.size(), 5U);
}

}  // namespace

void lookAt(Stage& stage, const std::string& form, const std::string& picture) {
    static const qt::QtHelp help;  // brings the pages
    EXPECT_TRUE(QFile::exists(QString(":/help/de/%1.html").arg(form.c_str()))) << form;
    for (const auto& [name, size] : sizes) {
        SCOPED_TRACE(testing::Message() << picture << " " << name);
        QWidget& window = stage.window(form);
        ASSERT_TRUE(window.isVisible());
        const bool small = form == "grd_einst" || form == "frmSave" || form == "frmLoad";
        window.resize(small ? window.size() : size);
        QApplication::processEvents();
        EXPECT_LE(window.minimumSizeHint().width(), 1000);
        EXPECT_LE(window.minimumSizeHint().height(), 700);
        expectReadable(window);
        expectContrast(window);
        const QString folder = qEnvironmentVariable("MELVORA_SCREENSHOTS");
        if (folder.isEmpty()) continue;
        QDir().mkpath(folder);
        window.grab().save(QString("%1/%2-%3.png").arg(folder, picture.c_str(), name.c_str()));
    }
}
