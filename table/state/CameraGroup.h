#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// A named group of cameras.
struct CameraGroup {
    QString name;
    /// Addresses, as `DOC_Control::getAddress` gives them.
    QStringList members;
};

/// Stands for a group that was not read yet; no group has this name.
constexpr auto UnreadGroup = "*";

/// The group to show selected, empty for all. `held` is the table's group, `stored` the one of the last session.
QString groupToShow(const QString& held, const QString& stored, const QList<CameraGroup>& groups);
