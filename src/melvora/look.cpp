#include "melvora/look.h"

#include "suite/accessible_combo.h"
#include "suite/look.h"

#include <QApplication>
#include <QPalette>

namespace melvora {

void applyLook() {
    suite::apply();
    suite::nameCombos();
    QPalette palette = QApplication::palette();
    palette.setColor(QPalette::PlaceholderText, suite::muted);
    QApplication::setPalette(palette);
    // The style draws a frame somewhat darker than the window that it takes to be around it.
    palette.setColor(QPalette::Window, QColor(0xB0, 0xAE, 0xA8));
    for (const char* framed :
         {"QComboBox", "QLineEdit", "QPushButton", "QCheckBox", "QTableView", "QTextBrowser"})
        QApplication::setPalette(palette, framed);
}

}  // namespace melvora
