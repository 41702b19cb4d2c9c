#pragma once

class DOC_Interface;
class QJsonObject;
class ZebHost;

/// The states of the application by which pages enable and disable their controls, each under its name.
/// `doc` null stands for the current document. Throws what the host and the document throw.
QJsonObject controlStatus(ZebHost& host, DOC_Interface* doc = nullptr);
