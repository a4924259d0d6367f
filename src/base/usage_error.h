#pragma once
#include <stdexcept>

namespace base {

/// What was asked for on the command line cannot be done; the text says what and why.
class UsageError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

}  // namespace base
