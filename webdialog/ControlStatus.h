#pragma once

class QJsonObject;
class ZebHost;

/// The states of the application by which pages enable and disable their controls, each under its name.
QJsonObject controlStatus(ZebHost& host);
