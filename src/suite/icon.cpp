#include "suite/icon.h"

#include <QPixmap>

/// It lies in a library: the linker keeps it only when it is asked for.
static void takeIcon() { Q_INIT_RESOURCE(icon); }

namespace suite {

QIcon icon() {
    takeIcon();
    return QIcon(QPixmap(QStringLiteral(":/suite/melvora.png")));
}

}  // namespace suite
