#pragma once

#include <QSettings>

/// Settings in an INI file that is the new one or the old one, whole: on a full disk Qt's own leave an empty one. What
/// could not be written is a line in the log. GUI thread.
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
};
