// The one exception that an adapter throws, and only where the platform itself would raise one.
// A facet catches it exactly where its contract says so.
#pragma once

#include <stdexcept>

namespace ports {

class PlatformError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

} // namespace ports
