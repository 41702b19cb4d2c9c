#pragma once

#include <QSettings>

/// Settings in an INI file. On a full disk Qt's own leave an empty one; here what the file held before stays, where the
/// file system can give it a second name for that long. That it could not be written is a line in the log. GUI thread.
class WholeSettings : public QSettings {
    Q_OBJECT

public:
    explicit WholeSettings(const QString& path);
    ~WholeSettings() override;

protected:
    bool event(QEvent* event) override;

private:
    void syncWhole();
    bool isOnDisk() const;

    bool m_isTold = false;
};
