#include "ui/ComponentTree.h"

#include <algorithm>

#include <QHeaderView>
#include <QKeyEvent>
#include <QStyledItemDelegate>

#include "ui/models/OutlineModel.h"

namespace ui {

namespace {

constexpr double kNameShare = 0.6; // at most, of what the check boxes leave

constexpr int kAir = 12; // between a name and what stands beside it

/// Greys the rows that can't be set; everything else the style draws.
class RowDelegate final : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

  protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        if (!index.data(OutlineModel::kIsAvailable).toBool())
            option->state &= ~QStyle::State_Enabled;
    }
};

} // namespace

ComponentTree::ComponentTree(QWidget* parent) : QTreeView(parent) {
    setItemDelegate(new RowDelegate(this));
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setExpandsOnDoubleClick(true);
    setVerticalScrollMode(ScrollPerPixel);
    header()->setSectionsMovable(false);
    header()->setHighlightSections(false);
    header()->setResizeContentsPrecision(0); // by the rows in sight; others are not even asked for
}

void ComponentTree::showRows(OutlineModel& model) {
    m_rows = &model;
    setModel(&model);
    setTreePosition(model.nameColumn());
    m_laidOut = false;
    if (isVisible())
        layOutColumns();
    openAll();
}

void ComponentTree::openAll() {
    scheduleDelayedItemsLayout(); // laid out once, not for each group
    openBelow({});
}

void ComponentTree::openBelow(const QModelIndex& parent) {
    // not expandAll: a row without rows below it would count as open, and the arrow that goes to
    // its group would have to close it first
    for (int row = 0; row < m_rows->rowCount(parent); ++row) {
        const QModelIndex group = m_rows->index(row, 0, parent);
        if (!m_rows->hasChildren(group))
            continue;
        expand(group);
        openBelow(group);
    }
}

void ComponentTree::layOutColumns() {
    if (m_laidOut || !m_rows || m_rows->columnCount() == 0)
        return;
    m_laidOut = true;
    const int check = header()->sectionSizeHint(m_rows->checkColumn());
    header()->setStretchLastSection(true);
    header()->setSectionResizeMode(m_rows->checkColumn(), QHeaderView::Fixed);
    header()->resizeSection(m_rows->checkColumn(), check);
    const int most = static_cast<int>((viewport()->width() - check) * kNameShare);
    const int names = std::max(sizeHintForColumn(m_rows->nameColumn()),
                               header()->sectionSizeHint(m_rows->nameColumn()));
    header()->resizeSection(m_rows->nameColumn(), std::min(names + kAir, most));
}

void ComponentTree::showEvent(QShowEvent* event) {
    QTreeView::showEvent(event);
    layOutColumns();
}

void ComponentTree::keyPressEvent(QKeyEvent* event) {
    const QModelIndex row = currentIndex();
    if (event->key() != Qt::Key_Space || event->modifiers() != Qt::NoModifier || !m_rows ||
        !row.isValid())
        return QTreeView::keyPressEvent(event);
    if (event->isAutoRepeat())
        return;
    const QModelIndex box = row.siblingAtColumn(m_rows->checkColumn());
    m_rows->setData(box, box.data(Qt::CheckStateRole) == Qt::Checked ? Qt::Unchecked : Qt::Checked,
                    Qt::CheckStateRole);
}

} // namespace ui
