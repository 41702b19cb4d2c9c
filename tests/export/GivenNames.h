#pragma once

#include "NameSource.h"
#include "TargetPaths.h"

#include <QDateTime>
#include <QSet>

#include <exception>

/// A document whose texts a test gives.
struct GivenDocument : NamedDocument {
    QString address() const override { return "192.168.0.10"; }
    int deviceNumber() const override { return device; }
    int headNumber() const override { return head; }
    int deviceCount() const override { return 8; }
    int headCount() const override { return 1; }
    QString sourceFile() const override { return file; }
    QString originalName() const override { return original; }
    bool isMemoryData() const override { return true; }
    QList<PARTITIONNUMBER> partitions() const override { return {1, 3}; }
    QString partitionName(PARTITIONNUMBER number) const override { return named.value(number, named.value(1)); }
    QList<QVariantMap> customInfo() const override { return items; }
    /// "%1" stands for the type and "%3" for the session.
    zeb::FileNameDetails fileNameDetails(int type, PARTITIONNUMBER, int session, const QDateTime&) const override {
        const QString text = QString(details).replace("%1", QString::number(type));
        return {QString(text).replace("%3", QString::number(session)), saysSession};
    }

    int device = 0;
    int head = 1;
    QString file;
    QString original = "first";
    QMap<PARTITIONNUMBER, QString> named;
    QList<QVariantMap> items;
    QString details;
    bool saysSession = false;
};

/// Preferences, modes and a disk that a test gives.
struct GivenNames : NameSource {
    QVariant pref(const QString& key) const override { return prefs.value(key); }
    bool isFileMode() const override { return inFileMode; }
    bool isMemoryMode() const override { return !inFileMode; }
    std::optional<QString> fixedGroupDir() const override { return fixed; }
    std::optional<QString> substituteFolder() const override { return substitute; }
    bool isFolderTaken(const QString& path) const override { return allTaken || promised.contains(path); }
    bool isPathTaken(const QString& path) const override { return allTaken || taken.contains(path); }
    void setLastGroupDir(const QString& name) override { last += "group " + name; }
    void setLastFolder(const QString& folder) override { last += "folder " + folder; }
    void setLastPath(const QString& path) override { last += "path " + path; }
    std::unique_ptr<NamedDocument> document(DOCKEY key) const override {
        return key == 5 ? std::make_unique<GivenDocument>(other) : nullptr;
    }
    bool folderExists(const QString& path) const override { return disk.contains(path + '/'); }
    int mostRounds() const override { return 1000; }

    /// Why it ended; empty when it has composed all.
    QString compose(int type, const GivenDocument& document, TargetPaths& out) {
        try {
            composeTargets(*this, type, &document, true, {{2024, 1, 2}, {3, 4, 5}}, mode, out);
            return {};
        } catch (const std::exception& e) {
            return e.what();
        }
    }

    QVariantMap prefs;
    bool inFileMode = false;
    bool allTaken = false;
    int mode = 0;
    std::optional<QString> fixed;
    std::optional<QString> substitute;
    QSet<QString> promised;
    QSet<QString> taken;
    /// Names by folder.
    QMap<QString, QStringList> disk;
    GivenDocument other;
    QStringList last;
    /// How often each folder has been listed.
    mutable QMap<QString, int> listings;

private:
    QStringList fileNames(const QString& folder) const override {
        ++listings[folder];
        return disk.value(folder);
    }
};
