#pragma once

#include <QDialog>

class QMainWindow;

/// Lists the keys of a window: of its menus, of their entries, and those that are bound to nothing that shows.
class KeysDialog : public QDialog {
    Q_OBJECT

public:
    /// `window` becomes the parent.
    explicit KeysDialog(QMainWindow& window);
};
