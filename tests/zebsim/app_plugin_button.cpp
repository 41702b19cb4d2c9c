#include "PluginButton.h"
#include "PluginSlot.h"
#include "Until.h"
#include "support/StubPlugin.h"
#include "support/TestHost.h"

#include <QTest>

#include <gtest/gtest.h>

namespace {

TEST(PluginButton, StandsAsThePluginSays) {
    TestHost test(standardRig(1));
    StubPlugin plugin;
    PluginSlot slot(test.host, plugin);
    PluginButton button(test.host, slot, nullptr);
    EXPECT_EQ(button.text(), "STUB");
    EXPECT_FALSE(button.isChecked());

    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_EQ(plugin.log, QStringList({"prepareOpen", "activate", "getDialog(true)", "showDialog"}));
    EXPECT_FALSE(button.isChecked()) << "a press alone does not press it in";

    plugin.checked = true;
    test.host.appStatus().notifyPluginShown(&plugin);
    EXPECT_TRUE(button.isChecked());
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_TRUE(button.isChecked()) << "a second press does not let it out";
    plugin.checked = false;
    test.host.appStatus().notifyPluginClosed(&plugin);
    test.host.updates().request();
    ASSERT_TRUE(until([&] { return !button.isChecked(); }));

    plugin.enabled = false;
    test.host.appStatus().enterMode(zeb::FileMode);
    EXPECT_FALSE(button.isEnabled());
}

}  // namespace
