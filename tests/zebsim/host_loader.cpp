#include "Files.h"
#include "PluginLoader.h"
#include "support/TestHost.h"

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

TEST(PluginLoader, NamesTheFileThatIsNoPlugin) {
    TestHost test;
    const QString text = test.folder.filePath(QStringLiteral("text.zeb"));
    write(text, "no library");
    for (const QString& path : {QStringLiteral("/no/such/wren.zeb"), text}) {
        EXPECT_THAT(refusal(path), StartsWith(path.toStdString() + ": "));
    }
    EXPECT_EQ(refusal(library("exports_nothing.zeb")),
              library("exports_nothing.zeb").toStdString() + ": no plug-in, it exports no makeButtonPlugin");
    EXPECT_EQ(refusal(library("makes_nothing.zeb")),
              library("makes_nothing.zeb").toStdString() + ": makeButtonPlugin made no plug-in");
}
