#include "host/ImagePlugins.h"

#include <QHash>

namespace imageplugins {

namespace {

/// By name: whether it needs an OK.
const QHash<QString, bool>& table() {
    static const QHash<QString, bool> plugins{
        {QStringLiteral("lut"), false},   {QStringLiteral("colorcorrection"), false}, {QStringLiteral("filter"), true},
        {QStringLiteral("scale"), false}, {QStringLiteral("histogram"), false},       {QStringLiteral("mosaic"), true},
        {QStringLiteral("addtext"), true}};
    return plugins;
}

}  // namespace

bool has(const QString& name) {
    return table().contains(name);
}

bool needsOk(const QString& name) {
    return table().value(name);
}

}  // namespace imageplugins
