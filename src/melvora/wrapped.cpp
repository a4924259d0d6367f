#include "melvora/wrapped.h"

namespace melvora {

QString wrapped(const QString& text, qsizetype most) {
    constexpr int unbroken = 20;
    constexpr QChar mayBreak(0x200B);
    QString shown;
    int word = 0;  // characters since one where the text may break
    for (const QChar c : text.left(most)) {
        word = c.isSpace() ? 0 : word + 1;
        // Never inside a character of two halves.
        if (word > unbroken && !c.isLowSurrogate()) {
            shown += mayBreak;
            word = 1;
        }
        shown += c;
    }
    return text.size() > most ? shown + u'…' : shown;
}

}  // namespace melvora
