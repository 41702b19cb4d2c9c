#include "ImagePlugins.h"

#include "TextKey.h"

#include <QHash>

namespace imageplugins {

namespace {

/// By the key of its text, which is "p_" and its name: whether it needs an OK.
const QHash<QString, bool>& table() {
    static const QHash<QString, bool> plugins{{TextKey("p_lut"), false},       {TextKey("p_colorcorrection"), false},
                                              {TextKey("p_filter"), true},     {TextKey("p_scale"), false},
                                              {TextKey("p_histogram"), false}, {TextKey("p_mosaic"), true},
                                              {TextKey("p_addtext"), true}};
    return plugins;
}

QString keyOf(const QString& name) {
    return QLatin1String("p_") % name;
}

}  // namespace

bool has(const QString& name) {
    return table().contains(keyOf(name));
}

bool needsOk(const QString& name) {
    return table().value(keyOf(name));
}

}  // namespace imageplugins
