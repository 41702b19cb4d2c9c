#pragma once

#include <QList>

class GUI_WebView;
class JS_Mediator;

/// A bridge that a call runs in; null when none does.
JS_Mediator* findBusy(const QList<JS_Mediator*>& bridges);

/// Destroys what belongs to a page: at once if no call of it runs, else when the call has ended. A view that goes
/// inside such a call takes the script away under which the call stands.
void destroyPage(GUI_WebView* view, const QList<JS_Mediator*>& bridges);
