#include "Course.h"
#include "Files.h"
#include "JS_Mediator_ModelessPatternDialog.h"
#include "JS_Mediator_Plugin.h"

#include <QMetaMethod>

#include <gtest/gtest.h>

namespace {

/// The class's own methods of that kind in their order, "answer name(arguments)" each in a line.
QString methods(const QMetaObject& type, QMetaMethod::MethodType kind, const char* name) {
    QString text = QStringLiteral("%1, %2:\n").arg(type.className(), name);
    for (int i = type.methodOffset(); i < type.methodCount(); ++i) {
        const QMetaMethod method = type.method(i);
        if (method.methodType() != kind) {
            continue;
        }
        EXPECT_EQ(method.access(), QMetaMethod::Public) << method.methodSignature().toStdString();
        text += QStringLiteral("    %1 %2\n").arg(method.typeName(), QString::fromLatin1(method.methodSignature()));
    }
    return text;
}

TEST(PageInterface, SlotsAndSignalsOfEveryBridge) {
    const QStringList found = {
        methods(JS_Mediator::staticMetaObject, QMetaMethod::Slot, "slots"),
        methods(JS_Mediator_Dialog::staticMetaObject, QMetaMethod::Slot, "slots"),
        methods(JS_Mediator_ModelessPatternDialog::staticMetaObject, QMetaMethod::Slot, "slots"),
        methods(JS_Mediator_Plugin::staticMetaObject, QMetaMethod::Slot, "slots"),
        methods(JS_Mediator::staticMetaObject, QMetaMethod::Signal, "signals"),
        methods(JS_Mediator_Dialog::staticMetaObject, QMetaMethod::Signal, "signals"),
    };
    EXPECT_EQ(found.join('\n').toStdString(), contentOf(":/webdialog/expected/pageinterface.txt").toStdString());
}

}  // namespace
