#pragma once

class QRect;
class QWidget;

/// The window of the table, as far as the bridge behind its page needs it. GUI thread.
class TableView {
public:
    virtual ~TableView() = default;

    /// The list of partitions floats beside `anchor`, in the pixels of the page. Throws what the cameras throw.
    virtual void showPartitionBox(const QRect& anchor) = 0;
    virtual void hidePartitionBox() = 0;
    virtual bool isPartitionBoxShown() const = 0;
    /// The window itself, to be activated, and to put questions over.
    virtual QWidget& widget() = 0;
};
