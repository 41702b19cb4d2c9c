#pragma once

#include <QHash>
#include <QVariant>
#include <QWidget>

class Preferences;
class QComboBox;
class QFormLayout;
class QLineEdit;

/// Where files go and what kind they are: a folder and a format, as two preferences hold them. Formats that can't be
/// written here are disabled, and it is told what is missing.
class TargetFields : public QWidget {
    Q_OBJECT

public:
    /// The preferences are `dir` and `format` of `family`, as "export/"; `prefs` must outlive the fields.
    TargetFields(Preferences& prefs, const QString& family, bool withVideo, QWidget* parent);

    bool isComplete() const;
    /// As it stands in the field, with a separator of '/'.
    QString folder() const;
    void setFolder(const QString& folder);
    /// What `store` would store.
    QHash<QString, QVariant> typed() const;
    void store();

Q_SIGNALS:
    void changed();

private:
    QWidget* makeFolder(const QString& folder);
    QString addFormats(bool withVideo);
    void chooseFormat(const QString& id);
    void browse();

    Preferences& m_prefs;
    const QString m_family;
    QLineEdit* m_folder;
    QComboBox* m_format;
};
