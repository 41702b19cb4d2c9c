#pragma once

class CycleFailures;
class DOC_Interface;
class QJsonObject;
class ZebHost;

// Rooms that a new state also goes through: who answers it (hostapi, zebsim/host and its switch there, the fakes in
// tests/webdialog), its name for scripts (zebsim/pages), the controls that it rules (pages), the tables of the tests
// (tests/webdialog, tests/pages).

/// The states of the application by which pages enable and disable their controls, each under its name.
/// `doc` null stands for the current document. What that fails to answer is left out and goes into `failures`; throws
/// what the host throws.
QJsonObject controlStatus(ZebHost& host, DOC_Interface* doc, CycleFailures& failures);
