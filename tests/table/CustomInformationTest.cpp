#include "ChooseFile.h"
#include "Files.h"
#include "TableFixture.h"

namespace {

/// Eight cameras, of which the last is not connected. Each has an item of its own.
class CustomInformationTest : public BridgeFixture {
protected:
    CustomInformationTest() {
        connectAll();
        for (Camera* camera : host.cameras().all()) {
            const QVariantMap named{
                {"name", "Camera"}, {"value", QString::number(camera->key())}, {"unit", "no"}, {"display", true}};
            const QVariantMap hidden{{"name", "b"}, {"value", "<i>"}, {"usefilename", true}};
            camera->change({{"customInfo", QVariantList{named, hidden}}});
        }
        change(8, {{"connected", false}});
        makeBridge();
        calls();
    }

    static QString manyItems(int count) {
        QStringList items;
        for (int i = 1; i <= count; ++i) {
            items.append(QStringLiteral(R"({"name":"n%1","value":"v","unit":"","display":true})").arg(i));
        }
        return '[' + items.join(',') + ']';
    }

    QStringList namesOf(DOCKEY key) {
        QStringList names;
        const CustomInfo info = camera(key).customInfo(false);
        for (const CustomItem& item : info.items()) {
            names.append(item.name);
        }
        return names;
    }

    const QString own = R"([{"recid":1,"name":"Camera","value":"1","unit":"no","display":true},
                            {"recid":2,"name":"b","value":"<i>","unit":"","display":false}])";
    const QString path = folder.filePath("list.xml");
};

TEST_F(CustomInformationTest, ShowsTheListOfAConnectedCamera) {
    expectJson(bridge->getCustomSettings(1), own);
    expectJson(bridge->getCustomSettings("1", true), QString(own).remove("\"recid\":1,").remove("\"recid\":2,"));
    for (const QVariant& key : {QVariant(8), QVariant(77), QVariant("x"), QVariant()}) {
        EXPECT_EQ(bridge->getCustomSettings(key), "[]") << key.toString().toStdString();
    }
    host.faults().plant(1, "getCustomInfoList", Fault{"no answer"});
    EXPECT_EQ(bridge->getCustomSettings(1), "") << "what could not be read is no empty list";
    EXPECT_EQ(desk.take().size(), 1);
}

TEST_F(CustomInformationTest, ReplacesListsUpToACameraThatRefuses) {
    change(2, {{"locked", true}});
    host.faults().plant(3, "addCustomInfo", Fault{"no answer", 0, false});
    bridge->setCustomSettings({1, 77, 8, "2", 3, 4}, manyItems(2));
    EXPECT_EQ(calls().mid(0, 3),
              (QStringList{"clearCustomInfo 1", "addCustomInfo 1 n1 v  true true", "addCustomInfo 1 n2 v  true true"}));
    const QStringList old{"Camera", "b"};
    const QStringList news{"n1", "n2"};
    EXPECT_EQ((QList<QStringList>{namesOf(1), namesOf(2), namesOf(3), namesOf(4), namesOf(8)}),
              (QList<QStringList>{news, news, {}, old, old}));
    EXPECT_EQ(desk.take().size(), 1);

    bridge->setCustomSettings({4}, R"([{"name":"a"},{"name":"","value":"refused"}])");
    EXPECT_EQ(namesOf(4), old) << "a list that is refused in the middle leaves the one that was";
    EXPECT_EQ(desk.take().size(), 1);

    for (const char* json : {"", "{}", "null", "[{]", "{\"name\":\"a\"}"}) {
        bridge->setCustomSettings({4}, json);
        EXPECT_EQ(namesOf(4), old) << json;
    }
    bridge->setCustomSettings({}, "[]");
    bridge->setCustomSettings({4}, R"([1, "a", null, {"name":"c","display":"off"}, []])");
    EXPECT_EQ(namesOf(4), QStringList("c"));
    EXPECT_FALSE(camera(4).customInfo(false).items().first().display);
    bridge->setCustomSettings({4}, manyItems(65));
    EXPECT_EQ(namesOf(4).size(), 64);
    EXPECT_EQ(namesOf(4).last(), "n64");
    EXPECT_EQ(desk.texts(), QStringList());
}

TEST_F(CustomInformationTest, TellsOfAFileThatIsNone) {
    chooseFile({});
    EXPECT_EQ(bridge->loadCustomSettingsXml(), "[]");
    bridge->saveCustomSettingsXml("no list");
    EXPECT_EQ(desk.texts(), QStringList());
    write(path, "<custom/>");
    chooseFile(path);
    EXPECT_EQ(bridge->loadCustomSettingsXml(), "[]");
    EXPECT_EQ(desk.take(), QStringList("File read failed."));
    chooseFile(path);
    bridge->saveCustomSettingsXml(R"([{"name":"a","value":")" + QString(20'000, 'x') + "\"}]");
    EXPECT_EQ(desk.take(), QStringList(path + ": a text of the item \"a\" is too long"));
    EXPECT_EQ(contentOf(path), "<custom/>");
}

TEST_F(CustomInformationTest, IsNothingInFileMode) {
    host.appStatus().enterMode(zeb::FileMode);
    calls();
    EXPECT_EQ(bridge->getCustomSettings(1), "[]");
    bridge->setCustomSettings({1}, manyItems(1));
    EXPECT_EQ(bridge->loadCustomSettingsXml(), "[]");
    bridge->saveCustomSettingsXml(own);
    EXPECT_EQ(calls("^DOC_"), QStringList());

    host.appStatus().enterMode(zeb::LiveMode);
    write(path, "<job><a/></job>");
    QTimer::singleShot(0, [this] {
        chooseFile(path);
        host.appStatus().enterMode(zeb::FileMode);
    });
    EXPECT_EQ(bridge->loadCustomSettingsXml(), "[]") << "while the dialog stands";
}

}  // namespace
