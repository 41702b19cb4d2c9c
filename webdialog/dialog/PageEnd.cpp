#include "PageEnd.h"

#include "GUI_WebView.h"
#include "JS_Mediator.h"

#include <algorithm>

JS_Mediator* findBusy(const QList<JS_Mediator*>& bridges) {
    const auto busy = std::find_if(bridges.begin(), bridges.end(), [](JS_Mediator* b) { return b->isInCall(); });
    return busy == bridges.end() ? nullptr : *busy;
}

void destroyPage(GUI_WebView* view, const QList<JS_Mediator*>& bridges) {
    if (JS_Mediator* busy = findBusy(bridges)) {
        view->setParent(nullptr);
        busy->afterCalls([=] { destroyPage(view, bridges); });
        return;
    }
    qDeleteAll(bridges);
    view->close();
    delete view;
}
