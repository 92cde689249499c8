#include "ui/models/TableModel.h"

namespace ui {

bool TableModel::reload() {
    if (m_view->rows() == m_rows) {
        if (m_rows > 0)
            emit dataChanged(index(0, 0), index(m_rows - 1, columnCount() - 1));
        return true;
    }
    beginResetModel();
    m_rows = m_view->rows();
    endResetModel();
    return false;
}

void TableModel::forget() {
    beginResetModel();
    m_view = nullptr;
    m_rows = 0;
    endResetModel();
}

QVariant TableModel::data(const QModelIndex& index, int role) const {
    // a cell may be too narrow for its text; the tip shows it whole
    if (!m_view || !index.isValid() || (role != Qt::DisplayRole && role != Qt::ToolTipRole))
        return {};
    return QString::fromStdString(m_view->value(m_columns[index.column()], index.row()));
}

QVariant TableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::DisplayRole)
        return m_columns.titles.value(section);
    if (role == Qt::TextAlignmentRole)
        return int(Qt::AlignVCenter | Qt::AlignLeft);
    return {};
}

} // namespace ui
