#pragma once

#include <QSet>
#include <QString>

/// Names of the operations on which a fault can be planted: of a camera, of a Sync Hub, of the host itself.
const QSet<QString>& cameraOperations();
const QSet<QString>& hubOperations();
const QSet<QString>& hostOperations();
