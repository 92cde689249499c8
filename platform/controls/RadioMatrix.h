// A column of radio buttons: at most one cell is on.
#pragma once

#include <functional>
#include <vector>

#include "platform/controls/Control.h"

namespace controls {

class RadioMatrix final : public Control {
  public:
    /// Can the user turn the cell off that is on, so that none is?
    enum class Emptying { never, byUser };

    /// `rows` cells, numbered from 0; `selected` is on, -1 for none.
    explicit RadioMatrix(int rows, int selected = 0, Emptying emptying = Emptying::never)
        : m_actions(static_cast<std::size_t>(rows)), m_selected(selected), m_emptying(emptying) {}

    int rows() const { return static_cast<int>(m_actions.size()); }
    int selected() const { return m_selected; }
    bool isOn(int row) const { return row == m_selected; }

    /// Turns a cell on as the program does: no action runs. A number that no cell has does nothing.
    void select(int row) {
        if (row >= 0 && row < rows())
            change(m_selected, row);
    }

    /// What a click on the cell does beside turning it on.
    void setAction(int row, std::function<void()> action) {
        m_actions.at(static_cast<std::size_t>(row)) = std::move(action);
    }

    /// A click on a cell, also on one that is on. Nothing happens in a disabled or hidden matrix.
    void press(int row) {
        if (!isEnabled() || isHidden() || row < 0 || row >= rows())
            return;
        select(row);
        if (const auto action = m_actions[static_cast<std::size_t>(row)])
            action();
    }

    bool canBeEmptied() const { return m_emptying == Emptying::byUser; }

    /// A click with the Command or Ctrl key on the cell that is on: no cell is on then. Nothing
    /// happens in a matrix that can't be emptied, nor in a disabled or hidden one.
    void pressOff() {
        if (canBeEmptied() && isEnabled() && !isHidden())
            change(m_selected, -1);
    }

  private:
    std::vector<std::function<void()>> m_actions;
    int m_selected;
    Emptying m_emptying;
};

} // namespace controls
