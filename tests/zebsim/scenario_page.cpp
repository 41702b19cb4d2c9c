#include "KeyInput.h"
#include "PageInput.h"
#include "PageScript.h"
#include "ScenarioError.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSignalSpy>
#include <QTest>
#include <QWebView>

#include <gmock/gmock.h>

namespace {

/// A page that writes down what the mouse and the keys do to it.
class Page : public testing::Test {
protected:
    void SetUp() override {
        view.resize(400, 300);
        view.setContextMenuPolicy(Qt::NoContextMenu);
        QSignalSpy loaded(&view, &QWebView::loadFinished);
        view.setHtml(QStringLiteral(
            "<style>body { margin: 0 } div { height: 40px } #list { height: 100px; overflow: auto }</style>"
            "<div id='top'>top</div><div id='list'><div id='room' style='height: 4000px; position: "
            "relative'></div></div>"
            "<input id='field'><div style='position: relative'><div id='under'>u</div>"
            "<div id='over' style='position: absolute; top: 0; width: 100%'></div></div>"
            "<div id='hidden' style='display: none'>h</div><div style='height: 900px'></div><div id='far'>far</div>"));
        view.show();
        ASSERT_TRUE(loaded.count() > 0 || loaded.wait());
        run(R"js(
            seen = [];
            var down = false;
            ['mousedown', 'mouseup', 'click', 'dblclick', 'mousemove'].forEach(function (kind) {
                document.addEventListener(kind, function (e) {
                    down = kind === 'mousedown' || (down && kind !== 'mouseup');
                    if (kind !== 'mousemove' || down) {
                        seen.push(e.target.id + ' ' + kind + (e.ctrlKey ? ' ctrl' : '') + (e.shiftKey ? ' shift' : ''));
                    }
                }, true);
            });
            var list = document.getElementById('list');
            list.addEventListener('scroll', function () {
                var first = Math.floor(list.scrollTop / 40), html = '';
                for (var i = first; i < first + 3; i++) {
                    html += '<div id="row' + i + '" style="position: absolute; top: ' + i * 40 + 'px">row</div>';
                }
                document.getElementById('room').innerHTML = html;
            });)js");
    }

    QJsonValue run(const char* text) { return PageScript(QString::fromUtf8(text)).run(view); }

    QString seen() {
        const QJsonArray events = run("seen.splice(0)").toArray();
        QStringList list;
        for (const QJsonValue& event : events) {
            list << event.toString();
        }
        return list.join(QStringLiteral(", "));
    }

    std::string fault(const QString& selector) {
        try {
            input.click(selector, {});
        } catch (const ScenarioError& e) {
            return e.what();
        }
        return {};
    }

