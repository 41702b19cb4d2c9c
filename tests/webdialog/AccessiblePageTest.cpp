#include "AccessibleState.h"
#include "GUI_WebView.h"
#include "Until.h"

#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>
#include <QAccessible>
#include <QMetaEnum>
#include <QTest>
#include <QWebFrame>

#include <gtest/gtest.h>

namespace {

const QString Page = QStringLiteral(R"(<body>
<div id="box" role="grid" aria-label="Cameras" tabindex="0"><table>
 <tr role="row" class="w2ui-selected">
  <td id="one" role="gridcell" current>&lt;b&gt;Gate&lt;/b&gt;</td>
  <td id="two" role="gridcell" why="It is &quot;locked&quot;."><div><button id="lock" aria-label="Lock" disabled></button></div></td>
 </tr></table></div>
<fieldset><legend>Trigger</legend>
 <label for="edge">Edge</label><select id="edge"><option>Up</option><option selected>Down</option></select>
 <label><input id="on" type="checkbox" title="Arms it">On</label>
 <input id="from" placeholder="From" value="12"><input type="password" title="Code" value="secret">
 <input type="range" id="level" min="1" max="9" value="3" aria-labelledby="edge-name on">
</fieldset>
<span id="edge-name" hidden>Level</span><div style="display: none"><button>Hidden</button></div>
<p id="news" role="status"></p><div id="fold" role="menuitem" aria-expanded="false" title="More">More</div>
<ul role="tablist"><li role="tab" aria-selected="true"><a tabindex="-1">Sync</a></li></ul>
</body>)");

QString keyOf(const char* enumerator, int value) {
    const QMetaObject& all = QAccessible::staticMetaObject;
    return all.enumerator(all.indexOfEnumerator(enumerator)).valueToKey(value);
}

/// A line an element, its children indented.
QString tree(QAccessibleInterface& element, const QString& indent = {}) {
    QStringList states = stateNames(element.state());
    states.removeOne("focusable");
    QString line = indent + keyOf("Role", element.role()) + ": " + element.text(QAccessible::Name);
    for (const QAccessible::Text text : {QAccessible::Value, QAccessible::Description}) {
        line += element.text(text).isEmpty() ? QString() : " | " + element.text(text);
    }
    line += (states.isEmpty() ? QString() : " [" + states.join(' ') + "]") + '\n';
    for (int i = 0; i < element.childCount(); ++i) {
        EXPECT_EQ(element.child(i)->parent(), &element);
        EXPECT_EQ(element.indexOfChild(element.child(i)), i);
        line += tree(*element.child(i), indent + ' ');
    }
    return line;
}

QStringList told;

void note(QAccessibleEvent* event) {
    QAccessibleInterface* of = event->accessibleInterface();
    told << keyOf("Event", event->type()) + ' ' + (of ? of->text(QAccessible::Name) : QString());
}

class AccessiblePageOf : public testing::Test {
protected:
    void SetUp() override {
        view->page()->mainFrame()->setHtml(Page);
        view->show();
        view->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(view.get()));
        view->setFocus();
    }
    void TearDown() override {
        QAccessible::installUpdateHandler(nullptr);
        listen(false);
    }
    /// As when a screen reader starts or ends.
    static void listen(bool on) { QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(on); }
    QVariant eval(const QString& script) { return view->page()->mainFrame()->evaluateJavaScript(script); }
    QAccessibleInterface* root() { return QAccessible::queryAccessibleInterface(view.get()); }
    /// What is told once `script` has run and `last` has been told.
    QStringList tells(const QString& script, const QString& last) {
        told.clear();
        eval(script);
        EXPECT_TRUE(until([&] { return told.contains(last); })) << qPrintable(told.join(", "));
        return told;
    }

    std::unique_ptr<GUI_WebView> view = std::make_unique<GUI_WebView>(nullptr);
};

