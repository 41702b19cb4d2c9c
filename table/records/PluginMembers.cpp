#include "PluginMembers.h"

#include "DOC_Interface.h"
#include "DOC_Storage.h"
#include "JsonText.h"
#include "Record.h"
#include "ZebAppStatus.h"
#include "ZebHost.h"

namespace pluginmembers {

namespace {

QString entry(const QString& plugin, DOC_Interface& doc, ZebHost& host) {
    Record members;
    members.setText(QLatin1String("name"), plugin);
    members.setFlag(QLatin1String("effective"), doc.storage().isPluginEffective(plugin, 0));
    members.setFlag(QLatin1String("enable"), host.appStatus().isPluginEnabledFor(plugin, &doc));
    members.setFlag(QLatin1String("okpattern"), host.isPluginOkPattern(plugin));
    QString json;
    members.appendTo(json);
    return json;
}

}  // namespace

void add(Record& record, DOC_Interface& doc, ZebHost& host, bool connected) {
    QStringList entries;
    for (const QString& plugin : connected ? doc.storage().getPluginNames() : QStringList()) {
        if (host.isPluginAvailable(plugin)) {
            entries.append(entry(plugin, doc, host));
        }
    }
    record.setJson(QLatin1String("plugins"), jsontext::array(entries));
}

}  // namespace pluginmembers
