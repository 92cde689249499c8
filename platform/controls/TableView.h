// A table of texts, of which the user selects one row.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/controls/Control.h"

namespace controls {

class TableDataSource {
  public:
    virtual int numberOfRowsInTableView() = 0;
    virtual std::string tableViewObjectValue(std::string_view column, int row) = 0;

  protected:
    ~TableDataSource() = default;
};

class TableView final : public Control {
  public:
    /// `columns`: the identifiers, in order; they live as long as the program.
    explicit TableView(std::vector<std::string_view> columns) : m_columns(std::move(columns)) {}

    const std::vector<std::string_view>& columns() const { return m_columns; }

    TableDataSource* dataSource() const { return m_dataSource; }
    void setDataSource(TableDataSource* source) { m_dataSource = source; }
    int rows() const { return m_dataSource ? m_dataSource->numberOfRowsInTableView() : 0; }
    std::string value(std::string_view column, int row) const {
        return m_dataSource ? m_dataSource->tableViewObjectValue(column, row) : std::string();
    }

    /// Everything that the data source says may be different now. A selected row that is no longer
    /// there is deselected. Always notifies.
    void reloadData() {
        const bool isLost = m_selected >= rows();
        if (isLost)
            m_selected = -1;
        changed();
        if (const auto action = m_didChange; isLost && action)
            action();
    }

    /// The selected row, -1 for none.
    int selectedRow() const { return m_selected; }
    /// Called when the selection is another one.
    void setSelectionDidChange(std::function<void()> action) { m_didChange = std::move(action); }

    /// The user selects a row, or none with -1. Nothing happens in a disabled or hidden table, or
    /// for a row that is not there.
    void selectRow(int row) {
        if (!isEnabled() || isHidden() || row < -1 || row >= rows() || row == m_selected)
            return;
        change(m_selected, row);
        if (const auto action = m_didChange)
            action();
    }

  private:
    std::vector<std::string_view> m_columns;
    TableDataSource* m_dataSource = nullptr;
    std::function<void()> m_didChange;
    int m_selected = -1;
};

} // namespace controls
