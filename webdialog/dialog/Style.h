#pragma once

class QString;
class QWidget;
class ZebHost;

/// The preference of the user's style, "light" when none is stored.
QString styleName(const ZebHost& host);

/// Gives `widget` the style sheet of native dialogs, or of message boxes, in the user's style. A style sheet that
/// the host does not have is empty.
void applyNativeStyle(const ZebHost& host, QWidget& widget);
void applyMessageBoxStyle(const ZebHost& host, QWidget& widget);
