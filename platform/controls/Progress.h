// A progress indicator: at rest or running, and while it runs either without end in sight or with
// so many bytes of so many.
#pragma once

#include <cstdint>

#include "platform/controls/Control.h"

namespace controls {

class Progress final : public Control {
  public:
    struct Amount {
        std::uint64_t done = 0;
        std::uint64_t total = 0; ///< 0: not known, the indicator shows that work goes on
        std::uint64_t files = 0;
        bool operator==(const Amount&) const = default;
    };

    bool isRunning() const { return m_running; }
    void startAnimation() { change(m_running, true); }
    void stopAnimation() { change(m_running, false); }

    const Amount& amount() const { return m_amount; }
    void setAmount(Amount amount) { change(m_amount, amount); }

  private:
    bool m_running = false;
    Amount m_amount;
};

} // namespace controls
