#include "FakeHost.h"
#include "JS_Mediator_ModelessPatternDialog.h"
#include "JS_Mediator_Plugin.h"

#include <QMetaMethod>

#include <gtest/gtest.h>

#include <iostream>

namespace {

/// "answer name(arguments)" of the class's own methods of that kind, in their order.
QStringList methods(const QMetaObject& type, QMetaMethod::MethodType kind) {
    QStringList found;
    for (int i = type.methodOffset(); i < type.methodCount(); ++i) {
        const QMetaMethod method = type.method(i);
        if (method.methodType() != kind) continue;
        EXPECT_EQ(method.access(), QMetaMethod::Public) << method.methodSignature().toStdString();
        found.append(QString(QLatin1String(method.typeName()) % ' ' % QString::fromLatin1(method.methodSignature())));
    }
    return found;
}

void expectMethods(const QMetaObject& type, QMetaMethod::MethodType kind, const QStringList& expected) {
    EXPECT_EQ(methods(type, kind).join('\n').toStdString(), expected.join('\n').toStdString());
    std::cout << type.className() << ": " << expected.size() << (kind == QMetaMethod::Slot ? " slots\n" : " signals\n");
}

TEST(PageInterface, SlotsOfEveryBridge) {
    expectMethods(JS_Mediator::staticMetaObject, QMetaMethod::Slot,
                  {"int getSkipMode()",
                   "void setSkipFrames(double)",
                   "double getSkipFrames()",
                   "double getSkipMinFrames()",
                   "double getSkipMaxFrames()",
                   "void setStyle(QString)",
                   "QString getStyle()",
                   "void openPlugin(QString)",
                   "void closePlugin()",
                   "void closePlugin(QString)",
                   "void errorHandler(std::exception&)",
                   "void info(QString)",
                   "void warn(QString)",
                   "void warn(QString,QStringList)",
                   "void alert(QString)",
                   "void alert(QString,QStringList)",
                   "bool confirm(QString)",
                   "QString translate(QString)",
                   "QString translate(QString,QString)",
                   "bool isReady()",
                   "bool isLiveMode()",
                   "bool isMemoryMode()",
                   "bool isFileMode()",
                   "bool isPlaying()",
                   "bool isConnected()",
                   "QString load(QString)",
                   "void updateUI()",
                   "void deterUpdateUI(bool)",
                   "void addPrefsJSObject()",
                   "int getPrefInt(QString,QVariant)",
                   "int getPrefInt(QString)",
                   "bool getPrefBool(QString,QVariant)",
                   "bool getPrefBool(QString)",
                   "float getPrefFloat(QString,QVariant)",
                   "float getPrefFloat(QString)",
                   "QString getPrefString(QString,QVariant)",
                   "QString getPrefString(QString)",
                   "void setPrefInt(QString,int,bool)",
                   "void setPrefInt(QString,int)",
                   "void setPrefBool(QString,bool,bool)",
                   "void setPrefBool(QString,bool)",
                   "void setPrefFloat(QString,float,bool)",
                   "void setPrefFloat(QString,float)",
                   "void setPrefString(QString,QString,bool)",
                   "void setPrefString(QString,QString)",
                   "void setPrefDQString(QString,QString,bool)",
                   "void setPrefDQString(QString,QString)",
                   "int openPrefsDialog(QString)",
                   "int openPrefsDialog()",
                   "void openPrefsEthernetSettings()",
                   "void openExportSupportFileDialog()",
                   "void openAbouZebDialog()",
                   "void log(QString)",
                   "void debugLog(QString)",
                   "void infoLog(QString)",
                   "void errorLog(QString)",
                   "QString getControlStatus(DOC_Interface*)",
                   "QString getControlStatus()",
                   "QVariantList getDeviceInfoList(bool)",
                   "QVariantList getSelectedDockey()",
                   "void setSelectDoc(QString)",
                   "void selectAllDocs()",
                   "void copySelectAreaToClipboard()",
                   "bool isWaveDataAcquisition()",
                   "QString getCalibrationUnits()",
                   "int getRangeMax()",
                   "bool isUpdateIgnore()",
                   "void setDisableAllQuickTool()",
                   "void userOperationLogWebView(QString,QString,QString,QString,QString,QVariant)",
                   "void userOperationErrorLog(QString)",
                   "void setConnectedCameraShowing(bool)",
                   "bool getConnectedCameraShowing()",
                   "int countMdiWindow(bool)",
                   "int countMdiWindow()",
                   "bool isWrenRunning()",
                   "void checkRestoredPrefs()",
                   "void hideSelectBox()",
                   "bool isShownDropBox()",
                   "void showDropDownBox(QString,int,int,int,int)",
                   "void hideDropDownBox(QString)",
                   "void hideDropDownBox(QString,int,int)",
                   "bool isMVersion()",
                   "QString getFlip()",
                   "QString getRotate()"});
    expectMethods(JS_Mediator_Dialog::staticMetaObject, QMetaMethod::Slot, {"int getHeight()", "int getWidth()"});
    expectMethods(JS_Mediator_ModelessPatternDialog::staticMetaObject, QMetaMethod::Slot,
                  {"void onOpen()", "void onClose()", "void setTextBoxFocusState(bool)"});
    expectMethods(
        JS_Mediator_Plugin::staticMetaObject, QMetaMethod::Slot,
        {"QString name()", "QString uiName()", "void onOpen()", "void onApply()", "void onOK()", "void onCancel()",
         "void onReset()", "void onClose()", "void onClosed()", "void undo()", "void redo()", "void beginMacro()",
         "void endMacro()", "bool isCurrentDummy()", "QString getCurrentWindowTitle()"});
}

TEST(PageInterface, SignalsOfEveryBridge) {
    expectMethods(JS_Mediator::staticMetaObject, QMetaMethod::Signal,
                  {"void open()", "void update()", "void close()", "void enterQtWidget()"});
    expectMethods(JS_Mediator_Dialog::staticMetaObject, QMetaMethod::Signal,
                  {"void accept()", "void reject()", "void rejected()"});
}

}  // namespace
