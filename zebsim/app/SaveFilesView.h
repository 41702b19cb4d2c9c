#pragma once

#include <QTreeView>

/// Lines of a save with their files below them. A line is as high as its text in the room there is.
class SaveFilesView : public QTreeView {
    Q_OBJECT

public:
    explicit SaveFilesView(QWidget* parent);

protected:
    void resizeEvent(QResizeEvent* event) override;
};
