#include "suite/application.h"

#include <exception>
#include <stdexcept>

namespace suite {

bool Application::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception& fault) {
        if (!uncaught) throw;
        uncaught(fault);
    } catch (...) {
        if (!uncaught) throw;
        uncaught(std::runtime_error("an unknown fault"));
    }
    return true;
}

}  // namespace suite
