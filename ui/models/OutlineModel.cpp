#include "ui/models/OutlineModel.h"

#include <utility>

#include "ui/Texts.h"

namespace ui {

/// One row that has been asked for; the root has no row.
struct OutlineModel::Node {
    controls::OutlineItem* item = nullptr;
    Node* parent = nullptr;
    int row = 0;
    std::optional<bool> expandable;
    /// Of the children; none: not asked yet.
    std::optional<int> count;
    std::vector<std::unique_ptr<Node>> children;
    std::vector<QString> texts; // null: not asked yet
};

OutlineModel::OutlineModel(Needs needs)
    : m_view(&needs.view), m_source(needs.view.dataSource()), m_columns(std::move(needs.columns)),
      m_texts(needs.texts), m_nameColumn(m_columns.find(controls::OutlineView::kNameColumn)),
      m_checkColumn(m_columns.find(controls::OutlineView::kCheckColumn)),
      m_infoColumn(m_columns.find(controls::OutlineView::kInfoColumn)),
      m_root(std::make_unique<Node>()) {}

OutlineModel::~OutlineModel() = default;

bool OutlineModel::reload() {
    if (m_source == m_view->dataSource() && hasSameShape(*m_root)) {
        forgetTexts(*m_root);
        tellChanged(*m_root);
        return true;
    }
    beginResetModel();
    m_source = m_view->dataSource();
    m_root = std::make_unique<Node>();
    endResetModel();
    return false;
}

void OutlineModel::forget() {
    beginResetModel();
    m_view = nullptr;
    m_source = nullptr;
    m_root = std::make_unique<Node>();
    endResetModel();
}

bool OutlineModel::hasSameShape(Node& node) const {
    const bool isRoot = &node == m_root.get();
    if (node.expandable && node.item &&
        m_source->outlineViewIsItemExpandable(node.item) != *node.expandable)
        return false;
    if (!node.count || (!isRoot && !node.item))
        return true;
    const int count = m_source ? m_source->outlineViewNumberOfChildrenOfItem(node.item) : 0;
    if (count != *node.count)
        return false;
    for (int row = 0; row < count; ++row) {
        const auto& child = node.children[static_cast<std::size_t>(row)];
        if (child && (m_source->outlineViewChildOfItem(row, node.item) != child->item ||
                      !hasSameShape(*child)))
            return false;
    }
    return true;
}

void OutlineModel::forgetTexts(Node& node) const {
    node.texts.clear();
    for (const auto& child : node.children)
        if (child)
            forgetTexts(*child);
}

void OutlineModel::tellChanged(Node& node) {
    if (node.children.empty())
        return;
    const QModelIndex parent = indexOf(node, 0);
    emit dataChanged(index(0, 0, parent),
                     index(static_cast<int>(node.children.size()) - 1, columnCount() - 1, parent));
    for (const auto& child : node.children)
        if (child)
            tellChanged(*child);
}

OutlineModel::Node& OutlineModel::nodeAt(const QModelIndex& index) const {
    return index.isValid() ? *static_cast<Node*>(index.internalPointer()) : *m_root;
}

void OutlineModel::count(Node& node) const {
    if (node.count)
        return;
    const bool known = m_source && (node.item || &node == m_root.get());
    node.count = known ? m_source->outlineViewNumberOfChildrenOfItem(node.item) : 0;
    node.children.resize(static_cast<std::size_t>(*node.count));
}

OutlineModel::Node& OutlineModel::child(Node& parent, int row) const {
    auto& child = parent.children[static_cast<std::size_t>(row)];
    if (!child) {
        child = std::make_unique<Node>();
        child->item = m_source->outlineViewChildOfItem(row, parent.item);
        child->parent = &parent;
        child->row = row;
    }
    return *child;
}

QModelIndex OutlineModel::indexOf(const Node& node, int column) const {
    return node.parent ? createIndex(node.row, column, &node) : QModelIndex();
}

const OutlineModel::Node* OutlineModel::find(Node& node, const controls::OutlineItem* item) const {
    count(node);
    for (int row = 0; row < *node.count; ++row) {
        Node& candidate = child(node, row);
        if (candidate.item == item)
            return &candidate;
        if (hasChildren(indexOf(candidate, 0)))
            if (const Node* found = find(candidate, item))
                return found;
    }
    return nullptr;
}

controls::OutlineItem* OutlineModel::itemAt(const QModelIndex& index) const {
    return index.isValid() ? nodeAt(index).item : nullptr;
}

QModelIndex OutlineModel::indexOf(const controls::OutlineItem* item) const {
    const Node* node = item ? find(*m_root, item) : nullptr;
    return node ? indexOf(*node, 0) : QModelIndex();
}

QModelIndex OutlineModel::index(int row, int column, const QModelIndex& parent) const {
    if (parent.column() > 0 || row < 0 || column < 0 || column >= columnCount())
        return {};
    Node& node = nodeAt(parent);
    count(node);
    return row < *node.count ? createIndex(row, column, &child(node, row)) : QModelIndex();
}

QModelIndex OutlineModel::parent(const QModelIndex& index) const {
    return index.isValid() ? indexOf(*nodeAt(index).parent, 0) : QModelIndex();
}

int OutlineModel::rowCount(const QModelIndex& parent) const {
    if (parent.column() > 0 || !hasChildren(parent))
        return 0;
    Node& node = nodeAt(parent);
    count(node);
    return *node.count;
}

bool OutlineModel::hasChildren(const QModelIndex& parent) const {
    Node& node = nodeAt(parent);
    if (&node == m_root.get()) {
        count(node);
        return *node.count > 0;
    }
    if (!node.expandable)
        node.expandable = m_source && node.item && m_source->outlineViewIsItemExpandable(node.item);
    return *node.expandable;
}

QString OutlineModel::text(Node& node, int column) const {
    if (!m_source || !node.item)
        return {};
    node.texts.resize(static_cast<std::size_t>(columnCount()));
    QString& text = node.texts[static_cast<std::size_t>(column)];
    if (text.isNull()) {
        text = QString::fromStdString(
            m_texts.translated(m_source->outlineViewObjectValue(m_columns[column], node.item)));
        if (text.isNull())
            text = QLatin1String(""); // empty, but asked
    }
    return text;
}

Qt::CheckState OutlineModel::checkState(const Node& node) const {
    const controls::CheckCell cell = m_view->checkCell(node.item);
    if (cell.state == 1)
        return Qt::Checked;
    return cell.state != 0 && cell.allowsMixed ? Qt::PartiallyChecked : Qt::Unchecked;
}

QString OutlineModel::described(Node& node) const {
    ports::TextKey key = "%@, not selected";
    if (!m_view->checkCell(node.item).enabled)
        key = "%@, not available";
    else if (const Qt::CheckState state = checkState(node); state == Qt::Checked)
        key = "%@, selected";
    else if (state == Qt::PartiallyChecked)
        key = "%@, partly selected";
    return localized(m_texts, key, {text(node, m_nameColumn)});
}

QVariant OutlineModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || !m_view)
        return {};
    Node& node = nodeAt(index);
    if (!node.item)
        return {};
    const bool isCheck = index.column() == m_checkColumn;
    switch (role) {
    case Qt::DisplayRole:
        return isCheck ? QVariant() : text(node, index.column());
    case Qt::ToolTipRole:
        return index.column() == m_infoColumn ? text(node, index.column()) : QVariant();
    case Qt::CheckStateRole:
        return isCheck ? QVariant(checkState(node)) : QVariant();
    case Qt::AccessibleTextRole:
        return index.column() == m_infoColumn ? text(node, index.column()) : described(node);
    case Qt::AccessibleDescriptionRole:
        return text(node, m_infoColumn);
    case kIsAvailable:
        return m_view->checkCell(node.item).enabled;
    default:
        return {};
    }
}

bool OutlineModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::CheckStateRole || !m_view || !index.isValid())
        return false;
    return m_view->set(itemAt(index), value.toInt() == Qt::Checked);
}

QVariant OutlineModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::DisplayRole)
        return m_columns.titles.value(section);
    if (role == Qt::TextAlignmentRole)
        return int(section == m_checkColumn ? Qt::AlignCenter : Qt::AlignVCenter | Qt::AlignLeft);
    return {};
}

Qt::ItemFlags OutlineModel::flags(const QModelIndex& index) const {
    if (!index.isValid() || !m_view)
        return Qt::NoItemFlags;
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    if (index.column() == m_checkColumn && data(index, kIsAvailable).toBool())
        flags |= Qt::ItemIsUserCheckable;
    return flags;
}

} // namespace ui
