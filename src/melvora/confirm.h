#pragma once
#include "melvora/words.h"

#include <QWidget>

namespace melvora {

/// Asks before something is deleted; Enter and Esc keep it. @return whether it is to be deleted
bool confirmsDeletion(QWidget* parent, const Words& words, const QString& question);

}  // namespace melvora
