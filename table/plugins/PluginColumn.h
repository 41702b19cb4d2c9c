#pragma once

#include "ZebTypes.h"

#include <QPoint>
#include <QString>
#include <QVariantMap>

#include <functional>

class ZebHost;

/// The image plug-ins that work on the images of a camera, by name. Nothing is done in file mode. May throw what the
/// host throws. GUI thread.
class PluginColumn {
public:
    explicit PluginColumn(ZebHost& host) : m_host(host) {}

    /// Has the plug-in work on the images of those of `keys` where it may be touched, or not. One that fails keeps no
    /// other from it.
    void toggle(const DocKeyList& keys, const QString& plugin, bool enable);
    /// Runs the menu of the plug-in's icon at `place` on the screen; an entry that is chosen is what `chosen` gets, for
    /// `remove`. No menu where the plug-in may not be touched. The host must outlive it, its main window need not.
    void runMenu(DOCKEY key, const QString& plugin, const QPoint& place,
                 const std::function<void(const QVariant&)>& chosen);
    /// The plug-in works no more on the images of the camera; both are members of `entry`.
    void remove(const QVariantMap& entry);

private:
    /// Whether the user may say if the plug-in works on a connected camera: not on a locked one, if it works on live
    /// images.
    bool mayTouch(const QString& plugin, DOC_Interface& doc) const;

    ZebHost& m_host;
};
