#pragma once

#include <QByteArray>

class PLG_Interface;

/// Whether the plug-in has a signal of this signature, as "signalRecord()".
bool hasPluginSignal(const PLG_Interface& plugin, const QByteArray& signature);

/// Raises a signal without an argument, as "signalRecord"; false when the plug-in has none of that name. GUI thread.
bool raisePluginSignal(PLG_Interface& plugin, const QByteArray& name);
