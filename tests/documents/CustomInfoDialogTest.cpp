#include "ChooseFile.h"
#include "Files.h"
#include "JS_Mediator_CustomInfoDialog.h"
#include "support/TestHost.h"

#include <gtest/gtest.h>

namespace {

const CustomItem Shown{"TestNo", "12", "", true, false};
const CustomItem Named{"Gas <b>", "N2 \"x\"", "bar", false, true};

QString listOf(const Camera& camera, bool recorded = false) {
    QStringList items;
    const CustomInfo info = camera.customInfo(recorded);
    for (const CustomItem& item : info.items()) {
        items << item.text() % QLatin1String(item.display ? " +" : " -") % QLatin1String(item.usefilename ? "+" : "-");
    }
    return items.join(QStringLiteral(", "));
}

class CustomInfoDialog : public testing::Test {
protected:
    CustomInfoDialog() : m_test(connected(3)) {
        for (const DOCKEY key : {1U, 2U}) {
            put(key, {Shown, Named});
            m_test.camera(key).set(&CameraState::selected, true);
        }
        m_test.camera(2).set(&CameraState::comment, QString("as it was"));
        m_test.host.docManager().selectOnly({1, 2});
    }

    void put(DOCKEY key, const QList<CustomItem>& items) {
        CustomInfo info;
        for (const CustomItem& item : items) {
            EXPECT_EQ(info.put(item), QString());
        }
        m_test.camera(key).set(&CameraState::customInfo, info);
    }

    JS_Mediator_CustomInfoDialog bridge(bool forTemporary = false) { return {&m_test.host, forTemporary}; }

    TestHost m_test;
    const QVariantList m_both{1U, 2U};
};

TEST_F(CustomInfoDialog, TellsOfTheSelectedCamerasOrOfTheSaveList) {
    auto selected = bridge();
    EXPECT_EQ(selected.getDeviceInfo(), R"({"InitSelect":{"dockey":1,"name":"Camera 1","recid":1},"Records":[)"
                                        R"({"dockey":1,"name":"Camera 1","recid":1},)"
                                        R"({"dockey":2,"name":"Camera 2","recid":2}]})");
    EXPECT_EQ(selected.getCustomInfo(2),
              R"([{"dockey":2,"name":"TestNo","recid":1,"selected":true,"unit":"","usefilename":false,"value":"12"},)"
              R"({"dockey":2,"name":"Gas <b>","recid":2,"selected":false,"unit":"bar","usefilename":true,)"
              R"("value":"N2 \"x\""}])");
    EXPECT_EQ(selected.getCustomInfo(99), "[]");
    m_test.host.docManager().setTemporarySaveDocs({3, 99, 2});
    EXPECT_EQ(bridge(true).getDeviceInfo(), R"({"InitSelect":{"dockey":3,"name":"Camera 3","recid":1},"Records":[)"
                                            R"({"dockey":3,"name":"Camera 3","recid":1},)"
                                            R"({"dockey":2,"name":"Camera 2","recid":2}]})");
}

