#include "DOC_Control.h"
#include "DOC_Interface.h"
#include "TablePage.h"

#include <random>

// What the page makes of replies that leave out what it has already.

namespace {

const int Ticks = qEnvironmentVariableIsSet("WREN_LONG") ? 10000 : 1000;

/// Whether the page has what a request for everything answers at the same moment; else both, as text.
const char* Compared = R"js((() => {
    const filter = Number(document.getElementById('recordFilter').value);
    const tab = wrentabledialog_obj.activeTab();
    const whole = wrentabledialog.getRecords(JSON.stringify({ group: wrentabledialog_obj.selectedGroup(), filter, tab }));
    const known = JSON.stringify(recordReplies.data);
    return known === JSON.stringify(JSON.parse(whole)) ? '' : `${known}\n${whole}`;
})())js";

/// A reply that the page never sees, asked for by itself or by another page.
QString lost(bool byAnother) {
    return QString(
               "wrentabledialog.getRecords(JSON.stringify({ group: wrentabledialog_obj.selectedGroup(), filter: 0,"
               " tab: wrentabledialog_obj.activeTab(), taken: %1 })); return 0")
        .arg(byAnother ? "0" : "recordReplies.taken");
}

TEST(PageReplies, BringWhatAWholeOneBrings) {
    TestHost test(connected(24));
    QStringList members;
    for (DOCKEY key = 1; key <= 24; key += 2) {
        members << test.host.docManager().getDoc(key, 1)->control().getAddress(1);
    }
    test.host.prefs().setValue("wren/settings/groups", QString("Odd|" + members.join('|')));
    TablePage page(test, 1);
    std::mt19937 random(22);
    const auto upTo = [&random](int last) { return int(random() % unsigned(last + 1)); };
    const auto of = [&test](DOCKEY key) -> Camera& { return *test.host.cameras().known()[key - 1]; };
    const std::vector<std::function<void(DOCKEY)>> happenings{
        [&](DOCKEY key) {
            of(key).change({{"name", QString("Camera %1").arg(upTo(99))}});
        },
        [&](DOCKEY key) {
            of(key).change({{"rate", upTo(1) == 0 ? 500 : 1000}, {"locked", upTo(1) == 0}});
        },
        [&](DOCKEY key) {
            of(key).change({{"connected", upTo(2) != 0}, {"lowLight", upTo(3) == 0}});
        },
        [&](DOCKEY key) {
            of(key).change({{"triggerMode", zeb::TriggerManual}, {"triggerFrame", upTo(50)}});
        },
        [&](DOCKEY key) {
            test.host.faults().plant(key, "*", {{}, 0, true});
        },
        [&](DOCKEY key) { test.host.faults().plant(key, upTo(1) == 0 ? "getShutterSpeed" : "isConnected", {"lost"}); },
        [&](DOCKEY) { test.host.faults().clear(); },
        [&](DOCKEY) { page.run(QString("$('.groupButton')[%1].click(); return 0").arg(upTo(1))); },
        [&](DOCKEY) { page.run(lost(false)); },
        [&](DOCKEY) { page.run(lost(true)); },
        [&](DOCKEY) { page.run("wrentabledialog_obj.update(); return 0"); },
    };
    for (int tick = 0; tick < Ticks; ++tick) {
        const int happening = upTo(int(happenings.size()) - 1);
        happenings[happening](DOCKEY(1 + upTo(int(test.host.cameras().known().size()) - 1)));
        if (tick % 250 == 249) {
            test.host.setRig(connected(8 + upTo(16)));
            page.show(upTo(4));
        }
        page.run("wrentabledialog_obj.autoUpdate(); return 0");
        ASSERT_EQ(page.text(Compared), "") << "tick " << tick << ", happening " << happening;
    }
    EXPECT_GT(page.number("recordReplies.taken"), 0) << "they were short ones";
    test.desk.take();
}

TEST(PageReplies, AreWholeOverABridgeThatKnowsNoOthers) {
    TestHost test(connected(4));
    TablePage page(test, 1);
    const auto shown = [&] { return page.list("$('.wren_label_edit_camera_name').get().map(e => e.textContent)"); };
    page.run(R"js(
        probe.callsBegin();
        const all = wrentabledialog.getRecords;
        wrentabledialog.getRecords = text => {
            const request = JSON.parse(text);
            delete request.taken;
            return all(JSON.stringify(request));
        };
        return 0)js");
    for (const char* name : {"Ramp", "Ramp", "Gate"}) {
        test.camera(2).change({{"name", name}});
        page.run("wrentabledialog_obj.update(); wrentabledialog_obj.autoUpdate(); return 0");
        EXPECT_TRUE(shown().contains(name));
        EXPECT_EQ(page.text(Compared), "");
    }
    page.run("probe.callsEnd(); wrentabledialog_obj.autoUpdate(); return 0");
    EXPECT_EQ(page.text(Compared), "") << "nor is it lost on the way back";
    EXPECT_GT(page.number("recordReplies.taken"), 0);
}

TEST(PageReplies, AreAskedForAgainWhereACallInsideHasBroughtNewerOnes) {
    TestHost test(connected(4));
    TablePage page(test, 1);
    test.camera(2).change({{"name", "Gate"}});
    page.run(R"js(
        probe.callsBegin();
        const ask = wrentabledialog.getRecords;
        wrentabledialog.getRecords = text => {
            wrentabledialog.getRecords = ask;
            const reply = ask(text);
            wrentabledialog.setParamLock(['2'], true);
            wrentabledialog_obj.autoUpdate();
            return reply;
        };
        wrentabledialog_obj.autoUpdate();
        probe.callsEnd();
        return 0)js");
    EXPECT_EQ(page.text(Compared), "");
    EXPECT_TRUE(page.run("viewAt(1).newest.get('2').lock").toBool());
}

}  // namespace
