#include "DropDownBoxes.h"
#include "HostPages.h"
#include "support/TestHost.h"

#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

namespace {

TEST(DropDownBoxes, FloatOverTheWindowOneAtATime) {
    initHostPages();
    TestHost test(standardRig(1));
    test.camera(1).change({{"connected", true}, {"partitions", 3}});
    test.host.docManager().setSelectedDocs({1}, 0);
    QWidget window;
    window.setGeometry(100, 50, 800, 600);
    window.show();
    DropDownBoxes boxes(test.host, window);
    const QRect anchor(20, 300, 120, 24);
    const auto waitFor = [&boxes](const char* key) {
        return QTest::qWaitFor([&] { return !boxes.rect(key).isNull(); });
    };

    boxes.show("nothing", anchor);
    EXPECT_FALSE(boxes.isShown());
    boxes.show("partition", anchor);
    ASSERT_TRUE(waitFor("partition"));
    // Three partitions, a line and the settings, above the control.
    const QRect place(20, 300 - 5 * 24, 120, 5 * 24);
    EXPECT_EQ(boxes.rect("partition"), place);
    window.move(300, 200);
    EXPECT_EQ(boxes.rect("partition"), place) << "it moves with the window";

    test.camera(1).change({{"partitions", 1}});
    boxes.show("variable", anchor);
    EXPECT_TRUE(boxes.rect("partition").isNull());
    boxes.show("partition", anchor);
    boxes.hide("variable");
    EXPECT_TRUE(boxes.isShown());
    EXPECT_EQ(boxes.rect("partition").height(), 3 * 24);
    boxes.hide({});
    EXPECT_FALSE(boxes.isShown());
}

}  // namespace
