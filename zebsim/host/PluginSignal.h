#pragma once

#include <QByteArray>

class PLG_Interface;
class SimAppStatus;

/// The host's signals on plug-ins, as "signalRecord". GUI thread.

/// Whether the plug-in has a signal of this signature, as "signalRecord()".
bool hasPluginSignal(const PLG_Interface& plugin, const QByteArray& signature);

/// Raises a signal without an argument; false when the plug-in has none of that name.
bool raisePluginSignal(PLG_Interface& plugin, const QByteArray& name);
/// The same on every plug-in that has it.
void sendToPlugins(const SimAppStatus& status, const QByteArray& name);
/// The same on the plug-in whose dialog is the active window. False when there is none: the key that was pressed is
/// meant for the viewer.
bool sendToActivePlugin(const SimAppStatus& status, const QByteArray& name);
