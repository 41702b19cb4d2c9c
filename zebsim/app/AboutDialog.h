#pragma once

#include <QDialog>

/// Tells which program this is, which plug-in it runs, and on which libraries.
class AboutDialog : public QDialog {
    Q_OBJECT

public:
    /// `pluginFile` empty: none is loaded.
    AboutDialog(const QString& pluginFile, QWidget* parent);
};
