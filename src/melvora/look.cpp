#include "melvora/look.h"

#include "suite/accessible_combo.h"
#include "suite/look.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPalette>
#include <QPushButton>
#include <QTableView>
#include <QTextBrowser>

namespace melvora {

void applyLook() {
    suite::apply();
    suite::nameCombos();
    QPalette palette = QApplication::palette();
    palette.setColor(QPalette::PlaceholderText, suite::muted);
    QApplication::setPalette(palette);
}

void darkenFrames(QWidget& window) {
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        const bool framed = qobject_cast<QComboBox*>(widget) || qobject_cast<QLineEdit*>(widget) ||
                            qobject_cast<QPushButton*>(widget) ||
                            qobject_cast<QCheckBox*>(widget) || qobject_cast<QTableView*>(widget) ||
                            qobject_cast<QTextBrowser*>(widget);
        if (!framed) continue;
        // The style draws a frame somewhat darker than the window that it takes to be around it.
        QPalette palette = widget->palette();
        palette.setColor(QPalette::Window, QColor(0xB0, 0xAE, 0xA8));
        widget->setPalette(palette);
    }
}

}  // namespace melvora
