#include "SaveOptions.h"

#include "Course.h"
#include "FactoryValues.h"
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
            EXPECT_EQ(prefs.value(option.key), option.value) << option.key.toStdString();
            prefs.setValue(option.key, other(option.value));
        }
    }
    EXPECT_EQ(keys.size(), 446);
    EXPECT_EQ(names.size(), 446) << "none twice";
    for (auto value = factoryValues().begin(); value != factoryValues().end(); ++value) {
        const QString family = value.key().section('/', 0, 0);
        EXPECT_TRUE(names.contains(value.key()) ||
                    !QStringList({"export", "convert", "snap", "report", "layout"}).contains(family))
            << value.key().toStdString();
    }
    const Preferences again(path);
    for (const SaveOptionKey& option : keys) {
        const QVariant value = again.value(option.key);
        EXPECT_EQ(value, other(option.value)) << option.key.toStdString();
        EXPECT_EQ(value.type(), other(option.value).type()) << option.key.toStdString();
    }
}

}  // namespace
