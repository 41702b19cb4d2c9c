#include "DOC_Control.h"
#include "DOC_Frames.h"
#include "DOC_Interface.h"
#include "LiveObjects.h"
#include "Operation.h"
#include "TablePage.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <QWebView>

#include <random>

// A user without a plan, cameras that change and vanish by themselves, and texts that would like to be markup. After
// each step the table shows what the host knows.

namespace {

constexpr int Seeds = 20;
/// A tenth of what `./test long` does.
const int Steps = qEnvironmentVariableIsSet("WREN_LONG") ? 1000 : 100;
constexpr int MostVanished = 3;
constexpr int PatienceMs = 2000;

const QStringList HostileTexts{"<img src=x onerror=\"window.hostile=1\">",
                               "\"><script>window.hostile=1</script>",
                               "{{name}}' onclick='hostile()",
                               "&lt;b&gt;",
                               QStringLiteral("名前・\u202Eevil"),
                               " ",
                               "Gate"};

/// Marks one of the controls that the user could click, the one with number %1 modulo how many there are.
const char* MarkControl = R"js((() => {
    const pool = '#wren-root-block button, #wren-root-block a, #wren-root-block input, .SumoSelect[dockey], ' +
        '.wren-dropdown .options li, .wren_label_edit_camera_name, .ui-dialog button, .ui-tabs-anchor, .dummy';
    const others = '#livecontrol_deleteall, #livecontrol_discovery, select, [type=text], .ui-dialog-titlebar-close';
    $('[walk]').removeAttr('walk');
    const all = Array.from(document.querySelectorAll(pool)).filter(one => {
        if (!one.offsetParent || one.matches(others) || one.closest('[disabled], .disabled, .ui-state-disabled')) {
            return false;
        }
        const box = one.getBoundingClientRect();
        return one.contains(document.elementFromPoint((box.left + box.right) / 2, (box.top + box.bottom) / 2));
    });
    if (all.length === 0) {
        return '';
    }
    const one = all[%1 % all.length];
    one.setAttribute('walk', '');
    return one.outerHTML.replace(/>[^]*/, '>').slice(0, 160);
})())js";

/// A line for each row, see `Walk::expected`.
const char* Shown = R"js((() => {
    const tab = $('#tabs').tabs('option', 'active');
    return probe.drawn().map(row => {
        const key = probe.keyOf(row);
        const value = id => (document.getElementById(id + key) || { value: '-' }).value;
        const check = row.querySelector('.wren_checkbox_recordCheck');
        const more = tab === 1 ? ['framerate_', 'resolution_'].map(word => value('wren_livecontrol_' + word)) :
            tab === 5 ? ['select_start_frameno', 'select_end_frameno', 'trigger_offset'].map(
                word => value('wren_spinner_' + word)).concat(check ? String(check.checked) : '-') : [];
        return [key, (row.querySelector('.wren_label_edit_camera_name') || { textContent: '' }).textContent,
            row.classList.contains('w2ui-selected') ? 'selected' : '',
            tab < 5 && row.querySelector('.wren-lock-status') ? 'locked' : ''].concat(more).join(' | ');
    });
})())js";

/// In an order that a seed repeats.
QStringList operations() {
    QStringList names = CameraOperation::names().values();
    names.sort();
    return names;
}

const char* Strays = "String(window.hostile) + $('img[src=x]').length";

class Walk {
public:
    explicit Walk(unsigned seed) : m_random(seed) {
        Leftovers::now();
        m_test.host.prefs().setValue("wren/display/lock", true);
        for (DOCKEY key = 1; key <= 8; ++key) {
            m_test.camera(key).set(&CameraState::connected, key != 5);
        }
        m_page = std::make_unique<TablePage>(m_test, 1);
        // The user reads the boxes of the plug-in itself and presses something.
        QObject::connect(&m_user, &QTimer::timeout, [this] {
            QWidget* modal = QApplication::activeModalWidget();
            if (auto* box = qobject_cast<QMessageBox*>(modal)) {
                box->buttons().at(upTo(box->buttons().size()))->click();
            } else if (auto* dialog = qobject_cast<QDialog*>(modal); dialog && dialog->findChild<QWebView*>()) {
                dialog->done(upTo(2));
            }
            if (QWidget* popup = QApplication::activePopupWidget()) {
                popup->close();
            }
        });
        m_user.start(2);
    }

    ~Walk() { m_test.host.faults().clear(); }

    /// What was done, for the reader of a failure.
    QString step() {
        if (upTo(6) == 0) {
            m_test.host.faults().plantAt(1 + upTo(60), Fault{"no answer", 0, false});
        }
        for (int n = upTo(3); n > 0; --n) {
            m_test.desk.answers.append({upTo(3) != 0, upTo(8) == 0});
        }
        const QString done = act();
        m_page->settle();
        m_test.host.faults().plantAt(0, {});
        m_test.desk.answers.clear();
        // What is being typed belongs to the user; he leaves it.
        m_page->run("document.activeElement.blur(); return 0");
        updateUntilNobodyVanishes();
        m_test.desk.shown.clear();
        return done;
    }

