#include "Files.h"
#include "JS_Mediator_ConvertParameterEditDialog.h"
#include "JS_Mediator_SaveFile.h"
#include "SlotCall.h"
#include "support/TestHost.h"

#include <QApplication>
#include <QDialog>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

/// What the page sees of a class itself, a line each: signals, then slots.
QStringList methodsOf(const QMetaObject& type) {
    QStringList signalLines{QStringLiteral("%1:").arg(type.className())};
    QStringList slotLines;
    for (int i = type.methodOffset(); i < type.methodCount(); ++i) {
        const QMetaMethod method = type.method(i);
        QStringList& lines = method.methodType() == QMetaMethod::Signal ? signalLines : slotLines;
        lines += QStringLiteral("    %1 %2").arg(method.typeName(), QString::fromLatin1(method.methodSignature()));
    }
    return signalLines + slotLines;
}

TEST(SavePageSlots, StandInTheirOrder) {
    const QStringList found = methodsOf(JS_Mediator_SaveFile::staticMetaObject) +
                              methodsOf(JS_Mediator_FileDialog::staticMetaObject) +
                              methodsOf(JS_Mediator_ConvertParameterEditDialog::staticMetaObject);
    EXPECT_EQ(found.join('\n').toStdString() + '\n', contentOf(SLOTS).toStdString());
}

TEST(SavePageSlots, LetNoFailureOut) {
    TestHost test(connected(2));
    QTimer closing;
    QObject::connect(&closing, &QTimer::timeout, [] {
        if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
            dialog->reject();
        }
    });
    closing.start(1);
    JS_Mediator_SaveFile options(&test.host, "savedialog");
    JS_Mediator_ConvertParameterEditDialog files(&test.host, {1, 2});
    test.fail("*");
    test.host.faults().plant(FaultPlan::Host, "errorHandler", {{}, 1});  // that one gets through
    test.host.faults().plant(1, "*", {"no answer"});
    const QMap<int, QVariant> values{{qMetaTypeId<DOCKEY>(), QVariant::fromValue(DOCKEY(1))}};
    for (QObject* bridge : {static_cast<QObject*>(&options), static_cast<QObject*>(&files)}) {
        const QMetaObject& type =
            bridge == &options ? JS_Mediator_SaveFile::staticMetaObject : JS_Mediator_FileDialog::staticMetaObject;
        for (const QMetaMethod& slot : slotsOf(type)) {
            EXPECT_NO_THROW(callSlot(*bridge, slot, values)) << slot.methodSignature().toStdString();
        }
    }
    EXPECT_FALSE(options.isInCall() || files.isInCall());
    EXPECT_TRUE(test.desk.texts().contains("no answer")) << "of the host";
}

TEST(SavePageSlots, GoByTheNameOfTheDialog) {
    TestHost test(connected(1));
    int family = 0;
    for (const QString key : {"export/", "convert/", "snap/", "report/", "layout/"}) {
        ++family;
        test.host.setPref(key + "dir", QString("/" + key.chopped(1)));
        for (const char* name : {"groupdir", "subdir", "filename"}) {
            test.host.setPref(key + name + "addnumbercameranodigits", 1);
            test.host.setPref(key + name + "addnumberheadnodigits", 2);
            test.host.setPref(key + name + "addnumbersessionnodigits", family);
        }
        test.host.setPref(key + "skipunit", family);
        test.host.setPref(key + "raww/bayersave", true);
    }
    test.host.setPref("convert/dirasoriginal", false);
    const struct {
        const char* dialog;
        const char* modes;
        int previewType;
        const char* root;
        /// Numbers of group directory, subdirectory and name.
        const char* numbers;
        int skipUnit;
        bool isRaw;
    } cases[] = {
        {"savedialog", "", 10, "/export/", "C1H01S1 C1H01S1 C1H01S1", 1, true},
        {"anything", "", 10, "/export/", "C1H01S1 C1H01S1 C1H01S1", 1, true},
        {"fileopendialog", "", 9, "/export/", "C1H01S1 C1H01S1 C1H01S1", 1, true},
        {"batchconverter", "convert", 11, "/convert/", "S01 S01 S01", 1, true},
        {"convertparametereditdialog", "convert", 11, "/convert/", "S01 S01 S01", 1, true},
        {"snapshotdialog", "snap", 10, "/snap/", "C1H01S001 C1H01S001 C1H01S001", 1, false},
        {"reportExportDialog", "report", 17, "/report/", " S0001 S0001", 4, false},
        {"layoutsavedialog", "layout", 18, "/layout/", "C1H01S1 C1H01S00001 C1H01S00001", 5, false},
    };
    for (const auto& row : cases) {
        JS_Mediator_SaveFile options(&test.host, row.dialog);
        JS_Mediator_FileDialog files(&test.host, row.dialog);
        const QString modes = QString(options.isConvertMode() ? "convert" : "") + (options.isSnapMode() ? "snap" : "") +
                              (options.isReportMode() ? "report" : "") + (options.isLayoutMode() ? "layout" : "");
        EXPECT_EQ(modes, row.modes) << row.dialog;
        EXPECT_EQ(previewType(row.dialog), row.previewType) << row.dialog;
        EXPECT_EQ(files.getExportPath(), row.root) << row.dialog;
        EXPECT_EQ(QStringList({options.addNumber4GroupDir(), options.addNumber4SubDir(), options.addNumber4FileName()})
                      .join(' '),
                  row.numbers)
            << row.dialog;
        EXPECT_EQ(files.getSkipMode(), row.skipUnit) << row.dialog;
        EXPECT_EQ(options.isRawFormat("Raww"), row.isRaw) << row.dialog;
        EXPECT_EQ(options.getParentWidgetName() + ' ' + options.objectName(), row.dialog + QString(" savefile"));
    }
}

}  // namespace
