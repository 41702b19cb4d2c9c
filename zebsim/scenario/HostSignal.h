#pragma once

#include <QString>

#include <functional>

class PLG_Interface;

/// Raises one of the host's signals on a plug-in, as "signalRecord". One that takes an argument waits for the GUI
/// thread and is raised from another one; back when it has been served. Throws `ScenarioError` for a signal that the
/// plug-in does not have, and for one that was not served when the scenario was given up.
void raiseHostSignal(PLG_Interface& plugin, const QString& name, const QString& argument,
                     const std::function<bool()>& givenUp);