    void compare() {
        // The page makes some calls a moment later, when it has drawn what it waits for.
        const auto isRight = [this] { return shown() == expected(); };
        const auto looksAgain = [&] { return isRight() || (m_page->update(), isRight()); };
        if (!QTest::qWaitFor(looksAgain, PatienceMs)) {
            ASSERT_EQ(shown(), expected());
        }
        ASSERT_EQ(m_page->text(Strays), "undefined0");
        ASSERT_EQ(activeTimers(TablePage::TickMs), 1);
        ASSERT_EQ(QApplication::activeModalWidget(), nullptr);
        ASSERT_FALSE(m_test.host.liveLoop().isLivePaused());
        ASSERT_FALSE(m_test.host.updates().isDeterred());
    }

private:
    /// A camera can go while the page asks it; the next cycle shows that.
    void updateUntilNobodyVanishes() {
        DocKeyList before;
        do {
            before = m_test.host.docManager().getDocKeys();
            m_page->update();
        } while (m_test.host.docManager().getDocKeys() != before);
    }

    int upTo(int count) { return int(m_random() % unsigned(count)); }
    template <typename List>
    auto anyOf(const List& list) {
        return list.at(upTo(list.size()));
    }

    Camera& anyCamera() { return *anyOf(m_test.host.cameras().all()); }

    QString act() {
        const int kind = upTo(23);
        if (kind < 9) {
            return click();
        }
        if (kind < 13) {
            return changeCamera();
        }
        switch (kind) {
            case 13:
                return letTimePass();
            case 14:
                m_test.host.appStatus().enterMode(upTo(2) == 0 ? zeb::LiveMode : zeb::MemoryMode);
                return "the host changes the mode";
            case 15:
                return vanish();
            case 16:
                return callBridge();
            case 17:
                m_page->key(Qt::Key_Escape);
                return "Escape";
            case 18:
                m_page->type(anyOf(QStringList{"12\n", "-5\t", "x", "\n", "<b>"}));
                return "types";
            case 19:
                return plug();
            case 20:
                return workAlone();
            case 21:
                return fallSilent();
            default:
                m_page->tick();
                return "a tick";
        }
    }

    QString click() {
        const QString control = m_page->text(QString(MarkControl).arg(upTo(1000000)));
        if (control.isEmpty()) {
            return "nothing to click";
        }
        m_page->click("[walk]", upTo(4) == 0 ? Qt::ControlModifier : Qt::NoModifier);
        m_page->run("$('[walk]').removeAttr('walk'); return 0");
        return "clicks " + control;
    }

    QString changeCamera() {
        Camera& camera = anyCamera();
        const QList<QVariantMap> changes{
            {{"name", anyOf(HostileTexts)}},
            {{"comment", anyOf(HostileTexts)}},
            {{"alerts", QStringList{anyOf(HostileTexts)}}},
            {{"alerts", QStringList()}},
            {{"locked", upTo(2) == 0}},
            {{"selected", upTo(2) == 0}},
            {{"rate", anyOf(camera.model().rates)}},
            {{"recorded", true}, {"recordedRange", QVariantList{0, 50 + upTo(200)}}, {"recordedTrigger", upTo(50)}},
            {{"selectedRange", QVariantList{upTo(50), 50 + upTo(300)}}},
            {{"recordCheck", upTo(2) == 0}},
        };
        const QVariantMap change = anyOf(changes);
        camera.change(change);
        return QString("camera %1 has another %2").arg(camera.key()).arg(change.firstKey());
    }

    /// The heads of a device have one cable.
    QString plug() {
        const bool on = upTo(4) != 0;
        const CameraDevice& device = anyCamera().device();
        for (const auto& head : device.heads()) {
            head->set(&CameraState::connected, on);
        }
        return QString("camera %1 is %2").arg(device.heads().front()->key()).arg(on ? "plugged in" : "unplugged");
    }

    /// At its own panel.
    QString workAlone() {
        Camera& camera = anyCamera();
        const int state = anyOf(QList<int>{zeb::RecordLive, zeb::RecordReady, zeb::RecordRecording});
        camera.enterRecordState(state);
        return QString("camera %1 goes into state %2 by itself").arg(camera.key()).arg(state);
    }

    /// One question stays without an answer until the next one does.
    QString fallSilent() {
        m_test.host.faults().plant(m_silent, m_unanswered, {});
        m_silent = anyCamera().key();
        m_unanswered = anyOf(operations());
        if (upTo(2) == 0) {
            m_test.host.faults().plant(m_silent, m_unanswered, Fault{"no answer"});
        }
        return QString("camera %1 falls silent at %2").arg(m_silent).arg(m_unanswered);
    }

