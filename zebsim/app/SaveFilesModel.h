#pragma once

#include "SaveJob.h"

#include <QAbstractItemModel>
#include <QStringList>

/// The tracks of a save, a line each, and below each the files that belong to it, which are made up as they are looked
/// at. GUI thread.
class SaveFilesModel : public QAbstractItemModel {
    Q_OBJECT

public:
    /// What becomes of a file.
    enum FileState { Planned, Replaces, Written, NotWritten };

    /// `tellState` answers what becomes of the file with that number, from 0 on, of a track of `orders`.
    SaveFilesModel(SaveOrders orders, std::function<FileState(int track, int file)> tellState, QObject* parent);

    /// Lines before those of the tracks have no files.
    void setLines(const QStringList& withoutFiles, const QStringList& ofTracks);
    QStringList lines() const { return m_before + m_lines; }

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    QString fileText(int track, int file) const;

    const SaveOrders m_orders;
    const std::function<FileState(int, int)> m_tellState;
    QStringList m_before;
    QStringList m_lines;
};
