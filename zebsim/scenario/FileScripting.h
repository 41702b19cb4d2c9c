#pragma once

#include <QList>
#include <QString>
#include <QVariantMap>

class QFileDialog;

/// The files of a scenario: what it orders for the file dialogs to come, and what it reads and writes itself. Relative
/// paths begin in the scenario's folder. GUI thread.
class FileScripting {
public:
    explicit FileScripting(QString folder) : m_folder(std::move(folder)) {}

    /// The file or folder to choose in the next file dialog; a null text leaves it.
    void order(const QString& path) { m_orders.append(path); }
    bool isOrderLeft() const { return !m_orders.isEmpty(); }
    /// Chooses as ordered, and goes on with the next order when the dialog, or who answers its question, refuses one.
    /// Throws `ScenarioError`, and leaves the dialog, when there is no order any more.
    void serve(QFileDialog& dialog);

    /// The text of a file in UTF-8. These two throw `ScenarioError` with path and reason.
    QString read(const QString& path) const;
    /// Makes folders that are not there.
    void write(const QString& path, const QString& text) const;

    /// What a folder holds, by name: `{name, size, checksum}` in bytes and of them, with `format`, `width`, `height`
    /// and `texts` where it is a picture. Empty when there is no such folder.
    QVariantList list(const QString& folder) const;
    /// Size of a picture in pixels, and a checksum of them, as `{width, height, checksum}`. Throws `ScenarioError`.
    QVariantMap pixels(const QString& path) const;

private:
    QString whole(const QString& path) const;

    QString m_folder;
    QList<QString> m_orders;
};
