#include "support/RecordingTest.h"

namespace {

QVariantList listOf(const QStringList& names) {
    QVariantList list;
    for (const QString& name : names) {
        list << QVariantMap{{"name", name}};
    }
    return list;
}

class CustomInfoOfACamera : public RecordingTest {
protected:
    DOC_Control& control(DOCKEY key = 1) { return test.doc(key)->control(); }
    /// As "A=1 bar, shown|B=2".
    std::string list(DOCKEY key = 1) {
        QStringList texts;
        for (const QVariantMap& item : control(key).getCustomInfoList()) {
            texts << QString(item["name"].toString() % '=' % item["value"].toString() % ' ' % item["unit"].toString())
                             .trimmed() %
                         (item["display"] == "on" ? ", shown" : "") % (item["usefilename"] == "on" ? ", in names" : "");
        }
        return texts.join('|').toStdString();
    }
    void put(const QString& name, const QString& value) { control().addCustomInfo(name, value, "", false, false); }
};

TEST_F(CustomInfoOfACamera, TakesWhatItsDocumentIsTold) {
    const struct {
        const char* what;
        std::function<void()> told;
        const char *list, *refusal;
    } rows[] = {
        {"a first item", [&] { control().addCustomInfo("A", "1", "bar", true, false); }, "A=1 bar, shown", ""},
        {"another case is another name", [&] { put("a", "2"); }, "A=1 bar, shown|a=2", ""},
        {"one that is there", [&] { control().addCustomInfo("A", "3", "", false, true); }, "A=3, in names|a=2", ""},
        {"a change", [&] { control().updateCustomInfo("a", "4", "m", true, true); },
         "A=3, in names|a=4 m, shown, in names", ""},
        {"of none", [&] { control().updateCustomInfo("B", "4", "m", true, true); },
         "A=3, in names|a=4 m, shown, in names", ""},
        {"gone", [&] { control().removeCustomInfo("a"), control().removeCustomInfo("B"); }, "A=3, in names", ""},
        {"a name", [&] { control().renameCustomInfo("A", "B"), control().renameCustomInfo("A", "C"); }, "B=3, in names",
         ""},
        {"the name of another", [&] { put("A", "1"), control().renameCustomInfo("A", "B"); }, "B=3, in names|A=1",
         "Camera 1: there is an item \"B\" already"},
        {"its own", [&] { control().renameCustomInfo("A", "A"); }, "B=3, in names|A=1", ""},
        {"no name", [&] { put("", "1"); }, "B=3, in names|A=1",
         "Camera 1: an item of the custom information needs a name"},
        {"none", [&] { control().clearCustomInfo(); }, "", ""},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(thrownBy(row.told), row.refusal) << row.what;
        EXPECT_EQ(list(), row.list) << row.what;
    }
    for (int i = 1; i <= 64; ++i) {
        put(QString::number(i), "x");
    }
    EXPECT_EQ(thrownBy([&] { put("65", "x"); }), "Camera 1: there is no room for the item \"65\", 64 are the most");
    put("1", "y");
    EXPECT_EQ(control().getCustomInfoList().size(), 64);
    EXPECT_EQ(control().getCustomInfoList().first()["value"], "y");
}

TEST_F(CustomInfoOfACamera, IsAsItWasWhenACallFails) {
    put("A", "1");
    const std::pair<const char*, std::function<void()>> rows[] = {
        {"updateCustomInfo", [&] { control().updateCustomInfo("A", "2", "m", true, false); }},
        {"removeCustomInfo", [&] { control().removeCustomInfo("A"); }},
        {"renameCustomInfo", [&] { control().renameCustomInfo("A", "B"); }},
    };
    for (const auto& [operation, work] : rows) {
        plant(1, operation, {"no answer", 0, false});
        EXPECT_EQ(thrownBy(work), "Camera 1: no answer") << operation;
    }
    EXPECT_EQ(list(), "A=1");
}

TEST_F(CustomInfoOfACamera, IsKeptByTheRecordingThatItWasArmedWith) {
    test.camera(1).change({{"partitions", 2}, {"customInfo", listOf({"first"})}});
    armAll();
    test.camera(1).change({{"customInfo", listOf({"next"})}});
    host.recorder().triggerRecording();
    pass(100000);
    ASSERT_TRUE(host.isMemoryMode());
    EXPECT_EQ(list(1) + ' ' + list(2), "first= ");
    control().renameCustomInfo("first", "corrected");
    EXPECT_EQ(list(), "corrected=");
    test.camera(1).setPartition(2);
    EXPECT_EQ(list(), "next=") << "nothing is recorded there";
    test.camera(1).change({{"recorded", true}, {"recordedCustomInfo", listOf({"second"})}});
    EXPECT_EQ(list(), "second=");
    test.camera(1).setPartition(1);
    EXPECT_EQ(list(), "corrected=");
    host.appStatus().enterMode(zeb::LiveMode);
    EXPECT_EQ(list(), "next=");
}

}  // namespace
