#include "FileScripting.h"

#include "ScenarioError.h"
#include "WholeFile.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QImageReader>
#include <QItemSelectionModel>
#include <QLineEdit>
#include <QListView>

namespace {

/// The dialog takes what stands between two of them for a name of its own, so such a file can only be picked.
constexpr QChar Quote = QLatin1Char('"');

void pick(const QFileDialog& dialog, const QString& path) {
    const auto* list = dialog.findChild<QListView*>(QStringLiteral("listView"));
    const auto* files = qobject_cast<QFileSystemModel*>(list->model());
    const QModelIndex file = files->index(path);
    if (!file.isValid()) {
        throw ScenarioError(QStringLiteral("no new name with a double quote can be typed into a file dialog: ") % path);
    }
    list->selectionModel()->select(file, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void choose(QFileDialog& dialog, const QString& path) {
    dialog.setDirectory(QFileInfo(path).path());
    if (path.contains(Quote)) {
        pick(dialog, path);
    } else {
        dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(path);
    }
    static_cast<QDialog&>(dialog).accept();
}

}  // namespace

void FileScripting::serve(QFileDialog& dialog) {
    QString refused = QStringLiteral("a file dialog stands, and there is no zeb.file for it");
    try {
        while (dialog.isVisible()) {
            if (!isOrderLeft()) {
                throw ScenarioError(refused);
            }
            const QString path = m_orders.takeFirst();
            if (path.isNull()) {
                dialog.reject();
                return;
            }
            choose(dialog, whole(path));
            refused = QStringLiteral("%1: the file dialog does not take it").arg(path);
        }
    } catch (const ScenarioError&) {
        dialog.reject();
        throw;
    }
}

QString FileScripting::read(const QString& path) const {
    QFile file(whole(path));
    if (!file.open(QIODevice::ReadOnly)) {
        throw ScenarioError(file.fileName() % QStringLiteral(": ") % file.errorString());
    }
    return QString::fromUtf8(file.readAll());
}

void FileScripting::write(const QString& path, const QString& text) const {
    const QString file = whole(path);
    QDir().mkpath(QFileInfo(file).path());
    const QString reason = writeWholeFile(file, text.toUtf8());
    if (!reason.isEmpty()) {
        throw ScenarioError(file % QStringLiteral(": ") % reason);
    }
}

QVariantList FileScripting::list(const QString& folder) const {
    QVariantList files;
    const QFileInfoList found = QDir(whole(folder)).entryInfoList(QDir::Files | QDir::Hidden, QDir::Name);
    for (const QFileInfo& file : found) {
        QFile bytes(file.filePath());
        bytes.open(QIODevice::ReadOnly);
        QCryptographicHash sum(QCryptographicHash::Md5);
        sum.addData(&bytes);
        QVariantMap entry{{QStringLiteral("name"), file.fileName()},
                          {QStringLiteral("size"), double(file.size())},
                          {QStringLiteral("checksum"), QString::fromLatin1(sum.result().toHex())}};
        QImageReader reader(file.filePath());
        if (reader.canRead()) {
            QVariantMap texts;
            const QStringList keys = reader.textKeys();
            for (const QString& key : keys) {
                texts.insert(key, reader.text(key));
            }
            entry.insert(QStringLiteral("format"), QString::fromLatin1(reader.format()));
            entry.insert(QStringLiteral("width"), reader.size().width());
            entry.insert(QStringLiteral("height"), reader.size().height());
            entry.insert(QStringLiteral("texts"), texts);
        }
        files.append(entry);
    }
    return files;
}

QVariantMap FileScripting::pixels(const QString& path) const {
    QImageReader reader(whole(path));
    const QImage picture = reader.read().convertToFormat(QImage::Format_RGB32);
    if (picture.isNull()) {
        throw ScenarioError(reader.fileName() % QStringLiteral(": ") % reader.errorString());
    }
    QCryptographicHash sum(QCryptographicHash::Md5);
    sum.addData(reinterpret_cast<const char*>(picture.constBits()), int(picture.sizeInBytes()));
    return {{QStringLiteral("width"), picture.width()},
            {QStringLiteral("height"), picture.height()},
            {QStringLiteral("checksum"), QString::fromLatin1(sum.result().toHex())}};
}

QString FileScripting::whole(const QString& path) const {
    return QDir(m_folder).absoluteFilePath(path);
}
