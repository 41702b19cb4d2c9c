#include "PLG_Interface.h"
#include "PluginLoader.h"
#include "support/TestHost.h"

#include <QCoreApplication>
#include <QFile>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::StartsWith;

QString library(const char* name) {
    return QStringLiteral(TEST_PLUGIN_FOLDER "/") + QString::fromLatin1(name);
}

std::string refusal(const QString& path) {
    TestHost test;
    try {
        PluginLoader loader(path, test.host);
        return {};
    } catch (const PluginError& error) {
        return error.what();
    }
}

}  // namespace

TEST(PluginLoader, MakesThePluginAndGivesItTheHostThenDeletesIt) {
    TestHost test;
    {
        const PluginLoader loader(library("good.zeb"), test.host);
        EXPECT_EQ(loader.plugin().getName(), QStringLiteral("good"));
        EXPECT_TRUE(qApp->property("goodPluginHasHost").toBool());
    }
    EXPECT_TRUE(qApp->property("goodPluginDeleted").toBool());
}

TEST(PluginLoader, NamesTheFileThatIsNoPlugin) {
    TestHost test;
    const QString text = test.folder.filePath(QStringLiteral("text.zeb"));
    QFile file(text);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("no library");
    file.close();
    for (const QString& path : {QStringLiteral("/no/such/wren.zeb"), text}) {
        EXPECT_THAT(refusal(path), StartsWith(path.toStdString() + ": "));
    }
    EXPECT_EQ(refusal(library("exports_nothing.zeb")),
              library("exports_nothing.zeb").toStdString() + ": no plug-in, it exports no makeButtonPlugin");
    EXPECT_EQ(refusal(library("makes_nothing.zeb")),
              library("makes_nothing.zeb").toStdString() + ": makeButtonPlugin made no plug-in");
}
