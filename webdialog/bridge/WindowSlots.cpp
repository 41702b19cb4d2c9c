#include "BridgeCall.h"
#include "DeterScope.h"
#include "DocumentGuard.h"
#include "SupportFileExport.h"
#include "ZebAppStatus.h"
#include "ZebHost.h"
#include "ZebMdi.h"

#include <QRect>

#include <optional>

void JS_Mediator::openPlugin(const QString& name) {
    call(*this, Change, __func__, {{"name", name}}, [&] {
        std::optional<DocumentGuard> guard;
        if (name == QLatin1String("binning")) {
            guard.emplace(host());
        }
        host().appStatus().openPlugin(name);
        if (guard) {
            guard->release();
        }
    });
}

void JS_Mediator::closePlugin() {
    call(*this, Change, __func__, {}, [&] { host().appStatus().closePanel(); });
}

void JS_Mediator::closePlugin(const QString& name) {
    call(*this, Change, __func__, {{"name", name}}, [&] {
        const DeterScope deter(host());
        host().appStatus().closePlugin(name);
    });
}

void JS_Mediator::openExportSupportFileDialog() {
    call(*this, Action, __func__, {}, [&] { SupportFileExport(host()).run(); });
}

void JS_Mediator::openAbouZebDialog() {
    call(*this, Action, __func__, {}, [&] { host().openAboutDialog(); });
}

void JS_Mediator::hideSelectBox() {
    call(*this, Plain, __func__, {}, [&] { host().hideSelectBox(); });
}

bool JS_Mediator::isShownDropBox() {
    return call(*this, Query, __func__, {}, [&] { return host().isShownDropBox(); });
}

void JS_Mediator::showDropDownBox(const QString& key, int x, int y, int width, int height) {
    call(*this, Plain, __func__, {}, [&] { host().showDropDownBox(key, QRect(x, y, width, height)); });
}

void JS_Mediator::hideDropDownBox(const QString& key) {
    call(*this, Plain, __func__, {}, [&] { host().hideDropDownBox(key); });
}

void JS_Mediator::hideDropDownBox(const QString& key, int x, int y) {
    call(*this, Plain, __func__, {}, [&] { host().hideDropDownBoxAt(key, QPoint(x, y)); });
}

int JS_Mediator::countMdiWindow(bool visible) {
    return call(*this, Query, __func__, {}, [&] { return host().mdi().countMdiWindow(visible, 2); });
}
