#pragma once

#include "WholeSettings.h"

#include <QHash>
#include <QVariant>

#include <memory>

/// The preference store: one INI file, and the factory values of the keys that it does not hold. GUI thread.
class Preferences {
public:
    /// `path` empty: the user's configuration folder. A file that can't be read as preferences is kept under another
    /// name.
    explicit Preferences(const QString& path = {});

    /// A key never written answers its factory value, and where it has none `defaultValue`. A value has the type that
    /// it was written with; that of a key with a factory value has the type of that.
    QVariant value(const QString& key, const QVariant& defaultValue = {}) const;
    void setValue(const QString& key, const QVariant& value);
    /// The key has this value until another is set; the file keeps its own.
    void assume(const QString& key, const QVariant& value) { m_values.insert(key, value); }
    /// What the file has holds again.
    void takeStored(const QString& key);

    /// All keys that have a value.
    const QHash<QString, QVariant>& values() const { return m_values; }

    QString path() const { return m_settings->fileName(); }
    /// What was wrong with the file at the start; empty: nothing.
    QString problem() const { return m_problem; }

private:
    void keepCorruptFileAside();
    /// Values under keys that are called otherwise by now are taken over.
    void renameKeys();
    QVariant stored(const QString& key) const;

    std::unique_ptr<WholeSettings> m_settings;
    /// All that is known; the file is written through.
    QHash<QString, QVariant> m_values;
    QString m_problem;
};
