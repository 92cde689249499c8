// The pages of a window, of which one is in sight.
#pragma once

#include "platform/controls/Control.h"

namespace controls {

class TabView final : public Control {
  public:
    /// `count` pages, numbered from 0; page 0 is in sight.
    explicit TabView(int count) : m_count(count) {}

    int count() const { return m_count; }
    int selected() const { return m_selected; }

    /// Brings a page into sight. A number that no page has, such as -1, keeps the page shown.
    void select(int page) {
        if (page >= 0 && page < m_count)
            change(m_selected, page);
    }

  private:
    int m_count;
    int m_selected = 0;
};

} // namespace controls
