#include "LiveObjects.h"
#include "PLG_Interface.h"
#include "support/TestHost.h"

#include <QDialog>
#include <QLibrary>
#include <QTest>
#include <QWebView>

#include <gtest/gtest.h>

namespace {

/// Loads the library, opens and closes the table once its page is there, unloads the library.
void useLibrary(SimHost& host) {
    QLibrary library(QStringLiteral(WREN_LIBRARY));
    using Maker = PLG_Interface* (*)();
    const auto make = reinterpret_cast<Maker>(library.resolve("makeButtonPlugin"));
    ASSERT_TRUE(make) << library.errorString().toStdString();
    std::unique_ptr<PLG_Interface> plugin(make());
    plugin->setHost(&host);
    host.appStatus().registerPlugin(plugin.get());
    plugin->activate();
    QDialog* dialog = plugin->getDialog(true);
    ASSERT_TRUE(dialog);
    plugin->showDialog();
    EXPECT_TRUE(QTest::qWaitFor([dialog] { return dialog->findChild<QWebView*>()->title() == QLatin1String("WREN"); }));
    plugin->closeDialog();
    plugin->deactivate();
    host.appStatus().unregisterPlugin(plugin.get());
    plugin.reset();
    EXPECT_TRUE(library.unload());
    QCoreApplication::processEvents();
}

}  // namespace

TEST(Library, leavesTheHostAsItWas) {
    TestHost test(Rig::standard(1));
    SimHost& host = test.host;
    test.camera(1).set(&CameraState::connected, true);
    host.prefs().setValue(QStringLiteral("wren/table/interval"), 1);
    Leftovers::now();
    useLibrary(host);  // the first load starts threads that last
    const Leftovers first = Leftovers::now();
    constexpr int Rounds = 20;
    for (int round = 0; round < Rounds; ++round) useLibrary(host);
    const Leftovers last = Leftovers::now();
    // The web engine may start another lasting thread of its own late; what is ours would be left in every round.
    EXPECT_LT(last.objects, first.objects + Rounds);
    EXPECT_LT(last.timers, first.timers + Rounds);
    EXPECT_LT(last.threads, first.threads + Rounds);
    EXPECT_TRUE(host.prefs().values().contains(QStringLiteral("wren/ready")))
        << "what the host has kept of the library's texts is still there";
}