    QString letTimePass() {
        m_test.clock.advance(upTo(4000));
        m_test.host.recorder().proceed();
        return "time passes";
    }

    QString vanish() {
        if (++m_vanished > MostVanished) {
            return "nothing";
        }
        Camera& camera = anyCamera();
        const QString operation = anyOf(QStringList{"*", "setRecordRate", "getRecordRate", "arm", "trigger"});
        m_test.host.faults().plant(camera.key(), operation, Fault{{}, 0, true});
        return QString("camera %1 vanishes at %2").arg(camera.key()).arg(operation);
    }

    QString callBridge() {
        const QString call = anyOf(QStringList{
            "setFrameRate([%1, 2, 3], '500')", "setComment([%1], '<i>')", "setSelectStartFrameNo([%1, 2], -20)",
            "setSelectEndFrameNo([1, %1], 30)", "setTriggerOffset([%1], 7)", "setLowLight([%1], true)",
            "connect([%1], true)", "setRecordCheck([%1], true)", "setParamLock([1, 2, 3, 4, 5, 6, 7, 8], true)",
            "record()", "record()", "cancelRecord()", "enterMemoryMode()", "enterLiveMode()"});
        m_page->run(QString("wrentabledialog." + call).replace("%1", QString::number(1 + upTo(9))) + "; return 0");
        return call;
    }

    /// But of the camera that may not have told all of it.
    QStringList shown() {
        QStringList lines = m_page->list(Shown);
        const QString silent = QString::number(m_silent) + " |";
        lines.erase(
            std::remove_if(lines.begin(), lines.end(), [&](const QString& line) { return line.startsWith(silent); }),
            lines.end());
        return lines;
    }

    /// Key, name, selection and lock of each camera; its settings on the tab that has them, its frames in memory mode.
    QStringList expected() {
        const int tab = m_page->number("$('#tabs').tabs('option', 'active')");
        const bool disabled = m_page->run("wrentabledialog_obj.getListDisableStatus()").toBool();
        const QStringList chosen = m_page->list("attention.on ? Array.from(attention.keys) : ['all']");
        // In the view of odd rows they stand as they have joined.
        DocKeyList keys = m_test.host.docManager().getDocKeys();
        if (!chosen.contains("all")) {
            keys.clear();
            std::transform(chosen.begin(), chosen.end(), std::back_inserter(keys),
                           [](const QString& key) { return key.toUInt(); });
        }
        QStringList lines;
        for (const DOCKEY key : keys) {
            DOC_Interface* doc = m_test.host.docManager().getDocAny(key);
            if (doc == nullptr || key == m_silent) {
                continue;
            }
            const CameraState state = m_test.camera(key).state();
            const bool locked = tab < 5 && state.connected && !state.lowLight && state.locked;
            QStringList line{QString::number(key), state.name,
                             !disabled && state.connected && doc->isSelected() ? "selected" : "",
                             locked ? "locked" : ""};
            if (tab == 1) {
                line << settings(state);
            }
            if (tab == 5) {
                line << frames(*doc);
            }
            lines << line.join(" | ");
        }
        return lines;
    }

    static QStringList settings(const CameraState& state) {
        if (!state.connected) {
            return {"-", "-"};
        }
        return {QString::number(state.rate),
                QString("%1 x %2").arg(state.resolution.width()).arg(state.resolution.height())};
    }

    static QStringList frames(DOC_Interface& doc) {
        if (!doc.isConnected() || doc.frames().getFrameCount(0, 0) == 0) {
            return {"-", "-", "-", "-"};
        }
        const DOC_Frames& frames = doc.frames();
        const DOC_Control& control = doc.control();
        const int trigger = frames.getTriggerFrame(0);
        const int offset =
            control.isTriggerOffsetEnabled() ? control.getTriggerOffset() - control.getTriggerOffsetBase() : 0;
        return {QString::number(frames.getSelectStartFrame(0) - trigger),
                QString::number(frames.getSelectEndFrame(0) - trigger), QString::number(offset),
                frames.isRecordCheck() ? "true" : "false"};
    }

    std::mt19937 m_random;
    TestHost m_test{readRig(QStringLiteral("eight-mixed"))};
    std::unique_ptr<TablePage> m_page;
    QTimer m_user;
    int m_vanished = 0;
    DOCKEY m_silent = zeb::NoDocKey;
    QString m_unanswered = "getRecordRate";
};

class PageWalk : public testing::TestWithParam<unsigned> {};

TEST_P(PageWalk, ShowsWhatTheHostKnowsAfterEachStep) {
    Walk walk(GetParam());
    QStringList last;
    for (int n = 1; n <= Steps; ++n) {
        last << walk.step();
        walk.compare();
        if (HasFailure()) {
            FAIL() << "seed " << GetParam() << ", step " << n << "; the last steps:\n"
                   << last.mid(last.size() - 6).join('\n').toStdString();
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, PageWalk, testing::Range(1U, Seeds + 1U));

}  // namespace
