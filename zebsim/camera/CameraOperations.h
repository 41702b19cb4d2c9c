#pragma once

#include <QSet>
#include <QString>

/// Names of all operations on which a fault can be planted: the questions and commands of a camera.
const QSet<QString>& cameraOperations();
