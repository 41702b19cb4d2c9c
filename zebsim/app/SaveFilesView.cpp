#include "SaveFilesView.h"

#include <QStyledItemDelegate>

#include <algorithm>

namespace {

/// The view's own reckons with a line of any length.
class WrappedLines : public QStyledItemDelegate {
public:
    explicit WrappedLines(const QTreeView& view) : m_view(view) {}

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        const QSize line = QStyledItemDelegate::sizeHint(option, index);
        const int depth = index.parent().isValid() ? 2 : 1;
        const int margins = 4 * m_view.style()->pixelMetric(QStyle::PM_FocusFrameHMargin);
        const QRect room(0, 0, m_view.viewport()->width() - depth * m_view.indentation() - margins, 1);
        const QRect text =
            option.fontMetrics.boundingRect(room, Qt::TextWordWrap, index.data(Qt::DisplayRole).toString());
        return {room.width(), std::max(line.height(), text.height() + margins)};
    }

private:
    const QTreeView& m_view;
};

}  // namespace

SaveFilesView::SaveFilesView(QWidget* parent) : QTreeView(parent) {
    setHeaderHidden(true);
    setWordWrap(true);
    setSelectionMode(QAbstractItemView::NoSelection);
    auto* delegate = new WrappedLines(*this);
    delegate->setParent(this);
    setItemDelegate(delegate);
}

void SaveFilesView::resizeEvent(QResizeEvent* event) {
    QTreeView::resizeEvent(event);
    scheduleDelayedItemsLayout();
}