    QWebView view;
    PageInput input{view, [] { return false; }};
};

TEST_F(Page, AnswersPlainDataForAnyScript) {
    struct Case {
        const char* script;
        const char* answer;
    };
    for (const Case& c : {Case{"1 + 2;", "3"}, Case{"({a: [1, 'x', null, true]})", R"({"a":[1,"x",null,true]})"},
                          Case{"var a = 1; var b = 2; return a + b", "3"}, Case{"'%1 %2' // a comment", "\"%1 %2\""},
                          Case{"document.body", "{}"}, Case{"kept = 4", "4"}, Case{"kept", "4"},
                          Case{"if (false) { never(); }", "null"}, Case{"'\\u65e5\\u672c'", "\"日本\""}}) {
        const QByteArray list = QJsonDocument(QJsonArray{run(c.script)}).toJson(QJsonDocument::Compact);
        EXPECT_EQ(list.mid(1, list.size() - 2).toStdString(), c.answer) << c.script;
    }
}

TEST_F(Page, TellsWhatIsWrongWithAScript) {
    const auto fails = [&](const char* script) -> std::string {
        try {
            run(script);
        } catch (const ScenarioError& e) {
            return e.what();
        }
        return {};
    };
    EXPECT_THAT(fails("nothing.here"), testing::HasSubstr("Can't find variable: nothing"));
    EXPECT_THAT(fails("throw 'my words'"), testing::HasSubstr("my words"));
    EXPECT_THAT(fails("a b c"), testing::HasSubstr("no script: a b c"));
}

TEST_F(Page, ClicksAsTheWindowSystemDoes) {
    const auto with = [](const std::function<void(ClickOptions&)>& set) {
        ClickOptions options;
        set(options);
        return options;
    };
    const std::pair<ClickOptions, const char*> clicks[] = {
        {{}, "top mousedown, top mouseup, top click"},
        {with([](ClickOptions& o) { o.modifiers = Qt::ControlModifier | Qt::ShiftModifier; }),
         "top mousedown ctrl shift, top mouseup ctrl shift, top click ctrl shift"},
        {with([](ClickOptions& o) { o.twice = true; }),
         "top mousedown, top mouseup, top click, top mousedown, top mouseup, top click, top dblclick"},
        {with([](ClickOptions& o) { o.part = ClickOptions::PressOnly; }), "top mousedown"},
        {with([](ClickOptions& o) { o.part = ClickOptions::ReleaseOnly; }), "top mouseup, top click"},
        {with([](ClickOptions& o) { o.button = Qt::RightButton; }), "top mousedown, top mouseup"},
    };
    for (const auto& [options, events] : clicks) {
        input.click(QStringLiteral("#top"), options);
        EXPECT_EQ(seen(), events);
    }
}

TEST_F(Page, ScrollsToWhatIsNotInViewAndToWhatIsNotDrawnYet) {
    input.click(QStringLiteral("#far"), {});
    EXPECT_THAT(seen().toStdString(), testing::EndsWith("far click"));
    input.click(QStringLiteral("#row90"), {});
    EXPECT_THAT(seen().toStdString(), testing::EndsWith("row90 click"));
    input.click(QStringLiteral("#row2"), {});
    EXPECT_THAT(seen().toStdString(), testing::EndsWith("row2 click"));
}

TEST_F(Page, RefusesWhatAPersonCouldNotClick) {
    EXPECT_THAT(fault(QStringLiteral("#none")), testing::HasSubstr("no such element"));
    EXPECT_THAT(fault(QStringLiteral("#hidden")), testing::HasSubstr("not shown"));
    EXPECT_THAT(fault(QStringLiteral("#under")), testing::HasSubstr("under div#over"));
    EXPECT_THAT(fault(QStringLiteral("#a'b\"[")), testing::HasSubstr("in the page"));
}

TEST_F(Page, DragsFromOneElementToAnother) {
    input.drag(QStringLiteral("#top"), QStringLiteral("#field"));
    const std::string events = seen().toStdString();
    EXPECT_THAT(events, testing::StartsWith("top mousedown, top mousemove"));
    EXPECT_THAT(events, testing::HasSubstr("room mousemove"));
    EXPECT_THAT(events, testing::HasSubstr("field mouseup"));
}

TEST_F(Page, TypesTextAndPressesKeysByName) {
    input.click(QStringLiteral("#field"), {});
    typeText(*view.windowHandle(), QStringLiteral("aX 9+日本\b\"<"));
    EXPECT_EQ(run("document.getElementById('field').value").toString(), QStringLiteral("aX 9+日\"<"));
    const auto never = [] { return false; };
    for (const char* name : {"Shift+Home", "Ctrl+X", "Shift+B", "8"}) {
        pressKey(QString::fromUtf8(name), 0, never);
    }
    EXPECT_EQ(run("document.getElementById('field').value").toString(), QStringLiteral("B8"));
    EXPECT_THROW(pressKey(QStringLiteral("Shift+Nothing"), 0, never), ScenarioError);
}

TEST_F(Page, ChoosesInAListByTheText) {
    run("document.body.innerHTML = '<select id=list><option value=1>one<option value=2>two</select>'");
    input.choose(QStringLiteral("#list"), QStringLiteral("two"));
    EXPECT_EQ(run("document.getElementById('list').value").toString(), QStringLiteral("2"));
    EXPECT_THROW(input.choose(QStringLiteral("#list"), QStringLiteral("3")), ScenarioError);
}

}  // namespace