TEST_F(AccessiblePageOf, AViewIsAsItsPageSaysOnceSomeoneListens) {
    EXPECT_EQ(root()->childCount(), 0);
    EXPECT_EQ(eval("typeof pageReader + typeof pageReaderEvents"), "undefinedundefined");
    listen(true);
    EXPECT_EQ(tree(*root()).section('\n', 1), QStringLiteral(R"( Table: Cameras
  Row:  [selectable selected]
   Cell: <b>Gate</b> [selectable selected]
   Cell: Lock | It is "locked". [selectable selected]
    Button: Lock | It is "locked". [disabled]
 Grouping: Trigger
  ComboBox: Edge | Down
  CheckBox: On | Arms it [checkable]
  EditableText: From | 12 [editable]
  EditableText: Code [editable passwordEdit]
  Slider: Level | 3
 Notification: 
 MenuItem: More [expandable collapsed]
 PageTabList: 
  PageTab: Sync [selectable selected]
)"));
    QAccessibleInterface* slider = root()->child(1)->child(4);
    ASSERT_TRUE(slider->valueInterface());
    EXPECT_EQ(slider->valueInterface()->maximumValue(), 9);
    EXPECT_EQ(root()->child(1)->child(2)->textInterface()->text(1, 2), "2");

    eval("var readerTexts = {name: e => e.id === 'one' ? 'Row 1' : '', description: e => { throw 'broken'; }}");
    EXPECT_EQ(root()->child(0)->child(0)->child(0)->text(QAccessible::Name), "Row 1");
    EXPECT_EQ(root()->child(0)->child(0)->child(1)->text(QAccessible::Description), "It is \"locked\".");
}

TEST_F(AccessiblePageOf, WhatHappensIsTold) {
    QAccessible::installUpdateHandler(note);
    listen(true);
    EXPECT_EQ(tells("document.getElementById('box').focus()", "Focus <b>Gate</b>").size(), 1);
    EXPECT_TRUE(root()->focusChild()->state().focused);
    EXPECT_FALSE(root()->child(0)->state().focused);
    tells("one.removeAttribute('current'); two.setAttribute('current', '')", "Focus Lock");
    tells("two.setAttribute('why', 'It records.')", "DescriptionChanged Lock");
    tells("two.textContent = 'Open'", "NameChanged Open");
    tells("on.focus()", "Focus On");
    tells("on.click()", "StateChanged On");
    tells("var from = document.getElementById('from'); from.focus()", "Focus From");
    tells("from.value = '13'; from.dispatchEvent(new Event('input'))", "TextUpdated From");
    tells("from.setSelectionRange(0, 1); from.click()", "TextSelectionChanged From");
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    view->activateWindow();
    tells("", "Focus From");
    tells("news.textContent = '<i>saved</i>'", "ObjectShow <i>saved</i>");
}

TEST_F(AccessiblePageOf, NothingOutlivesItsElement) {
    listen(true);
    const auto idOf = [&](int child) { return QAccessible::uniqueId(root()->child(child)); };
    QAccessibleInterface* fold = root()->child(3);
    const QAccessible::Id folded = idOf(3);
    EXPECT_EQ(fold, root()->child(3));
    eval("fold.parentElement.removeChild(fold)");
    EXPECT_FALSE(fold->isValid());
    EXPECT_EQ(fold->text(QAccessible::Name), "");
    EXPECT_TRUE(until([&] { return !QAccessible::accessibleInterface(folded); }));

    const QAccessible::Id grid = idOf(0);
    view->page()->mainFrame()->setHtml("<button>Other</button>");
    EXPECT_TRUE(until([&] { return !QAccessible::accessibleInterface(grid); }));
    EXPECT_EQ(root()->child(0)->text(QAccessible::Name), "Other");

    const QAccessible::Id other = idOf(0);
    const QAccessible::Id document = QAccessible::uniqueId(root());
    view.reset();
    EXPECT_FALSE(QAccessible::accessibleInterface(other));
    EXPECT_FALSE(QAccessible::accessibleInterface(document));
}

}  // namespace
