#include "SaveOptions.h"

#include "Course.h"
#include "Preferences.h"

#include <QSet>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

/// Of another value, of the same type.
QVariant other(const QVariant& value) {
    switch (value.type()) {
        case QVariant::Bool:
            return !value.toBool();
        case QVariant::Int:
            return value.toInt() + 7;
        case QVariant::String:
            return QString(value.toString() + " 0,7;");
        default:
            return value.toDouble() + 0.1234;
    }
}

TEST(SaveOptions, AreWholeAndOutliveARestart) {
    const QList<SaveOptionKey> keys = saveOptionKeys();
    QSet<QString> names;
    const QTemporaryDir folder;
    const QString path = folder.filePath("prefs.ini");
    {
        Preferences prefs(path);
        for (const SaveOptionKey& option : keys) {
            names.insert(option.key);
            prefs.setValue(option.key, other(option.value));
        }
    }
    EXPECT_EQ(names.size(), 446);
    EXPECT_EQ(keys.size(), names.size()) << "none twice";
    const Preferences again(path);
    for (const SaveOptionKey& option : keys) {
        const QVariant value = again.value(option.key);
        EXPECT_EQ(value, other(option.value)) << option.key.toStdString();
        EXPECT_EQ(value.type(), other(option.value).type()) << option.key.toStdString();
    }
}

}  // namespace
