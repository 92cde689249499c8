// The base of every control model: plain state that the core changes and a front end mirrors.
// Main thread only. A model never knows a toolkit; what the user does comes back through the
// model's own verbs (`press`, `close`). Equal writes do not notify.
#pragma once

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

namespace controls {

class Control {
  public:
    struct Observer {
        /// Something about the control is different now; look and mirror it.
        virtual void controlChanged(Control& control) = 0;
        /// Draw at once: the main thread is about to be busy.
        virtual void displayNow(Control&) {}
        /// The control dies: forget it. Only its address may be used any more.
        virtual void controlDestroyed(Control&) {}

      protected:
        ~Observer() = default;
    };

    Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    /// An observer must remove itself before it dies, unless the control has died before it.
    void addObserver(Observer& observer) { m_observers.push_back(&observer); }
    void removeObserver(Observer& observer) { std::erase(m_observers, &observer); }
    std::size_t observerCount() const { return m_observers.size(); }

    bool isEnabled() const { return m_enabled; }
    void setEnabled(bool enabled) { change(m_enabled, enabled); }
    bool isHidden() const { return m_hidden; }
    void setHidden(bool hidden) { change(m_hidden, hidden); }

    /// Asks the front end to draw the control before anything else happens.
    void display() {
        for (Observer* observer : std::vector(m_observers))
            observer->displayNow(*this);
    }

  protected:
    ~Control() {
        for (Observer* observer : std::vector(m_observers))
            observer->controlDestroyed(*this);
    }

    template <class T, class U>
    void change(T& field, U&& value) {
        if (field == value)
            return;
        field = std::forward<U>(value);
        changed();
    }
    void changed() {
        for (Observer* observer : std::vector(m_observers))
            observer->controlChanged(*this);
    }

  private:
    bool m_enabled = true;
    bool m_hidden = false;
    std::vector<Observer*> m_observers;
};

} // namespace controls
