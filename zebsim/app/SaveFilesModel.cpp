#include "SaveFilesModel.h"

#include "UiText.h"

#include <QDir>
#include <QFileInfo>

#include <utility>

namespace {

/// Of a line; that of a file is the row of its line, and one more.
constexpr quintptr Line = 0;

}  // namespace

SaveFilesModel::SaveFilesModel(SaveOrders orders, std::function<FileState(int, int)> tellState, QObject* parent)
    : QAbstractItemModel(parent), m_orders(std::move(orders)), m_tellState(std::move(tellState)) {}

void SaveFilesModel::setLines(const QStringList& withoutFiles, const QStringList& ofTracks) {
    if (withoutFiles.size() == m_before.size() && ofTracks.size() == m_lines.size()) {
        m_before = withoutFiles;
        m_lines = ofTracks;
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, 0));
        return;
    }
    beginResetModel();
    m_before = withoutFiles;
    m_lines = ofTracks;
    endResetModel();
}

QModelIndex SaveFilesModel::index(int row, int column, const QModelIndex& parent) const {
    return createIndex(row, column, parent.isValid() ? quintptr(parent.row()) + 1 : Line);
}

QModelIndex SaveFilesModel::parent(const QModelIndex& index) const {
    return index.internalId() == Line ? QModelIndex() : createIndex(int(index.internalId() - 1), 0, Line);
}

int SaveFilesModel::rowCount(const QModelIndex& parent) const {
    if (!parent.isValid()) {
        return m_before.size() + m_lines.size();
    }
    const int track = parent.row() - m_before.size();
    const bool isFile = parent.internalId() != Line;
    return isFile || track < 0 ? 0 : filesIn(m_orders.tracks[std::size_t(track)], m_orders.format);
}

int SaveFilesModel::columnCount(const QModelIndex& /*parent*/) const {
    return 1;
}

QVariant SaveFilesModel::data(const QModelIndex& index, int role) const {
    if (role != Qt::DisplayRole) {
        return {};
    }
    if (index.internalId() != Line) {
        return fileText(int(index.internalId()) - 1 - m_before.size(), index.row());
    }
    const int track = index.row() - m_before.size();
    return track < 0 ? m_before.at(index.row()) : m_lines.at(track);
}

QString SaveFilesModel::fileText(int track, int file) const {
    const SaveTrack& saved = m_orders.tracks[std::size_t(track)];
    const QString name = QFileInfo(m_orders.fileOf(saved, saved.from + file)).fileName();
    switch (m_tellState(track, file)) {
        case Planned:
            break;
        case Replaces:
            return uiText("%1 (replaced)").arg(name);
        case Written:
            return uiText("%1 (written)").arg(name);
        case NotWritten:
            return uiText("%1 (not written)").arg(name);
    }
    return name;
}