TEST_F(CustomInfoDialog, ChangesItsTargetsAndPutsThemBack) {
    auto dialog = bridge();
    const auto item = [](const char* name, const char* value) {
        return QVariantMap{{"name", name}, {"value", value}, {"unit", "mm"}};
    };
    QVariantMap edited = item("Shot", "13");
    edited.insert({{"oldname", "TestNo"}, {"display", ""}, {"usefilename", "on"}});
    QVariantMap shown = item("Gas <b>", "of no matter");
    shown.insert("selected", true);
    QVariantMap comment = item("Comments", "two\nlines");
    struct Case {
        const char* what;
        std::function<void(const QVariantList&)> work;
        const char* list;
    };
    const QString before = listOf(m_test.camera(1));
    m_test.calls();
    for (const Case& c : {
             Case{"add", [&](auto& keys) { dialog.addCustomData(keys, item("New", "1")); },
                  "TestNo: 12 +-, Gas <b>: N2 \"x\" bar -+, New: 1 mm ++"},
             Case{"edit", [&](auto& keys) { dialog.editCustomData(keys, edited); },
                  "Shot: 13 mm -+, Gas <b>: N2 \"x\" bar -+, New: 1 mm ++"},
             Case{"show",
                  [&](auto& keys) {
                      dialog.enableCustomData(keys, {shown, item("None", "")});
                  },
                  "Shot: 13 mm -+, Gas <b>: N2 \"x\" bar ++, New: 1 mm ++"},
             Case{"delete",
                  [&](auto& keys) {
                      dialog.deleteCustomData(keys, {item("New", ""), item("None", "")});
                  },
                  "Shot: 13 mm -+, Gas <b>: N2 \"x\" bar ++"},
             Case{"restore",
                  [&](auto& keys) {
                      dialog.restoreCustomData(keys, {shown, comment});
                  },
                  "Gas <b>: of no matter mm ++"},
         }) {
        SCOPED_TRACE(c.what);
        c.work({1U, 99U, 2U});
        EXPECT_EQ(listOf(m_test.camera(1)), c.list);
        EXPECT_EQ(listOf(m_test.camera(2)), c.list);
        EXPECT_EQ(m_test.calls("refreshDocList"), QStringList("refreshDocList 1"));
    }
    EXPECT_EQ(m_test.camera(2).get(&CameraState::comment), "two\nlines");
    m_test.host.faults().plant(1, "clearCustomInfo", {"no answer"});
    dialog.cancel();
    EXPECT_EQ(listOf(m_test.camera(1)), "Gas <b>: of no matter mm ++") << "it does not answer";
    EXPECT_EQ(listOf(m_test.camera(2)), before) << "which is not the other's fault";
    EXPECT_EQ(m_test.camera(2).get(&CameraState::comment), "as it was");
    EXPECT_EQ(m_test.desk.take().size(), 1);
    m_test.host.faults().plant(1, "clearCustomInfo", {});
    m_test.calls();
    dialog.cancel();
    EXPECT_EQ(listOf(m_test.camera(1)), before) << "it answers by now";
    EXPECT_EQ(m_test.calls("clearCustomInfo"), QStringList("clearCustomInfo 1")) << "each camera once";

    dialog.restoreCustomData({1U, 2U}, {item("New", "1"), item("", "no name")});
    EXPECT_EQ(listOf(m_test.camera(1)), before) << "a list that a camera does not take whole";
    EXPECT_EQ(m_test.desk.take().size(), 1);
}

TEST_F(CustomInfoDialog, ReadsAndWritesFiles) {
    auto dialog = bridge();
    const QString file = m_test.folder.filePath("list.xml");
    write(file, "<job><Cm_Comment>said</Cm_Comment><Speed unit=\"km/h\">80</Speed></job>");
    chooseFile(file);
    dialog.load(m_both);
    EXPECT_EQ(listOf(m_test.camera(2)), "Speed: 80 km/h ++");
    EXPECT_EQ(m_test.camera(1).get(&CameraState::comment), "said");
    EXPECT_EQ(m_test.host.prefs().value("xml/dir").toString(), m_test.folder.path());
    chooseFile(file);
    dialog.save({QVariantMap{{"name", "A"}, {"value", "1 < 2"}, {"selected", true}}});
    EXPECT_EQ(contentOf(file).simplified().mid(contentOf(file).simplified().indexOf("<customItem>")),
              "<customItem> <name>A</name> <value>1 &lt; 2</value> <unit></unit> <display>true</display> "
              "<usefilename>true</usefilename> </customItem> </customItems> </custom>");
    EXPECT_EQ(m_test.desk.take(), QStringList());

    write(file, "<custom/>");
    chooseFile(file);
    dialog.load(m_both);
    EXPECT_EQ(m_test.desk.take(), QStringList("File read failed."));
    EXPECT_EQ(listOf(m_test.camera(1)), "Speed: 80 km/h ++") << "as it was";
    chooseFile(m_test.folder.filePath("nowhere/list.xml"));
    dialog.save({QVariantMap{{"name", "A"}, {"value", "1"}}});
    EXPECT_EQ(m_test.desk.take(), QStringList()) << "what can't be opened has a line in the log";
}

}  // namespace
