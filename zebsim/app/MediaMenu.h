#pragma once

#include <QObject>

class AppWindows;
class QMenu;
class SimHost;

/// The menu of the storage media: opens their page, puts one in and pulls one out. It belongs to its menu.
class MediaMenu : public QObject {
    Q_OBJECT

public:
    /// The host and the windows must outlive it.
    MediaMenu(SimHost& host, AppWindows& windows, QMenu& menu);

private:
    void fill(QMenu& menu);

    SimHost& m_host;
};
