#include "MediaMenu.h"

#include "AppWindows.h"
#include "MediumDialog.h"
#include "SimHost.h"
#include "UiText.h"

#include <QMenu>

MediaMenu::MediaMenu(SimHost& host, AppWindows& windows, QMenu& menu) : QObject(&menu), m_host(host) {
    menu.addAction(uiText("Open media..."), this, [&windows] { windows.openMedia(); })
        ->setObjectName(QStringLiteral("openMedia"));
    menu.addAction(uiText("Put in..."), this, [&host] { runMediumDialog(host); })
        ->setObjectName(QStringLiteral("putInMedium"));
    QMenu* out = menu.addMenu(uiText("Pull out"));
    connect(out, &QMenu::aboutToShow, this, [this, out] { fill(*out); });
    connect(&menu, &QMenu::aboutToShow, this,
            [this, out] { out->menuAction()->setEnabled(!m_host.shelf().media().empty()); });
}

void MediaMenu::fill(QMenu& menu) {
    menu.clear();
    for (const MediaShelf::Held& medium : m_host.shelf().media()) {
        const QString text = uiText("%1 (%2)").arg(medium->name(), uiText(medium->kindOf().text));
        // What it is called holds no keys.
        menu.addAction(QString(text).replace(QLatin1Char('&'), QLatin1String("&&")), this,
                       [this, medium] { m_host.shelf().pullOut(medium); });
    }
}
