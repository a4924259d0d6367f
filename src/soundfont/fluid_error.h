#pragma once
#include <stdexcept>
#include <string>

namespace soundfont {

/// The synthesiser library refused something; the text says what and what to look at.
class FluidError : public std::runtime_error {
  public:
    explicit FluidError(const std::string& what);
};

/// Gives the handle on, or throws FluidError("cannot make " + what) for a null one.
template <class T>
T* made(T* handle, const char* what) {
    if (handle == nullptr) throw FluidError(std::string("cannot make ") + what);
    return handle;
}

/// Keeps the library from writing to the terminal; what matters comes back as an error.
void quietFluidLog();

}  // namespace soundfont
