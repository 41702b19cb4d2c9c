#pragma once

class QDialog;
class SimHost;

/// Gives the dialog the host's style and runs it until the user has closed it, then deletes it. Answers its result.
int runDialog(SimHost& host, QDialog* dialog);
